#!/usr/bin/env bash
# Leads the built program through its previews, its swatches and the choice between palettes, with
# real mouse and key events on a virtual screen.
#   preview_tour.sh BIN OUT
# BIN holds the built programs. OUT gets the sample pictures, and a picture of each window.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
source "$(dirname "${BASH_SOURCE[0]}")/windows.sh"

at_start="Palette (44.pal)"

# The windows come up side by side: none lies on another.
expect_apart() {
  local first second
  for first in "$preview" "$swatches"; do
    for second in "$swatches" "$window"; do
      [[ $first == "$second" ]] || are_apart "$first" "$second" ||
        fail "'$(xdotool getwindowname "$first")' and '$(xdotool getwindowname "$second")' overlap"
    done
  done
}

are_apart() {
  local WINDOW X Y WIDTH HEIGHT SCREEN left top right bottom
  eval "$(xdotool getwindowgeometry --shell "$1")"
  left=$X top=$Y right=$((X + WIDTH)) bottom=$((Y + HEIGHT))
  eval "$(xdotool getwindowgeometry --shell "$2")"
  ((X >= right || Y >= bottom || X + WIDTH <= left || Y + HEIGHT <= top))
}

# By the keyboard, since a large preview may lie on the button.
leave() {
  wait_for_window "${main[@]}"
  press alt+F4
  wait_for_end
}

has_size() { [[ $(client_size "$1") == "$2 $3" ]]; }
shows_wanted() {
  pixels_of "$preview" >"$home/shown.ppm" && cmp -s "$home/shown.ppm" "$home/wanted.ppm"
}

# expect_preview WHAT COMMAND... waits until the preview shows, corner for corner and pixel for
# pixel, the temporary bitmap as COMMAND changes it.
expect_preview() {
  wait_until "the temporary bitmap" test -s "$temp/temp.bmp"
  pixels_in "$temp/temp.bmp" | "${@:2}" >"$home/wanted.ppm"
  wait_until "$1 in the preview" shows_wanted
}

# Each picture in a window of exactly its size.
fit() {
  local name width height
  for name; do
    open_picture "$name"
    read -r width height < <(shape_of "$name")
    wait_until "a window as large as $name" \
      has_size "$preview" $((width * scale)) $((height * scale))
    # Rows of another length than a multiple of four look slanted to other readers.
    ((width % 4 != 0)) || expect_preview "$name" pamenlarge "$scale"
  done
}

# Larger by hand: the picture stays as it is, in the corner of an empty box.
enlarge_by_hand() {
  local width height larger
  read -r width height < <(client_size "$preview")
  larger=$((width + 40))x$((height + 30))
  xdotool windowsize --sync "$preview" "${larger%x*}" "${larger#*x}"
  expect_preview "the picture in the corner" \
    convert - -background "$(background)" -extent "$larger" ppm:-
}

# The colour of an empty place in the main window.
background() {
  pixels_of "$window" | pamcut -left 3 -top $((menu_height + 3)) -width 1 -height 1 |
    convert - -format '#%[hex:u.p{0,0}]' info: | cut -c 1-7
}

# Without the tick in "Resize Window to Fit" the whole picture fills whatever size the window has.
# In these sizes no pixel's centre falls between two pixels of the picture, 640 x 480.
stretch() {
  local size
  click_at "${fit_box[@]}"
  for size in "1280 960" "896 352" "384 736" "128 32"; do
    # shellcheck disable=SC2086
    xdotool windowsize --sync "$preview" $size
    expect_preview "a picture of $size" convert - -sample "${size/ /x}!" ppm:-
  done
  screenshot preview-stretched "$preview"
  click_at "${fit_box[@]}"
  wait_until "a window as large as the picture again" has_size "$preview" 640 480
  expect_preview "the picture in its own size again" cat
}

# Two palettes of one index: nothing but a choice ends the chooser, and each can be tried.
choose_palette() {
  local tried
  open_picture HARBOUR.BMP
  wait_for_window "${chooser[@]}"
  press alt+F4 Escape Return
  window_stays "${chooser[0]}" "Alt+F4, Escape or Enter"
  for tried in first second; do
    local -n choice=${tried}_choice
    rm -f "$temp/temp.bmp"
    click_at "${choice[@]}"
    click_at "${try_button[@]}"
    expect_preview "the picture in the $tried palette" cat
    # shellcheck disable=SC2046
    has_colours "$temp/temp.bmp" $(palettes_of HARBOUR.BMP) ||
      fail "the $tried palette isn't one of those with the picture's index"
    mv "$temp/temp.bmp" "$home/$tried.bmp"
  done
  ! cmp -s "$home/first.bmp" "$home/second.bmp" || fail "both choices have the same colours"
  wait_until "the swatches of the tried palette" find_window "Palette (25.pal)"
  screenshot chooser
  click_at "${ok_button[@]}"
  wait_for_no_window "${chooser[0]}"
  wait_for_window "${main[@]}"
  expect_preview "the picture in the chosen palette" cat
  cmp "$temp/temp.bmp" "$home/second.bmp" || fail "the picture has other colours than those chosen"
}

wait_for_rest() {
  wait_for_window "${main[@]}"
  rest_in "$window"
}

# close_tool WINDOW closes it by the keyboard.
close_tool() {
  xdotool windowactivate --sync "$1"
  rest_in "$1"
  press alt+F4
}

# expect_tools NAME... waits until these tool windows are on the screen, and no others.
expect_tools() { wait_until "these tool windows and no others: $*" tools_are "$@"; }
tools_are() {
  [[ $(xdotool search --onlyvisible --name '^(Preview|Palette \(.*)$' getwindowname %@ 2>/dev/null |
    sort) == "$(printf '%s\n' "$@" | sort)" ]]
}

# The tool windows go with the main window and come back with it to their places, but for one whose
# box isn't ticked.
minimise_and_restore() {
  xdotool windowminimize "$window"
  expect_tools
  xdotool windowactivate "$window"
  expect_tools "$@"
  wait_for_rest
}

# tick PLACE... clicks at a box. Whatever comes up, the main window stays in use.
tick() {
  click_at "$1" "$2"
  expect_tools "${@:3}"
  wait_for_rest
}

# come_and_go TITLE: how the two windows come and go, with this title on the swatches.
come_and_go() {
  local both=(Preview "$1")
  expect_tools "${both[@]}"
  minimise_and_restore "${both[@]}"
  window_is_near "$preview" 20 40 || fail "the preview window came back at another place"
  window_is_near "$swatches" 2000 1100 || fail "the swatch window came back at another place"

  tick "${swatches_box[@]}" Preview
  minimise_and_restore Preview
  tick "${swatches_box[@]}" "${both[@]}"
  tick "${preview_box[@]}" "$1"
  minimise_and_restore "$1"
  tick "${preview_box[@]}" "${both[@]}"

  # Its box stays ticked when a window is closed, so that the first click unticks it.
  close_tool "$preview"
  expect_tools "$1"
  close_tool "$swatches"
  expect_tools
  xdotool windowactivate --sync "$window"
  wait_for_rest
  click_at "${swatches_box[@]}"
  tick "${swatches_box[@]}" "$1"
  minimise_and_restore "${both[@]}"
}

# Of a picture larger than the screen the window shows the beginning.
show_larger_than_screen() {
  local size
  open_picture HARBOUR.BMP
  wait_for_window "${chooser[@]}"
  click_at "${default_button[@]}"
  wait_for_window "${main[@]}"
  wait_until "a window as large as the screen" has_size "$preview" "$@"
  xdotool windowraise "$preview"
  size=$(pixels_of "$preview" | identify -format '%w %h' -)
  expect_preview "the beginning of the picture" \
    pamcut -left 0 -top 0 -width "${size% *}" -height "${size#* }"
}

prepare "$@"
start_screen 3200 1600 "$made"
seed "$pictures"

start "$at_start"
expect_apart
screenshot main
move_apart 2000
fit Summit.bmp Nebula.bmp stonewal.bmp dot.bmp crest.bmp Plasma.bmp Seahorse.bmp
screenshot preview "$preview"
screenshot swatches "$swatches"
enlarge_by_hand
stretch
come_and_go "Palette (52.pal)"
choose_palette
leave
expect_setting "ShowPal=True"
expect_setting "ShowPrev=True"

# Once more at twice the size.
start "$at_start" 2
move_apart 2000
fit Summit.bmp dot.bmp Plasma.bmp
leave
stop

start_screen 1000 700 "$made"
seed "$pictures"
start "$at_start"
show_larger_than_screen 1000 700
leave
echo "desktop: every preview went as it should"
