#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds Roamlet and starts it: on this user's browsers, or on a sample home where there are none.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build
cmake --preset release >/dev/null
cmake --build --preset release --target roamlet roamlet-sample-home
roamlet=$PWD/build/release/roamlet

summary=$("$roamlet" --summary 2>/dev/null)
if [ "$(wc -l <<<"$summary")" -gt 1 ]; then
  echo "$summary"
  echo
  echo "Try: build/release/roamlet --search WORD, or --help."
  exit
fi

home=$PWD/build/sample-home
[ -d "$home" ] || build/release/roamlet-sample-home --layout mac "$home"
echo "There is no browser data here; this is a sample home in build/sample-home."
HOME=$home XDG_CONFIG_HOME=$home/.config "$roamlet" --summary
echo
echo "Try: HOME=\$PWD/build/sample-home build/release/roamlet --search WORD, or --help."
