#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing for each of the purposes named: build, samples, test, lint, fuzz, faults, bench,
# fonts, pictures, packaging.
set -euo pipefail

build=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev qt6-l10n-tools qt6-translations-l10n libsqlite3-dev
  libicu-dev libsodium-dev libarchive-dev libpng-dev nlohmann-json3-dev libglib2.0-dev libx11-dev libxdo-dev tzdata)
# What writes sample homes.
samples=(libplist-dev)
test=(libgtest-dev libgmock-dev sqlite3 dbus-daemon desktop-file-utils appstream groff-base)
# Without these the tests that need them say that they were skipped.
optional_test=(chromium firefox-esr openssl xvfb openbox at-spi2-core bash-completion zsh fish jq fzf rofi xdotool)
lint=(git clang-format-19 clang-tidy-19)
# The compiler with its sanitizers, and what makes one file of SQLite's source package.
fuzz=(clang-19 libclang-rt-19-dev llvm-19 dpkg-dev make tcl)
# What runs the program with failing system calls.
faults=(python3)
packaging=(dpkg-dev file openssl)
pictures=(xvfb openbox trayer xdotool imagemagick dbus-daemon qt6-gtk-platformtheme qt6-wayland sway grim wtype jq
  fonts-dejavu gsettings-desktop-schemas xdg-desktop-portal xdg-desktop-portal-gtk qt6ct strace
  util-linux)
bench=(libbenchmark-dev hyperfine sqlite3 time xvfb trayer xdotool dbus-daemon)
fonts=(fonts-noto-core fonts-noto-cjk)

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_missing() {
  local missing=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  if ! command -v apt-get >/dev/null; then
    echo "Install these packages of your system first: ${missing[*]}" >&2
    return 1
  fi
  echo "Installing ${missing[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q >/dev/null
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

for purpose in "$@"; do
  case "$purpose" in
    build | samples | test | lint | fuzz | faults | bench | fonts | pictures | packaging)
      declare -n packages="$purpose"
      install_missing "${packages[@]}"
      ;;
    *)
      echo "unknown purpose: $purpose" >&2
      exit 2
      ;;
  esac
  if [ "$purpose" = test ]; then
    install_missing "${optional_test[@]}" || echo "Could not install ${optional_test[*]}; going on without."
  fi
done
