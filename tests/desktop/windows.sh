# The windows of Raster Mill, as the tours find them: their client areas, and places in them, in
# twips. Sourced behind desktop.sh.

main=("Raster Mill" 8535 4815)
convert_window=("Convert Bitmap" 3975 3015)
chooser=("Palette Selection" 7335 2655)
browse_size=(3825 2865)
file_browse_size=(6030 2895)
save_size=(5985 3495)
editor=(" View/Edit Palette" 5415 5655)
extractor=("Palette Extractor" 4935 6495)
info=("Picture Information" 3150 2655)
options=("Options" 6240 3090)
about=("About Raster Mill" 6735 3855)

# The main window.
source_box=(1800 510)
source_browse=(3540 120)
dest_box=(6000 510)
dest_browse=(7980 120)
palette_box=($((3600 + 2000)) $((720 + 1590)))
palette_browse=($((3600 + 4020)) $((720 + 1200)))
default_box=($((3600 + 2000)) $((720 + 2310)))
default_browse=($((3600 + 4020)) $((720 + 1920)))
preview_box=(3900 1085)
fit_box=(4260 1567)
swatches_box=(6120 1085)
open_button=(780 4440)
batch_button=(3720 4440)
palette_button=(5220 4440)

# The dialogs.
yes_button=(780 2700)
first_palette=(3000 240)
second_palette=(3000 435)
first_choice=(1200 727)
second_choice=(1200 922)
try_button=(780 2340)
default_button=(3660 2340)
ok_button=(6540 2340)
file_name_box=(2400 3150)

# The palette tools.
editor_ok_button=(4690 307)
red_box=(1000 4222)
green_box=(1000 4597)
blue_box=(1000 4972)
extract_button=(4690 1260)
save_palette_button=(4690 2220)
new_colour_button=(4690 3660)
list_browse=(3060 230)
extract_dest_box=(1500 1300)
load_button=(4260 270)
next_button=(4560 675)
save_button=(4260 1080)
done_button=(4260 1485)

# The other windows.
palette_option_browse=(5670 2010)
apply_button=(5570 2780)
read_me_button=(4680 3480)

# prepare BIN OUT takes the built programs in BIN, and makes the sample pictures in OUT, which holds
# nothing else than an earlier tour.
prepare() {
  bin=$(realpath "$1")
  mkdir -p "$2"
  made=$(realpath "$2")
  pictures=$made/pictures
  palettes=$made/palettes
  converted=$made/converted
  [[ -e $made/program.log || ! $(ls -A "$made") ]] || {
    echo "desktop: $made holds other things than an earlier tour" >&2
    exit 1
  }
  touch "$made/program.log"  # an earlier tour, from now on
  rm -rf "$pictures" "$converted" "$palettes" "$made"/*.png
  "$bin/make-samples" samples "$made"
}

# start TITLE [SCALE] starts the program. Its three windows come up, the swatches with this title,
# and the main one is in use.
start() {
  start_program "$bin/raster-mill" "${@:2}"
  wait_until "the preview window" find_window Preview
  preview=$found
  wait_until "the swatch window" find_window "$1"
  swatches=$found
  wait_for_window "${main[@]}"
}

# Where none hides another, even with a large picture.
move_apart() {
  move_window "$preview" 20 40
  move_window "$swatches" "$1" 1100
  move_window "$window" "$1" 100
}

# open_picture NAME shows it, by the button of the main window.
open_picture() {
  wait_for_window "${main[@]}"
  rm -f "$temp/temp.bmp"
  click_file "$1"
  click_at "${open_button[@]}"
}

# seed SOURCE writes the settings that the program starts with; the others keep their defaults.
seed() {
  "$bin/seed-settings" Source="$1" Dest="$converted" PalDir="$palettes" \
    Palette="$palettes/day/44.pal"
}

expect_setting() {
  grep -qxF "$1" "$XDG_CONFIG_HOME/RasterMill.ini" ||
    fail "the settings lack $1: $(<"$XDG_CONFIG_HOME/RasterMill.ini")"
}

# The sample pictures in the order of the file list.
names() { ls "$pictures" | LC_ALL=C sort -f; }

# click_file NAME [KEY] clicks at a picture in the list of the main window.
click_file() {
  local row
  row=$(names | grep -nxF "$1" | cut -d : -f 1)
  click_at 600 $((840 + 195 * (row - 1))) "${2:-}"
}

# shape_of PICTURE prints the width and height that stand in its file.
shape_of() { echo $(od -An -td4 -j20 -N8 "$pictures/$1"); }

# palettes_of PICTURE lists the palette files with the index that it asks for.
palettes_of() {
  local index
  index=$(tail -c 4 "$pictures/$1" | od -An -td4)
  find "$palettes" -name "${index// /}.pal"
}

# has_colours BITMAP PALETTE... is true when the bitmap's colours are those of one of the palettes.
has_colours() {
  local bitmap=$1 palette
  shift
  for palette; do
    ! cmp -s -n 1024 "$bitmap" "$palette" 54 24 || return 0
  done
  return 1
}
