#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes what the session bus carries between the desktops and Roamlet's search, a message a line, as JSON with the
time in seconds. A process of its own, so that nothing else holds up the clock."""
import json
import time

import dbus
import dbus.lowlevel
import dbus.mainloop.glib
from gi.repository import GLib

KINDS = {1: "call", 2: "return", 3: "error"}


def plain(value):
    if isinstance(value, (bytes, dbus.ByteArray)):
        return {"bytes": len(value), "different": len(set(value))}
    if isinstance(value, dict):
        return {str(key): plain(item) for key, item in value.items()}
    if isinstance(value, (list, tuple)):
        return [plain(item) for item in value]
    if isinstance(value, dbus.Boolean):
        return bool(value)
    if isinstance(value, int):
        return int(value)
    return float(value) if isinstance(value, float) else str(value)


pending = set()


def note(_connection, message):
    now = time.monotonic()
    kind = KINDS.get(message.get_type())
    if kind is None:  # What the bus tells the monitor itself.
        return dbus.lowlevel.HANDLER_RESULT_HANDLED
    event = {"time": now, "kind": kind}
    if kind == "call":
        pending.add((message.get_sender(), message.get_serial()))
        event |= {"sender": message.get_sender(), "serial": message.get_serial(), "member": message.get_member()}
    else:
        answered = (message.get_destination(), message.get_reply_serial())
        if answered not in pending:
            return dbus.lowlevel.HANDLER_RESULT_HANDLED
        pending.remove(answered)
        event |= {"sender": answered[0], "serial": answered[1]}
    event["arguments"] = plain(message.get_args_list(byte_arrays=True))
    print(json.dumps(event), flush=True)
    return dbus.lowlevel.HANDLER_RESULT_HANDLED


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus(private=True)
# Its own end is told to it, too.
bus.set_exit_on_disconnect(True)
bus.add_message_filter(note)
rules = ["type='method_call',interface='org.gnome.Shell.SearchProvider2'",
         "type='method_call',interface='org.kde.krunner1'",
         "type='method_return'", "type='error'"]
bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.Monitoring", "BecomeMonitor",
                  "asu", (rules, 0))
print(json.dumps({"kind": "ready"}), flush=True)
GLib.MainLoop().run()
