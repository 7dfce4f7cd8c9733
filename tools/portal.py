# SPDX-License-Identifier: MIT
"""Replaces the desktop's settings portal: tells programs which look the user wants.

    python3 -m tools.portal LOOK [still]

Still: things should move less.
"""

import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = """<node><interface name="org.freedesktop.portal.Settings">
<method name="ReadAll"><arg name="groups" type="as" direction="in"/>
<arg name="told" type="a{sa{sv}}" direction="out"/></method></interface></node>"""

# The colour scheme (1 dark, 2 light) and whether high contrast is on.
LOOKS = {"light": (2, 0), "dark": (1, 0), "contrast": (2, 1), "contrast-dark": (1, 1)}


def main(look: str, motion: str = "") -> None:
    scheme, contrast = (GLib.Variant("u", wish) for wish in LOOKS[look])
    still = GLib.Variant("u", motion == "still")
    told = {"org.freedesktop.appearance":
            {"color-scheme": scheme, "contrast": contrast, "reduced-motion": still}}

    def answer(_bus, _sender, _path, _interface, _method, _groups, call) -> None:
        call.return_value(GLib.Variant("(a{sa{sv}})", (told,)))

    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
    bus.register_object(PATH, interface, answer, None, None)
    Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main(*sys.argv[1:])
