#!/usr/bin/env bash
# Leads the built program through its windows, as a person would: real mouse and key events on a
# virtual screen, from an empty home to converted pictures and kept settings.
#   tour.sh BIN OUT
# BIN holds the built programs. OUT gets the sample pictures, the bitmaps made from them, and a
# picture of each window.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

for tool in Xvfb openbox xdotool import identify convert bmptopnm ppmtoppm; do
  command -v "$tool" >/dev/null || {
    echo "desktop: $tool is missing; scripts/test installs what the tests need" >&2
    exit 1
  }
done

bin=$(realpath "$1")
mkdir -p "$2"
made=$(realpath "$2")
pictures=$made/pictures
converted=$made/converted

# The windows' client areas, and places in them, in twips.
main=("Raster Mill" 8535 4815)
convert_window=("Convert Bitmap" 3975 3015)
browse_size=(3825 2865)
file_browse_size=(6030 2895)
source_browse=(3540 120)
dest_browse=(7980 120)
palette_browse=($((3600 + 4020)) $((720 + 1200)))
default_browse=($((3600 + 4020)) $((720 + 1920)))
first_file=(600 840)
later_file=(600 1500)
batch_button=(3720 4440)
yes_button=(780 2700)
first_palette=(3000 240)

prepare() {
  [[ -e $made/program.log || ! $(ls -A "$made") ]] || {
    echo "desktop: $made holds other things than an earlier tour" >&2
    exit 1
  }
  rm -rf "$pictures" "$converted" "$made/palettes" "$made/start" "$made"/*.png
  "$bin/make-samples" samples "$made"
  # Stands behind "pictures" among the folders, with a picture of its own.
  mkdir "$made/start"
  cp "$pictures/dot.bmp" "$made/start/elsewhere.bmp"
}

# The sample pictures in the order of the file list.
names() { ls "$pictures" | LC_ALL=C sort -f; }

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

expect_setting() {
  grep -qxF "$1" "$XDG_CONFIG_HOME/RasterMill.ini" ||
    fail "the settings lack $1: $(<"$XDG_CONFIG_HOME/RasterMill.ini")"
}

# A path as the settings file shows it.
stored() {
  local path=Z:$1
  echo "${path//\//\\\\}"
}

browse() {
  # Up leads from the folder "start" to the one above it in the tree.
  click_at "${source_browse[@]}"
  wait_for_window "Browse for Source Directory" "${browse_size[@]}"
  press Tab Up
  screenshot browse-source
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

# Two pictures by mouse, the dialog from the menu; what must not start the conversion, and what does.
convert_two() {
  local two
  click_at "${first_file[@]}"
  click_at "${later_file[@]}" ctrl
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
  click_at "${first_file[@]}"
  click_at "${later_file[@]}" ctrl
  press ctrl+b
  wait_for_window "${convert_window[@]}"
  press alt+F4
  window_stays "${convert_window[0]}" "Alt+F4"
  click_at "${yes_button[@]}"
  wait_for_no_window "${convert_window[0]}"
  mapfile -t two < <(ls "$converted")
  ((${#two[@]} == 2)) || fail "two pictures were selected, ${#two[@]} were converted"
  expect_converted "$(names | head -n 1)" "$(ls "$converted" | grep -vxF "$(names | head -n 1)")"
}

# Every picture, by the button.
convert_all() {
  local all
  rm -f "$converted"/*
  wait_for_window "${main[@]}"
  click_at "${first_file[@]}"
  press ctrl+a
  click_at "${batch_button[@]}"
  wait_for_window "${convert_window[@]}"
  screenshot "convert$1"
  click_at "${yes_button[@]}"
  wait_for_no_window "${convert_window[0]}"
  mapfile -t all < <(names)
  expect_converted "${all[@]}"
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

prepare
start_screen 2400 1600 "$made"
"$bin/seed-settings" Source="$made/start" Dest="$converted" PalDir="$made/palettes" \
  Palette="$made/palettes/day/44.pal"

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
expect_setting "PalDir=$(stored "$made/palettes")"
expect_setting "Palette=$(stored "$made/palettes/day/31.pal")"
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
