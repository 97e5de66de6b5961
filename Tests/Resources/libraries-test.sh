#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A job of the command line starts without the window system and the network. Takes the program.
set -euo pipefail

if loaded=$(ldd "$1" | grep -oE '^\s*lib(Qt6(DBus|Gui|Network|Svg|Widgets)|X11|xcb|xdo|gio)[^ ]*'); then
  echo "$1 loads" "$(tr -d '\n' <<<"$loaded")"
  echo "    Sources/Roamlet/CMakeLists.txt says what is compiled together, and so comes into the program together."
  exit 1
fi
