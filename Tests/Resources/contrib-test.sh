#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The pickers in Contrib show rows and open the one that is picked. Takes that folder and the program.
set -euo pipefail
for tool in jq sqlite3; do
  command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done
folder=$(mktemp -d)
screen=
trap '[ -z "$screen" ] || kill "$screen"; rm -rf "$folder"' EXIT
status=0
tested=0

mkdir -p "$folder/bin" "$folder/temporary" "$folder/share/applications"
profile=$folder/home/.config/google-chrome/Default
mkdir -p "$profile"
echo '{"profile":{"info_cache":{"Default":{"name":"Work"}}}}' >"$profile/../Local State"
sqlite3 "$profile/History" "
  CREATE TABLE urls (id INTEGER PRIMARY KEY, url TEXT, title TEXT, visit_count INTEGER, last_visit_time INTEGER,
    hidden INTEGER);
  INSERT INTO urls VALUES (1, 'https://old.example/', 'A garden', 1, 13300000000000000, 0);
  INSERT INTO urls VALUES (2, 'https://new.example/', 'A' || char(10, 9) || 'garden\\n', 1, 13350000000000000, 0);"
echo '{"roots":{"bookmark_bar":{"type":"folder","id":"1","name":"Bar","children":[
  {"type":"url","id":"2","name":"A shed","url":"https://shed.example/"}]}}}' >"$profile/Bookmarks"
ln -s "$2" "$folder/bin/roamlet"
# Browsers that write down what they were to open.
printf '#!/bin/sh\nprintf "%%s\\n" "$*" >>"%s/opened"\n' "$folder" >"$folder/bin/browser"
chmod +x "$folder/bin/browser"
printf '[Desktop Entry]\nType=Application\nName=Chrome\nExec="%s" %%U\n' "$folder/bin/browser" \
  >"$folder/share/applications/google-chrome.desktop"

in_home() {
  env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home/.config" XDG_DATA_HOME="$folder/share" \
    XDG_DATA_DIRS="$folder/share" XDG_CACHE_HOME="$folder/cache" TMPDIR="$folder/temporary" \
    PATH="$folder/bin:$PATH" LC_ALL=C.UTF-8 "$@"
}
# Runs it until it succeeds, a minute at most.
await() { timeout 60 bash -c 'until "$@" 2>/dev/null; do :; done' bash "$@" >/dev/null; }
expect_opened() { # who, addresses
  # The browser is started and left alone.
  await bash -c '[ "$(wc -l <"$0")" -ge "$1" ]' "$folder/opened" "$(wc -l <<<"$2")" || true
  [ "$(grep -o '[^ ]*$' "$folder/opened" 2>/dev/null | sort)" = "$2" ] ||
    { printf '%s opens:\n%s\nand not:\n%s\n' "$1" "$(cat "$folder/opened" 2>/dev/null)" "$2"; status=1; }
  rm -f "$folder/opened"
}

if command -v fzf >/dev/null; then
  tested=$((tested + 1))
  # Without a terminal, fzf prints what is found; every one of them is opened.
  in_home "$1/roamlet-fzf" --filter "'new.example"
  expect_opened roamlet-fzf https://new.example/
  in_home "$1/roamlet-fzf" --filter "'shed 'work"
  expect_opened roamlet-fzf https://shed.example/
  in_home "$1/roamlet-fzf" --filter "'garden"
  expect_opened roamlet-fzf $'https://new.example/\nhttps://old.example/'
  in_home "$1/roamlet-fzf" --filter "'nowhere"
  [ ! -e "$folder/opened" ] || { echo "roamlet-fzf opens what was not picked"; status=1; }
else
  echo "fzf is not installed"
fi

if command -v rofi >/dev/null && command -v Xvfb >/dev/null && command -v xdotool >/dev/null; then
  tested=$((tested + 1))
  Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp 3>"$folder/display" >/dev/null 2>&1 &
  screen=$!
  await test -s "$folder/display"
  DISPLAY=:$(cat "$folder/display")
  export DISPLAY
  pick() { # what is typed before, as rofi's own option
    in_home timeout 60 "$1/roamlet-rofi" -no-config -filter "$2" &
    local picker=$!
    await xdotool search --onlyvisible --class rofi || { echo "rofi shows no window"; status=1; }
    # Keys that come before it has the keyboard are lost.
    timeout 60 bash -c 'while kill -0 "$0"; do xdotool key --delay 200 "$1"; done' $picker "$3" 2>/dev/null || true
    wait $picker || { echo "roamlet-rofi ends with $?"; status=1; }
  }
  # The first row is the page visited last.
  pick "$1" '' Return
  expect_opened roamlet-rofi https://new.example/
  pick "$1" shed Return
  expect_opened roamlet-rofi https://shed.example/
  pick "$1" '' Escape
  [ ! -e "$folder/opened" ] || { echo "roamlet-rofi opens what was not picked"; status=1; }
else
  echo "rofi, Xvfb or xdotool is not installed"
fi

left=$(find "$folder/temporary" -mindepth 1 -name 'Roamlet-*')
[ -z "$left" ] || { echo "private copies were left behind: $left"; status=1; }
[ $tested -gt 0 ] || exit 77
exit $status
