# SPDX-License-Identifier: MIT
"""The custom scan area, drawn on the desktop."""

import io
from typing import TYPE_CHECKING, NamedTuple

from PIL import Image

from tests.e2e.agentlog import FIELDS
from tests.e2e.desktop import ask
from tests.e2e.screen import press, run, until_at_rest
from tests.e2e.waiting import until

if TYPE_CHECKING:
    from tests.e2e.tour import Tour

SCAN_AREA = 1024  # the group of settings
FIELDS |= {"scanArea": ("<4fB", 64)}  # and, behind it, whether it is in use

BUTTON = "Draw my own area", "push button"
WHOLE_SCREEN, OWN_AREA = "The whole screen", "Only my own area"

Color = tuple[int, int, int]
Place = tuple[int, int]

PROMPT = (255, 255, 230)
CURRENT = (51, 51, 255), 0.1
PALE_CURRENT = (51, 51, 255), 0.04
DRAGGED = (255, 51, 51), 0.1
NOTHING = (0, 0, 0), 0.0
ROUNDING = 2  # levels, for two blends


class Area(NamedTuple):
    x: float
    y: float
    width: float
    height: float

    def __str__(self) -> str:
        return f"{self.width:g} × {self.height:g} at {self.x:g}, {self.y:g}"


class Overlay:
    """The chooser as it is on the screen. Places are in the screen's pixels."""

    def __init__(self, tour: "Tour", prompt: Place):
        self._tour = tour
        self._own = self._windows()
        # By keyboard, which works whatever the scale of the display.
        button = tour.screen.find(*BUTTON)
        button.focus()
        until_at_rest(lambda: button.box)  # the page scrolls to it
        self._before = screenshot()
        press("key", "space")
        until(lambda: self.shows(prompt), "the prompt is on the screen")

    @property
    def box(self) -> str:
        """Its place and size, in words."""
        (window,) = self._windows() - self._own
        return ask("xdotool", "getwindowgeometry", window)

    def expect(self, looks: dict[Place, tuple[Color, float]]) -> None:
        """What was on the screen before must shine through what is drawn on it."""
        for place, look in looks.items():
            wanted = blend(self._before.getpixel(place), *look)
            until(
                lambda: is_near(screenshot().getpixel(place), wanted),
                f"{place} of the overlay is {wanted}",
            )

    def close(self, key: str) -> None:
        press("key", key)
        until(lambda: self._windows() <= self._own, "the overlay goes away")

    def shows(self, prompt: Place) -> bool:
        """The current area may lie over it."""
        seen = screenshot().getpixel(prompt)
        return any(is_near(seen, blend(PROMPT, *look)) for look in (NOTHING, CURRENT))

    def _windows(self) -> set[str]:
        process = str(self._tour.program.pid)
        return set(ask("xdotool", "search", "--onlyvisible", "--pid", process).split())


def blend(below: Color, color: Color, alpha: float) -> Color:
    return tuple(round(over * alpha + under * (1 - alpha)) for over, under in zip(color, below))


def screenshot() -> Image.Image:
    return Image.open(io.BytesIO(run("maim", "--hidecursor"))).convert("RGB")


def is_near(seen: Color, wanted: Color) -> bool:
    return all(abs(one - other) <= ROUNDING for one, other in zip(seen, wanted))


def drag(start: Place, *way: Place) -> None:
    press("mousemove", *map(str, start), "mousedown", "1")
    for place in way:
        press("mousemove", *map(str, place))


def let_go() -> None:
    press("mouseup", "1")


def expect_area(tour: "Tour", area: Area) -> str:
    """The agent, the radio buttons and the text must follow."""
    in_use = area.width > 0 and area.height > 0
    account = tour.log.expect_change(SCAN_AREA, "scanArea", (*area, int(in_use)))
    tour.wait_for_choice(OWN_AREA if in_use else WHOLE_SCREEN)
    tour.screen.find(str(area) if in_use else "none", "label")
    return account


