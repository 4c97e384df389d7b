#!/usr/bin/env bash
# Leads the built program through its windows, as a person would: real mouse and key events on a
# virtual screen, from an empty home to converted pictures and kept settings.
#   tour.sh BIN OUT
# BIN holds the built programs. OUT gets the sample pictures, the bitmaps made from them, and a
# picture of each window.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
source "$(dirname "${BASH_SOURCE[0]}")/windows.sh"

# expect_converted NAME... checks that these bitmaps are there, and no others.
expect_converted() {
  local wanted found
  wanted=$(printf '%s\n' "$@" | sort)
  found=$(ls "$converted" | sort)
  [[ $found == "$wanted" ]] ||
    fail "converted were [${found//$'\n'/, }] instead of [${wanted//$'\n'/, }]"
  for name; do
    [[ $(head -c 2 "$converted/$name") == BM ]] || fail "$name is no bitmap"
  done
}

# expect_colours NAME PALETTE... checks the colours of a converted bitmap.
expect_colours() {
  (($# > 1)) || fail "no palette has the index of $1"
  has_colours "$converted/$1" "${@:2}" || fail "$1 has other colours than ${*:2}"
}

# A path as the settings file shows it.
stored() {
  local path=Z:$1
  echo "${path//\//\\\\}"
}

browse() {
  # Up leads from the folder "start" to the one above it in the tree. The dialog stays there while
  # another window has the focus.
  click_at "${source_browse[@]}"
  wait_for_window "Browse for Source Directory" "${browse_size[@]}"
  press Tab Up
  screenshot browse-source
  find_window Preview
  xdotool windowfocus --sync "$found" windowfocus --sync "$window"
  press Return
  wait_for_no_window "Browse for Source Directory"

  wait_for_window "${main[@]}"
  click_at "${dest_browse[@]}"
  wait_for_window "Browse for Destination Directory" "${browse_size[@]}"
  screenshot browse-destination
  press Tab Up Escape
  wait_for_no_window "Browse for Destination Directory"

  wait_for_window "${main[@]}"
  click_at "${palette_browse[@]}"
  wait_for_window "Browse for Palette Directory" "${browse_size[@]}"
  screenshot browse-palettes
  press Escape
  wait_for_no_window "Browse for Palette Directory"

  wait_for_window "${main[@]}"
  click_at "${default_browse[@]}"
  wait_for_window "Browse for Palette File" "${file_browse_size[@]}"
  click_at "${first_palette[@]}"
  screenshot browse-palette-file
  press Return
  wait_for_no_window "Browse for Palette File"
  wait_for_window "${main[@]}"
}

# choose BUTTON-X BUTTON-Y [CHOICE-X CHOICE-Y] answers the chooser that two palettes of one index
# bring up in the middle of a run.
choose() {
  wait_for_window "${chooser[@]}"
  (($# == 2)) || click_at "$3" "$4"
  click_at "$1" "$2"
  wait_for_no_window "${chooser[0]}"
}

# Two pictures by mouse, the dialog from the menu; what must not start the conversion, and what does.
convert_two() {
  local two=(chart.bmp HARBOUR.BMP)
  click_file "${two[0]}"
  click_file "${two[1]}" ctrl
  screenshot main-selection
  press alt+f
  wait_for_menu
  screenshot menu-file "$menu"
  press b
  wait_for_window "${convert_window[@]}"
  press Return
  wait_for_no_window "${convert_window[0]}"
  [[ ! $(ls "$converted") ]] || fail "Enter started the conversion"

  wait_for_window "${main[@]}"
  click_file "${two[0]}"
  click_file "${two[1]}" ctrl
  press ctrl+b
  wait_for_window "${convert_window[@]}"
  press alt+F4
  window_stays "${convert_window[0]}" "Alt+F4"
  click_at "${yes_button[@]}"
  choose "${default_button[@]}"
  wait_for_no_window "${convert_window[0]}"
  expect_converted "${two[@]}"
  expect_colours chart.bmp "$palettes/day/31.pal"
  expect_colours HARBOUR.BMP "$palettes/day/31.pal"
}

# Every picture, by the button. Each gets the palette of its own index.
convert_all() {
  local all name found_palettes
  rm -f "$converted"/*
  wait_for_window "${main[@]}"
  click_file "$(names | head -n 1)"
  press ctrl+a
  click_at "${batch_button[@]}"
  wait_for_window "${convert_window[@]}"
  screenshot "convert$1"
  click_at "${yes_button[@]}"
  wait_for_window "${chooser[@]}"
  find_window "${convert_window[0]}" || fail "the chooser isn't over '${convert_window[0]}'"
  screenshot "chooser$1"
  choose "${ok_button[@]}" "${second_choice[@]}"
  wait_for_no_window "${convert_window[0]}"
  mapfile -t all < <(names)
  expect_converted "${all[@]}"
  for name in "${all[@]}"; do
    mapfile -t found_palettes < <(palettes_of "$name")
    expect_colours "$name" "${found_palettes[@]}"
  done
}

# Where rows need no padding, two readers that know nothing of this program see the same pixels.
compare_readers() {
  local file count=0
  for file in "$converted"/*; do
    (($(identify -format %w "$file") % 4 == 0)) || continue
    cmp <(convert "$file" -depth 8 ppm:-) <(bmptopnm "$file" 2>/dev/null | ppmtoppm) ||
      fail "ImageMagick and netpbm read $(basename "$file") differently"
    count=$((count + 1))
  done
  ((count > 0)) || fail "no bitmap has rows that need no padding"
  echo "desktop: two readers see the same pixels in $count bitmaps"
}

prepare "$@"
# Stands behind "pictures" among the folders, with a picture of its own.
mkdir "$made/start"
cp "$pictures/dot.bmp" "$made/start/elsewhere.bmp"
start_screen 2400 1600 "$made"
seed "$made/start"

start_program "$bin/raster-mill"
wait_for_window "${main[@]}"
browse
screenshot main
convert_two
convert_all ""
compare_readers
wait_for_window "${main[@]}"
press alt+f e
wait_for_end
expect_setting "Source=$(stored "$pictures")"
expect_setting "Dest=$(stored "$converted")"
expect_setting "PalDir=$(stored "$palettes")"
expect_setting "Palette=$(stored "$palettes/day/31.pal")"
expect_setting "Search=True"

# Once more at twice the size, with the settings as they were left; Alt+F4 ends the main window.
start_program "$bin/raster-mill" 2
wait_for_window "${main[@]}"
screenshot main-scale2
convert_all -scale2
wait_for_window "${main[@]}"
press alt+F4
wait_for_end
echo "desktop: everything went as it should"
