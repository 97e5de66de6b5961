#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The manual page tells of every field that --json prints. Takes the page and the program.
set -euo pipefail
for tool in jq sqlite3; do
  command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

browser=$folder/.config/google-chrome
mkdir -p "$browser/Default" "$browser/Off" "$folder/.config/Roamlet"
echo '{"profile":{"info_cache":{"Default":{"name":"Work"},"Off":{"name":"Off"}}}}' >"$browser/Local State"
sqlite3 "$browser/Default/History" "
  CREATE TABLE urls (id INTEGER PRIMARY KEY, url TEXT, title TEXT, visit_count INTEGER, last_visit_time INTEGER,
    hidden INTEGER);
  INSERT INTO urls VALUES (1, 'https://a.example/', 'A', 1, 13350000000000000, 0);"
echo '{"roots":{"other":{"type":"folder","id":"1","name":"Other","children":[
  {"type":"url","id":"2","name":"B","url":"https://b.example/","date_added":"13350000000000000"}]}}}' \
  >"$browser/Default/Bookmarks"
printf '[General]\ndisabledProfiles=chrome/Off\n' >"$folder/.config/Roamlet/Roamlet.conf"
run() { env HOME="$folder" XDG_CONFIG_HOME="$folder/.config" TMPDIR="$folder" "$@"; }

# The headings of the chapter; what a bookmark and a profile share with a page is named in a line of its own.
chapter=$(sed -n '/^\.SH JSON LINES/,/^\.SH EXIT/p' "$1")
status=0
for job in --search '--site a.example' --top --bookmarks --summary; do
  read -ra arguments <<<"$job"
  fields=$(run "$2" --json "${arguments[@]}" | jq --raw-output 'keys[]' | sort -u)
  [ "$(wc -w <<<"$fields")" -ge 7 ] || { echo "$job prints too few fields: $fields"; status=1; }
  for field in $fields; do
    grep -qE "^\.BR? ([a-z]+\\\\fR, \\\\fB)*$field(\\\\|$)" <<<"$chapter" \
      || { echo "the page does not tell of the field $field of $job"; status=1; }
  done
done
exit $status
