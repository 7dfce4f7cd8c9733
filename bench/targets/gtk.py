#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A GTK 3 window full of buttons, for bench/Snapping.cpp:

    gtk.py WIDTH HEIGHT SIZE PITCH

It tells where each is, "box LEFT TOP", in pixels of the screen, and then "ready"."""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402

width, height, size, pitch = map(int, sys.argv[1:])

style = Gtk.CssProvider()
style.load_from_data(b"button { padding: 0; min-width: 0; min-height: 0; }")
Gtk.StyleContext.add_provider_for_screen(
    Gdk.Screen.get_default(), style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
window, plane, buttons = Gtk.Window(title="Targets"), Gtk.Fixed(), []
for top in range(pitch // 2, height - pitch, pitch):
    for left in range(pitch // 2, width - pitch, pitch):
        button = Gtk.Button()
        button.set_size_request(size, size)
        plane.put(button, left, top)
        buttons.append(button)
window.add(plane)
window.set_default_size(width, height)
window.show_all()


def tell():
    _, left, top = window.get_window().get_origin()
    for each in buttons:
        print("box", *(int(a + b) for a, b in zip((left, top), each.translate_coordinates(window, 0, 0))))
    print("ready", flush=True)


GLib.timeout_add(1000, tell)
Gtk.main()
