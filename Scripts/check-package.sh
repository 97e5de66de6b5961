#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the Debian package on a fresh Debian 12, runs it there and removes it again. Takes the package, by default
# the one that "make package" made. Needs Docker or Podman, or root and debootstrap; without them it says so and ends
# with status 77.
set -euo pipefail

on_fresh_system() {
  export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
  step() { echo "== $*"; }
  fail() { echo "FAILED: $*" >&2; exit 1; }
  traces() { find / -xdev \( -path /proc -o -path /sys -o -path /check -o -path /home \) -prune -o -iname '*roamlet*' -print; }
  # As a person who has just come to this machine.
  as_user() { runuser -u visitor -- env HOME=/home/visitor TMPDIR=/tmp/visitor "$@"; }

  printf '#!/bin/sh\nexit 101\n' >/usr/sbin/policy-rc.d
  chmod +x /usr/sbin/policy-rc.d
  apt-get update -q >/dev/null
  useradd --create-home visitor
  install -d -o visitor /tmp/visitor
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
trap 'rm -rf "$work"' EXIT
mkdir "$work/check"
cp "$package" "$work/check/roamlet.deb"
cp "$0" "$work/check/check-package.sh"
# Something to read, where it has been built.
if [ -x build/release/roamlet-sample-home ]; then
  build/release/roamlet-sample-home --layout mac "$work/check/home" >/dev/null
fi
chmod -R a+rX "$work"

for engine in podman docker; do
  if command -v $engine >/dev/null && $engine info >/dev/null 2>&1; then
    echo "In a $engine container:"
    $engine run --rm --volume "$work/check:/check:ro" docker.io/library/debian:12 \
      bash /check/check-package.sh --on-fresh-system
    exit
  fi
done

if [ "$(id -u)" -ne 0 ] || ! command -v debootstrap >/dev/null || ! unshare --mount --pid --fork true 2>/dev/null; then
  echo "Cannot make a fresh Debian here: that takes Docker, Podman, or debootstrap as root with the right to mount." >&2
  exit 77
fi
base=$PWD/build/fresh-debian
if [ ! -d "$base" ]; then
  echo "Making a fresh Debian in ${base#"$PWD"/} …"
  rm -rf "$base.part"
  debootstrap --variant=minbase bookworm "$base.part" "${ROAMLET_DEBIAN_MIRROR:-http://deb.debian.org/debian}" >/dev/null
  mv "$base.part" "$base"
fi
echo "In a chroot:"
cp -a --reflink=auto "$base" "$work/root"
cp -r "$work/check" "$work/root/check"
# What is mounted and started in there ends with it.
unshare --mount --pid --fork --kill-child chroot "$work/root" bash -c \
  'mount -t proc proc /proc && bash /check/check-package.sh --on-fresh-system'
