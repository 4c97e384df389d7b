#!/usr/bin/env bash
# Leads the built program through all of its windows, as a person would: real mouse and key events
# on a virtual screen, from the first preview to converted pictures.
#   tour.sh BIN OUT
# BIN holds the built programs; OUT gets the samples, their bitmaps, and a picture of each window.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# Where to click, in twips: the main window, the palette tools, and the other windows.
declare -A place=(
  [Show Preview window]="3840 1085"
  [Preview]="780 4440" [Batch]="3720 4440"
  [swatch 108]="3120 1680" [red]="1000 4222" [Set New]="4690 3660"
  [Extract]="4690 1260" [Save Palette]="4690 2220" [Use]="4690 307" [file name]="2400 3150"
  [list]="3060 230" [extract to]="1500 1300" [Load]="4260 270" [Save]="4260 1080" [Done]="4260 1485"
  [default option]="2600 2010"
  [Yes]="780 2700" [second choice]="1200 922" [Choose]="6540 2340"
)
click() { click_at "${place[$1]% *}" "${place[$1]#* }"; }

# fill BOX TEXT replaces the text of a box.
fill() {
  click "$1"
  press ctrl+a
  xdotool type --delay 5 "$2"
}

# at WINDOW COMMAND... runs the command as soon as the window is active.
at() {
  local size=()
  [[ $1 != "Raster Mill" ]] || size=(8535 4815)  # the one that has a menu bar
  wait_for_window "$1" "${size[@]}"
  "${@:2}"
}

# select_file NAME clicks at it in the list of the main window, which doesn't tell case apart.
select_file() {
  local row
  row=$(ls "$pictures" | LC_ALL=C sort -f | grep -nxF "$1" | cut -d : -f 1)
  at "Raster Mill" click_at 600 $((840 + 195 * (row - 1)))
}

# find_window NAME sets $found to the window of that name on the screen. A name may hold brackets.
find_window() {
  found=$(xdotool search --onlyvisible --name "^${1//[()]/.}\$" 2>/dev/null | head -n 1)
  [[ $found ]]
}

# expect_preview PALETTE waits until swatches and preview show the open picture in this palette.
expect_preview() {
  wait_until "the swatches of $1" find_window "Palette ($1)"
  wait_until "the preview on the screen" shows_bitmap
}
shows_bitmap() {
  cmp -s <(timeout 10 import -window "$preview" -depth 8 ppm:-) <(pixels_in "$temp/temp.bmp")
}

# pixels_in FILE prints a bitmap as a portable pixmap. The reader knows nothing of this program.
pixels_in() { bmptopnm "$1" | ppmtoppm; } 2>/dev/null

make_samples "$1" "$2"
pictures=$made/pictures palettes=$made/palettes converted=$made/converted
start_screen 2000 1200 "$made"
use_samples

# The windows move apart, so that none hides another.
start_program "$1/raster-mill"
wait_until "the preview" find_window Preview
preview=$found
wait_until "the swatches" find_window "Palette (44.pal)"
at "Raster Mill" xdotool windowmove "$preview" 20 40 windowmove "$found" 1320 600
xdotool windowmove --sync "$window" 1320 100
select_file Seahorse.bmp
click Preview
expect_preview 52.pal
screenshot preview "$preview"

# Hidden by its check box and along with the main window, and fitted to other pictures in between,
# the preview comes back to its place.
preview_place() { xdotool getwindowgeometry "$preview" | grep Position; }
preview_is_back() { find_window Preview && [[ $(preview_place) == "$place_before" ]]; }
preview_is_hidden() { ! find_window Preview; }
place_before=$(preview_place)
for picture in {chart,Seahorse,chart,Seahorse,chart,Seahorse,chart,Seahorse,chart,Seahorse}.bmp; do
  at "Raster Mill" click "Show Preview window"
  wait_until "a hidden preview" preview_is_hidden
  click "Show Preview window"
  wait_until "the preview in its place" preview_is_back
  select_file "$picture"
  click Preview
  wait_until "the preview of $picture" shows_bitmap
  xdotool windowminimize "$window"
  wait_until "a minimised preview" preview_is_hidden
  xdotool windowactivate "$window"
  wait_until "the preview in its place again" preview_is_back
done
at "Raster Mill" screenshot main

# The first palette of the list, and one in which a colour is another.
press ctrl+p
at " View/Edit Palette" click Extract
at "Palette Extractor" click list
at "Find KSL files" xdotool type --delay 5 "$palettes/ironveil.ksl"
press Return
at "Palette Extractor" click Load
fill "extract to" "$made"
click Save
at RasterMill press Return
at "Palette Extractor" screenshot extractor
click Done
at " View/Edit Palette" click "swatch 108"
fill red 200
click "Set New"
screenshot editor
click "Save Palette"
at "Save File" fill "file name" edited.pal
press Return
at " View/Edit Palette" click Use
expect_preview edited.pal
at "Raster Mill" press ctrl+f
at "Picture Information" screenshot info
press Return
at "Raster Mill" press ctrl+t
at Options screenshot options
fill "default option" "$palettes/day/31.pal"
press Return
at "Raster Mill" press alt+h a
at "About Raster Mill" screenshot about
press alt+o

# Every picture, with the second of two palettes that have one index.
select_file chart.bmp
press ctrl+a
click Batch
at "Convert Bitmap" screenshot convert
click Yes
at "Palette Selection" click "second choice"
screenshot chooser
click Choose
at "Raster Mill" press alt+f e
wait_for_end

diff <(ls "$pictures") <(ls "$converted") || fail "not every picture was converted"
cmp -n 1024 -i 54:24 "$converted/HARBOUR.BMP" "$palettes/night/25.pal" || fail "it wasn't chosen"
