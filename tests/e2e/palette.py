"""Steps of the tour: the palette's buttons."""

from typing import TYPE_CHECKING

from tests.e2e.agentlog import FIELDS
from tests.e2e.screen import press
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
    until(lambda: slot.selected, f"“{name}” is selected")


def add_a_button(tour: "Tour") -> str:
    """Add a button to the palette"""
    tour.choose_tab("Palette")
    tour.screen.click("Add a button", "push button")
    tour.screen.find("Undo", "list item")
    tour.picture("palette-menu")
    press("type", "undo")
    press("key", "Return")
    account = expect_slots(tour, 20, 21, 22, 1, 2, 15, 0, 0, 0)
    tour.picture("palette-added")
    return account


def swap_two_buttons(tour: "Tour") -> str:
    """Swap two buttons of the palette"""
    choose_slot(tour, "1, Click")
    tour.picture("palette-selected")
    tour.screen.click("Swap the chosen button", "push button")
    tour.picture("palette-swapping")
    tour.screen.click("3, Drag", "list item")
    account = expect_slots(tour, 22, 21, 20, 1, 2, 15, 0, 0, 0)
    tour.picture("palette-swapped")
    return account


def remove_a_button(tour: "Tour") -> str:
    """Remove a button of the palette, by keyboard"""
    choose_slot(tour, "2, Double")
    press("key", "Right", "Right", "space", "alt+r")
    account = expect_slots(tour, 22, 21, 20, 2, 15, 0, 0, 0, 0)
    tour.picture("palette-removed")
    return account


def change_the_look(tour: "Tour") -> str:
    """Round the palette's corners, leave out the names, make the buttons larger"""
    tour.choose("Rounded")
    shape = tour.log.expect_change(PALETTE, "buttonShape", 1)
    tour.picture("palette-rounded")
    tour.screen.click("Name", "check box")
    content = tour.log.expect_change(PALETTE, "buttonContent", 1)
    tour.picture("palette-icons-only")
    tour.screen.click("Palette buttons, larger", "push button")
    size = tour.log.expect_change(PALETTE, "buttonSize", (41, 41))
    tour.picture("palette-larger")
    return f"{shape}; {content}; {size}"


def reset_the_buttons(tour: "Tour") -> str:
    """Reset the palette's buttons"""
    tour.screen.click("Reset all buttons", "push button")
    account = expect_slots(tour, 20, 21, 22, 1, 2, 0, 0, 0, 0)
    tour.picture("palette-reset")
    return account


STEPS = (add_a_button, swap_two_buttons, remove_a_button, change_the_look, reset_the_buttons)
