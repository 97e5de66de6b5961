#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The user of Scripts/check-update.sh: starts Roamlet, asks for an update, installs what is offered, and prints what the
windows say. It sees and presses what assistive technology does."""
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def descendants(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from descendants(child)


def wait_for(find, what, seconds=60):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            found = find()
        except GLib.Error:  # A window went away while it was read.
            found = None
        if found:
            return found
        time.sleep(0.2)
    for node in descendants(Atspi.get_desktop(0)):
        print(node.get_role_name(), repr(node.get_name()), file=sys.stderr)
    sys.exit(f"{what} does not appear")


def program():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child is not None and child.get_name().lower() == "roamlet":
            return child
    return None


def find(role, name):
    for node in descendants(program()):
        if node.get_role_name() == role and node.get_name() == name:
            return node
    return None


def press(node):
    node.do_action(0)


def words(*buttons):
    """What the window about updates says, and its button of one of these names, when it has one."""
    for window in descendants(program()):
        if window.get_role_name() in ("dialog", "frame") and window.get_name() == "Software Update":
            parts = list(descendants(window))
            texts = [part.get_name() for part in parts if part.get_role_name() == "label" and part.get_name()]
            for button in parts:
                if button.get_name() in buttons and "button" in button.get_role_name():
                    return texts, button
    return None


roamlet = subprocess.Popen(["roamlet"])
try:
    wait_for(program, "Roamlet")
    press(wait_for(lambda: find("menu item", "Check for Updates…"), "the command"))
    texts, button = wait_for(lambda: words("OK", "Install"), "an answer")
    print(" | ".join(texts))
    if button.get_name() == "Install":
        press(button)
        texts, button = wait_for(lambda: words("OK"), "the end of the installation", 120)
        print(" | ".join(texts))
    press(button)
finally:
    roamlet.terminate()
    roamlet.wait(20)
