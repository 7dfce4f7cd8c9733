# SPDX-License-Identifier: MIT
"""Steps of the tour: hot keys, captured from real keys."""

from typing import TYPE_CHECKING

from tests.e2e.agentlog import FIELDS
from tests.e2e.screen import press, run
from tests.e2e.waiting import check, until

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

HOT_KEYS = 32  # the group of settings
SLOTS = "Turn scanning on or off|Scan|Cancel the scan|Show these settings|Scan, second key"
FIELDS |= {name: ("<II", 264 + 8 * slot) for slot, name in enumerate(SLOTS.split("|"))}

COMMAND, SHIFT, OPTION, CONTROL = 0x100, 0x200, 0x800, 0x1000
NONE = 0x80000000

# What else would act on them: the window, its tabs and captions, and the window manager.
TAKEN = {
    **{"Escape": (0, 0x35), "Tab": (0, 0x30), "shift+Tab": (SHIFT, 0x30)},
    **{"super+q": (COMMAND, 0x0C), "ctrl+q": (CONTROL, 0x0C), "ctrl+w": (CONTROL, 0x0D)},
    **{"ctrl+Tab": (CONTROL, 0x30), "alt+s": (OPTION, 0x01), "alt+h": (OPTION, 0x04)},
    **{"alt+F4": (OPTION, 0x76), "alt+Tab": (OPTION, 0x30), "super+d": (COMMAND, 0x02)},
    "ctrl+alt+Left": (CONTROL | OPTION, 0x7B),
    "super+ctrl+alt+shift+x": (COMMAND | CONTROL | OPTION | SHIFT, 0x07),
}


def view(tour: "Tour", name: str):
    return tour.screen.find(name, "text")


def begin(tour: "Tour", name: str) -> None:
    """Clicks a hot key and waits until it captures."""
    tour.screen.click(name, "text")
    until(lambda: view(tour, name).description.startswith("Capturing"), f"“{name}” captures")


def wait_until_idle(tour: "Tour") -> None:
    until(lambda: "Cancel" not in tour.screen.names("push button"), "the capture is over")


def expect(tour: "Tour", name: str, modifiers: int, code: int) -> str:
    tour.log.expect_change(HOT_KEYS, name, (code, modifiers))
    return f"“{name}” {{{code:#x},{modifiers:#x}}}"


def capture(tour: "Tour", name: str, keys: str, modifiers: int, code: int) -> None:
    """Clicks the hot key and presses the keys, in one go."""
    place = tour.screen.bring_into_view(view(tour, name)).centre
    press("mousemove", *place, "click", "1", "key", keys)
    expect(tour, name, modifiers, code)


def open_menu(tour: "Tour", name: str, letter: str, *keys: str) -> None:
    """By its caption's underlined letter; the keys choose in it."""
    press("key", f"alt+{letter}")
    until(lambda: "Press new keys" in tour.screen.names("list item"), "the menu opens")
    if keys:
        press("key", *keys)


def capture_a_hot_key(tour: "Tour") -> str:
    """Capture command and Q"""
    tour.choose_tab("Presses")
    begin(tour, "Scan")
    press("keydown", "super", "keydown", "shift")
    until(lambda: view(tour, "Scan").text == "command+shift+", "the held modifiers are shown")
    press("keyup", "shift")
    until(lambda: view(tour, "Scan").text == "command+", "the released modifier is gone")
    tour.picture("capturing")
    press("key", "q", "keyup", "super")
    account = expect(tour, "Scan", COMMAND, 0x0C)
    wait_until_idle(tour)
    check(view(tour, "Scan").text == "command+Q", "the new hot key isn't shown")
    return account


def set_to_none_and_default(tour: "Tour") -> str:
    """Set hot keys to none and back to default, in the menu by the keyboard and in a capture"""
    accounts = []
    for item, code, text in (2, NONE | 0x0C, "-none-"), (3, 0x4C, "command+enter"):
        open_menu(tour, "Scan", "n", *["Down"] * item, "Return")
        accounts.append(expect(tour, "Scan", COMMAND, code))
        until(lambda: view(tour, "Scan").text == text, f"{text} is shown")
    for button, code in ("Cancel", None), ("None", NONE | 0x35), ("Reset", 0x35):
        begin(tour, "Cancel the scan")
        tour.screen.click(button, "push button")
        if code:
            accounts.append(expect(tour, "Cancel the scan", 0, code))
        wait_until_idle(tour)
    return "; ".join(accounts)


def hold_keys_down(tour: "Tour") -> str:
    """Hold down the keys that start and end a capture"""
    # As long as a slow hand does, a second each: the keys repeat meanwhile.
    open_menu(tour, "Scan", "n", "Home")
    press("keydown", "Return", "sleep", "1", "keyup", "Return")
    until(lambda: view(tour, "Scan").description.startswith("Capturing"), "it captures")
    press("keydown", "space", "sleep", "1", "keyup", "space")
    account = expect(tour, "Scan", 0, 0x31)
    wait_until_idle(tour)
    check("Press new keys" not in tour.screen.names("list item"), "the key opened the menu too")
    begin(tour, "Scan")
    press("keydown", "alt", "keydown", "F4", "sleep", "1", "keyup", "F4", "keyup", "alt")
    closing = expect(tour, "Scan", OPTION, 0x76)
    wait_until_idle(tour)
    return f"one change each, {account}; {closing}, and the window stays open"


def take_every_shortcut(tour: "Tour") -> str:
    """Capture what is a shortcut elsewhere"""
    window = tour.screen.active_window()
    for keys, (modifiers, code) in TAKEN.items():
        capture(tour, "Show these settings", keys, modifiers, code)
        check(tour.screen.active_window() == window, f"{keys} took the focus away")
        check(view(tour, "Show these settings"), f"{keys} left the tab")
    return f"{len(TAKEN)} combinations, which did nothing else"


def say_what_the_keyboard_says(tour: "Tour") -> str:
    """Name keys as a German keyboard does"""
    run("setxkbmap", "de")
    capture(tour, "Scan", "ctrl+z", CONTROL, 0x10)
    until(lambda: "Ctrl+Z on your keyboard" in tour.screen.names("label"), "it is named")
    check(view(tour, "Scan").text == "control+Y", "the name by place is gone")
    tour.picture("german-keyboard")
    open_menu(tour, "Scan", "n", "Down", "Return")
    tour.screen.find("Choose a key", "push button").act()
    keys = until(lambda: [n for n in tour.screen.names("list item") if n != "Scan"], "the list opens")
    for run_of_keys in ("X Y Z Ä", "9 # +", "^ ´ F1"):
        check(run_of_keys in " ".join(keys), f"{run_of_keys} isn’t in {keys}")
    press("key", "Escape")
    run("setxkbmap", "us")
    return f"control+Y is Ctrl+Z there; {len(keys)} keys to choose from"


STEPS = (
    capture_a_hot_key,
    set_to_none_and_default,
    hold_keys_down,
    take_every_shortcut,
    say_what_the_keyboard_says,
)
