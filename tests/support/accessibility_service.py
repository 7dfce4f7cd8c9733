#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""org.a11y.Bus, as far as it tells whether assistive access is on: off at first. Each line of the
input, "on" or "off", switches it. A line of output says that it is there."""

import os

from gi.repository import Gio, GLib

PATH, STATUS = "/org/a11y/bus", "org.a11y.Status"
NODE = Gio.DBusNodeInfo.new_for_xml(f'''<node><interface name="{STATUS}">
  <property name="IsEnabled" type="b" access="read"/></interface></node>''')
DAEMON = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
is_enabled = GLib.Variant("b", False)


def switch(*_) -> bool:
    global is_enabled
    lines = os.read(0, 100).split()
    if lines:
        is_enabled = GLib.Variant("b", lines[-1] == b"on")
        change = GLib.Variant("(sa{sv}as)", (STATUS, {"IsEnabled": is_enabled}, []))
        properties = "org.freedesktop.DBus.Properties"
        bus.emit_signal(None, PATH, properties, "PropertiesChanged", change)
    return bool(lines)  # at the end of the input it listens no more


bus.register_object(PATH, NODE.interfaces[0], None, lambda *_: is_enabled, None)
name = GLib.Variant("(su)", ("org.a11y.Bus", 0))
bus.call_sync(*DAEMON, "RequestName", name, None, Gio.DBusCallFlags.NONE, -1)
GLib.io_add_watch(0, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, switch)
print("ready", flush=True)
GLib.MainLoop().run()
