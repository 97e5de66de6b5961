#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The manual pages are well-formed, and each tells of every switch. Takes the program and the pages.
set -euo pipefail
command -v groff >/dev/null || { echo "groff is not installed"; exit 77; }

switches=$("$1" --help | grep -oE -- '(^|[ ,])--?[a-z]+' | tr -d ' ,' | sort -u)
[ -n "$switches" ] || { echo "--help tells of no switch"; exit 1; }
status=0
for page in "${@:2}"; do
  said=$(groff -man -Tutf8 -ww -K utf8 "$page" 2>&1 >/dev/null)
  [ -z "$said" ] || { echo "$page: $said"; status=1; }

  # Without bold and underlined letters, and with hyphens that are the keyboard's.
  text=$(groff -man -Tascii -K utf8 -P-cbou "$page" 2>/dev/null)
  for switch in $switches; do
    grep -qE -- "(^|[^-a-z])$switch([^-a-z]|$)" <<<"$text" || { echo "$page does not tell of $switch"; status=1; }
  done
done
exit $status
