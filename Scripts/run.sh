#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds Roamlet and starts it: on this user's browsers, or on a sample home where there are none.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build samples
cmake --preset release >/dev/null
cmake --build --preset release --target roamlet roamlet-sample-home
roamlet=$PWD/build/release/roamlet

summary=$("$roamlet" --summary 2>/dev/null)
prefix=
if [ "$(wc -l <<<"$summary")" -le 1 ]; then
  home=$PWD/build/sample-home
  # Browsers that a Linux desktop has.
  [ -d "$home" ] || build/release/roamlet-sample-home --layout linux --profiles firefox=2 --chrome 2 --edge 0 \
    --profiles chromium=1 "$home"
  echo "There is no browser data here; this is a sample home in build/sample-home."
  export HOME=$home XDG_CONFIG_HOME=$home/.config
  prefix="HOME=\$PWD/build/sample-home XDG_CONFIG_HOME= "
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$roamlet"
fi
"$roamlet" --summary
echo
echo "There is no display for the window. Try: ${prefix}build/release/roamlet --search WORD, or --help."
