#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A GTK 3 editor with a menu bar and two lines of text. It tells its standard output what happens to it,
a line each: "ready", "menu File", "text one", "closed". It ends when its standard input does."""

import sys
import threading

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk  # noqa: E402


def tell(*words):
    print(*words, flush=True)


def menu_bar():
    bar = Gtk.MenuBar()
    for title, names in (("File", ["Open", "Save"]), ("Edit", ["Copy", "Paste"])):
        item = Gtk.MenuItem(label=title)
        menu = Gtk.Menu()
        menu.connect("map", lambda _menu, title: tell("menu", title), title)
        for name in names:
            menu.append(Gtk.MenuItem(label=name))
        item.set_submenu(menu)
        bar.append(item)
    return bar


def main():
    window = Gtk.Window(title="GTK editor", default_width=400, default_height=300)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    view = Gtk.TextView()
    buffer = view.get_buffer()
    buffer.set_text("one two\nthree\n")
    buffer.connect("changed", lambda _: tell("text", buffer.props.text.replace("\n", "|")))
    if len(sys.argv) == 1:
        box.pack_start(menu_bar(), False, False, 0)
    box.pack_start(view, True, True, 0)
    window.add(box)
    window.connect("focus-in-event", lambda *_: tell("ready"))
    window.connect("delete-event", lambda *_: (tell("closed"), Gtk.main_quit()))
    window.show_all()
    view.grab_focus()
    threading.Thread(target=lambda: (sys.stdin.read(), GLib.idle_add(Gtk.main_quit)), daemon=True).start()
    Gtk.main()


main()
