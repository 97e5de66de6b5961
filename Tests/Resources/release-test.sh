#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A release is refused for an address or a key that is none, before anything is built. Takes the project's folder.
set -euo pipefail
command -v openssl >/dev/null || { echo "openssl is not installed"; exit 77; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
refuse() {
  local said
  if said=$(ROAMLET_KEY_FILE=$2 ROAMLET_BASE_ADDRESS=$3 "$project/Scripts/release.sh" 2>&1); then
    echo "$1: it is taken"
    exit 1
  fi
  grep -q "^$4 has to be" <<<"$said" || { echo "$1: $said"; exit 1; }
}
project=$1
openssl genpkey -algorithm ed25519 -out "$folder/key.pem" 2>/dev/null
openssl genpkey -algorithm rsa -out "$folder/rsa.pem" 2>/dev/null
openssl pkey -in "$folder/key.pem" -pubout -out "$folder/public.pem"
echo "no key" >"$folder/text.pem"
for address in "" http://example.org/roamlet example.org https:// "https://example.org/a b" "https://example.org/?a" \
  'https://example.org/"'; do
  refuse "address $address" "$folder/key.pem" "$address" ROAMLET_BASE_ADDRESS
done
for key in "" missing.pem rsa.pem public.pem text.pem; do
  refuse "key $key" "${key:+$folder/$key}" https://example.org/roamlet ROAMLET_KEY_FILE
done
