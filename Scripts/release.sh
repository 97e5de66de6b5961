#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes of a clean checkout what a release consists of, in build/release/publish: the package, its signature and the
# feed that announces it. Takes ROAMLET_KEY_FILE, the private key that signs updates, and ROAMLET_BASE_ADDRESS, the
# folder on the server (https) in which the package and the feed will lie. Everything is checked with the program's own
# code before it says so.
set -euo pipefail
cd "$(dirname "$0")/.."
fail() { echo "$*" >&2; exit 1; }
command -v openssl >/dev/null || Scripts/install-dependencies.sh packaging

key=${ROAMLET_KEY_FILE:-}
base=${ROAMLET_BASE_ADDRESS:-}
[[ $base =~ ^https://[A-Za-z0-9.:-]+(/[^?#[:space:]\"\<\>\&]*)?$ ]] ||
  fail "ROAMLET_BASE_ADDRESS has to be the address of a folder on a server, with https: \"$base\" is none."
base=${base%/}
[[ $(openssl pkey -in "$key" -noout -text 2>/dev/null) == ED25519\ Private-Key:* ]] ||
  fail "ROAMLET_KEY_FILE has to be a private Ed25519 key: \"$key\" is none. Docs/Releasing.md says how to make one."
[ -z "$(git status --porcelain)" ] || fail "There are changes that are not committed. A release is a commit."

version=$(sed -n 's/^project(Roamlet VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
heading=$(grep -m 1 '^## ' CHANGELOG.md)
[[ $heading =~ ^"## $version ("[0-9]{4}-[0-9]{2}-[0-9]{2}")"$ ]] ||
  fail "CHANGELOG.md has to begin with \"## $version (the date)\", not with \"$heading\"."

ROAMLET_FEED_URL=$base/feed.xml
ROAMLET_PUBLIC_KEY=$(openssl pkey -in "$key" -pubout -outform DER | tail -c 32 | base64)
export ROAMLET_FEED_URL ROAMLET_PUBLIC_KEY
Scripts/package.sh
cmake --build --preset release --target roamlet-release-check

publish=build/release/publish
rm -rf $publish
mkdir $publish
cp build/release/roamlet_"$version"-*.deb $publish/
package=$(cd $publish && echo roamlet_*.deb)
openssl pkeyutl -sign -rawin -inkey "$key" -in "$publish/$package" | base64 -w 0 >"$publish/$package.sig"
# What stands below the first heading. The end of a CDATA section cannot stand in one.
notes=$(awk '/^## /{ if (seen++) exit; next } seen' CHANGELOG.md | sed 's/]]>/]]]]><![CDATA[>/g')
cat >$publish/feed.xml <<END
<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
  <channel>
    <title>Roamlet</title>
    <item>
      <title>$version</title>
      <pubDate>$(LC_ALL=C date --utc --rfc-email)</pubDate>
      <sparkle:version>$version</sparkle:version>
      <description sparkle:format="markdown"><![CDATA[$notes]]></description>
      <enclosure url="$base/$package" length="$(stat -c %s "$publish/$package")"
                 type="application/vnd.debian.binary-package" sparkle:os="linux-$(uname -m)"
                 sparkle:edSignature="$(cat "$publish/$package.sig")"/>
    </item>
  </channel>
</rss>
END
build/release/roamlet-release-check $publish/feed.xml "$publish/$package" 0
echo "In $publish: put the package on the server first, and then the feed, so that it lies at $ROAMLET_FEED_URL."
