#!/usr/bin/env bash
# Converts a picture by keys alone under two Wayland compositors: sway, which tiles windows, without
# any screen, and weston, which doesn't, on a virtual one.
#   wayland.sh BIN OUT
# BIN holds the built programs; OUT gets the samples and a picture of each desktop.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

bin=$1
make_samples "$bin" "$2"
start_screen 1700 1100 "$made"
use_samples

# start_compositor COMMAND... Sway refuses to run as root.
start_compositor() {
  local as_user=()
  if ((EUID == 0)) && [[ $1 == sway ]]; then
    as_user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    chmod 711 "$home" && chown 65534 "$XDG_RUNTIME_DIR"
  fi
  "${as_user[@]}" "$@" >"$made/$1.log" 2>&1 &
  compositor=$! manager+=" $!"
  wait_until "$1" test -S "$XDG_RUNTIME_DIR/wayland-1"
}
stop_compositor() {
  kill "$compositor" && wait "$compositor" || true
  rm -f "$XDG_RUNTIME_DIR"/wayland-*
}

# Weston tells nothing, but the protocol does: there are this many windows, and since they are, one
# of them has got the keyboard.
weston_has() {
  awk -v wanted="$1" '/get_toplevel[(]/ { ++n; keys = 0 } /xdg_toplevel@[0-9]+.destroy/ { --n; keys = 0 }
    /wl_keyboard.*enter/ { keys = 1 } END { exit !(n == wanted && keys) }' "$out/program.log"
}
weston_fits() { import -window root "$made/weston.png"; }
weston_keys() { xdotool key --delay 100 "$@"; }

# All windows float.
sway_has() { [[ $(sway_tree) != *'"type":"con"'* && $(sway_tree | grep -o floating_con | wc -l) -eq $1 ]]; }
sway_fits() { grim "$made/sway.png" && [[ $(sway_tree) =~ \"window_rect\":[^}]*\"width\":256,\"height\":256 ]]; }
sway_tree() { swaymsg --raw -t get_tree | tr -d ' \n'; }
sway_keys() {
  local key keys=()
  for key; do
    [[ $key == *+* ]] && keys+=(-M "${key%+*}" -k "${key#*+}" -m "${key%+*}") || keys+=(-k "$key")
  done
  wtype -s 300 "${keys[@]}"
}

# Libraries that leak are unloaded before they could be recognised.
export LSAN_OPTIONS=detect_leaks=0
# convert_a_picture COMPOSITOR
convert_a_picture() {
  rm -f "$temp"/* "$made"/converted/*
  WAYLAND_DEBUG=1 QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=wayland-1 start_program "$bin/raster-mill"
  wait_until "three windows" "$1_has" 3
  "$1_keys" Tab Tab Tab Tab Down ctrl+o
  wait_until "the preview" test -s "$temp/temp.bmp"
  wait_until "the preview in its size" "$1_fits"
  "$1_keys" ctrl+c
  wait_until "the question" "$1_has" 4
  wait_until "the preview in its size still" "$1_fits"
  "$1_keys" Tab Return
  wait_until "the bitmap" cmp -s "$temp/temp.bmp" "$made/converted/chart.bmp"
  wait_until "the end of the question" "$1_has" 3
  "$1_keys" alt+f e
  wait_for_end
}

weston_is_in_front() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == Weston* ]]; }
start_compositor weston --backend=x11-backend.so --width=1600 --height=1000 --use-pixman
wait_until "weston in front" weston_is_in_front
convert_a_picture weston
stop_compositor
export WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1
start_compositor sway -c /dev/null
SWAYSOCK=$(ls "$XDG_RUNTIME_DIR"/sway-ipc*) WAYLAND_DISPLAY=wayland-1
export SWAYSOCK WAYLAND_DISPLAY
convert_a_picture sway
stop_compositor
