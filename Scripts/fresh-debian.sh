# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# For scripts that check something on a fresh Debian 12. To be read by them with ".".

# Runs a script of the folder $1 on a fresh system that has the folder at /check, with the words that follow. Needs
# Docker or Podman, or root and debootstrap; without them it says so and ends with status 77.
on_fresh_debian() {
  local folder=$1 base=$PWD/build/fresh-debian root status=0
  shift
  chmod -R a+rX "$folder"
  for engine in podman docker; do
    if command -v $engine >/dev/null && $engine info >/dev/null 2>&1; then
      echo "In a $engine container:"
      $engine run --rm --volume "$folder:/check:ro" docker.io/library/debian:12 bash "/check/$1" "${@:2}"
      return
    fi
  done
  if [ "$(id -u)" -ne 0 ] || ! command -v debootstrap >/dev/null || ! unshare --mount --pid --fork true 2>/dev/null; then
    echo "Cannot make a fresh Debian here: that takes Docker, Podman, or debootstrap as root with the right to mount." >&2
    exit 77
  fi
  if [ ! -d "$base" ]; then
    echo "Making a fresh Debian in ${base#"$PWD"/} …"
    rm -rf "$base.part"
    debootstrap --variant=minbase bookworm "$base.part" "${ROAMLET_DEBIAN_MIRROR:-http://deb.debian.org/debian}" >/dev/null
    mv "$base.part" "$base"
  fi
  echo "In a chroot:"
  root=$(mktemp -d)
  cp -a --reflink=auto "$base/." "$root"
  cp -r "$folder" "$root/check"
  # What is mounted and started in there ends with it.
  unshare --mount --pid --fork --kill-child chroot "$root" bash -c \
    'mount -t proc proc /proc && mount -t devpts devpts /dev/pts && bash "/check/$0" "$@"' "$@" || status=$?
  rm -rf "$root"
  return $status
}

# For the scripts on the fresh system.
step() { echo "== $*"; }
fail() { echo "FAILED: $*" >&2; exit 1; }
# As a person who has just come to this machine.
as_user() { runuser -u visitor -- env HOME=/home/visitor TMPDIR=/tmp/visitor "$@"; }
prepare_fresh_debian() {
  export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
  printf '#!/bin/sh\nexit 101\n' >/usr/sbin/policy-rc.d
  chmod +x /usr/sbin/policy-rc.d
  apt-get update -q >/dev/null
  useradd --create-home visitor
  install -d -o visitor /tmp/visitor
}
