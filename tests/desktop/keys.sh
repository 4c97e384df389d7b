#!/usr/bin/env bash
# Does what the tour does without a mouse: folders, preview, palettes, conversion, each by keys.
#   keys.sh BIN OUT
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

make_samples "$1" "$2"
start_screen 1700 1100 "$made"
start_program "$1/raster-mill"

# at WINDOW KEY... presses the keys once the window is active; "=TEXT" types a text, "3*Tab" repeats.
at() {
  local key
  wait_for_window "$1"
  for key in "${@:2}"; do
    case $key in
      =*) press ctrl+a && xdotool type --delay 5 "${key#=}" ;;
      *\**) press --repeat "${key%\**}" "${key#*\*}" ;;
      *) press "$key" ;;
    esac
  done
}
main="Raster Mill" editor=" View/Edit Palette"

at "$main" "=$made" Tab Return
at "Browse for Source Directory" Tab 3*Down Return
at "$main" Tab "=$made" Tab Return
at "Browse for Destination Directory" Tab Down Return
at "$main" 9*Tab "=$made" shift+Tab Return
at "Browse for Palette Directory" Tab 2*Down Return
at "$main" 3*Tab "=$made/palettes/day/" shift+Tab Return
at "Browse for Palette File" 2*Tab Down Return
at "$main" 9*shift+Tab s e alt+o
wait_until "the preview" test -s "$temp/temp.bmp"
at "$main" alt+f f
at "Picture Information" Return
at "$main" ctrl+p
at "$editor" shift+Tab 6*Down 12*Right Return 9*Tab =200 shift+Tab Return 3*shift+Tab Return
at "Save File" 3*Tab =edited.pal Return
at "$editor" 2*shift+Tab Return
at "Palette Extractor" Return
at "Find KSL files" "=$made/palettes/ironveil.ksl" Return
at "Palette Extractor" 3*Tab "=$made" Tab Return 2*Tab Return
at RasterMill Return
at "Palette Extractor" Tab Return
cmp -n 1024 -i 24:52 "$made/25.pal" "$made/palettes/ironveil.ksl" || fail "it wasn't extracted"
rm "$temp/temp.bmp"
at "$editor" 2*shift+Tab Return
wait_until "the preview in the edited palette" test -s "$temp/temp.bmp"
[[ $(od -An -tu1 -j$((56 + 4 * 108)) -N1 "$temp/temp.bmp") -eq 200 ]] || fail "no colour was set"
at "$main" ctrl+t
at Options Escape
at "$main" alt+h a
at "About Raster Mill" alt+o
at "$main" ctrl+a alt+b
at "Convert Bitmap" Tab Return
at "Palette Selection" Tab 2*Down shift+Tab Return
at "$main" alt+f e
wait_for_end
diff <(ls "$made/pictures") <(ls "$made/converted") || fail "not every picture was converted"
