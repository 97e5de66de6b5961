#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds and runs every test with the preset that is named: dev, asan or tsan.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-dev}

Scripts/install-dependencies.sh build samples test
cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset" --parallel "$(nproc)"
