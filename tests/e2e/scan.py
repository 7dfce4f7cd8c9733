# SPDX-License-Identifier: MIT
"""Scans a desktop with the pane and another program on it, by the keyboard and the mouse that a user
has: presses of the X server's own devices.

    python3 -m tests.e2e.scan BUILD_DIR OUT_DIR
"""

import plistlib
import subprocess
import sys
import time
from pathlib import Path

from tests.e2e.agentlog import FIELDS, KEYS
from tests.e2e.desktop import ask, given
from tests.e2e.line import Column, Span
from tests.e2e.screen import Box, press, run, until_at_rest
from tests.e2e.startup import DATE, NEVER
from tests.e2e.tour import PROGRAM, SCAN_SPEED, Tour, touring, wait_for_agent
from tests.e2e.tryout import view
from tests.e2e.waiting import Failure, check, until

SIZE = 1600, 800
EDITOR = 1060, 40, 520, 640  # left, top, width, height
EDGE = SIZE[0] - 3  # a column where nothing but the line comes

DELAY = 0.6  # seconds, as are the next
LINE, POINTER = 6.0, 6.0
MENU_SPEED = 0.6  # of the line's
LATE = 0.1  # of a picture of the line on a machine with other work
HOLD = 4.4
TRIES = 3  # of a scan on a machine with other work

SUPER, SCAN_KEY, ESCAPE = 133, 104, 9  # the server's codes; Super and the keypad's Enter
AREA = 0x400  # the group of settings
FIELDS |= {"scanArea": ("<4fB", 64), "pointerScanTime": ("<d", 92)}


class Hands:
    """The user's, on the server's keyboard and mouse."""

    def __init__(self, build: Path):
        devices = build / "tests/support/korvex_devices"
        self._devices = subprocess.Popen(
            ("setpriv", "--pdeathsig", "TERM", devices),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
        )

    def do(self, *action: str | int) -> None:
        print(*action, file=self._devices.stdin, flush=True)
        check(self._devices.stdout.readline() == "\n", f"the devices can't {action}")

    def press(self, length: float = 0.08) -> Span:
        """The scan key. Gives the moment when it went down."""
        self.do("key", SUPER, "down")
        before = time.monotonic()
        self.do("key", SCAN_KEY, "down")
        moment = Span(before, time.monotonic())
        time.sleep(length)
        self.do("key", SCAN_KEY, "up")
        self.do("key", SUPER, "up")
        return moment

    def cancel(self) -> None:
        self.do("key", ESCAPE, "down")
        self.do("key", ESCAPE, "up")


class TooLate(Failure):
    """The moment for a press has gone by: the machine does other things, too."""


class Scanner:
    """One who scans and knows how long line and pointer take."""

    def __init__(self, tour: Tour):
        self.tour = tour
        self.hands = Hands(tour.build)
        self.line_time, self.pointer_time = LINE, POINTER

    def start(self, area: Box = Box(0, 0, *SIZE), column: int = EDGE) -> Span:
        """Presses, and sees that the line moves through the area as it should."""
        started = self.hands.press()
        speed = SIZE[1] / self.line_time
        pixels = Column(column, area.top, area.bottom)
        for _ in range(2):
            until(lambda: is_at_its_place(pixels, started, speed), "the line is where it should be", 4)
            time.sleep(0.2)
        return started

    def stop(self, started: Span, share: float, way: float, picture: str = "") -> Span:
        """Presses when the share of the way is done, and before, half-way, takes a picture."""
        set_off = started.middle + DELAY
        if picture:
            sleep_until(set_off + share * way / 2)
            self.tour.picture(picture, moves=True)
        due = set_off + share * way
        if time.monotonic() > due:
            raise TooLate("the machine is too slow for this scan")
        sleep_until(due)
        return self.hands.press()

    def click(self, box: Box, area: Box = Box(0, 0, *SIZE), column: int = EDGE,
              pictures: tuple[str, str] = ("", "")) -> None:
        """Scans to the middle of the box."""
        for _ in range(TRIES - 1):
            try:
                return self._click(box, area, column, pictures)
            except TooLate:
                self.cancel()
        self._click(box, area, column, pictures)

    def _click(self, box: Box, area: Box, column: int, pictures: tuple[str, str]) -> None:
        x, y = map(int, box.centre)
        high, wide = area.bottom - area.top, area.right - area.left
        started = self.start(area, column)
        stopped = self.stop(started, (y - area.top) / high, self.line_time * high / SIZE[1], pictures[0])
        self.stop(stopped, (x - area.left) / wide, self.pointer_time * wide / SIZE[0], pictures[1])

    def cancel(self) -> None:
        self.hands.cancel()
        until(lambda: not windows(), "the line goes")

    def told(self, what: str) -> str:
        """What the editor tells last that begins so."""
        def last() -> str:
            lines = self.tour.desktop.output_of("editor").splitlines()
            return next((line for line in reversed(lines) if line.startswith(what)), "")

        return until(last, f"the editor tells {what}")

    def box(self, name: str) -> Box:
        """Of a control of the editor."""
        return Box(*map(int, until_at_rest(lambda: self.told(f"{name} at ")).split()[-4:]))


def is_at_its_place(column: Column, started: Span, speed: float) -> bool:
    before = time.monotonic()
    place = column.line()
    seen = Span(before, time.monotonic()).since(started)
    if place is None:
        return False
    gone = place / speed + DELAY
    return seen.least - LATE <= gone <= seen.most + LATE


def windows() -> list[str]:
    """The agent's windows that are in sight."""
    return ask("xdotool", "search", "--onlyvisible", "--class", "^korvex-agent$").split()


def is_at_home(menu: Box, button: Box) -> bool:
    """Whether the editor has been moved and made as large as it was told to be, but for its frame."""
    left, top, width, _ = EDITOR
    return (0 <= menu.left - left < 40 and 0 <= menu.top - top < 40
            and abs((button.left + button.right) / 2 - left - width / 2) < 8)


def sleep_until(moment: float) -> None:
    time.sleep(max(moment - time.monotonic(), 0))


def store_settings(tour: Tour) -> None:
    tour.stored.parent.mkdir(parents=True)
    tour.stored.write_bytes(plistlib.dumps({
        "scanner.lineScanTime": f"{LINE:f}",
        "scanner.pointerScanTime": f"{POINTER:f}",
        "scanner.preScanDelay": f"{DELAY:f}",
        "scanner.useScanAcceleration": "no",
        DATE: NEVER,
    }))


def command(tour: Tour, *words: str) -> None:
    subprocess.run((tour.build / "host" / PROGRAM, *words), check=True, stdout=subprocess.DEVNULL)


def open_all(tour: Tour) -> None:
    """The window at the left, the other program at the right."""
    store_settings(tour)
    tour.desktop.start("picom", "--backend", "xrender")
    tour.start()
    tour.agent = wait_for_agent()
    tour.log.expect("PPop")
    tour.wait_for_window()
    (pane,) = tour.screen.windows(PROGRAM)
    press("windowmove", pane, "0", "0")
    tour.desktop.start(sys.executable, "-m", "tests.e2e.editor", name="editor")
    until(lambda: ask("xdotool", "search", "--onlyvisible", "--name", "^Editor$"), "the editor is open")
    window = ask("xdotool", "search", "--onlyvisible", "--name", "^Editor$").split()[0]
    left, top, width, height = map(str, EDITOR)
    press("windowmove", window, left, top, "windowsize", window, width, height)


def click_in_another_program(this: Scanner) -> str:
    """Scan to a button of another program, by three presses"""
    this.click(this.box("Count"), pictures=("line", "pointer"))
    told = this.told("click 1")
    until(lambda: not windows(), "line and pointer go")
    this.tour.picture("clicked")
    return f"the program was told of “{told}”"


def change_the_speed(this: Scanner) -> str:
    """Change the line's speed in the window while it moves"""
    this.start()
    this.tour.screen.click("Line crosses the screen in, shorter", "push button")
    heard = this.tour.log.expect_change(SCAN_SPEED, "lineScanTime", LINE - 0.5)
    check(bool(windows()), "the line has gone")
    this.tour.picture("faster", moves=True)
    this.cancel()
    this.line_time = LINE - 0.5
    this.start()
    this.cancel()
    return f"{heard}; the next line is as fast"


def set_by_command(this: Scanner) -> str:
    """Set another speed by a command while the line moves, and click at it"""
    started = this.start()
    command(this.tour, "set", "scanner.pointerScanTime", "5")
    heard = this.tour.log.expect_change(SCAN_SPEED, "pointerScanTime", 5)
    this.pointer_time = 5
    x, y = map(int, this.box("Count").centre)
    stopped = this.stop(started, y / SIZE[1], this.line_time)
    this.stop(stopped, x / SIZE[0], this.pointer_time)
    this.told("click 2")
    return f"{heard}; the pointer went by it"


def click_beside_a_button(this: Scanner) -> str:
    """Click below a button that stands alone: the ring shows it, and it is hit"""
    box = this.tour.screen.find("Undo", "push button").box
    below = Box(box.left, box.bottom + 5, box.right, box.bottom + 7)
    x, y = map(int, below.centre)
    stopped = this.stop(this.start(), y / SIZE[1], this.line_time)
    sleep_until(stopped.middle + DELAY + box.left / SIZE[0] * this.pointer_time)
    this.tour.picture("ring", moves=True)
    this.cancel()
    this.click(below)
    heard = this.tour.log.expect_change(SCAN_SPEED, "pointerScanTime", POINTER)
    this.pointer_time = POINTER
    return f"{heard} again"


def scan_an_own_area(this: Scanner) -> str:
    """Scan only an area of one's own"""
    left, top, width, height = EDITOR
    area = Box(left, top, left + width, top + height)
    command(this.tour, "set", "scanner.scanArea", f"origin({left},{top}); size({width},{height})",
            "scanner.useScanArea", "1")
    heard = this.tour.log.expect_change(AREA, "scanArea", (left, top, width, height, 1))
    this.click(this.box("Count"), area, left + 3,
               ("own-area-line", "own-area-pointer"))
    this.told("click 3")
    command(this.tour, "set", "scanner.useScanArea", "0")
    this.tour.log.expect_change(AREA, "scanArea", (left, top, width, height, 0))
    return heard


def scan_a_menu(this: Scanner) -> str:
    """Scan an open menu by the line alone"""
    press("mousemove", *this.box("File").centre, "click", "1")
    first, row = map(this.box, ("New", "Save"))
    started = this.hands.press()
    time.sleep(DELAY + 0.15)
    this.tour.picture("menu", moves=True)
    way = int(row.centre[1]) - first.top
    sleep_until(started.middle + DELAY + way / (SIZE[1] / this.line_time * MENU_SPEED))
    this.hands.press()
    return this.told("menu Save")


def drag_by_hand(this: Scanner) -> str:
    """Drag over a text with the mouse, whose button is a switch too"""
    text = this.box("Text")
    press("mousemove", str(text.left + 10), str(text.top + 100))
    for step in (60, 0), (0, 20):
        this.hands.do("move", *step)
    this.hands.do("button", 1, "down")
    for _ in range(6):
        time.sleep(0.05)  # no hand is as quick as a program
        this.hands.do("move", 20, 4)
    this.hands.do("button", 1, "up")
    told = this.told("selected")
    check(not windows(), "a scan has begun")
    this.tour.picture("dragged")
    return told


def try_beside_it(this: Scanner) -> str:
    """Press on the page “Find my speed”, beside the agent that takes the switch"""
    tour = this.tour
    press("windowactivate", "--sync", tour.screen.windows(PROGRAM)[0])
    tour.choose_tab("Scanning")
    tour.log.skip()
    tour.screen.click("Find my speed", "push button")
    check(tour.log.expect(KEYS)["hold"], "the agent has the keys")
    until(lambda: view(tour).description.startswith(("Ready", "A line")), "the page is ready")
    this.hands.press()
    until(lambda: view(tour).description.startswith("Go."), "the page hears the switch")
    check(not windows(), "the agent heard it, too")
    tour.picture("try", moves=True)
    this.hands.press()
    tour.screen.click("Leave", "push button")
    check(not tour.log.expect(KEYS)["hold"], "the pane keeps the keys")
    this.start()
    this.cancel()
    return "the page heard it, and afterwards the agent"


def off_and_on(this: Scanner) -> str:
    """Switch off in the window in mid-scan, and on again by holding the switch"""
    tour = this.tour
    tour.choose_tab("General")
    this.start()
    tour.choose("Off")
    tour.log.expect("SAPr")
    until(lambda: not windows(), "the line goes")
    tour.picture("off")
    this.hands.press()
    check(not windows(), "it scans while it is off")
    this.hands.press(HOLD)
    tour.wait_for_choice("On")
    tour.picture("on")
    this.start()
    this.cancel()
    return "the window shows both"


def scan_two_screens(this: Scanner) -> str:
    """Scan two screens: first the one with the mouse pointer, then the other"""
    run("xrandr", "--setmonitor", "*M0", "800/200x800/200+0+0", "screen")
    run("xrandr", "--setmonitor", "M1", "800/200x800/200+800+0", "none")
    press("mousemove", "1550", "700")
    started = this.start()
    left, right = Column(3, 0, SIZE[1]), Column(EDGE, 0, SIZE[1])
    check(left.line() is None, "the line is on both screens")
    this.tour.picture("second-screen", moves=True)
    until(lambda: right.line() is None, "the line leaves the screen")
    until(lambda: left.line() is not None, "it goes on to the other")
    took = time.monotonic() - started.middle
    this.tour.picture("first-screen", moves=True)
    check(right.line() is None, "the line is on both screens")
    this.cancel()
    for monitor in "M0", "M1":
        run("xrandr", "--delmonitor", monitor)
    return f"the line went on to the other after {took:.1f} s"


STEPS = (
    click_in_another_program,
    change_the_speed,
    set_by_command,
    click_beside_a_button,
    scan_an_own_area,
    scan_a_menu,
    drag_by_hand,
    try_beside_it,
    off_and_on,
    scan_two_screens,  # last: the window manager moves windows then
)


if __name__ == "__main__":
    with touring(*given("BUILD_DIR OUT_DIR"), SIZE) as a_tour:
        open_all(a_tour)
        scanner = Scanner(a_tour)
        until(lambda: is_at_home(scanner.box("File"), scanner.box("Count")), "the editor is at its place")
        for number, step in enumerate(STEPS, 1):
            print(f"{number:2} {step.__doc__}: ", end="", flush=True)
            print(f"{step(scanner)}.", flush=True)
        a_tour.close()
