#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A GTK 3 window that tells its standard output what it gets, a line each: "shown", "press 1 at 30,40",
"release 1", "scroll down", "key Return", "closed":

    target.py TITLE [MONITOR]

It covers a monitor if that is named, else it is as large as the compositor lets it be."""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402


def tell(*words) -> None:
    print(*words, flush=True)


def scroll(_window, event) -> None:
    _, across, down = event.get_scroll_deltas()
    tell("scroll", "down" if down > 0 else "up" if down < 0 else "across")


window = Gtk.Window(title=sys.argv[1], default_width=600, default_height=400)
area = Gtk.EventBox()  # a window itself hears each event twice
area.add_events(Gdk.EventMask.ALL_EVENTS_MASK)
window.add(area)
area.connect("button-press-event", lambda _, e: tell("press", e.button, "at", f"{e.x:.0f},{e.y:.0f}"))
area.connect("button-release-event", lambda _, e: tell("release", e.button))
area.connect("scroll-event", scroll)
window.connect("key-press-event", lambda _, e: tell("key", Gdk.keyval_name(e.keyval)))
window.connect("map-event", lambda *_: tell("shown"))
window.connect("delete-event", lambda *_: (tell("closed"), Gtk.main_quit()))
window.set_decorated(False)
window.maximize()
if len(sys.argv) > 2:
    window.fullscreen_on_monitor(Gdk.Screen.get_default(), int(sys.argv[2]))
window.show_all()
Gtk.main()
