# SPDX-License-Identifier: MIT
"""What the scan area's overlay must bear on a desktop of each kind.

    python3 -m tests.e2e.scanarea_desktops BUILD_DIR OUT_DIR DESKTOP

OUT_DIR gets pictures and the agent's log. The exit status is 1 when something did not have its
effect.
"""

import os
import signal
import sys
from pathlib import Path
from typing import NamedTuple

from tests.e2e.desktop import Desktop, ask, exit_on_signals, process_of
from tests.e2e.scanarea import CURRENT, DRAGGED, NOTHING, PALE_CURRENT
from tests.e2e.scanarea import Area, Overlay, Place, drag, expect_area, let_go
from tests.e2e.screen import press, run
from tests.e2e.startup import dismiss_the_notice
from tests.e2e.tour import PROGRAM, Tour, make_room
from tests.e2e.waiting import PATIENCE, Failure, check, until


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


def try_setup(setup: Setup, build: Path, out: Path) -> bool:
    make_room(out)
    environment = {"KORVEX_AGENT_LOG": str(out / "agent.log")} | setup.environment
    with Desktop(*SIZE, environment) as desktop:
        set_up(setup, desktop)
        tour = Tour(desktop, build, out)
        try:
            dismiss_the_notice(tour)
            tour.agent = until(lambda: process_of("org.korvex.Agent"), "the agent runs")
            tour.log.expect("PPop")
            for part in PARTS:
                part(tour, setup)
        except Failure as failure:
            tour.picture("failed")
            print(f"{setup.name}: FAILED. {failure}.\n{desktop.output_of(PROGRAM)}", flush=True)
            return False
    print(f"{setup.name}: the area is {setup.area}.", flush=True)
    return True


def main(arguments: list[str]) -> int:
    named = {setup.name: setup for setup in SETUPS}
    if len(arguments) != 3 or arguments[2] not in named:
        sys.exit(f"Usage: python3 -m tests.e2e.scanarea_desktops BUILD OUT {'|'.join(named)}")
    build, out = (Path(argument).resolve() for argument in arguments[:2])
    exit_on_signals()
    return 0 if try_setup(named[arguments[2]], build, out) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
