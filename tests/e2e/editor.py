# SPDX-License-Identifier: MIT
"""A GTK 3 program for a scan to click in: a menu bar, a button and a text. It tells on its standard
output what was done with it, and where its controls are: left, top, right and bottom on the screen.

Assistive technology doesn't see it: libatspi hangs when a GTK program tells it of news while it asks
without its cache, as the tests do."""

import os

import gi

os.environ["NO_AT_BRIDGE"] = "1"
gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk  # noqa: E402

ROWS = "New", "Open", "Save", "Print", "Close"
TEXT = "One switch is enough to write this.\n" * 20


class Editor(Gtk.Window):
    def __init__(self) -> None:
        super().__init__(title="Editor")
        self._clicks = 0
        self._label = Gtk.Label(label="0 clicks")
        button = Gtk.Button(label="Count")
        button.set_size_request(240, 90)
        button.connect("clicked", self._count)
        self._text = Gtk.TextView()
        self._text.get_buffer().set_text(TEXT)
        self._text.connect("button-release-event", self._selected)
        frame = Gtk.ScrolledWindow()
        frame.add(self._text)
        opener = menu_of(ROWS)
        bar = Gtk.MenuBar()
        bar.append(opener)
        box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL, spacing=12)
        box.pack_start(bar, False, False, 0)
        for each in button, self._label:
            each.set_halign(Gtk.Align.CENTER)
            box.pack_start(each, False, False, 0)
        box.pack_start(frame, True, True, 0)
        self.add(box)
        self.connect("configure-event", lambda *_: tell_places([opener, button, self._text]))
        self.connect("destroy", Gtk.main_quit)

    def _count(self, _) -> None:
        self._clicks += 1
        self._label.set_text("1 click" if self._clicks == 1 else f"{self._clicks} clicks")
        tell(f"click {self._clicks}")

    def _selected(self, *_) -> None:
        ends = self._text.get_buffer().get_selection_bounds()
        if ends:
            tell(f"selected {ends[0].get_text(ends[1])!r}")


def menu_of(rows: tuple[str, ...]) -> Gtk.MenuItem:
    """For a menu bar."""
    menu, opener = Gtk.Menu(), Gtk.MenuItem(label="File")
    for name in rows:
        row = Gtk.MenuItem(label=name)
        row.connect("activate", lambda _, name=name: tell(f"menu {name}"))
        menu.append(row)
    menu.connect("map", lambda _: tell_places(menu.get_children()))
    opener.set_submenu(menu)
    return opener


def tell_places(controls: list[Gtk.Widget]) -> None:
    """Once they are where they belong."""
    def tell_all() -> None:
        for control in controls:
            window, size = control.get_toplevel(), control.get_allocation()
            _, left, top = window.get_window().get_origin()
            x, y = control.translate_coordinates(window, 0, 0)
            left, top = left + x, top + y
            name = control.get_label() if hasattr(control, "get_label") else "Text"
            tell(f"{name} at {left} {top} {left + size.width} {top + size.height}")

    GLib.timeout_add(100, tell_all)


def tell(what: str) -> None:
    print(what, flush=True)


if __name__ == "__main__":
    Editor().show_all()
    Gtk.main()
