#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The manual page is well-formed and tells of every switch. Takes the page and the program.
set -euo pipefail
command -v groff >/dev/null || { echo "groff is not installed"; exit 77; }

said=$(groff -man -Tutf8 -ww -K utf8 "$1" 2>&1 >/dev/null)
[ -z "$said" ] || { echo "$said"; exit 1; }

# Without bold and underlined letters, and with hyphens that are the keyboard's.
text=$(groff -man -Tascii -P-cbou "$1")
switches=$("$2" --help | grep -oE -- '(^|[ ,])--?[a-z]+' | tr -d ' ,' | sort -u)
[ -n "$switches" ] || { echo "--help tells of no switch"; exit 1; }
status=0
for switch in $switches; do
  grep -qE -- "(^|[^-a-z])$switch([^-a-z]|$)" <<<"$text" || { echo "the page does not tell of $switch"; status=1; }
done
exit $status
