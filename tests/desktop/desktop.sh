# shellcheck shell=bash disable=SC2034,SC2086
# A desktop for one program: a virtual screen with a window manager, an empty home, and hands that
# click and type. Nothing here waits for a fixed time; what doesn't come within $patience seconds is
# a failure.

suppressions=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../lsan.supp")
patience=30
out='' home='' screen='' manager='' program=''

# fail MESSAGE... ends the test, with a picture of the whole screen in OUT.
fail() {
  echo "desktop: $*; in use was '$(xdotool getactivewindow getwindowname 2>/dev/null)'" >&2
  [[ ! $screen ]] || import -window root "$out/failure.png" || true
  [[ ! -s $out/program.log ]] || cat "$out/program.log" >&2
  exit 1
}

# wait_until WHAT COMMAND... polls until the command succeeds, as long as the program lives.
wait_until() {
  local what=$1 end=$((SECONDS + patience))
  shift
  until "$@"; do
    [[ ! $program ]] || ! is_over "$program" || fail "the program ended before $what"
    ((SECONDS < end)) || fail "$patience seconds went by without $what"
    sleep 0.05
  done
}
is_over() { ! kill -0 "$1" 2>/dev/null; }

# start_screen WIDTH HEIGHT OUT opens the screen. Pictures and the program's output go to OUT.
start_screen() {
  out=$3
  home=$(mktemp -d)
  trap stop EXIT
  mkdir -m 700 "$home/config" "$home/temp" "$home/run"
  export HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run temp=$home/temp
  export LANG=C.UTF-8 QT_QPA_PLATFORM=xcb DISPLAY
  export LSAN_OPTIONS=suppressions=$suppressions:print_suppressions=0
  unset LC_ALL WAYLAND_DISPLAY WINEPREFIX "${!QT_SCALE@}" QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE
  # Without -noreset the server resets when its last client disconnects.
  Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp -noreset 3>"$home/display" 2>/dev/null &
  screen=$!
  wait_until "the virtual screen" test -s "$home/display"
  DISPLAY=:$(<"$home/display")
  openbox --sm-disable >/dev/null 2>&1 &
  manager=$!
  wait_until "the window manager" has_manager
}
has_manager() { xdotool get_num_desktops >/dev/null 2>&1; }

stop() {
  kill $program $manager $screen 2>/dev/null || true
  wait
  rm -rf "$home"
}

# make_samples BIN OUT makes them, and the folder of their bitmaps, anew; OUT is $made then.
make_samples() {
  made=$(mkdir -p "$2" && realpath "$2")
  [[ -e $made/program.log || ! $(ls -A "$made") ]] || fail "$made isn't an earlier one of these"
  touch "$made/program.log"
  rm -rf "$made"/{pictures,palettes,converted} "$made"/*.{pal,png}
  "$1/make-samples" samples "$made"
}
# use_samples lets the program start in their folders.
use_samples() {
  local path=Z:${made//\//\\\\}
  printf '[Settings]\nSource="%s"\nDest="%s"\nPalDir="%s"\nPalette="%s"\n' \
    "$path\\\\"{pictures,converted,palettes,'palettes\\day\\44.pal'} >"$XDG_CONFIG_HOME/RasterMill.ini"
}

start_program() {
  "$1" >"$out/program.log" 2>&1 &
  program=$!
}

# The program must end by itself, without an error.
wait_for_end() {
  local ending=$program
  program=''
  wait_until "the end of the program" is_over "$ending"
  wait "$ending" || fail "the program ended with $?"
}

# wait_for_window NAME [WIDTH HEIGHT] waits until the window is active; the clicks and keys that
# follow go to it. One with a menu bar needs the size of its client area, in twips of 15 to a pixel.
wait_for_window() {
  local still=0 WINDOW X Y WIDTH HEIGHT SCREEN
  wait_until "an active window '$1'" is_active "$1"
  eval "$(xdotool getwindowgeometry --shell "$window")"
  menu_height=$((HEIGHT - ${3:-HEIGHT * 15} / 15))
}
# While windows come and go, the window manager may hand the focus round and take a click or a key
# for itself; so the focus must have come to rest.
is_active() {
  window=$(xdotool getwindowfocus 2>/dev/null) &&
    [[ $(xdotool getwindowname "$window" 2>/dev/null) == "$1" ]] || still=0
  ((++still > 2))
}

# click_at X Y clicks at a place of the client area, in twips.
click_at() {
  xdotool mousemove --window "$window" $(($1 / 15)) $(($2 / 15 + menu_height)) click 1
}

# press KEY... as xdotool names them: alt+f, Escape.
press() { xdotool key "$@"; }

# screenshot NAME [WINDOW] saves the window, with its frame, in OUT/NAME.png once it is painted.
screenshot() {
  local file=$out/$1.png taken=${2:-$window} colours=0 painted=''
  wait_until "a painted window for $1.png" take_painted
}
# True when two pictures in a row are alike and hold more than bare background.
take_painted() {
  local last=$painted
  # Asked for a window that is gone, import waits for a click.
  timeout 10 import -silent -frame -window "$taken" "$file" || fail "no window for $file"
  read -r colours painted < <(identify -format '%k %#\n' "$file")
  ((colours > 8)) && [[ $painted == "$last" ]]
}
