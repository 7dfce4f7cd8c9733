# SPDX-License-Identifier: MIT
"""Steps of the tour: profiles."""

import subprocess
from typing import TYPE_CHECKING

from tests.e2e.screen import press

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

PROGRAM = "korvex-preferences"
SCAN_SPEED = 512  # the group of settings


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
