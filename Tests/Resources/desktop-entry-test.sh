#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The desktop entry is valid. Takes the folder of the resources.
set -euo pipefail
command -v desktop-file-validate >/dev/null || { echo "desktop-file-validate is not installed"; exit 77; }
entry=$1/org.roamlet.Roamlet.desktop

said=$(desktop-file-validate --warn-kde "$entry" 2>&1) || { echo "$said"; exit 1; }
# A warning does not fail it.
[ -z "$said" ] || { echo "$said"; exit 1; }

# The drawing that the entry names is the one that is installed.
icon=$(sed -n 's/^Icon=//p' "$entry")
[ -f "$1/$icon.svg" ] || { echo "there is no drawing for the icon $icon"; exit 1; }
