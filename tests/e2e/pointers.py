"""Steps of the tour: the preview and what it shows, the pointer and the lines' look."""

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
    "lineThickness": ("<i", 144),
    "lineTransparency": ("<d", 148),
    "lineGhostTransparency": ("<d", 156),
    "pointerImageName": (f"<{NAME_SIZE}s", 164),
}

FOLDER = "Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Resources/Pointers"

# What the steps leave behind, as it is stored.
CHANGED = {
    "scanner.lineColor": "[0x0065,0x0000,0x0000]",
    "scanner.lineThickness": "8",
    "scanner.lineTransparency": "6.000000",
    "scanner.lineGhostTransparency": "74.000000",
}


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


def change_colour_and_thickness(tour: "Tour") -> str:
    """Make the lines' colour a little brighter and the lines thicker"""
    tour.screen.click("Line colour", "push button")
    tour.screen.click("Red:", "spin button")
    press("key", "Up")
    colour = tour.log.expect_change(SCAN_LINE | GUIDE_LINE, "lineColor", (101, 0, 0))
    press("key", "Return")
    tour.screen.click("Line thickness, thicker", "push button")
    thickness = tour.log.expect_change(SCAN_LINE | GUIDE_LINE, "lineThickness", 8)
    return f"{colour}; {thickness}"


def change_the_transparencies(tour: "Tour") -> str:
    """Change both transparencies"""
    accounts = []
    for button, mask, field, value, shown in (
        ("Guide line transparency, more solid", GUIDE_LINE, "lineGhostTransparency", 74, "guide"),
        ("Scan line transparency, more transparent", SCAN_LINE, "lineTransparency", 6, "scan"),
    ):
        tour.screen.click(button, "push button")
        accounts.append(tour.log.expect_change(mask, field, value))
        tour.screen.find(f"Preview of the {shown} line", "push button")
    return f"{'; '.join(accounts)}; the preview showed that line each time"


def look_at_the_other_line(tour: "Tour") -> str:
    """Click the preview, and press Space in it"""
    tour.screen.click("Preview of the scan line", "push button")
    tour.screen.find("Preview of the guide line", "push button")
    press("key", "space")
    tour.screen.find("Preview of the scan line", "push button")
    return "it showed the guide line, then the scan line again"


STEPS = (
    choose_another_pointer,
    change_colour_and_thickness,
    change_the_transparencies,
    look_at_the_other_line,
)
