# SPDX-License-Identifier: MIT
"""Scans a Wayland session without a screen, on two outputs: presses that the desktop's shortcuts tell,
and programs without X11 that are clicked.

    python3 -m tests.e2e.wayland BUILD_DIR OUT_DIR sway|mutter
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from contextlib import suppress
from pathlib import Path

from tests.e2e.compositors import FIRST, Compositor, Mutter, Sway, Target
from tests.e2e.desktop import adopt_orphans, end_children, exit_on_signals, given
from tests.e2e.waiting import Failure, check, until

NOBODY = "65534"
# Who may read what root may: the build can lie in a folder of root's.
AS_NOBODY = ("setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups",
             "--inh-caps=+dac_override", "--ambient-caps=+dac_override")
AGENT = "Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Linux/korvex-agent"

DELAY, LINE, POINTER = 0.5, 4.0, 8.0  # seconds
BUTTON = 100  # points
HOLD = 4.4  # seconds
KEY = 640, 550  # of Squeekboard: G
SET_OFF = 30  # where the line has begun to move
LONGEST = 20  # seconds, for the line to come to an output
SETTINGS = {
    "scanner.preScanDelay": DELAY, "scanner.lineScanTime": LINE, "scanner.pointerScanTime": POINTER,
    "scanner.useScanAcceleration": "off", "scanner.lineColor": "#c80000", "scanner.lineTransparency": 0,
    "scanner.lineGhostTransparency": 0, "scanner.clickDuration": 300, "playClickSounds": "off",
    "palette.buttonSize": f"({BUTTON},{BUTTON})", "palette.buttonGap": 0,
    "palette.buttonActions": "[ 21 7 30 1 0 0 0 0 0]",  # Double, Return, Windows, Type
}


class User:
    def __init__(self, session: Compositor):
        self.session = session
        self.agent = session.start(session.build / AGENT)
        self.wait_for_agent()

    def wait_for_agent(self) -> None:
        until(lambda: self.session.command("release"), "the agent listens")

    def stop_line(self, output: int = 0, picture: str = "") -> float:
        """Presses, and again when the line is on that output. Gives where it stands."""
        self.session.press()
        until(lambda: (self.session.line(output) or 0) > SET_OFF, "the line moves", LONGEST)
        self.session.press()
        until(lambda: self.session.line(output) == self.session.line(output), "it stops")
        return self.session.line(output, picture)

    def click(self, target: Target, output: int = 0, picture: str = "") -> None:
        row = self.stop_line(output, picture)
        time.sleep(DELAY + 0.4)
        self.session.press()
        x, y = map(int, target.told("press 1 at ").split(","))
        check(abs(y - row) <= 1, f"the guide was at {row}, the click at {y}")
        check(x > 10, f"the pointer has moved, and the click is at {x}")
        target.told("release 1")

    def choose(self, slot: int) -> None:
        """A button of the palette, which lies at the left edge, half-way down."""
        self.session.press()
        time.sleep(DELAY + LINE / 2)
        self.session.press()
        time.sleep(DELAY + (slot + 0.4) * BUTTON / FIRST[0] * POINTER)
        self.session.press()


def scans(user: User) -> None:
    user.click(Target(user.session, "window"), picture="line")
    user.click(Target(user.session, "full screen", full_screen=True), picture="full-screen")


def palette(user: User) -> None:
    session = user.session
    target = Target(session, "palette", full_screen=True)
    user.choose(0)
    user.stop_line()
    time.sleep(DELAY + 0.4)
    session.press()
    for _ in range(2):
        target.told("press 1 at ")
        target.told("release 1")
    user.choose(1)
    target.told("key Return")
    if not session.can_list_windows:
        return
    user.choose(2)
    until(lambda: (session.line(0, "windows", FIRST[0] // 2) or 0) > FIRST[1] / 2 + 5,
          "the list is scanned to its second row", LONGEST)
    session.press()
    until(lambda: session.focused() != "palette", "another window comes to the front", 10)


def types(user: User) -> None:
    session = user.session
    if not session.keyboard:
        return
    session.start(session.keyboard)
    target = Target(session, "types")  # a full-screen one would cover it
    user.choose(3)
    until(lambda: (session.line(0) or 0) > KEY[1] - 20, "the keyboard is scanned at once", LONGEST)
    session.press()
    check(session.line(0, "keyboard") < KEY[1] + 40, "the line stands on the row of keys")
    time.sleep(DELAY + KEY[0] / FIRST[0] * POINTER)
    session.press()
    target.told("key g")
    session.press()
    until(lambda: session.line(0), "the keyboard is scanned again", LONGEST)
    until(lambda: not session.line(0), "the scan runs out, which ends the typing", LONGEST)


def faults(user: User) -> None:
    session = user.session
    target = Target(session, "faults", full_screen=True)
    user.stop_line()
    time.sleep(DELAY + 0.4)
    session.press(seconds=0.01)
    target.told("press 1 at ")
    user.agent.kill()  # while it holds the button
    target.told("release 1")
    user.wait_for_agent()  # its guard has started it
    user.click(target)
    session.press("on-off")
    session.press()
    time.sleep(DELAY + 0.5)
    check(not session.line(0), "it scans although it is off")
    session.press(seconds=HOLD)
    user.click(target)


def second_output(user: User) -> None:
    user.session.replug()
    user.click(Target(user.session, "second", 1), 1, "second-output")


def ends_with_the_session(user: User) -> None:
    user.session.process.send_signal(signal.SIGKILL)
    until(lambda: not agents(), "the agent and its guard end with the compositor", 10)


def agents() -> list[str]:
    """Those that run. Nobody has waited for others yet."""
    pgrep = ("pgrep", "-r", "DRS", "-u", str(os.geteuid()), "korvex-")
    return subprocess.run(pgrep, capture_output=True, text=True, check=False).stdout.split()


def scan(kind: type[Compositor], build: Path, out: Path, folder: Path) -> None:
    session = kind(build, out, folder)
    pairs = [str(word) for pair in SETTINGS.items() for word in pair]
    check(session.command("set", *pairs), "the settings are set")
    user = User(session)
    for part in scans, palette, types, faults, second_output, ends_with_the_session:
        try:
            part(user)
        except Failure:
            with suppress(subprocess.CalledProcessError):
                session.line(0, "failed")
            raise
        print(f"{kind.program}: {part.__name__} ok", flush=True)


def main() -> int:
    build, out, name = given("BUILD_DIR OUT_DIR COMPOSITOR")
    build, out = Path(build).resolve(), Path(out).resolve()
    out.mkdir(parents=True, exist_ok=True)
    if os.geteuid() == 0:  # sway refuses root
        shutil.chown(out, int(NOBODY), int(NOBODY))
        os.execvp(AS_NOBODY[0], (*AS_NOBODY, sys.executable, "-B", "-m", "tests.e2e.wayland", build, out, name))
    exit_on_signals()
    adopt_orphans()
    with tempfile.TemporaryDirectory(prefix="korvex-wayland.") as folder:
        try:
            scan({each.program: each for each in (Sway, Mutter)}[name], build, out, Path(folder))
        except Failure as failure:
            print(f"FAILED: {failure}")
            return 1
        finally:
            end_children()
    return 0


if __name__ == "__main__":
    sys.exit(main())
