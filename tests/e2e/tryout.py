# SPDX-License-Identifier: MIT
"""A whole try with a switch whose lateness and spread are known, by the keyboard of the X server.

    python3 -m tests.e2e.tryout BUILD_DIR OUT_DIR

OUT_DIR also gets the history.
"""

import csv
import os
import plistlib
import re
import shutil
import signal
import sys
import time
from pathlib import Path
from statistics import median
from threading import Thread

from tests.e2e.desktop import Desktop, given, process_of
from tests.e2e.line import Column, Span, Switch, watch
from tests.e2e.motion import look_for, most_flashes
from tests.e2e.screen import Atspi, Control, GLib, press
from tests.e2e.startup import DATE, NEVER
from tests.e2e.tour import SCAN_SPEED, Tour, touring
from tests.e2e.waiting import check, until
from tools.portal import NAME as PORTAL

SIZE = 1024, 768
MILLIMETRES_A_PIXEL = 25.4 / 96  # as Xvfb says
SCAN_TIME = 3.0  # seconds for the whole screen
LATENESS, STEP = 0.06, 0.04
# In steps from the lateness, in the order of the presses.
OFFSETS = 0, 1, -1, 2, -1, 0, 1, -2, 1, -1, 0, 1
TOLERANCE = 0.01  # seconds
SPEED = SIZE[1] / SCAN_TIME  # pixels a second
TARGET = 12  # millimetres
FRAME = 1 / 60  # seconds
PRESS = 0.008 + FRAME
THICKNESS = 7  # pixels
HOLD = 4.3  # seconds, that leave
SETTLED = 0.8  # seconds; another sweep can start then
NO_PRESS = 30  # seconds, until the page says what a press is
MOST_FLASHES = 3  # a second

HELP = "Press any key or button, or"  # of the view


class Announcements:
    """What a screen reader is asked to say at once."""

    def __init__(self) -> None:
        self._texts: list[str] = []
        self._listener = Atspi.EventListener.new(self._hear)
        self._listener.register("object:property-change:accessible-description")

    def _hear(self, event) -> None:
        if isinstance(event.any_data, str):
            self._texts.append(event.any_data)

    def heard(self) -> list[str]:
        while GLib.MainContext.default().iteration(False):
            pass
        return self._texts


def store_settings(desktop: Desktop) -> None:
    file = desktop.config / "Preferences/org.korvex.Agent.plist"
    file.parent.mkdir(parents=True)
    file.write_bytes(plistlib.dumps({
        "scanner.lineScanTime": f"{SCAN_TIME:f}",
        "scanner.preScanDelay": "0.000000",
        "scanner.useScanAcceleration": "no",
        DATE: NEVER,
    }))


def view(tour: Tour) -> Control:
    """The place where the line sweeps."""
    return until(lambda: next((each for each in tour.screen.shown() if HELP in each.description), None),
                 "the page is shown")


class Try:
    """The sweeps of one try, and what was seen of them. In seconds."""

    def __init__(self, tour: Tour) -> None:
        self.switch = Switch()
        self.late: list[Span] = []  # of each frame: after the line was where it shows it
        self.mistaken: list[Span] = []  # of each press: the stopped line's place
        self.offsets: list[float] = []  # of each press, as late as this busy process made it
        self.view = view(tour)
        box = self.view.box
        self.column = Column((box.left + box.right) // 2, box.top, box.bottom)

    def saying(self) -> str:
        """What a screen reader says of it."""
        return self.view.description.split(HELP)[0].strip()

    def get_ready(self) -> None:
        until(lambda: self.saying().startswith(("Ready", "A line")), "the page is ready")

    def sweep(self, offset: float) -> None:
        self.get_ready()
        mark = float(re.search(r"mark is ([\d.]+) mm", self.saying()).group(1))
        aim = mark / MILLIMETRES_A_PIXEL / SPEED + offset
        started = self.switch.press()
        frames = watch(self.column, started.least + aim - 0.02)
        self.late += [seen.since(started) - place / SPEED for place, seen in frames]
        time.sleep(max(started.least + aim - time.monotonic(), 0))
        pressed = self.switch.press()
        self.offsets.append(pressed.since(started).middle - aim + offset)
        place = until(self.column.stopped_line, "the line stands")
        self.mistaken.append(pressed.since(started) - place / SPEED)


def get_used_to_it(this: Try) -> None:
    """The free sweeps, by assistive technology and by a mouse button."""
    def press_button() -> None:
        press("mousemove", *this.view.box.centre, "click", "3")

    for act in this.view.act, press_button:
        this.get_ready()
        act()
        until(lambda: this.saying().startswith("Go."), "the line goes")
        act()


def most(spans: list[Span], kind: str, share: float) -> float:
    return sorted(getattr(span, kind) for span in spans)[int((len(spans) - 1) * share)]


def figures(late: list[Span], mistaken: list[Span]) -> str:
    check(len(late) > 300, f"only {len(late)} frames were seen")
    accounts = []
    for what, spans, share, limit in (
        (f"99 of 100 in {len(late)} frames show the line", late, 0.99, FRAME),
        (f"{len(mistaken)} presses are timed", mistaken, 1, PRESS),
    ):
        off = most(spans, "sure", share)
        check(off <= limit, f"{what} {off * 1000:.1f} ms off")
        accounts.append(f"{what} within {off * 1000:.1f} to {most(spans, 'possible', share) * 1000:.1f} "
                        f"ms of the truth ({limit * 1000:.1f} at most)")
    return "; ".join(accounts)


def choose_a_target(tour: Tour, this: Try) -> None:
    for _ in range(TARGET - 10):
        tour.screen.click("Target, larger", "push button")
    tour.screen.find(f"Target: {TARGET} mm", "label")
    this.view.focus()
    high = this.column.mark()
    check(abs(high - TARGET / MILLIMETRES_A_PIXEL) <= 2, f"the mark is {high} pixels high")


def do_the_sweeps(tour: Tour) -> list[float]:
    """Gives the presses' offsets."""
    tour.screen.click("Find my speed", "push button")
    announcements = Announcements()
    this = Try(tour)
    choose_a_target(tour, this)
    get_used_to_it(this)
    for number, steps in enumerate(OFFSETS):
        this.sweep(LATENESS + steps * STEP)
        if number == 1:
            tour.picture("sweep")
            check(not this.column.keys_are_free(), "other programs get the keys")
    until(lambda: this.saying().startswith("You stopped"), "the result is told")
    until(this.column.keys_are_free, "other programs get keys again")
    tour.picture("result")
    print(f"Watched: {figures(this.late, this.mistaken)}.", flush=True)
    heard = announcements.heard()
    for cue in "Ready", "Go.", this.saying():
        check(any(text.startswith(cue) for text in heard), f"“{cue}” wasn’t announced: {heard}")
    stops = sum(text.endswith("the mark.") for text in heard)
    check(stops == len(OFFSETS) + 2, f"{stops} stops were announced: {heard}")
    return this.offsets


def check_history(tour: Tour, offsets: list[float]) -> str:
    file = tour.desktop.home / ".local/share/korvex/tries.csv"
    shutil.copy(file, tour.out)
    (found,) = csv.DictReader(file.open(encoding="ascii"))
    lateness, spread = float(found["lateness seconds"]), float(found["spread seconds"])
    middle = median(offsets)
    true_spread = 1.4826 * median(abs(offset - middle) for offset in offsets)
    check(abs(lateness - middle) < TOLERANCE, f"the lateness is {lateness}, not {middle}")
    check(abs(spread - true_spread) < TOLERANCE, f"the spread is {spread}, not {true_spread}")
    check(float(found["target mm"]) == TARGET, f"the target is {found['target mm']}")
    return f"lateness {lateness * 1000:.0f} ms, spread {spread * 1000:.0f} ms"


def take_the_advice(tour: Tour) -> str:
    button = next(n for n in tour.screen.names("push button") if n.startswith("Use "))
    advised = float(button.split()[1])
    tour.log.skip()
    tour.screen.click(button, "push button")
    account = tour.log.expect_change(SCAN_SPEED, "lineScanTime", advised)
    until(lambda: view(tour).description.startswith("A line"), "another try begins")
    tour.screen.click("Leave", "push button")
    slider = tour.screen.find("Line crosses the screen in", "slider")
    check(slider.value == advised, f"the slider is at {slider.value}")
    press("key", "ctrl+z")
    undone = tour.log.expect_change(SCAN_SPEED, "lineScanTime", SCAN_TIME)
    return f"{account}; undone: {undone}"


def open_the_page(tour: Tour) -> Try:
    tour.screen.click("Find my speed", "push button")
    this = Try(tour)
    this.get_ready()
    return this


def wait_quietly(tour: Tour) -> str:
    """Without a press the page says what one is. Meanwhile nothing moves."""
    this = open_the_page(tour)
    time.sleep(1)
    first, *others = look_for(NO_PRESS - 5, SIZE)
    changed = [each.changed_since(first) for each in others if each.changed_since(first)]
    check(not changed, f"the page changes by itself: {changed[:3]}")
    until(lambda: this.saying().startswith("No press has counted yet. Any key"), "it says what counts")
    tour.picture("no-press")
    return f"{len(others)} looks the same"


def watch_what_moves(tour: Tour) -> str:
    """While the line sweeps nothing moves but the line."""
    this = Try(tour)
    this.switch.press()
    until(lambda: this.saying().startswith("Go."), "the line goes")
    time.sleep(0.3)
    looks, box, moves = look_for(SCAN_TIME / 4, SIZE), this.view.box, 0
    for earlier, later in zip(looks, looks[1:]):
        if found := later.changed_since(earlier):
            way = SPEED * later.taken.since(earlier.taken).most
            high = found[3] - found[1]
            check(box.top <= found[1] and found[3] <= box.bottom and high <= way + 4 * THICKNESS,
                  f"{found} changed while the line went on by {way:.0f} pixels")
            moves += 1
    check(moves > 5, "the line stands")
    this.switch.press()
    return f"{moves} frames"


def press_while_it_stands_still(tour: Tour) -> str:
    """A program that falls behind finds the switch down again when it looks at the first release.
    Both presses count, at their moments."""
    this = Try(tour)
    this.get_ready()
    os.kill(tour.program.pid, signal.SIGSTOP)
    moments = [this.switch.press()]
    time.sleep(0.2)
    held = Thread(target=lambda: moments.append(this.switch.press(0.5)))
    held.start()
    time.sleep(0.1)
    os.kill(tour.program.pid, signal.SIGCONT)
    result = until(lambda: re.search(r"(\d+) mm before the mark. The mark is ([\d.]+) mm", this.saying()),
                   "the second press stops the line")
    held.join()
    place = float(result.group(2)) - float(result.group(1))
    truth = moments[1].since(moments[0])
    off = (truth - place / MILLIMETRES_A_PIXEL / SPEED).sure
    check(off < 0.05, f"the second press is timed {off * 1000:.0f} ms off")
    return result.group()


def press_quickly(tour: Tour) -> str:
    """The quickest changes that presses can bring about: start and stop, again after pauses of any
    length, presses without end, and held ones."""
    switch = Switch()
    presses_and_pauses = [(0.03, length) for pause in (0.1, 0.2, 0.3, SETTLED) for length in (0.05, pause) * 5]
    presses_and_pauses += [(0.03, 0.03)] * 15 + [(1.1, 0.03)] * 3

    def press_all() -> None:
        for length, pause in presses_and_pauses:
            switch.press(length)
            time.sleep(pause)

    presses = Thread(target=press_all)
    presses.start()
    looks = look_for(sum(map(sum, presses_and_pauses)) + 0.5, SIZE)
    presses.join()
    most = most_flashes(looks)
    check(0 < most <= MOST_FLASHES, f"a place flashes {most} times in a second")
    return f"{most} in a second, of {len(looks)} looks"


def leave_by_switch(tour: Tour) -> str:
    """By one switch alone: held, by key or by mouse button, or, where it can't be, as the page
    offers it after two sweeps without a press."""
    switch, announcements = Switch(), Announcements()

    def is_left() -> None:
        until(lambda: "The line" not in tour.screen.names("push button"), "the page is left")
        tour.screen.find("Line crosses the screen in", "slider")

    this = open_the_page(tour)
    for _ in range(10):  # of them eight are measured
        this.get_ready()
        for pause in 0.4, SETTLED:
            switch.press()
            time.sleep(pause)
    holding = Thread(target=switch.press, args=(HOLD,))
    holding.start()
    time.sleep(HOLD - 1.5)
    tour.picture("hold")
    holding.join()
    tour.screen.find("Once more", "push button")  # the result comes first
    switch.press(HOLD)
    is_left()
    heard = announcements.heard()
    check(any("Hold on to leave" in text for text in heard) and any("Let go" in text for text in heard),
          f"holding isn’t answered: {heard}")

    this = open_the_page(tour)
    press("mousemove", *this.view.box.centre, "click", "1")
    until(lambda: this.saying().startswith("Go."), "the line goes")
    press("mousedown", "3", "sleep", str(HOLD), "mouseup", "3")
    is_left()

    this = open_the_page(tour)
    for _ in range(2):
        this.get_ready()
        press("mousemove", *this.view.box.centre, "click", "1")
        until(lambda: this.saying().startswith("Go."), "the line goes")
        time.sleep(SCAN_TIME)
    until(lambda: "Two sweeps went by" in this.saying(), "leaving is offered")
    tour.picture("offer")
    press("click", "1")
    is_left()
    return "by a key, by a mouse button, and by clicks alone"


if __name__ == "__main__":
    with touring(*given("BUILD_DIR OUT_DIR"), SIZE) as a_tour:
        store_settings(a_tour.desktop)
        a_tour.desktop.start(sys.executable, "-m", "tools.portal", "light", "still", name="portal")
        until(lambda: process_of(PORTAL), "the desktop’s wishes can be asked for")
        a_tour.start()
        the_offsets = do_the_sweeps(a_tour)
        print(f"Measured: {check_history(a_tour, the_offsets)}.", flush=True)
        print(f"Taken: {take_the_advice(a_tour)}.", flush=True)
        print(f"At rest: {wait_quietly(a_tour)}.", flush=True)
        print(f"Moving: {watch_what_moves(a_tour)}.", flush=True)
        print(f"Behind: {press_while_it_stands_still(a_tour)}", flush=True)
        print(f"Flashing: {press_quickly(a_tour)}.", flush=True)
        a_tour.screen.click("Leave", "push button")
        print(f"Left: {leave_by_switch(a_tour)}.", flush=True)
