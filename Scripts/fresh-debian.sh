# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# For scripts that check something on a fresh Debian 12. To be read by them with ".".

fresh_process=
fresh_container=
fresh_folder=

# Runs a script of the folder $1 on a fresh system that has the folder at /check, with the words that follow. Needs
# Docker or Podman, or root and debootstrap; without them it says so and ends with status 77. A script that installs
# much sets fresh_name: where a system of that name lies in build, in which it has already run with "--prepare", the
# next one begins as that. Whoever calls this lets end_fresh_debian run at the exit.
on_fresh_debian() {
  local folder=$1 base=$PWD/build/fresh-debian
  shift
  chmod -R a+rX "$folder"
  for engine in podman docker; do
    if command -v $engine >/dev/null && $engine info >/dev/null 2>&1; then
      echo "In a $engine container:"
      fresh_container=roamlet-check-$$
      $engine run --rm --name "$fresh_container" --volume "$folder:/check:ro" docker.io/library/debian:12 \
        bash "/check/$1" "${@:2}" &
      wait $!
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
  if [ -n "${fresh_name:-}" ]; then
    if [ ! -d "$base-$fresh_name" ]; then
      echo "Preparing it in ${base#"$PWD"/}-$fresh_name …"
      rm -rf "$base-$fresh_name.part"
      cp -a --reflink=auto "$base" "$base-$fresh_name.part"
      in_chroot "$folder" "$base-$fresh_name.part" "$1" --prepare
      rm -rf "$base-$fresh_name.part/check"
      mv "$base-$fresh_name.part" "$base-$fresh_name"
    fi
    base=$base-$fresh_name
  fi
  echo "In a chroot:"
  fresh_folder=$(mktemp -d)
  mkdir "$fresh_folder"/{changes,work,system}
  in_chroot "$folder" "$fresh_folder/system" "$@"
}

# Runs a script of the folder $1 in the system in the folder $2, which is made of $base when it is empty, with the words
# that follow. What is mounted and started in there ends with it.
in_chroot() {
  # shellcheck disable=SC2016 # The shell in there expands that.
  unshare --mount --pid --fork --kill-child bash -c '
    set -e
    if [ ! -d "$3/etc" ]; then
      changes=$(dirname "$3")
      mount -t overlay overlay -o "lowerdir=$1,upperdir=$changes/changes,workdir=$changes/work" "$3" 2>/dev/null ||
        cp -a --reflink=auto "$1/." "$3"
    fi
    cp -r "$2" "$3/check"
    mount -t proc proc "$3/proc"
    mount -t devpts devpts "$3/dev/pts"
    script=$4
    system=$3
    shift 4
    exec chroot "$system" bash "/check/$script" "$@"' in_chroot "$base" "$@" &
  fresh_process=$!
  wait $fresh_process
}

# Ends and removes what is left of a fresh system, whatever ended the script.
end_fresh_debian() {
  [ -z "$fresh_container" ] || $engine rm --force "$fresh_container" >/dev/null 2>&1 || true
  if [ -n "$fresh_process" ]; then
    kill -KILL "$fresh_process" 2>/dev/null || true
    wait "$fresh_process" 2>/dev/null || true
  fi
  # Its processes end a moment later.
  for _ in {1..50}; do
    rm -rf "$fresh_folder" 2>/dev/null && break
    sleep 0.1
  done
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
