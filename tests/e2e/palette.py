# SPDX-License-Identifier: MIT
"""Steps of the tour: the palette's buttons."""

from typing import TYPE_CHECKING

from tests.e2e.agentlog import FIELDS
from tests.e2e.screen import Atspi, press
from tests.e2e.waiting import until

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

PALETTE = 8  # the group of settings
FIELDS |= {"buttonActions": ("<9B", 324)}

# What the steps leave behind, as it is stored.
CHANGED = {"palette.buttonActions": "[ 22 21 20 2 15 0 0 0 0]"}


def expect_slots(tour: "Tour", *slots: int) -> str:
    return tour.log.expect_change(PALETTE, "buttonActions", slots)


def choose_slot(tour: "Tour", name: str) -> None:
    slot = tour.screen.click(name, "list item")
    until(lambda: slot.has(Atspi.StateType.SELECTED), f"“{name}” is selected")


def edit_the_buttons(tour: "Tour") -> str:
    """Add a button to the palette, swap two, and remove one by keyboard"""
    tour.choose_tab("Palette")
    tour.screen.click("Add a button", "push button")
    tour.screen.find("Undo", "list item")
    tour.picture("palette-menu")
    press("type", "undo")
    press("key", "Return")
    added = expect_slots(tour, 20, 21, 22, 1, 2, 15, 0, 0, 0)
    tour.picture("palette-added")
    choose_slot(tour, "1, Click")
    tour.picture("palette-selected")
    tour.screen.click("Swap the chosen button", "push button")
    tour.picture("palette-swapping")
    tour.screen.click("3, Drag", "list item")
    swapped = expect_slots(tour, 22, 21, 20, 1, 2, 15, 0, 0, 0)
    tour.picture("palette-swapped")
    choose_slot(tour, "2, Double")
    press("key", "Right", "Right", "space", "alt+m")
    return f"{added}; {swapped}; {expect_slots(tour, 22, 21, 20, 2, 15, 0, 0, 0, 0)}"


STEPS = (edit_the_buttons,)
