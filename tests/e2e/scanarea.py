# SPDX-License-Identifier: MIT
"""The custom scan area, drawn on a desktop of each kind.

    python3 -m tests.e2e.scanarea BUILD_DIR OUT_DIR DESKTOP
"""

import io
import os
import signal
from typing import NamedTuple

from PIL import Image

from tests.e2e.desktop import Desktop, ask, given, process_of
from tests.e2e.screen import press, run, until_at_rest
from tests.e2e.startup import dismiss_the_notice
from tests.e2e.tour import Tour, touring
from tests.e2e.waiting import PATIENCE, check, until

SCAN_AREA = 1024  # the group of settings

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

    def __init__(self, tour: Tour, prompt: Place):
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


def expect_area(tour: Tour, area: Area) -> str:
    """The agent, the radio buttons and the text must follow."""
    in_use = area.width > 0 and area.height > 0
    account = tour.log.expect_change(SCAN_AREA, "scanArea", (*area, int(in_use)))
    tour.wait_for_choice(OWN_AREA if in_use else WHOLE_SCREEN)
    tour.screen.find(str(area) if in_use else "none", "label")
    return account


class Setup(NamedTuple):
    """A desktop of 1600 x 800 pixels, a prompt on its main display, and a drag over all of it."""

    name: str
    composited: bool
    monitors: tuple[str, ...]  # as xrandr takes them; none: one display
    prompt: Place  # in its padding, in pixels
    area: Area  # what a drag from pixel 100, 100 to 1500, 700 gives
    environment: dict[str, str] = {}


SIZE = 1600, 800
LEFT, RIGHT = "800/200x800/200+0+0", "800/200x800/200+800+0"
UPPER, LOWER = "1600/400x400/100+0+0", "1600/400x400/100+0+400"

SETUPS = (
    Setup("one", False, (), (800, 261), Area(100, 100, 1400, 600)),
    Setup("one-composited", True, (), (800, 261), Area(100, 100, 1400, 600)),
    Setup("beside", False, ("*" + LEFT, RIGHT), (400, 261), Area(100, 100, 1400, 600)),
    Setup("left-of-main", True, (LEFT, "*" + RIGHT), (1200, 261), Area(-700, 100, 1400, 600)),
    Setup("above-main", False, (UPPER, "*" + LOWER), (800, 528), Area(100, -300, 1400, 600)),
    Setup("doubled", True, (), (800, 256), Area(50, 50, 700, 300), {"QT_SCALE_FACTOR": "2"}),
    Setup("doubled-beside", False, (LEFT, "*" + RIGHT), (1200, 256), Area(-350, 50, 700, 300),
          {"QT_SCREEN_SCALE_FACTORS": "M1=2;M0=1"}),
)


def set_up(setup: Setup, desktop: Desktop) -> None:
    for number, monitor in enumerate(setup.monitors):
        size = monitor.lstrip("*")
        # The X server's one output would be a display of its own if no monitor had it.
        main, output = ("*", "screen") if size != monitor else ("", "none")
        run("xrandr", "--setmonitor", f"{main}M{number}", size, output)
    if setup.composited:
        desktop.start("picom", "--backend", "xrender")
        until(lambda: ask("xdotool", "search", "--class", "^picom$"), "picom runs")


def take_the_window_used_last(tour: Tour, setup: Setup) -> None:
    mine = tour.screen.active_window()
    other = tour.desktop.start("xev", "-geometry", "300x200+60+40", "-event", "keyboard")
    choice = tour.screen.find("The window used last", "list item")
    told = ask("xprop", "-id", tour.screen.active_window(), "_NET_FRAME_EXTENTS")
    left, right, top, bottom = map(int, told.split("=")[1].split(","))
    press("windowactivate", "--sync", mine)
    choice.act()
    scale = 1400 / setup.area.width  # pixels a point
    points = setup.area.x + (60 - 100) / scale, setup.area.y + (40 - 100) / scale
    expect_area(tour, Area(*points, (300 + left + right) / scale, (200 + top + bottom) / scale))
    other.terminate()
    press("key", "ctrl+z")
    expect_area(tour, Area(0, 0, 0, 0))


def draw_everywhere(tour: Tour, setup: Setup) -> None:
    overlay = Overlay(tour, setup.prompt)
    corners = [(2, 2), (SIZE[0] - 3, 2), (2, SIZE[1] - 3), (SIZE[0] - 3, SIZE[1] - 3)]
    overlay.expect({corner: NOTHING for corner in corners})
    drag((1500, 700), (800, 400), (100, 100))
    overlay.expect({(120, 120): DRAGGED, (900, 680): DRAGGED, (20, 20): NOTHING})
    tour.picture("dragging")
    let_go()
    overlay.expect({(120, 120): CURRENT, (900, 680): CURRENT, (900, 750): NOTHING})
    overlay.close("Return")
    expect_area(tour, setup.area)

    overlay = Overlay(tour, setup.prompt)
    drag((4, 4), (24, 24))
    overlay.expect({(14, 14): DRAGGED, (900, 680): PALE_CURRENT})
    overlay.close("Escape")
    let_go()


def keep_to_the_overlay(tour: Tour, setup: Setup) -> None:
    """Nothing else may get its keys, or come before it."""
    overlay = Overlay(tour, setup.prompt)
    press("key", "ctrl+w", "key", "alt+h")
    tour.start_program().wait(PATIENCE)
    check(overlay.shows(setup.prompt), "the pane came before the overlay")
    for choice in ("Off", "On"):
        os.kill(tour.agent, signal.SIGUSR1)
        tour.wait_for_choice(choice)
    press("key", "Right", "key", "shift+Up")
    overlay.close("Return")
    check(tour.program.poll() is None, "the program has ended")
    x, y, width, height = setup.area
    expect_area(tour, Area(x, y - 10, width + 10, height + 10))
    overlay = Overlay(tour, setup.prompt)
    press("mousemove", "100", "100", "click", "1")
    overlay.close("KP_Enter")
    expect_area(tour, Area(x, y, 0, 0))


def take_a_display_away(tour: Tour, setup: Setup) -> None:
    if not setup.monitors:
        return
    other = next(i for i, size in enumerate(setup.monitors) if not size.startswith("*"))
    overlay = Overlay(tour, setup.prompt)
    both = overlay.box
    run("xrandr", "--delmonitor", f"M{other}")
    until(lambda: overlay.box != both, "the overlay follows")
    overlay.close("Escape")


def end_the_program(tour: Tour, setup: Setup) -> None:
    """As the session's end does."""
    Overlay(tour, setup.prompt)
    drag((4, 4), (24, 24))
    tour.program.terminate()
    status = tour.program.wait(PATIENCE)
    let_go()
    check(status == 0, f"the program ended with {status}")
    tour.log.expect("PPcl")
    check(f"origin({setup.area.x:f}," in tour.stored.read_text(), "the area is not stored")


PARTS = take_the_window_used_last, draw_everywhere, keep_to_the_overlay, take_a_display_away, end_the_program


if __name__ == "__main__":
    build, out, name = given("BUILD_DIR OUT_DIR DESKTOP")
    setup = next(setup for setup in SETUPS if setup.name == name)
    with touring(build, out, SIZE, setup.environment) as a_tour:
        set_up(setup, a_tour.desktop)
        dismiss_the_notice(a_tour)
        a_tour.agent = until(lambda: process_of("org.korvex.Agent"), "the agent runs")
        a_tour.log.expect("PPop")
        for part in PARTS:
            part(a_tour, setup)
    print(f"{name}: the area is {setup.area}.")
