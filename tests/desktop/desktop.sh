# A desktop for one program: a virtual screen with a window manager, an empty home, and hands that
# click and type. Nothing here waits for a fixed time; what doesn't come within $patience seconds is
# a failure.

for tool in Xvfb openbox xdotool import identify convert bmptopnm ppmtoppm pamenlarge pamcut; do
  command -v "$tool" >/dev/null || {
    echo "desktop: $tool is missing; scripts/test installs what the tests need" >&2
    exit 1
  }
done

suppressions=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../lsan.supp")
patience=30
scale=1
out=
home=
screen=
manager=
program=
ending=

# fail MESSAGE... ends the test, with a picture of the whole screen beside the others.
fail() {
  echo "desktop: $*" >&2
  if [[ $screen ]]; then
    import -window root "$out/failure.png" && echo "desktop: see $out/failure.png" >&2
    echo "desktop: these windows were open:" >&2
    xdotool search --onlyvisible --name . getwindowname %@ >&2 || true
    echo "desktop: in use was: $(xdotool getactivewindow getwindowname 2>&1)" >&2
  fi
  [[ ! -s $out/program.log ]] || cat "$out/program.log" >&2
  exit 1
}

# wait_until WHAT COMMAND... polls until the command succeeds, as long as the program lives.
wait_until() {
  local what=$1 end=$((SECONDS + patience))
  shift
  until "$@"; do
    [[ ! $program || $ending ]] || is_running || fail_ended "$what"
    ((SECONDS < end)) || fail "$patience seconds went by without $what"
    sleep 0.05
  done
}

# The program is gone; above 128 its status is that of a signal.
fail_ended() {
  local status=0
  wait "$program" || status=$?
  fail "the program ended with $status before $1"
}

is_running() { kill -0 "$program" 2>/dev/null; }
is_over() { ! is_running; }

# start_screen WIDTH HEIGHT OUT opens the screen. Pictures and the program's output go to OUT.
start_screen() {
  out=$3
  home=$(mktemp -d)
  trap stop EXIT
  mkdir -m 700 "$home/config" "$home/temp" "$home/run"
  export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run temp=$home/temp
  export LANG=C.UTF-8 QT_QPA_PLATFORM=xcb
  export LSAN_OPTIONS=suppressions=$suppressions:print_suppressions=0
  unset LC_ALL WAYLAND_DISPLAY WINEPREFIX QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS \
    QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE

  # Without -noreset the screen starts anew when the last client goes, under a manager that comes up.
  Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp -noreset 3>"$home/display" >"$home/xvfb.log" 2>&1 &
  screen=$!
  wait_until "the virtual screen" test -s "$home/display"
  DISPLAY=:$(<"$home/display")
  export DISPLAY
  openbox --sm-disable >"$home/openbox.log" 2>&1 &
  manager=$!
  wait_until "the window manager" has_manager
}

has_manager() { xdotool get_num_desktops >/dev/null 2>&1; }

stop() {
  local pid
  for pid in $program $manager $screen; do
    kill "$pid" 2>/dev/null && wait "$pid" || true
  done
  program= manager= screen=
  rm -rf "$home"
}

# start_program FILE [SCALE]
start_program() {
  scale=${2:-1}
  QT_SCALE_FACTOR=$scale "$1" >"$out/program.log" 2>&1 &
  program=$!
}

# The program must end by itself, without an error.
wait_for_end() {
  local status=0
  ending=yes
  wait_until "the end of the program" is_over
  wait "$program" || status=$?
  ((status == 0)) || fail "the program ended with $status"
  program= ending=
}

# wait_for_window NAME WIDTH HEIGHT waits until the window has the focus; the clicks and keys that
# follow go to it. The size is that of its client area in twips, 15 to a pixel, as in the window's
# class. What is above the client area is its menu bar.
wait_for_window() {
  wait_until "an active window '$1'" window_is_active "$1"
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$window")"
  menu_height=$((HEIGHT - $3 * scale / 15))
  ((WIDTH == $2 * scale / 15 && menu_height >= 0)) ||
    fail "'$1' is $WIDTH x $HEIGHT pixels at scale $scale, not $2 x $3 twips"
}

window_is_active() {
  window=$(xdotool getactivewindow 2>/dev/null) && [[ $(xdotool getwindowname "$window" 2>/dev/null) == "$1" ]]
}

# rest_in WINDOW waits until the focus has come to rest there: while windows come and go, the window
# manager may hand it round and take a click or a key for itself.
rest_in() {
  local still=0
  wait_until "a window keeping the focus" keeps_focus "$1"
}
keeps_focus() {
  [[ $(xdotool getwindowfocus 2>/dev/null) == "$1" ]] || still=0
  ((++still > 5))
}

# find_window NAME sets $found to the window of that name on the screen. A name may hold brackets.
find_window() {
  found=$(xdotool search --onlyvisible --name "^${1//[()]/.}\$" 2>/dev/null | head -n 1)
  [[ $found ]]
}

wait_for_no_window() { wait_until "the window '$1' closing" window_is_gone "$1"; }
window_is_gone() { ! find_window "$1"; }

# The window doesn't close within a second, which is far longer than closing takes.
window_stays() {
  local i
  for ((i = 0; i < 10; ++i)); do
    ! window_is_gone "$1" || fail "the window '$1' closed: $2"
    sleep 0.1
  done
}

# click_at X Y [KEY] clicks at a place of the client area, in twips, while KEY is held down.
click_at() {
  local held=() released=()
  [[ ! ${3:-} ]] || held=(keydown "$3") released=(keyup "$3")
  xdotool mousemove --window "$window" \
    $(($1 * scale / 15)) $(($2 * scale / 15 + menu_height)) "${held[@]}" click 1 "${released[@]}"
}

# type_at X Y TEXT replaces the text of the box at that place.
type_at() {
  click_at "$1" "$2"
  press ctrl+a
  xdotool type --delay 5 "$3"
}

# press KEY... as xdotool names them: alt+f, Escape.
press() { xdotool key "$@"; }

# Waits for an open menu: a further window of the program, without a title.
wait_for_menu() { wait_until "an open menu" menu_is_open; }
menu_is_open() {
  menu=$(comm -23 <(windows_by --class '^RasterMill$') <(windows_by --name .)) && [[ $menu ]]
}
windows_by() { xdotool search --onlyvisible "$@" 2>/dev/null | sort; }

# move_window WINDOW X Y puts its client area there, in pixels.
move_window() {
  xdotool windowmove "$1" "$2" "$3"
  wait_until "a window at $2, $3" window_is_near "$@"
}
# The frame has a say in the last few pixels.
window_is_near() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$1")"
  ((X >= $2 && X < $2 + 50 && Y >= $3 && Y < $3 + 50))
}

# client_size WINDOW prints the width and height of its client area in pixels.
client_size() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$1" 2>/dev/null)"
  echo "$WIDTH $HEIGHT"
}

# pixels_of WINDOW prints its client area, as far as it is on the screen, as a portable pixmap.
pixels_of() { import -silent -window "$1" -depth 8 ppm:-; }

# pixels_in FILE prints a bitmap as a portable pixmap. The reader knows nothing of this program.
pixels_in() { bmptopnm "$1" 2>/dev/null | ppmtoppm; }

# screenshot NAME [WINDOW] saves the window, with its frame, in OUT/NAME.png once it is painted.
screenshot() {
  local file=$out/$1.png taken=${2:-$window} painted=
  wait_until "a painted window for $1.png" take_painted
}

# True when two pictures in a row are alike and hold more than bare background.
take_painted() {
  local last=$painted colours
  # Asked for a window that is gone, import waits for a click.
  timeout 10 import -silent -frame -window "$taken" "$file" || fail "no window for $file"
  read -r colours painted < <(identify -format '%k %#\n' "$file")
  ((colours > 8)) && [[ $painted == "$last" ]]
}
