#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Photographs every window, menu and dialog on a sample home, light and dark, in several sizes, directions and scales,
# on X11 and on Wayland, into the folder that is named (build/pictures when left out).
set -euo pipefail
cd "$(dirname "$0")/.."
target=$(realpath -m "${1:-build/pictures}")

Scripts/install-dependencies.sh build samples fonts pictures
cmake --preset release >/dev/null
cmake --build --preset release --target roamlet roamlet-sample-home
work=$(mktemp -d)
mkdir -p "$target" "$work/run" "$work/empty"
chmod 700 "$work/run"
export XDG_RUNTIME_DIR=$work/run LANG=C.UTF-8 LC_ALL=C.UTF-8
build/release/roamlet-sample-home --layout linux --safari -1 --profiles firefox=1 --chrome 2 --edge 1 --rows 400 \
  --newest "$(date -u +%Y-%m-%dT%H:%M:%SZ)" "$work/home" >/dev/null

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
# width and height of the main window
resize_to() { xdotool search --onlyvisible --name '^Recent History' windowsize --sync "$1" "$2"; }

# GTK theme, home folder, further settings; leaves the process in $desktop
begin_desktop() {
  local gtk_theme=$1 home=$2
  shift 2
  local arguments=()
  while [ $# -gt 0 ] && [[ $1 == -* ]]; do
    arguments+=("$1")
    shift
  done
  rm -rf "$home/.config/Roamlet"
  mkdir -p "$home/.config/Roamlet"
  printf '[General]\ngrouping.history=day\n' >"$home/.config/Roamlet/Roamlet.conf"
  env HOME="$home" XDG_CONFIG_HOME="$home/.config" QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME="$gtk_theme" "$@" \
    dbus-run-session -- build/release/roamlet "${arguments[@]}" >/dev/null 2>&1 &
  desktop=$!
}
end_desktop() {
  pkill -TERM -P "$desktop" -x roamlet || true
  wait "$desktop" 2>/dev/null || true
}

photograph() {
  begin_desktop "$1" "$work/home"
  window history 'Recent History'
  # The first day's heading lies below the header; the row under the pointer tells where it leads.
  xdotool search --onlyvisible --name '^Recent History' mousemove --window %1 500 180 mousemove --window %1 502 182
  window row 'Recent History'
  xdotool key ctrl+f type clock
  window search 'Recent History'
  xdotool key ctrl+a type 'nothing like this'
  window nothing-found 'Recent History'
  xdotool key Escape Escape Down Down shift+Down Menu
  screen link-menu
  xdotool key Escape F10
  screen main-menu
  xdotool key Escape F9
  window without-sidebar 'Recent History'
  xdotool key F9 F10 Down Return
  window export 'Recent History'
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
  # The third row of the sidebar, and the first one.
  xdotool search --onlyvisible --name '^Recent History' mousemove --window %1 80 101 click 1
  window bookmarks 'All Bookmarks'
  xdotool search --onlyvisible --name '^All Bookmarks' mousemove --window %1 80 48 click 1
  until xdotool search --onlyvisible --name '^Recent History' >/dev/null; do sleep 0.2; done
  resize_to 820 480
  window narrow 'Recent History'
  end_desktop
  begin_desktop "$1" "$work/empty"
  window empty 'Recent History'
  end_desktop
  begin_desktop "$1" "$work/home" -reverse
  window right-to-left 'Recent History'
  xdotool key ctrl+comma
  window right-to-left-settings Settings
  end_desktop
}

# What would look coarse on finer screens, or too tight with larger letters.
photograph_sizes() {
  for scale in 1.25 1.6 2 2.5; do
    begin_desktop "$1" "$work/home" QT_SCALE_FACTOR=$scale
    window "scale-$scale" 'Recent History'
    end_desktop
  done
  # From 8 to 24 points, where 10 are usual.
  for dots in 77 230; do
    begin_desktop "$1" "$work/home" QT_FONT_DPI=$dots
    window "letters-$dots" 'Recent History'
    xdotool key ctrl+comma
    window "letters-$dots-settings" Settings
    end_desktop
  done
  begin_desktop "$1" "$work/home"
  window history 'Recent History'
  resize_to 2560 700
  window wide 'Recent History'
  end_desktop
}

# A compositor without a screen of its own.
photograph_wayland() {
  printf 'output HEADLESS-1 resolution 1280x900\nfor_window [app_id=".*"] border none\n' >"$work/sway"
  env -u DISPLAY WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
    sway --config "$work/sway" >/dev/null 2>&1 &
  processes+=($!)
  until socket=$(find "$work/run" -maxdepth 1 -name 'wayland-?' | grep .); do sleep 0.1; done
  begin_desktop "$1" "$work/home" QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY="$(basename "$socket")"
  export WAYLAND_DISPLAY
  WAYLAND_DISPLAY=$(basename "$socket")
  sleep 4
  grim "$target/$theme-history.png"
  wtype -M ctrl -k comma -m ctrl
  sleep 2
  grim "$target/$theme-settings.png"
  wtype -k Escape
  wtype -k F10 -s 300 -k Down -k Return
  sleep 2
  grim "$target/$theme-export.png"
  end_desktop
  unset WAYLAND_DISPLAY
}

begin_screen 94 1280x900
theme=light photograph Adwaita
theme=dark photograph Adwaita:dark
begin_screen 95 3000x2200
theme=light photograph_sizes Adwaita
theme=dark photograph_sizes Adwaita:dark
theme=wayland photograph_wayland Adwaita
echo "The pictures are in $target."
