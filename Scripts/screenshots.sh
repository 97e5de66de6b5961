#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Photographs every window, menu and dialog on a sample home, light and dark, into the folder that is named (build/
# pictures when left out).
set -euo pipefail
cd "$(dirname "$0")/.."
target=$(realpath -m "${1:-build/pictures}")

Scripts/install-dependencies.sh build samples pictures
cmake --preset release >/dev/null
cmake --build --preset release --target roamlet roamlet-sample-home
work=$(mktemp -d)
mkdir -p "$target" "$work/run"
export XDG_RUNTIME_DIR=$work/run LANG=en_US.UTF-8 LC_ALL=en_US.UTF-8
build/release/roamlet-sample-home --layout mac "$work/home" >/dev/null

processes=()
clean_up() {
  kill "${processes[@]}" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT

# number of the display, size
begin_screen() {
  export DISPLAY=:$1
  Xvfb "$DISPLAY" -screen 0 "$2x24" >/dev/null 2>&1 &
  processes+=($!)
  until xdotool getdisplaygeometry >/dev/null 2>&1; do sleep 0.1; done
  openbox >/dev/null 2>&1 &
  processes+=($!)
  trayer --edge top --align right --widthtype request --height 24 >/dev/null 2>&1 &
  processes+=($!)
}

# Waits until the screen has stopped changing.
settle() {
  local before='' now
  for _ in $(seq 60); do
    now=$(import -window root -depth 8 rgb:- | md5sum)
    [ "$now" != "$before" ] || return 0
    before=$now
    sleep 0.4
  done
}
screen() { settle && import -window root "$target/$theme-$1.png"; }
# name of the picture, beginning of the window's title
window() {
  until xdotool search --onlyvisible --name "^$2" >/dev/null 2>&1; do sleep 0.2; done
  settle && import -window "$(xdotool search --onlyvisible --name "^$2" | tail -n 1)" "$target/$theme-$1.png"
}

# GTK theme, home folder, further settings; leaves the process in $desktop
begin_desktop() {
  local gtk_theme=$1 home=$2
  shift 2
  env HOME="$home" XDG_CONFIG_HOME="$home/.config-$theme" QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME="$gtk_theme" "$@" \
    dbus-run-session -- build/release/roamlet >/dev/null 2>&1 &
  desktop=$!
}
end_desktop() {
  pkill -TERM -P "$desktop" -x roamlet || true
  wait "$desktop" 2>/dev/null || true
}

photograph() {
  begin_desktop "$1" "$work/home"
  window history 'Recent History'
  xdotool key ctrl+f type clock
  window search 'Recent History'
  xdotool key Escape Down Down Menu
  screen link-menu
  xdotool key Escape alt+v
  screen view-menu
  xdotool key Escape alt+f
  screen file-menu
  xdotool key Return
  window export 'Export Bookmarks'
  xdotool key Escape ctrl+comma
  window settings-general Settings
  xdotool key ctrl+Tab
  window settings-profiles Settings
  xdotool key Escape
  xdotool mousemove 1268 12 click 3
  screen tray-menu
  xdotool key Down Down Right
  screen tray-recent
  xdotool key Escape Escape Escape
  xdotool search --onlyvisible --name '^Recent History' windowsize --sync 820 480
  window narrow 'Recent History'
  end_desktop
  begin_desktop "$1" "$work/empty"
  window empty 'Recent History'
  end_desktop
}

# On a screen of twice the points, only what would look coarse.
photograph_twice() {
  begin_desktop "$1" "$work/home" QT_SCALE_FACTOR=2
  window history 'Recent History'
  xdotool key ctrl+comma
  window settings-general Settings
  end_desktop
}

mkdir -p "$work/empty"
begin_screen 94 1280x900
theme=light photograph Adwaita
theme=dark photograph Adwaita:dark
begin_screen 95 2560x1800
theme=light-2x photograph_twice Adwaita
theme=dark-2x photograph_twice Adwaita:dark
echo "The pictures are in $target."
