#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The desktop metadata is valid. Takes the folder of the resources.
set -euo pipefail
command -v appstreamcli >/dev/null || { echo "appstreamcli is not installed"; exit 77; }
appstreamcli validate --no-net --strict "$1/org.roamlet.Roamlet.metainfo.xml"
