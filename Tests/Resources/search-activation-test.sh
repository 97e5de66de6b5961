#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The bus starts the installed program for a desktop's search: it answers without windows, and opens them where that is
# wished. Takes CMake, the build folder and the builder of sample homes.
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
  sed -i "s|^Exec=.*/bin/roamlet|Exec=$prefix/bin/roamlet|" "$services"/*.service
  cat >"$folder/bus.conf" <<END
<busconfig>
  <type>session</type>
  <listen>unix:dir=$folder</listen>
  <limit name="service_start_timeout">60000</limit>
  <servicedir>$services</servicedir>
  <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>
END
  "$3" --layout linux --safari -1 --chrome 1 --edge 0 --rows 1000 --bookmarks 10 --icons 10 "$folder/home" >/dev/null
  mkdir "$folder/temporary" "$folder/runtime"
  chmod 700 "$folder/runtime"
  env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home/.config" XDG_CACHE_HOME="$folder/home/.cache" \
    XDG_RUNTIME_DIR="$folder/runtime" TMPDIR="$folder/temporary" QT_QPA_PLATFORM=offscreen LANGUAGE=de \
    dbus-run-session --config-file="$folder/bus.conf" -- "$0" --on-the-bus
  exit
fi

ask() { # method, arguments
  local method=$1
  shift
  gdbus call --session --timeout 60 --dest org.roamlet.Roamlet.Search --object-path /org/roamlet/Roamlet/Search/Gnome \
    --method "org.gnome.Shell.SearchProvider2.$method" "$@"
}
pid_of() {
  gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
    --method org.freedesktop.DBus.GetConnectionUnixProcessID "$1" | grep -oE '[0-9]+' | tail -n 1
}

answer=$(ask GetInitialResultSet "['garden']") || { echo "nobody answers"; exit 1; }
grep -q 'chrome%2FDefault https\?://' <<<"$answer" || { echo "it finds nothing: $answer"; exit 1; }
pid=$(pid_of org.roamlet.Roamlet.Search)
for library in roamlet-window roamlet-updates roamlet-open Qt6Gui Qt6Widgets; do
  ! grep -q "$library" "/proc/$pid/maps" || { echo "it has loaded $library"; exit 1; }
done
# What it says of its own, it says in the user's language.
actions=$(gdbus call --session --timeout 60 --dest org.roamlet.Roamlet.Search \
  --object-path /org/roamlet/Roamlet/Search/KRunner --method org.kde.krunner1.Actions)
grep -q 'Alle in Roamlet anzeigen' <<<"$actions" || { echo "it does not speak German: $actions"; exit 1; }
# A browser that is not installed opens nothing, and nobody falls over it.
id=$(grep -oE "'[^']*'" <<<"$answer" | head -n 1 | tr -d "'")
ask ActivateResult "$id" "['garden']" 0 >/dev/null || { echo "a page cannot be chosen"; exit 1; }
ask GetResultMetas "['$id', 'no id']" | grep -q description || { echo "the page is not described"; exit 1; }

ask LaunchSearch "['garden']" 0 >/dev/null || { echo "the search cannot go on in the window"; exit 1; }
for _ in $(seq 600); do
  window=$(pid_of org.roamlet.Roamlet 2>/dev/null) && break
  read -r -t 0.1 <> <(:) || true
done
[ -n "$window" ] || { echo "the window is not opened"; exit 1; }

kill -TERM "$pid" "$window"
timeout 60 tail --pid="$pid" -f /dev/null || { echo "the service does not end"; exit 1; }
timeout 60 tail --pid="$window" -f /dev/null || { echo "the window does not end"; exit 1; }
left=$(find "$TMPDIR" -mindepth 1)
[ -z "$left" ] || { echo "it left $left"; exit 1; }
