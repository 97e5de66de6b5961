#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What the desktops' searches read of us, the bus and the program name the same things. Takes the resources, the program
# sources and CMake's build folder.
set -euo pipefail
resources=$1 sources=$2 build=$3
status=0
value() { sed -n "s/^$2=//p" "$1"; }
is() { # what, is, wanted
  [ "$2" = "$3" ] || { echo "$1 is \"$2\" and not \"$3\""; status=1; }
}
constant() { sed -n "s/.*$1 = QStringLiteral(\"\(.*\)\");/\1/p" "$sources/Platform/Linux/Search/SearchService.h"; }

name=$(constant serviceName)
[ -n "$name" ] || { echo "the program names no service"; exit 1; }
gnome=$resources/org.roamlet.Roamlet.search-provider.ini
is "the bus name for GNOME" "$(value "$gnome" BusName)" "$name"
is "the object for GNOME" "$(value "$gnome" ObjectPath)" "$(constant gnomePath)"
[ -f "$resources/$(value "$gnome" DesktopId)" ] || { echo "GNOME is told of a desktop entry that is not there"; status=1; }
kde=$resources/krunner.desktop
is "the bus name for KDE" "$(value "$kde" X-Plasma-DBusRunner-Service)" "$name"
is "the object for KDE" "$(value "$kde" X-Plasma-DBusRunner-Path)" "$(constant kRunnerPath)"
service=$build/installed/$name.service
is "the name of the service" "$(value "$service" Name)" "$name"
[[ $(value "$service" Exec) == */bin/roamlet\ --desktop-search ]] || { echo "the bus starts another program"; status=1; }

# Each action of the desktop entry is one that the program knows.
entry=$resources/org.roamlet.Roamlet.desktop
IFS=';' read -r -a actions <<<"$(value "$entry" Actions)"
for action in "${actions[@]}"; do
  grep -q "\"$action\"_L1" "$sources/Platform/Linux/Search/ApplicationCall.cpp" \
    || { echo "the program does not know the action $action"; status=1; }
  grep -q "^Exec=roamlet --action $action\$" "$entry" || { echo "the action $action starts something else"; status=1; }
done
exit $status
