#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A release's program knows the feed and the key that its build was told of, to the letter. Takes CMake and the
# project's folder.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
configure() { "$1" -D PROJECT_VERSION=1.2.3 "${@:3}" -P "$2/cmake/Information.cmake" >said 2>&1; }

feed='https://example.org/a%20b/feed.xml?x=1&y="2"\n;z=#${HOME}'
key=11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=
configure "$1" "$2" -D "ROAMLET_FEED_URL=$feed" -D ROAMLET_PUBLIC_KEY=$key || { cat said; exit 1; }
facts=Information/App/Updates/ReleaseFacts.h
for fact in 'version = u"1.2.3";' "feedURL = uR\"fact($feed)fact\";" "publicKey = uR\"fact($key)fact\";"; do
  grep -qF -- "$fact" $facts || { echo "missing: $fact"; cat $facts; exit 1; }
done

configure "$1" "$2" || { cat said; exit 1; }
grep -qF 'feedURL = uR"fact()fact";' $facts || { echo "a build that nobody released has a feed"; exit 1; }
refuse() {
  if configure "$cmake" "$project" "${@:2}"; then
    echo "$1 is taken"
    exit 1
  fi
}
cmake=$1
project=$2
refuse "a feed without a key" -D "ROAMLET_FEED_URL=$feed"
refuse "a key that is too short" -D "ROAMLET_FEED_URL=$feed" -D ROAMLET_PUBLIC_KEY=a2V5
refuse "a key that is no Base64" -D "ROAMLET_FEED_URL=$feed" -D "ROAMLET_PUBLIC_KEY=${key/S/-}"
for address in http://example.org/feed.xml https://example.org https:///feed.xml example.org/feed.xml; do
  refuse "$address" -D "ROAMLET_FEED_URL=$address" -D ROAMLET_PUBLIC_KEY=$key
done
