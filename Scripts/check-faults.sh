#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Lets each system call that the program needs fail in turn, and expects it to say so, to end, to leave nothing behind
# and to touch nothing of the browsers'. --job and --call restrict it; --help says more.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build samples faults
cmake --preset dev >/dev/null
cmake --build --preset dev --target roamlet roamlet-sample-home roamlet-failing-calls roamlet-save >/dev/null
exec python3 Tests/Faults/faults.py build/dev "$@"
