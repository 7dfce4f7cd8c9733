#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""gtk_menus.py menu|submenu|list: a GTK 3 window that opens a menu, one inside of it too, or the list of
a combo box. It ends when its standard input does."""

import sys
import threading

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402


def menu_of(names):
    menu = Gtk.Menu()
    for name in names:
        menu.append(Gtk.MenuItem(label=name))
    return menu


def main():
    window = Gtk.Window(default_width=300, default_height=200)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    window.add(box)
    choice = Gtk.ComboBoxText()
    for name in ("One", "Two", "Three"):
        choice.append_text(name)
    box.add(choice)
    menu = menu_of(["Open", "Save", "Recent"])
    recent = menu.get_children()[-1]
    recent.set_submenu(menu_of(["First", "Second", "Third"]))
    menu.attach_to_widget(choice, None)
    menu.show_all()
    window.show_all()

    def open_it():
        if sys.argv[1] == "list":
            choice.popup()
            return
        menu.popup_at_widget(choice, Gdk.Gravity.NORTH_WEST, Gdk.Gravity.NORTH_WEST, None)
        if sys.argv[1] == "submenu":
            menu.select_item(recent)

    GLib.timeout_add(300, open_it)
    threading.Thread(target=lambda: (sys.stdin.read(), GLib.idle_add(Gtk.main_quit)), daemon=True).start()
    Gtk.main()


main()
