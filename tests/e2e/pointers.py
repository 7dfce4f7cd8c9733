"""Steps of the tour: the pointer and the lines' colour."""

import os
from typing import TYPE_CHECKING

from tests.e2e.agentlog import FIELDS
from tests.e2e.screen import press

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

SCAN_LINE, GUIDE_LINE, POINTER = 1, 2, 4  # groups of settings
NAME_SIZE = 100  # bytes
FIELDS |= {
    "lineColor": ("<3H", 136),
    "pointerImageName": (f"<{NAME_SIZE}s", 164),
}

FOLDER = "Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Resources/Pointers"

# What the steps leave behind, as it is stored.
CHANGED = {"scanner.lineColor": "[0x0065,0x0000,0x0000]"}


def choose_another_pointer(tour: "Tour") -> str:
    """Choose the next pointer and the one before it again"""
    names = [each.name[:-4] for each in os.scandir(tour.build / FOLDER)]
    following = names[(names.index("default") + 1) % len(names)]
    tour.choose_tab("Appearance")
    for button, name in ("Next pointer", following), ("Previous pointer", "default"):
        tour.screen.click(button, "push button")
        padded = name.encode().ljust(NAME_SIZE, b"\0")
        tour.log.expect_change(POINTER, "pointerImageName", padded)
        tour.screen.find(name.rpartition("+")[0] or name, "label")
    return f"the agent heard mask {POINTER} with “{following}”, then “default”"


def change_the_colour(tour: "Tour") -> str:
    """Make the lines' colour a little brighter"""
    tour.screen.click("Line colour", "push button")
    tour.screen.click("Red:", "spin button")
    press("key", "Up")
    account = tour.log.expect_change(SCAN_LINE | GUIDE_LINE, "lineColor", (101, 0, 0))
    press("key", "Return")
    return account


STEPS = (choose_another_pointer, change_the_colour)
