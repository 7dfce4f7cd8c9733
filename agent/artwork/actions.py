# SPDX-License-Identifier: MIT
"""The palette's actions in the order of their numbers (icon name, title, what it does, drawing), and
the application's own icon. The agent's table of actions is made of them, too.

Titles are plain words that fit a button of 40 points where one can be found. Number 0 is the empty
slot: it has a title, so that the menus can put a gap between two buttons.
"""

from shapes import circle, rect

POINTER = [(0, 0), (0, 8.5), (2, 6.6), (3.5, 9.9), (5.3, 9.1), (3.8, 5.9), (6.6, 5.9)]


def pointer_outline(x, y, scale):
    """Path data of the mouse pointer, 10 units high, with its tip at (x, y)."""
    corners = " ".join(f"{x + scale * dx:.2f},{y + scale * dy:.2f}" for dx, dy in POINTER)
    return f"M{corners}z"


def pointer(x, y, scale=1.0):
    """The mouse pointer, kept apart from what lies below it."""
    outline = pointer_outline(x, y, scale)
    return [("gap", outline), ("solid", outline)]


def keycap(*glyph):
    """A key of the keyboard with a glyph on its face, which spans 2 to 14 and 2 to 13."""
    return [("body", rect(1.5, 1.5, 13, 13, 2)), ("line", "M2.5 13.5h11"), *glyph]


def window(x, y, width, height):
    return [("body", rect(x, y, width, height, 1)), ("solid", rect(x, y, width, 2.5))]


def page(x, y, width, height):
    return ("body", rect(x, y, width, height, 0.5))


SPEAKER = ("body", "M1.5 5.5h2l4-4v13l-4-4h-2z")
DIAL = ("body", "M1.5 7.5a6.5 6 0 0 1 13 0z")
PLUS = ("markbold", "M12 6v4M10 8h4")
MINUS = ("markbold", "M10 8h4")

def does(kind, repeats=False):
    """What an action does: a name of ActionKind in agent/scan/Actions.h, and whether it goes on until a
    press."""
    return kind, repeats, None


def keys(names, repeats=False):
    """Keys by the names of X's symbols, after Control+, Shift+ or Alt+."""
    return "Keys", repeats, names


ACTIONS = [
    ("empty", "Empty slot", does("None"), [
        ("line", "M1.5 3.5v-.5a1.5 1.5 0 0 1 1.5-1.5h.5M12.5 1.5h.5a1.5 1.5 0 0 1 1.5 1.5v.5"
                 "M14.5 12.5v.5a1.5 1.5 0 0 1-1.5 1.5h-.5M3.5 14.5h-.5a1.5 1.5 0 0 1-1.5-1.5v-.5"
                 "M6.5 1.5h3M14.5 6.5v3M9.5 14.5h-3M1.5 9.5v-3")]),
    ("type", "Type", does("Type"), [
        ("body", rect(1.5, 3.5, 13, 9, 1)),
        ("solid", "M3 5h1v1h-1zM5 5h1v1h-1zM7 5h1v1h-1zM9 5h1v1h-1zM11 5h2v1h-2z"
                  "M3 7h2v1h-2zM6 7h1v1h-1zM8 7h1v1h-1zM10 7h1v1h-1zM12 7h1v1h-1z"),
        ("mark", "M5 9h6v2h-6z")]),
    ("scroll", "Scroll", does("Scroll"), [
        ("solid", "M8 1l5 5h-10zM8 15l-5-5h10z"), ("mark", circle(8, 8, 1.5))]),
    ("page_up", "Pg up", keys("Prior", repeats=True), [
        page(2.5, 1.5, 11, 13), ("markbold", "M5.5 7l2.5-2.5 2.5 2.5M5.5 11.5l2.5-2.5 2.5 2.5")]),
    ("page_down", "Pg down", keys("Next", repeats=True), [
        page(2.5, 1.5, 11, 13), ("markbold", "M5.5 4.5l2.5 2.5 2.5-2.5M5.5 9l2.5 2.5 2.5-2.5")]),
    ("back", "Back", keys("Alt+Left"), [
        ("body", circle(8, 8, 6.5)), ("bold", "M9 5l-3 3 3 3")]),
    ("forward", "Forward", keys("Alt+Right"), [
        ("body", circle(8, 8, 6.5)), ("bold", "M7 5l3 3-3 3")]),
    ("return", "Return", keys("Return"), keycap(
        ("markbold", "M11 5v3h-3"), ("mark", "M3 8l4.5-4v8z"))),
    ("tab", "Tab", keys("Tab", repeats=True), keycap(
        ("markbold", "M4 8h2M12 5v6"), ("mark", "M6.5 4l4 4-4 4z"))),
    ("escape", "Escape", keys("Escape"), [
        ("bold", "M10 4.1a5 5 0 1 1-5.9 5.9"), ("mark", "M1 1h6.5l-6.5 6.5z"),
        ("markbold", "M4 4l4.5 4.5")]),
    ("delete", "Delete", keys("BackSpace", repeats=True), [
        ("body", "M1.8 8l4.2-4.5h8.5v9h-8.5z"), ("bold", "M8 6l4 4M12 6l-4 4")]),
    ("space", "Space", keys("space"), [
        ("body", rect(1.5, 4.5, 13, 8, 1.5)), ("line", "M2.5 11.5h11"),
        ("markline", "M4.5 7.5v2h7v-2")]),
    ("cut", "Cut", keys("Control+x"), [
        ("bold", "M11 2.5l-5 7.5M5 2.5l5 7.5"),
        ("body", circle(4.5, 12, 2)), ("body", circle(11.5, 12, 2))]),
    ("copy", "Copy", keys("Control+c"), [
        page(1.5, 1.5, 8, 10), page(6.5, 4.5, 8, 10),
        ("line", "M9 7.5h3M9 9.5h3M9 11.5h3")]),
    ("paste", "Paste", keys("Control+v"), [
        ("body", rect(1.5, 2.5, 11, 12, 1)), ("solid", rect(4, 1, 6, 3, 0.5)),
        page(6.5, 6.5, 8, 8), ("line", "M9 9.5h3M9 11.5h3")]),
    ("undo", "Undo", keys("Control+z", repeats=True), [
        ("bold", "M6 5h4a4 4 0 0 1 0 8h-4"), ("solid", "M1 5l5-4v8z")]),
    ("up", "Up", keys("Up", repeats=True), keycap(("mark", "M8 3l4.5 4.5h-3v4.5h-3v-4.5h-3z"))),
    ("down", "Down", keys("Down", repeats=True), keycap(("mark", "M8 12l4.5-4.5h-3v-4.5h-3v4.5h-3z"))),
    ("left", "Left", keys("Left", repeats=True), keycap(("mark", "M3 7.5l4.5-4.5v3h5v3h-5v3z"))),
    ("right", "Right", keys("Right", repeats=True), keycap(("mark", "M13 7.5l-4.5-4.5v3h-5v3h5v3z"))),
    ("click", "Click", does("Click"), [
        ("mark", circle(5.5, 5.5, 4)), *pointer(5.5, 5.2)]),
    ("double_click", "Double", does("DoubleClick"), [
        ("markline", circle(6.5, 6.5, 5)), ("mark", circle(6.5, 6.5, 3)), *pointer(6.5, 6.5, 0.87)]),
    ("drag", "Drag", does("Drag"), [
        ("body", rect(1.5, 1.5, 6, 6)), ("gap", rect(5, 5, 7, 7)), ("mark", rect(5, 5, 7, 7)),
        *pointer(8, 7, 0.8)]),
    ("right_click", "R-click", does("RightClick"), [
        ("body", rect(3.5, 1.5, 9, 13, 4.5)),
        ("mark", "M8.5 2h.5a3.5 3.5 0 0 1 3 4h-3.5z"), ("line", "M4 6.5h8M8 2v4")]),
    ("hold", "Hold", does("Hold"), [
        *pointer(2, 1),
        ("line", "M9.5 9.5v-1a2 2 0 0 1 4 0v1"), ("mark", rect(8, 10, 7, 5, 0.5))]),
    ("move", "Move", does("Move"), [
        ("solid", "M8 1l3 3h-6zM8 15l-3-3h6zM1 8l3-3v6zM15 8l-3-3v6z"),
        ("bold", "M8 4v8M4 8h8")]),
    ("shift", "Shift", does("Shift"), [
        ("body", "M8 1.5l6 6h-3.5v4h-5v-4h-3.5z"), ("bold", "M6 14h4")]),
    ("control", "Control", does("Control"), keycap(("markbold", "M5 8l3-3 3 3"))),
    ("menus", "Menus", does("Menus"), [
        ("body", rect(3.5, 3.5, 8, 11)), ("solid", rect(1, 1, 14, 3)),
        ("line", "M6 6.5h3M6 12.5h3"), ("mark", rect(4, 8, 7, 3))]),
    ("apps", "Apps", does("Apps"), [
        ("body", rect(1.5, 1.5, 5, 5, 1)), ("body", rect(9.5, 1.5, 5, 5, 1)),
        ("body", rect(1.5, 9.5, 5, 5, 1)), ("mark", rect(9, 9, 6, 6, 1))]),
    ("windows", "Windows", does("Windows"), [*window(1.5, 1.5, 10, 8), *window(4.5, 6.5, 10, 8)]),
    ("close", "Close", does("Close"), [
        *window(1.5, 1.5, 13, 13), ("markbold", "M6 7l4 4M10 7l-4 4")]),
    ("desktop", "Desktop", does("Desktop"), [
        ("body", rect(1.5, 2.5, 13, 9, 1)), ("bold", "M8 12v2M5 14h6")]),
    ("louder", "Louder", does("Louder", repeats=True), [SPEAKER, PLUS]),
    ("quieter", "Quieter", does("Quieter", repeats=True), [SPEAKER, MINUS]),
    ("mute", "Mute", does("Mute"), [
        SPEAKER, ("gap", "M1.6 13l1.4 1.4 11.4-11.4-1.4-1.4z"), ("markbold", "M3 13l10-10")]),
    ("faster", "Faster", does("Faster"), [
        DIAL, ("line", "M8 6.5l3-2.5"), ("markbold", "M8 11v2M7 12h2M6 12h4M8 10v4")]),
    ("slower", "Slower", does("Slower"), [DIAL, ("line", "M8 6.5l-3-2.5"), ("markbold", "M6 12h4")]),
    ("pause", "Pause", does("Pause"), [
        ("body", circle(8, 8, 6.5)), ("bold", "M6 6v4M10 6v4")]),
    ("again", "Again", does("Again"), [
        ("bold", "M12.5 10a5 5 0 1 1-1.5-5.5"), ("solid", "M14 1v6.5h-6.5z")]),
]

# A screen, the scan line across it, and the pointer on the line.
APPLICATION = [
    ("solid", rect(1, 1, 14, 14, 3.5)), ("paper", rect(2, 2, 12, 12, 2.5)),
    ("mark", "M2 5h12v2h-12z"), *pointer(6.5, 6, 0.75)]
