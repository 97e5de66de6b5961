#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fails when a file is not formatted or clang-tidy has something to say. With file names: only about these.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build samples test bench lint
if [ $# -gt 0 ]; then
  files=("$@")
else
  mapfile -t files < <(git ls-files '*.cpp' '*.h')
fi
clang-format-19 --dry-run --Werror "${files[@]}"
echo "The formatting is right."

# Nothing has to be built: no file includes what moc makes, and the header of the release facts is written here.
cmake --preset plain >/dev/null
mapfile -t sources < <(printf '%s\n' "${files[@]}" | grep '\.cpp$')
printf '%s\0' "${sources[@]}" | xargs -0 -P "$(nproc)" -n 1 \
  clang-tidy-19 -p build/plain --quiet 2>/dev/null
echo "clang-tidy has nothing to say."
