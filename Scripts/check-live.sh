#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Reads databases while they are written to, for this many minutes: by writers with every kind of journal that a copy
# can be made with, who put one number into every row, and by the real Chromium and Firefox, where they are installed.
# Every answer has to be one that was true at a moment, every copy whole, and no file of theirs changed.
set -euo pipefail
cd "$(dirname "$0")/.."
minutes=${1:-60}

Scripts/install-dependencies.sh build samples test
cmake --preset dev >/dev/null
cmake --build --preset dev --target roamlet roamlet-live-reads roamlet-live-browsing
exec python3 Scripts/check-live.py build/dev "$minutes"
