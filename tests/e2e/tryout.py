# SPDX-License-Identifier: MIT
"""A whole try with a switch whose lateness and spread are known, by the keyboard of the X server.

    python3 -m tests.e2e.tryout BUILD_DIR OUT_DIR

OUT_DIR gets pictures, the agent's log and the history. The exit status is 1 when something did not
have its effect.
"""

import ctypes
import csv
import plistlib
import re
import shutil
import sys
import time
from pathlib import Path

from tests.e2e.desktop import Desktop, exit_on_signals
from tests.e2e.startup import DATE
from tests.e2e.tour import PROGRAM, SCAN_SPEED, Tour, make_room
from tests.e2e.waiting import Failure, check, until

SIZE = 1024, 768
MILLIMETRES_A_PIXEL = 25.4 / 96  # as Xvfb says
SCAN_TIME = 3.0  # seconds for the whole screen
LATENESS, STEP = 0.06, 0.04
# In steps from the lateness, in the order of the presses: their median absolute deviation is one.
OFFSETS = 0, 1, -1, 2, -1, 0, 1, -2, 1, -1, 0, 1
SPREAD = 1.4826 * STEP
TOLERANCE = 0.02  # seconds: this process isn't on time either
SWEEPS = 14  # two of them free
WATCHED = 1.5  # seconds
MOST_LATE = 2 / 60  # seconds; this process takes its time to look, too

SPACE = 0x20
NEVER = 0x7FFFFFFF  # the notice about assistive access comes no more


class Column:
    """One column of the screen's pixels, read from the X server."""

    def __init__(self, left: int, top: int, bottom: int) -> None:
        self._x11 = ctypes.CDLL("libX11.so.6")
        for name in ("XOpenDisplay", "XGetImage"):
            getattr(self._x11, name).restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x11.XGetPixel.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(None))
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        self._place = left, top, 1, bottom - top

    def line(self) -> float | None:
        """Where the middle of the line is, in pixels from the top; nothing without a line."""
        all_planes, z_pixmap = ctypes.c_ulong(-1), 2
        image = ctypes.c_void_p(self._x11.XGetImage(
            self._display, self._root, *self._place, all_planes, z_pixmap))
        rows = range(self._place[3])
        pixels = [self._x11.XGetPixel(image, 0, row) for row in rows]
        self._x11.XDestroyImage(image)
        dark = [row for row in rows if pixels[row] >> 16 & 255 > 80 and pixels[row] >> 8 & 255 < 80]
        return sum(dark) / len(dark) + 0.5 if dark else None


class Switch:
    """Presses a key in the X server, without a program to be started first."""

    def __init__(self) -> None:
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(None))
        self._key = self._x11.XKeysymToKeycode(self._display, ctypes.c_ulong(SPACE))

    def press(self) -> float:
        """Gives the moment when it went down."""
        moment = time.monotonic()
        self._send(True)
        time.sleep(0.08)
        self._send(False)
        return moment

    def _send(self, down: bool) -> None:
        self._test.XTestFakeKeyEvent(self._display, self._key, down, ctypes.c_ulong(0))
        self._x11.XSync(self._display, False)


def store_settings(desktop: Desktop) -> None:
    file = desktop.config / "Preferences/org.korvex.Agent.plist"
    file.parent.mkdir(parents=True)
    file.write_bytes(plistlib.dumps({
        "scanner.lineScanTime": f"{SCAN_TIME:f}",
        "scanner.preScanDelay": "0.000000",
        "scanner.useScanAcceleration": "no",
        DATE: NEVER,
    }))


def saying(tour: Tour) -> tuple[str, str]:
    """What a screen reader says of the place where the line sweeps."""
    for each in tour.screen.shown():
        if "Press any key or button" in each.description:
            return each.name, each.description
    return "", ""


def sweep(tour: Tour, switch: Switch, offset: float) -> None:
    until(lambda: saying(tour)[0].startswith(("Ready", "A line")), "the page is ready")
    mark = float(re.search(r"mark is ([\d.]+) mm", saying(tour)[1]).group(1))
    speed = SIZE[1] * MILLIMETRES_A_PIXEL / SCAN_TIME
    started = switch.press()
    time.sleep(max(started + mark / speed + offset - time.monotonic(), 0))
    switch.press()


def watch_the_line(tour: Tour, switch: Switch) -> str:
    """How late each new frame shows the line, in a sweep that nobody stops."""
    until(lambda: saying(tour)[0].startswith(("Ready", "A line")), "the page is ready")
    box = next(each.box for each in tour.screen.shown() if "Press any key" in each.description)
    column = Column((box.left + box.right) // 2, box.top, box.bottom)
    started, seen, late = switch.press(), None, []
    while time.monotonic() < started + WATCHED:
        place, now = column.line(), time.monotonic()
        if place is not None and place != seen and seen is not None:
            late.append(now - started - place / SIZE[1] * SCAN_TIME)
        seen = place
    check(len(late) > 20 * WATCHED, f"only {len(late)} frames were seen")
    late.sort()
    worst = late[len(late) * 99 // 100]
    check(worst <= MOST_LATE, f"1 frame in 100 is more than {worst * 1000:.0f} ms late")
    return (f"{len(late)} frames in {WATCHED} s, late by {late[len(late) // 2] * 1000:.1f} ms, "
            f"1 in 100 by more than {worst * 1000:.1f} ms")


def do_the_sweeps(tour: Tour) -> None:
    tour.screen.click("Find my speed", "push button")
    switch = Switch()
    print(f"Watched: {watch_the_line(tour, switch)}.", flush=True)
    for number in range(1, SWEEPS):
        steps = OFFSETS[(number - 2) % len(OFFSETS)]
        sweep(tour, switch, LATENESS + steps * STEP)
        if number == 3:
            tour.picture("sweep")
    until(lambda: saying(tour)[0].startswith("You stopped"), "the result is told")
    tour.picture("result")


def check_history(tour: Tour, out: Path) -> str:
    file = tour.desktop.home / ".local/share/korvex/tries.csv"
    shutil.copy(file, out)
    (found,) = csv.DictReader(file.open(encoding="ascii"))
    lateness, spread = float(found["lateness seconds"]), float(found["spread seconds"])
    check(abs(lateness - LATENESS) < TOLERANCE, f"the lateness is {lateness}")
    check(abs(spread - SPREAD) < TOLERANCE, f"the spread is {spread}")
    return f"lateness {lateness * 1000:.0f} ms, spread {spread * 1000:.0f} ms"


def take_the_advice(tour: Tour) -> str:
    text = saying(tour)[0]
    button = next(n for n in tour.screen.names("push button") if n.startswith("Try it at"))
    advised = float(button.split()[-1])
    tour.log.skip()
    tour.screen.click(button, "push button")
    account = tour.log.expect_change(SCAN_SPEED, "lineScanTime", advised)
    until(lambda: saying(tour)[0].startswith("A line"), "another try begins")
    tour.screen.click("Leave", "push button")
    slider = tour.screen.find("Line scan time", "slider")
    check(slider.value == advised, f"the slider is at {slider.value}")
    return f"“{text}” {account}"


def try_it(tour: Tour, out: Path) -> None:
    tour.start()
    do_the_sweeps(tour)
    print(f"Measured: {check_history(tour, out)}.", flush=True)
    print(f"Taken: {take_the_advice(tour)}.", flush=True)
    tour.close()


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        sys.exit("Usage: python3 -m tests.e2e.tryout BUILD_DIR OUT_DIR")
    build, out = (Path(argument).resolve() for argument in arguments)
    make_room(out)
    exit_on_signals()
    with Desktop(*SIZE, {"KORVEX_AGENT_LOG": str(out / "agent.log")}) as desktop:
        store_settings(desktop)
        tour = Tour(desktop, build, out)
        try:
            try_it(tour, out)
        except Failure as failure:
            tour.picture("failed")
            print(f"FAILED. {failure}.\n{desktop.output_of(PROGRAM)}", flush=True)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
