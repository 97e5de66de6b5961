#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the Debian package on a fresh Debian 12, runs it there and removes it again. Takes the package, by default
# the one that "make package" made. Needs Docker or Podman, or root and debootstrap; without them it says so and ends
# with status 77.
set -euo pipefail
. "$(dirname "$0")/fresh-debian.sh"

on_fresh_system() {
  traces() { find / -xdev \( -path /proc -o -path /sys -o -path /check -o -path /home \) -prune -o -iname '*roamlet*' -print; }
  prepare_fresh_debian
  [ ! -d /check/home ] || { cp -r /check/home/. /home/visitor && chown -R visitor: /home/visitor; }

  step "Install, without anything that is only recommended"
  apt-get install -q -y --no-install-recommends /check/roamlet.deb >/dev/null
  dpkg --verify roamlet

  step "Look for the libraries of the modules"
  for module in $(dpkg -L roamlet | grep '\.so$'); do
    missing=$(ldd "$module" | grep 'not found') && fail "$module: $missing"
  done

  step "Run a job"
  as_user roamlet --version
  as_user roamlet --summary || fail "--summary ends with $?"

  step "Open the window"
  status=0
  as_user env QT_QPA_PLATFORM=offscreen timeout 3 roamlet || status=$?
  [ $status -eq 124 ] || fail "the window does not stay open: status $status"
  grep -q '^Exec="/usr/bin/roamlet"' /home/visitor/.config/autostart/org.roamlet.Roamlet.desktop \
    || fail "the first start of an installed copy does not set up the start at login"

  step "Open the window on X"
  apt-get install -q -y --no-install-recommends xvfb xauth >/dev/null
  status=0
  as_user xvfb-run --auto-servernum timeout 3 roamlet || status=$?
  [ $status -eq 124 ] || fail "the window does not stay open on X: status $status"
  left=$(find /tmp/visitor -name 'Roamlet-*')
  [ -z "$left" ] || fail "private copies were left behind: $left"

  step "Remove"
  apt-get purge -q -y roamlet >/dev/null
  left=$(traces)
  [ -z "$left" ] || fail "these are left: $left"
  echo "The package installs, runs and goes without a trace."
}

if [ "${1:-}" = --on-fresh-system ]; then
  on_fresh_system
  exit
fi

cd "$(dirname "$0")/.."
package=${1:-$(find build/release -maxdepth 1 -name '*.deb' 2>/dev/null | head -n 1)}
[ -f "$package" ] || { echo "There is no package. Run make package first." >&2; exit 1; }

if command -v lintian >/dev/null; then
  # No bug report asks for a first package outside of Debian's own archive.
  lintian --allow-root --suppress-tags initial-upload-closes-no-bugs --fail-on error,warning "$package"
  echo "lintian has nothing to say."
else
  echo "lintian is not installed; going on without."
fi

work=$(mktemp -d)
trap 'end_fresh_debian; rm -rf "$work"' EXIT
mkdir "$work/check"
cp "$package" "$work/check/roamlet.deb"
cp Scripts/check-package.sh Scripts/fresh-debian.sh "$work/check/"
# Something to read, where it has been built.
if [ -x build/release/roamlet-sample-home ]; then
  build/release/roamlet-sample-home --layout mac "$work/check/home" >/dev/null
fi
on_fresh_debian "$work/check" check-package.sh --on-fresh-system
