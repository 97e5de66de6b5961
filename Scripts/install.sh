#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the release and installs it below the folder that is named. With DESTDIR set, into a staging folder.
set -euo pipefail
cd "$(dirname "$0")/.."
prefix=$(realpath -m "$1")

Scripts/install-dependencies.sh build
cmake --preset release -DCMAKE_INSTALL_PREFIX="$prefix" >/dev/null
cmake --build --preset release
cmake --install build/release --strip
