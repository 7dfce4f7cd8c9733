# SPDX-License-Identifier: MIT
"""Steps of the tour: profiles, and settings that go to another computer by a file."""

import plistlib
import subprocess
from typing import TYPE_CHECKING

from tests.e2e import startup
from tests.e2e.screen import press
from tests.e2e.waiting import PATIENCE, check, until

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

PROGRAM = "korvex-preferences"
TRIGGERS, SCAN_SPEED, HOT_KEYS = 256, 512, 32  # groups of settings


def expect_time(tour: "Tour", seconds: float) -> str:
    return tour.log.expect_change(SCAN_SPEED, "lineScanTime", seconds)


def save(tour: "Tour", name: str) -> None:
    tour.choose_tab("General")
    tour.screen.click(name, "push button")
    tour.screen.click("Save the settings under the name above", "push button")
    tour.screen.find(f"Profile: {name}", "push button")


def use_two_in_turn(tour: "Tour") -> str:
    """Save two profiles by ready names, use them in turn by menu and by command, and undo"""
    save(tour, "Morning")
    tour.choose_tab("Scanning")
    tour.screen.click("Line crosses the screen in, longer", "push button")
    changed = expect_time(tour, 11)
    tour.screen.find("Profile: Morning, changed", "push button")
    save(tour, "Tired")
    tour.picture("profiles-section")
    tour.screen.click("Profile: Tired", "push button")
    tour.screen.find("Use “Morning”", "list item")
    tour.picture("profiles-menu")
    tour.screen.click("Use “Morning”", "list item")
    menu = expect_time(tour, 10.5)
    tour.screen.find("Profile: Morning", "push button")
    tour.picture("profiles-used")
    command = (tour.build / "host" / PROGRAM, "profile", "use", "Tired")
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    used = expect_time(tour, 11)
    tour.screen.find("Profile: Tired", "push button")
    press("key", "ctrl+z")
    undone = expect_time(tour, 10.5)
    tour.screen.find("Profile: Morning", "push button")
    return f"{changed}; {menu}; {used}; {undone}"


def choose_file(tour: "Tour", button: str, path: str) -> None:
    """In the dialogue that the button opens."""
    tour.choose_tab("General")
    (window,) = tour.screen.windows(PROGRAM)
    tour.screen.click(button, "push button")
    until(lambda: tour.screen.active_window() not in ("", window), "the dialogue is in front")
    press("type", path)
    press("key", "Return")


def export_them(tour: "Tour") -> str:
    """Save all settings in a file"""
    tour.exported = tour.desktop.folder / "all.plist"
    choose_file(tour, "Export settings", str(tour.exported))
    until(tour.exported.exists, "the file is there")
    (text,) = until(lambda: tour.screen.names("alert"), "it is told")
    check(str(tour.exported) in text, text)
    return f"{len(plistlib.loads(tour.exported.read_bytes()))} settings are in it"


def import_them(tour: "Tour") -> str:
    """Import them into a fresh home"""
    startup.forbid_the_notice(tour.desktop)
    fresh = tour.desktop.folder / "fresh"
    program = tour.desktop.start(
        "env", f"XDG_CONFIG_HOME={fresh}", tour.build / "host" / PROGRAM
    )
    tour.log.expect("PPop")
    choose_file(tour, "Import settings", str(tour.exported))
    tour.screen.find("Use them", "push button")
    tour.picture("import-offered")
    tour.screen.click("Use them", "push button")
    mask = TRIGGERS | SCAN_SPEED | HOT_KEYS
    sent = tour.log.expect_change(mask, "lineScanTime", 10.5)
    tour.ask_to_close()
    tour.log.expect("PPcl")
    check(program.wait(PATIENCE) == 0, "the program failed")
    there = plistlib.loads((fresh / "Preferences/org.korvex.Agent.plist").read_bytes())
    lost = {
        key: there.get(key)
        for key, text in plistlib.loads(tour.exported.read_bytes()).items()
        if there.get(key) != text
    }
    check(not lost, f"stored: {lost}")
    return f"{sent}; all are stored there"
