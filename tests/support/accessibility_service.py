#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""org.a11y.Bus, as far as it tells whether assistive access is on: off at first. Each line of the
input, "on" or "off", switches it, and so does the property. A line of output says that it is there."""

import os

from gi.repository import Gio, GLib

PATH, STATUS = "/org/a11y/bus", "org.a11y.Status"
NODE = Gio.DBusNodeInfo.new_for_xml(f'''<node><interface name="{STATUS}">
  <property name="IsEnabled" type="b" access="readwrite"/></interface></node>''')
DAEMON = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
is_enabled = GLib.Variant("b", False)


def take(value: GLib.Variant) -> bool:
    global is_enabled
    is_enabled = value
    change = GLib.Variant("(sa{sv}as)", (STATUS, {"IsEnabled": is_enabled}, []))
    bus.emit_signal(None, PATH, "org.freedesktop.DBus.Properties", "PropertiesChanged", change)
    return True


def switch(*_) -> bool:
    lines = os.read(0, 100).split()
    if lines:
        take(GLib.Variant("b", lines[-1] == b"on"))
    return bool(lines)  # at the end of the input it listens no more


bus.register_object(PATH, NODE.interfaces[0], None, lambda *_: is_enabled, lambda *arguments: take(arguments[-1]))
name = GLib.Variant("(su)", ("org.a11y.Bus", 0))
bus.call_sync(*DAEMON, "RequestName", name, None, Gio.DBusCallFlags.NONE, -1)
GLib.io_add_watch(0, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, switch)
print("ready", flush=True)
GLib.MainLoop().run()
