#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# An installation holds what a desktop needs, and works wherever it is put. Takes CMake and the build folder.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

DESTDIR=$folder/staging "$1" --install "$2" >/dev/null
prefix=$folder/staging$(sed -n 's/^CMAKE_INSTALL_PREFIX:PATH=//p' "$2/CMakeCache.txt")
status=0
for file in bin/roamlet share/applications/org.roamlet.Roamlet.desktop \
  share/icons/hicolor/scalable/apps/org.roamlet.Roamlet.svg \
  share/icons/hicolor/symbolic/apps/org.roamlet.Roamlet-symbolic.svg \
  share/metainfo/org.roamlet.Roamlet.metainfo.xml \
  share/gnome-shell/search-providers/org.roamlet.Roamlet.search-provider.ini \
  share/krunner/dbusplugins/org.roamlet.Roamlet.desktop share/dbus-1/services/org.roamlet.Roamlet.Search.service \
  share/dbus-1/services/org.roamlet.Roamlet.service share/man/man1/roamlet.1.gz \
  share/man/de/man1/roamlet.1.gz share/man/fr/man1/roamlet.1.gz share/doc/roamlet/copyright \
  share/doc/roamlet/changelog.gz share/bash-completion/completions/roamlet share/zsh/site-functions/_roamlet \
  share/fish/vendor_completions.d/roamlet.fish; do
  [ -f "$prefix/$file" ] || { echo "$file is missing"; status=1; }
done
[ -x "$prefix/bin/roamlet" ] || { echo "the program cannot be run"; status=1; }

# Somewhere else than it was built for, behind a link, and with nothing of the build beside it.
mv "$prefix" "$folder/elsewhere"
ln -s "$folder/elsewhere/bin/roamlet" "$folder/roamlet"
mkdir "$folder/home"
run() { env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home/.config" "$@" 2>&1; }
run "$folder/roamlet" --version | grep -q '^Roamlet [0-9]' || { echo "--version fails"; status=1; }

# No window system has this name. That the window module is the one to complain proves that it was found and loaded.
said=$(ulimit -c 0 && run env -u DBUS_SESSION_BUS_ADDRESS QT_QPA_PLATFORM=no-such-system "$folder/roamlet") || true
grep -q 'no-such-system' <<<"$said" || { echo "the windows do not open: $said"; status=1; }
exit $status
