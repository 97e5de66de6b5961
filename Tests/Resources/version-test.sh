#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Every place that names the newest release names the same one. Takes the project's folder and the version.
set -euo pipefail
status=0

is_version() {
  [ "$2" = "$version" ] || { echo "$1 begins with \"$2\", but the version is $version"; status=1; }
}

version=$2
is_version CHANGELOG.md "$(sed -n 's/^## \([^ ]*\).*/\1/p' "$1/CHANGELOG.md" | head -n 1)"
is_version "the desktop metadata" \
  "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$1/Resources/org.roamlet.Roamlet.metainfo.xml.in" | head -n 1)"
exit $status
