#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The desktop entry is valid. Takes the folder of the resources.
set -euo pipefail
command -v desktop-file-validate >/dev/null || { echo "desktop-file-validate is not installed"; exit 77; }
entry=$1/org.roamlet.Roamlet.desktop

# Debian 12's validator ends at version 1.4 of the format, which had one key less.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
judged=$folder/${entry##*/}
sed -e 's/^Version=1\.5$/Version=1.4/' -e '/^SingleMainWindow=true$/d' "$entry" >"$judged"
said=$(desktop-file-validate --warn-kde "$judged" 2>&1) || { echo "$said"; exit 1; }
# A warning does not fail it.
[ -z "$said" ] || { echo "$said"; exit 1; }

# What people read is there in every language, and the name of each action.
actions=$(grep -c '^\[Desktop Action ' "$entry")
for translation in "$1"/Translations/roamlet_*.ts; do
  language=$(basename "$translation" .ts)
  language=${language#roamlet_}
  for key in GenericName Comment Keywords; do
    grep -q "^$key\[$language\]=." "$entry" || { echo "$key is missing for $language"; exit 1; }
  done
  [ "$(grep -c "^Name\[$language\]=." "$entry")" -eq "$actions" ] || { echo "an action has no name for $language"; exit 1; }
  grep -q "^Comment\[$language\]=." "$1/krunner.desktop" || { echo "KDE is told nothing for $language"; exit 1; }
done

# The drawing that the entry names is the one that is installed.
icon=$(sed -n 's/^Icon=//p' "$entry")
[ -f "$1/$icon.svg" ] || { echo "there is no drawing for the icon $icon"; exit 1; }

# What is taken out above is there, each on a line of its own.
[ "$(grep -cxE 'Version=1\.5|SingleMainWindow=true' "$entry")" -eq 2 ] || { echo "the entry has lost a key"; exit 1; }
