#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the Debian package on a fresh Debian 12 with GNOME Shell and KRunner, lets both of them find, show and open
# pages of a sample home with 100,000 rows, and prints each check and the times of the answers. Takes the package; without
# one it is made. Needs Docker or Podman, or root and debootstrap; without them it says so and ends with status 77. The
# desktops are fetched once, which takes some minutes, and stay in build/fresh-debian-desktops, 1.5 GB.
set -euo pipefail
. "$(dirname "$0")/fresh-debian.sh"

prepare() {
  prepare_fresh_debian
  step "Install GNOME Shell and KRunner's list"
  apt-get install -q -y --no-install-recommends gnome-shell milou qmlscene qml-module-qtquick2 dbus-bin dbus-daemon \
    at-spi2-core python3-gi python3-dbus gir1.2-atspi-2.0 qt6-wayland fonts-dejavu-core >/tmp/apt.log 2>&1 ||
    { cat /tmp/apt.log >&2; exit 1; }
  apt-get clean
}

on_fresh_system() {
  export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
  id visitor >/dev/null 2>&1 || prepare
  step "Install the package"
  apt-get update -q >/dev/null
  apt-get install -q -y --no-install-recommends /check/*.deb >/tmp/apt.log 2>&1 || { cat /tmp/apt.log >&2; exit 1; }
  cp -r /check/home/. /home/visitor
  chown -R visitor: /home/visitor
  # Without a system bus the Shell ends at once, and also when a service of the system is there and does not start.
  mkdir -p /run/dbus
  cat >/tmp/system-bus.conf <<'END'
<busconfig>
  <type>system</type>
  <listen>unix:path=/run/dbus/system_bus_socket</listen>
  <policy context="default">
    <allow user="*"/><allow own="*"/><allow send_destination="*"/><allow receive_sender="*"/>
  </policy>
</busconfig>
END
  dbus-daemon --config-file=/tmp/system-bus.conf --fork
  install -d -o visitor -m 700 /tmp/visitor/run
  as_user env XDG_RUNTIME_DIR=/tmp/visitor/run XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME \
    LIBGL_ALWAYS_SOFTWARE=1 GSETTINGS_BACKEND=memory PYTHONDONTWRITEBYTECODE=1 \
    timeout 1200 dbus-run-session -- python3 /check/desktop-search-driver.py 2>/tmp/driver.log |
    grep --line-buffered -v '^SpiRegistry' || { grep -v '^dbus-daemon' /tmp/driver.log >&2; fail "see above"; }
}

case ${1:-} in
  --prepare) prepare; exit ;;
  --on-fresh-system) on_fresh_system; exit ;;
esac

cd "$(dirname "$0")/.."
package=${1:-}
[ -n "$package" ] || package=$(Scripts/package.sh | tail -n 1)
[ -f "$package" ] || { echo "There is no package $package." >&2; exit 1; }
Scripts/install-dependencies.sh samples
cmake --build --preset release --target roamlet-sample-home >/dev/null
work=$(mktemp -d)
trap 'end_fresh_debian; rm -rf "$work"' EXIT
mkdir "$work/check"
cp "$package" "$work/check/roamlet.deb"
cp Scripts/check-desktop-search.sh Scripts/fresh-debian.sh Scripts/desktop-search-* "$work/check/"
build/release/roamlet-sample-home --layout linux --safari -1 --chrome 2 --edge 0 --profiles firefox=2 \
  --profiles chromium=1 --rows 20000 "$work/check/home"
fresh_name=desktops on_fresh_debian "$work/check" check-desktop-search.sh --on-fresh-system
