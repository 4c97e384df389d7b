#!/usr/bin/env bash
# Leads the built program through all of its windows, as a person would: real mouse and key events
# on a virtual screen, from an empty home and a first start to converted pictures and kept settings.
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

# pick_folder PARENT NAME highlights a folder in the tree of a browse dialog, which stands at its
# parent.
pick_folder() {
  local row
  row=$(find "$1" -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | LC_ALL=C sort -f |
    grep -nxF "$2" | cut -d : -f 1)
  press Tab
  # shellcheck disable=SC2046
  press $(for ((; row > 0; --row)); do echo Down; done)
}

# browse_for WHAT BOX BUTTON FOLDER SHOT types the path above a folder and browses to the folder.
# The dialog stays where it is while another window has the focus.
browse_for() {
  local -n box=$2 button=$3
  wait_for_window "${main[@]}"
  type_at "${box[@]}" "$made"
  click_at "${button[@]}"
  wait_for_window "Browse for $1" "${browse_size[@]}"
  pick_folder "$made" "$4"
  xdotool windowfocus --sync "$preview" windowfocus --sync "$window"
  screenshot "$5"
  press Return
  wait_for_no_window "Browse for $1"
}

# The first start shows the program's own folder. Escape leaves everything as it was.
choose_folders() {
  click_at "${palette_browse[@]}"
  wait_for_window "Browse for Palette Directory" "${browse_size[@]}"
  press Tab Up Escape
  wait_for_no_window "Browse for Palette Directory"
  browse_for "Source Directory" source_box source_browse pictures browse-source
  browse_for "Destination Directory" dest_box dest_browse converted browse-destination
  browse_for "Palette Directory" palette_box palette_browse palettes browse-palettes

  wait_for_window "${main[@]}"
  type_at "${default_box[@]}" "$palettes/day/"
  click_at "${default_browse[@]}"
  wait_for_window "Browse for Palette File" "${file_browse_size[@]}"
  click_at "${first_palette[@]}"
  screenshot browse-palette-file
  press Return
  wait_for_no_window "Browse for Palette File"
}

# expect_shown PICTURE PALETTE opens a picture; preview and swatches have the colours of the palette.
expect_shown() {
  open_picture "$1"
  expect_colours_now "$2"
}
expect_colours_now() {
  wait_until "the swatches of $1" find_window "Palette ($(basename "$1"))"
  wait_until "a preview in the colours of $1" has_colours "$temp/temp.bmp" "$1"
}

# answer_message ends the message "$1" that is on the screen.
answer_message() {
  wait_until "the message '$1'" window_is_active "$1"
  rest_in "$window"
  press Return
  wait_for_no_window "$1"
}

# colours_of PALETTE lists them without the fourth bytes, in which lists are free.
colours_of() { od -An -v -tu1 -w4 -j24 -N1024 "$1" | cut -c 1-12; }

# The palette of a picture is only in a list at first. Taken out of it, the picture finds it.
extract_palette() {
  local kept=$home/77.pal clicks
  mv "$palettes/space/77.pal" "$kept"
  expect_shown Plasma.bmp "$palettes/day/31.pal"
  click_at "${palette_button[@]}"
  wait_for_window "${editor[@]}"
  click_at "${extract_button[@]}"
  wait_for_window "${extractor[@]}"
  click_at "${list_browse[@]}"
  wait_until "the file dialog" window_is_active "Find KSL files"
  rest_in "$window"
  screenshot find-list
  xdotool type --delay 5 "$palettes/ironveil.ksl"
  press Return
  wait_for_no_window "Find KSL files"

  wait_for_window "${extractor[@]}"
  click_at "${load_button[@]}"
  for ((clicks = 0; clicks < 8; ++clicks)); do click_at "${next_button[@]}"; done
  type_at "${extract_dest_box[@]}" "$palettes"
  click_at "${save_button[@]}"
  answer_message RasterMill
  wait_for_window "${extractor[@]}"
  screenshot extractor
  cmp <(colours_of "$palettes/77.pal") <(colours_of "$kept") || fail "the palette of the list has other colours"
  click_at "${done_button[@]}"
  wait_for_window "${editor[@]}"
  press Escape
  expect_shown dot.bmp "$palettes/day/31.pal"
  expect_shown Plasma.bmp "$palettes/77.pal"
}

# One colour of the open picture becomes another, in a palette of its own.
edit_palette() {
  local edited=$palettes/day/plasma.pal
  wait_for_window "${main[@]}"
  press ctrl+p
  wait_for_window "${editor[@]}"
  click_at $((120 + 240 * 12 + 120)) $((120 + 240 * 6 + 120))  # the swatch of entry 108
  type_at "${red_box[@]}" 200
  type_at "${green_box[@]}" 10
  type_at "${blue_box[@]}" 30
  click_at "${new_colour_button[@]}"
  screenshot editor
  click_at "${save_palette_button[@]}"
  wait_for_window "Save File" "${save_size[@]}"
  type_at "${file_name_box[@]}" "$(basename "$edited")"
  screenshot save
  press Return
  wait_for_no_window "Save File"
  wait_for_window "${editor[@]}"
  rm "$temp/temp.bmp"
  click_at "${editor_ok_button[@]}"
  expect_colours_now "$edited"
  [[ $(od -An -tu1 -j$((54 + 4 * 108)) -N3 "$temp/temp.bmp" | tr -s ' ') == " 30 10 200" ]] ||
    fail "the preview doesn't have the colour that was set"
  wait_for_window "${main[@]}"
}

# Of two palettes with one index the chosen one.
choose_palette() {
  open_picture HARBOUR.BMP
  wait_for_window "${chooser[@]}"
  click_at "${second_choice[@]}"
  click_at "${try_button[@]}"
  wait_until "the swatches of the palette that is tried" find_window "Palette (25.pal)"
  click_at "${ok_button[@]}"
  wait_for_no_window "${chooser[0]}"
}

look_at_info() {
  wait_for_window "${main[@]}"
  press ctrl+f
  wait_for_window "${info[@]}"
  screenshot info
  press Escape alt+F4
  window_stays "${info[0]}" "Escape or Alt+F4"
  press Return
  wait_for_no_window "${info[0]}"
}

# Another default palette; what was applied stays after Cancel.
change_options() {
  wait_for_window "${main[@]}"
  press ctrl+t
  wait_for_window "${options[@]}"
  click_at "${palette_option_browse[@]}"
  wait_for_window "Browse for Palette File" "${file_browse_size[@]}"
  click_at "${second_palette[@]}"
  press Return
  wait_for_window "${options[@]}"
  screenshot options
  press alt+F4
  window_stays "${options[0]}" "Alt+F4"
  click_at "${apply_button[@]}"
  press Escape
  wait_for_no_window "${options[0]}"
}

# The about box shows the read-me file, and neither Escape nor Enter closes it.
read_about() {
  wait_for_window "${main[@]}"
  press alt+h
  wait_for_menu
  press a
  wait_for_window "${about[@]}"
  screenshot about
  click_at "${read_me_button[@]}"
  wait_until "the viewer" test -s "$home/read"
  cmp "$(<"$home/read")" "$bin/readme.txt" || fail "the viewer got $(<"$home/read")"
  press Escape Return
  window_stays "${about[0]}" "Escape or Enter"
  press alt+o
  wait_for_no_window "${about[0]}"
}

# A viewer for the read-me file, which notes what it is given.
install_viewer() {
  mkdir "$home/bin"
  printf '#!/bin/sh\necho "$1" >"%s"\n' "$home/read" >"$home/bin/xdg-open"
  chmod +x "$home/bin/xdg-open"
  PATH=$home/bin:$PATH
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
  wait_for_window "${main[@]}"
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
  expect_colours HARBOUR.BMP "$palettes/day/44.pal"
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
start_screen 2400 1600 "$made"
install_viewer

start "Palette (base.pal)"
screenshot first-start
move_apart 1500
choose_folders
extract_palette
edit_palette
choose_palette
screenshot preview "$preview"
screenshot swatches "$swatches"
wait_for_window "${main[@]}"
screenshot main
look_at_info
change_options
read_about
convert_two
convert_all ""
compare_readers
wait_for_window "${main[@]}"
press alt+f e
wait_for_end
expect_setting "Source=$(stored "$pictures")"
expect_setting "Dest=$(stored "$converted")"
expect_setting "PalDir=$(stored "$palettes")"
expect_setting "Palette=$(stored "$palettes/day/44.pal")"
expect_setting "Search=True"

# Once more at twice the size, with the settings as they were left; Alt+F4 ends the main window.
start "Palette (44.pal)" 2
screenshot main-scale2
convert_all -scale2
wait_for_window "${main[@]}"
press alt+F4
wait_for_end
echo "desktop: everything went as it should"
