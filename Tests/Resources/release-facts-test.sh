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
configure "$1" "$2" -D "ROAMLET_FEED_URL=$feed" -D ROAMLET_PUBLIC_KEY=a2V5 || { cat said; exit 1; }
facts=Information/App/Updates/ReleaseFacts.h
for fact in 'version = u"1.2.3";' "feedURL = uR\"fact($feed)fact\";" 'publicKey = uR"fact(a2V5)fact";'; do
  grep -qF -- "$fact" $facts || { echo "missing: $fact"; cat $facts; exit 1; }
done

configure "$1" "$2" || { cat said; exit 1; }
grep -qF 'feedURL = uR"fact()fact";' $facts || { echo "a build that nobody released has a feed"; exit 1; }
if configure "$1" "$2" -D "ROAMLET_FEED_URL=$feed"; then
  echo "a feed without a key is taken"
  exit 1
fi
