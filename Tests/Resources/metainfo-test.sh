#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The desktop metadata is valid and speaks every language. Takes the folder that it stands in and that of the windows'
# translations.
set -euo pipefail
command -v appstreamcli >/dev/null || { echo "appstreamcli is not installed"; exit 77; }
file=$1/org.roamlet.Roamlet.metainfo.xml

# What it may say: the name of a desktop entry that is there has its capital letter, and the developer is named twice,
# because older software centres know one way and newer ones the other.
said=$(appstreamcli validate --pedantic --no-net --no-color "$file") || { echo "$said"; exit 1; }
said=$(grep -E '^[EWIP]: ' <<<"$said" |
  grep -vE ' (cid-contains-uppercase-letter org.roamlet.Roamlet|unknown-tag developer|developer-name-tag-deprecated)') || true
[ -z "$said" ] || { echo "$said"; exit 1; }

status=0
while IFS= read -r summary; do
  [ ${#summary} -le 35 ] || { echo "too long for a software centre: $summary"; status=1; }
done < <(sed -n 's:.*<summary[^>]*>\(.*\)</summary>.*:\1:p' "$file")
texts=$(grep -cE '<(summary|caption|p|li)>' "$file")
for translation in "$2"/roamlet_*.ts; do
  language=$(basename "$translation" .ts)
  language=${language#roamlet_}
  count=$(grep -cE "<(summary|caption|p|li) xml:lang=\"${language/_/-}\">" "$file") || true
  [ "$count" -eq "$texts" ] || { echo "$count of $texts texts are translated to $language"; status=1; }
  grep -q "<lang percentage=\"100\">$language</lang>" "$file" || { echo "it does not tell of $language"; status=1; }
done
exit $status
