#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the release and makes a Debian package of it. These variables, where they are set, go into it:
# ROAMLET_FEED_URL and ROAMLET_PUBLIC_KEY, from where and by whose signature it is updated, ROAMLET_PACKAGE_CONTACT,
# who answers for it, and ROAMLET_HOMEPAGE_URL, the project's page.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build packaging
options=(-DCMAKE_INSTALL_PREFIX=/usr -DROAMLET_FEED_URL="${ROAMLET_FEED_URL:-}"
  -DROAMLET_PUBLIC_KEY="${ROAMLET_PUBLIC_KEY:-}")
[ -z "${ROAMLET_HOMEPAGE_URL:-}" ] || options+=("-DROAMLET_HOMEPAGE_URL=$ROAMLET_HOMEPAGE_URL")
[ -z "${ROAMLET_PACKAGE_CONTACT:-}" ] || options+=("-DROAMLET_PACKAGE_CONTACT=$ROAMLET_PACKAGE_CONTACT")
cmake --preset release "${options[@]}" >/dev/null
cmake --build --preset release
# The same commit gives the same package, to the byte.
if [ -z "${SOURCE_DATE_EPOCH:-}" ] && git rev-parse --git-dir >/dev/null 2>&1; then
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
  export SOURCE_DATE_EPOCH
fi
rm -f build/release/*.deb
cpack --config build/release/CPackConfig.cmake -B build/release >/dev/null
ls build/release/*.deb
