"""Steps of the tour: the palette's buttons."""

from typing import TYPE_CHECKING

from tests.e2e.agentlog import FIELDS
from tests.e2e.screen import Atspi, press
from tests.e2e.waiting import until

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

PALETTE = 8  # the group of settings
FIELDS |= {
    "buttonSize": ("<2h", 312),  # height, width
    "buttonShape": ("<I", 316),
    "buttonContent": ("<I", 320),
    "buttonActions": ("<9B", 324),
}

# What the steps leave behind, as it is stored.
CHANGED = {
    "palette.buttonShape": "0x00000001",
    "palette.buttonContent": "0x00000001",
    "palette.buttonSize": "(41,41)",
}


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
    press("key", "Right", "Right", "space", "alt+r")
    return f"{added}; {swapped}; {expect_slots(tour, 22, 21, 20, 2, 15, 0, 0, 0, 0)}"


def change_the_look(tour: "Tour") -> str:
    """Round the palette's corners, leave out the names, make the buttons larger; reset them"""
    tour.choose("Rounded")
    shape = tour.log.expect_change(PALETTE, "buttonShape", 1)
    tour.picture("palette-rounded")
    tour.screen.click("Name", "check box")
    content = tour.log.expect_change(PALETTE, "buttonContent", 1)
    tour.picture("palette-icons-only")
    tour.screen.click("Palette buttons, larger", "push button")
    size = tour.log.expect_change(PALETTE, "buttonSize", (41, 41))
    tour.picture("palette-larger")
    tour.screen.click("Reset all buttons", "push button")
    return f"{shape}; {content}; {size}; {expect_slots(tour, 20, 21, 22, 1, 2, 0, 0, 0, 0)}"


STEPS = (edit_the_buttons, change_the_look)
