#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A desktop can start the installed program through D-Bus alone, and a second start hands over to it. Takes CMake and
# the build folder.
set -euo pipefail
for tool in dbus-run-session gdbus; do
  command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done

if [ "$1" != --on-the-bus ]; then
  folder=$(mktemp -d)
  trap 'rm -rf "$folder"' EXIT
  DESTDIR=$folder/staging "$1" --install "$2" >/dev/null
  prefix=$folder/staging$(sed -n 's/^CMAKE_INSTALL_PREFIX:PATH=//p' "$2/CMakeCache.txt")
  services=$prefix/share/dbus-1/services
  # The program is not where it will be one day.
  sed -i "s|^Exec=.*/bin/roamlet\$|Exec=$prefix/bin/roamlet|" "$services/org.roamlet.Roamlet.service"
  cat >"$folder/bus.conf" <<END
<busconfig>
  <type>session</type>
  <listen>unix:dir=$folder</listen>
  <limit name="service_start_timeout">60000</limit>
  <servicedir>$services</servicedir>
  <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>
END
  mkdir "$folder/home" "$folder/temporary" "$folder/runtime"
  chmod 700 "$folder/runtime"
  env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home/.config" XDG_CACHE_HOME="$folder/home/.cache" \
    XDG_RUNTIME_DIR="$folder/runtime" TMPDIR="$folder/temporary" QT_QPA_PLATFORM=offscreen \
    dbus-run-session --config-file="$folder/bus.conf" -- "$0" --on-the-bus "$prefix/bin/roamlet"
  exit
fi

program=$2
activate() {
  gdbus call --session --timeout 60 --dest org.roamlet.Roamlet --object-path /org/roamlet/Roamlet \
    --method org.freedesktop.Application.Activate '{}' >/dev/null
}
ask_bus() {
  gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
    --method "org.freedesktop.DBus.$1" org.roamlet.Roamlet
}

activate || { echo "the program does not start"; exit 1; }
pid=$(ask_bus GetConnectionUnixProcessID | grep -oE '[0-9]+' | tail -n 1)
[ "$(readlink "/proc/$pid/exe")" = "$program" ] || { echo "another program answers"; exit 1; }
timeout 60 "$program" || { echo "a second start does not hand over"; exit 1; }
activate || { echo "it does not come forward again"; exit 1; }
[ "$(ask_bus GetConnectionUnixProcessID | grep -oE '[0-9]+' | tail -n 1)" = "$pid" ] \
  || { echo "another one has been started"; exit 1; }

kill -TERM "$pid"
timeout 60 tail --pid="$pid" -f /dev/null || { echo "the program does not end"; exit 1; }
left=$(find "$TMPDIR" -mindepth 1)
[ -z "$left" ] || { echo "it left $left"; exit 1; }
