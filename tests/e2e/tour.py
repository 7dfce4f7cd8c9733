# SPDX-License-Identifier: MIT
"""Drives the built pane on a virtual display, as its user does, and checks what each step does.

    python3 -m tests.e2e.tour BUILD_DIR OUT_DIR

As with the other programs here, OUT_DIR gets pictures, the agent's log and the stored property list.
The exit status is 1 when something did not have its effect.
"""

import os
import plistlib
import shutil
import subprocess
import sys
from contextlib import contextmanager, suppress
from pathlib import Path
from typing import Iterator

from tests.e2e import hotkeys, profiles, startup
from tests.e2e.agentlog import AgentLog
from tests.e2e.desktop import Desktop, exit_on_signals, given, process_of
from tests.e2e.screen import Atspi, Screen, press
from tests.e2e.waiting import PATIENCE, Failure, check, until

PROGRAM = "korvex-preferences"
AGENT = "Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Linux/korvex-agent"

# Groups of settings, as the agent is told which one changed.
NO_GROUP, BOTH_LINES, POINTER, PALETTE = 0, 3, 4, 8
TRIGGERS, SCAN_SPEED, SCAN_AREA, ON_OFF = 256, 512, 1024, 4096

CHANGED = {
    "scanner.canScanMenuBar": "no",
    "scanner.lineScanTime": "10.500000",
    "scanner.scanMode": "1",
}


class Tour:
    """What the steps share."""

    def __init__(self, desktop: Desktop, build: Path, out: Path):
        self.desktop = desktop
        self.build = build
        self.out = out
        self.screen = Screen()
        self.log = AgentLog(out / "agent.log")
        self.stored = desktop.config / "Preferences/org.korvex.Agent.plist"
        self.agent = 0  # its process, once it runs
        self._pictures = 0
        self.opened = desktop.home / "opened"  # what a browser would show
        browser = desktop.folder / "bin/xdg-open"
        browser.parent.mkdir(exist_ok=True)
        browser.write_text(f'#!/bin/sh\necho "$1" >{self.opened}\n')
        browser.chmod(0o700)
        os.environ["PATH"] = f"{browser.parent}:{os.environ['PATH']}"

    def start(self) -> None:
        self.program = self.start_program()

    def start_program(self, *arguments: str) -> subprocess.Popen:
        return self.desktop.start(self.build / "host" / PROGRAM, *arguments)

    def wait_for_window(self) -> None:
        """Until the program knows where the window manager has put its window. Before that, clicks
        miss."""
        frame = self.screen.find("Korvex", "frame")
        until(lambda: frame.has(Atspi.StateType.ACTIVE), "the window is in front")

    def close(self) -> None:
        """Has the window manager close the window. The agent must hear of that, and of nothing
        else before."""
        self.ask_to_close()
        self.log.expect("PPcl")
        status = self.program.wait(PATIENCE)
        check(status == 0, f"the program ended with {status}")

    def ask_to_close(self) -> None:
        (window,) = self.screen.windows(PROGRAM)
        press("windowactivate", "--sync", window, "key", "alt+F4")

    def choose_tab(self, name: str) -> None:
        self.screen.click(name, "page tab")
        self.screen.find(name, "filler")  # its page

    def choose(self, radio: str) -> None:
        self.screen.click(radio, "radio button")
        self.wait_for_choice(radio)

    def wait_for_choice(self, radio: str) -> None:
        control = self.screen.find(radio, "radio button")
        until(lambda: control.checked, f"“{radio}” is chosen")

    def picture(self, name: str, moves: bool = False) -> None:
        """Of what is on the screen once it is at rest, or at once if something moves."""
        self._pictures += 1
        self.screen.picture(self.out / f"{self._pictures:02}-{name}.png", moves)


def wait_for_agent() -> int:
    """The process ID of the agent, once it takes events."""
    agent = until(lambda: process_of("org.korvex.Agent"), "the agent runs")
    name = f"org.korvex.Process1.t4150504C.s4B727678.p{agent}"
    until(lambda: process_of(name) == agent, "the agent takes events")
    return agent


def launch_the_agent(tour: Tour) -> str:
    """Look for the agent"""
    tour.agent = wait_for_agent()
    program = Path(f"/proc/{tour.agent}/exe").readlink()
    check(program == (tour.build / AGENT).resolve(), f"{program} was launched as the agent")
    tour.log.expect("PPop")
    return "it was launched, takes events and knows of the pane"


def look_at_the_tabs(tour: Tour) -> str:
    """Look at every tab"""
    tour.screen.find("Korvex", "frame")
    tabs = tour.screen.names("page tab")
    for tab in tabs:
        tour.choose_tab(tab)
        tour.screen.check_names()
        tour.picture(f"tab-{tab.lower().replace(' ', '-')}")
    return ", ".join(tabs)


def change_three_settings(tour: Tour) -> str:
    """Press plus on the line scan time, leave out the menu bar, choose another scan mode"""
    tour.choose_tab("Scanning")
    tour.screen.click("Line crosses the screen in, longer", "push button")
    time = tour.log.expect_change(SCAN_SPEED, "lineScanTime", 10.5)
    slider = tour.screen.find("Line crosses the screen in", "slider")
    until(lambda: slider.value == 10.5, "the slider follows")
    tour.screen.click("Scan the menu bar too", "check box")
    menu_bar = tour.log.expect_change(NO_GROUP, "canScanMenuBar", 0)
    tour.choose_tab("Presses")
    tour.choose("Hold to scan, let go to choose")
    return f'{time}; {menu_bar}; {tour.log.expect_change(TRIGGERS, "scanMode", 1)}'


# A section, the control, and the mask and field of its change, with its value after and before.
EDITS = (
    ("Scanning", "list item", "Left third", SCAN_AREA, "scanArea", (0, 0, 341, 768, 1), (0, 0, 0, 0, 0)),
    ("Look", "list item", "Blue", BOTH_LINES, "lineColor", (0, 83, 138), (100, 0, 0)),
    ("Look", "push button", "Line thickness, thicker", BOTH_LINES, "lineThickness", 8, 7),
    ("Look", "list item", "Ring", POINTER, "pointerImageName", b"Ring+20x20", b"default\0\0\0"),
    ("Palette", "radio button", "Rounded", PALETTE, "buttonShape", 1, 0),
    ("Palette", "push button", "Size of the buttons, larger", PALETTE, "buttonSize", (41, 41), (40, 40)),
)


def change_each_section(tour: Tour) -> str:
    """Change the area, the look, the pointer and the palette, and undo each"""
    told = []
    for section, role, name, mask, field, *values in EDITS:
        after, before = values
        tour.choose_tab(section)
        tour.screen.click(name, role)
        told.append(tour.log.expect_change(mask, field, after))
        tour.picture(f"edited-{field}")
        press("key", "ctrl+z")
        told.append(tour.log.expect_change(mask, field, before))
    return "; ".join(told)


def switch_off_and_on(tour: Tour) -> str:
    """Switch scanning off and on again"""
    told = []
    for choice, on in (("Off", 0), ("On", 1)):
        tour.choose(choice)
        told.append(tour.log.expect_change(ON_OFF, "on", on))
        tour.picture(f"scanning-{choice.lower()}")
    return "; ".join(told)


def close_the_pane(tour: Tour) -> str:
    """Close the pane"""
    tour.close()
    stored = plistlib.loads(tour.stored.read_bytes())
    lost = {key: stored.get(key) for key, text in CHANGED.items() if stored.get(key) != text}
    check(not lost, f"stored: {lost}")
    check(tour.noticed.items() <= stored.items(), "the day of the notice is lost")
    return f"the agent heard PPcl; {len(stored)} keys stored, {len(CHANGED)} of them changed"


def open_it_again(tour: Tour) -> str:
    """Open it again while the agent runs"""
    tour.start()
    high, low = tour.log.expect("PPop")["psn"]
    check(process_of(f":{high}.{low}") == tour.program.pid, "PPop names another process")
    screen = tour.screen
    check(screen.find("Line crosses the screen in", "slider").value == 10.5, "the line scan time is lost")
    check(not screen.find("Scan the menu bar too", "check box").checked, "the menu bar is back")
    tour.choose_tab("Presses")
    tour.wait_for_choice("Hold to scan, let go to choose")
    return "the agent heard PPop from this process; the changed values are shown"


def start_it_twice(tour: Tour) -> str:
    """Start the program for another section while its window is minimised"""
    (window,) = tour.screen.windows(PROGRAM)
    press("windowminimize", window)
    until(lambda: not tour.screen.windows(PROGRAM), "the window is minimised")
    second = tour.start_program("show", "general")
    check(second.wait(PATIENCE) == 0, "the second start failed")
    until(lambda: tour.screen.active_window() == window, "the first window comes to the front")
    check(tour.screen.windows(PROGRAM) == [window], "there is a second window")
    tour.screen.find("Volume", "slider")
    return "the second start ended with 0; the one window is in front again, at the section"


def close_it_unchanged(tour: Tour) -> str:
    """Close it without a change"""
    before = tour.stored.stat()
    tour.close()
    after = tour.stored.stat()
    written = (after.st_ino, after.st_mtime_ns) != (before.st_ino, before.st_mtime_ns)
    check(not written, "the file was written")
    return "the agent heard PPcl and nothing else; the file was not written"


STEPS = (
    startup.dismiss_the_notice,
    launch_the_agent,
    startup.ask_for_help,
    startup.take_the_first_steps,
    look_at_the_tabs,
    change_three_settings,
    change_each_section,
    switch_off_and_on,
    profiles.use_two_in_turn,
    *hotkeys.STEPS,
    startup.launch_at_login,
    close_the_pane,
    open_it_again,
    start_it_twice,
    close_it_unchanged,
    startup.log_in,
)


@contextmanager
def touring(
    build: str,
    out: str,
    size: tuple[int, int] = (1024, 768),
    environment: dict[str, str] | None = None,
    first_start: bool = False,
) -> Iterator[Tour]:
    """A tour on a desktop of its own. A failure is told and ends the program."""
    folder = Path(out).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    for old in (*folder.glob("[0-9][0-9]-*.png"), *folder.glob("*.plist"), *folder.glob("agent.log")):
        old.unlink()
    exit_on_signals()
    log = {"KORVEX_AGENT_LOG": str(folder / "agent.log")}
    with Desktop(*size, log | (environment or {}), first_start) as desktop:
        tour = Tour(desktop, Path(build).resolve(), folder)
        try:
            yield tour
        except Failure as failure:
            print(f"FAILED. {failure}.\n{desktop.output_of(PROGRAM)}", flush=True)
            with suppress(Failure):  # when the display itself is gone
                tour.picture("failed")
            sys.exit(1)
        finally:
            if tour.stored.exists():
                shutil.copy(tour.stored, folder)


if __name__ == "__main__":
    with touring(*given("BUILD_DIR OUT_DIR"), first_start=True) as a_tour:
        for number, step in enumerate(STEPS, 1):
            print(f"{number:2} {step.__doc__}: ", end="", flush=True)
            print(f"{step(a_tour)}.", flush=True)
            a_tour.picture(step.__name__.replace("_", "-"))
