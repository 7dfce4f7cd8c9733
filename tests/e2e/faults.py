# SPDX-License-Identifier: MIT
"""Brings faults about and checks that the user is told of each, in an alert, and can do what it
offers.

    python3 -m tests.e2e.faults BUILD_DIR OUT_DIR
"""

import os
import plistlib
import shutil
import signal
import subprocess
import sys
from pathlib import Path

from tests.e2e.desktop import given, process_of
from tests.e2e.ends import succeeds
from tests.e2e.screen import Atspi, press
from tests.e2e.startup import DATE, NEVER
from tests.e2e.tour import AGENT, PROGRAM, Tour, touring, wait_for_agent
from tests.e2e.waiting import PATIENCE, check, until

BUNDLE = "Korvex.prefPane"
RESTARTS = 3  # that the agent has from its guard


def expect_alert(tour: Tour, *words: str) -> None:
    def told() -> bool:
        return any(all(word in text for word in words) for text in tour.screen.names("alert"))

    try:
        until(told, f"an alert says {words}")
    finally:
        tour.picture("alert")


def open_window(tour: Tour, *arguments: str | Path) -> None:
    tour.program = tour.start_program(*map(str, arguments))
    tour.wait_for_window()


def click_scan_menu_bar(tour: Tour) -> None:
    box = tour.screen.find("Scan the menu bar too", "check box")
    before = box.checked
    tour.screen.click(box.name, box.role)
    until(lambda: box.checked != before, "the click changes the setting")


def damaged_file(tour: Tour) -> None:
    tour.stored.write_bytes(b"rubbish")
    open_window(tour)
    aside = tour.stored.with_name(tour.stored.name + ".damaged-1")
    expect_alert(tour, "was damaged and is kept as", str(aside))
    check(aside.read_bytes() == b"rubbish", "it isn't kept")
    aside.unlink()


def unreadable_file(tour: Tour) -> None:
    tour.stored.chmod(0)
    open_window(tour)
    expect_alert(tour, "can’t be read: no permission for", str(tour.stored))


def unwritable_folder(tour: Tour) -> None:
    tour.stored.parent.chmod(0o500)
    open_window(tour)
    expect_alert(tour, "can’t be saved: no permission for", str(tour.stored.parent))
    click_scan_menu_bar(tour)
    tour.ask_to_close()
    expect_alert(tour, "couldn’t be saved: no permission")
    tour.stored.parent.chmod(0o700)
    tour.screen.click("Try again", "push button")
    check(tour.program.wait(PATIENCE) == 0, "the program failed")
    stored = plistlib.loads(tour.stored.read_bytes())["scanner.canScanMenuBar"]
    check(stored == "no", f"{stored} is stored")


def unwritable_folder_at_the_first_steps(tour: Tour) -> None:
    tour.stored.write_bytes(plistlib.dumps({DATE: NEVER, "firstStepsSeen": False}))
    open_window(tour)
    time = tour.screen.find("Line crosses the screen in", "slider")
    before = time.value
    tour.screen.click("Line crosses the screen in, longer", "push button")
    until(lambda: time.value > before, "the click changes the setting")
    tour.stored.parent.chmod(0o500)
    tour.ask_to_close()
    expect_alert(tour, "couldn’t be saved: no permission")
    tour.stored.parent.chmod(0o700)
    tour.screen.click("Try again", "push button")
    check(tour.program.wait(PATIENCE) == 0, "the program failed")


def copy_and_close_anyway(tour: Tour) -> None:
    open_window(tour)
    click_scan_menu_bar(tour)
    tour.stored.parent.chmod(0o500)
    tour.ask_to_close()
    expect_alert(tour, "couldn’t be saved")
    copy = tour.desktop.home / "copy.plist"
    tour.screen.click("Save a copy…", "push button")
    dialog = tour.screen.find("Save a copy of the settings", "dialog")
    until(lambda: dialog.has(Atspi.StateType.ACTIVE), "the dialogue has the keyboard")
    press("key", "ctrl+a", "type", str(copy))
    press("key", "Return")
    expect_alert(tour, "A copy of your settings is now in", str(copy))
    stored = plistlib.loads(copy.read_bytes())["scanner.canScanMenuBar"]
    tour.screen.click("Close anyway", "push button")
    check(tour.program.wait(PATIENCE) == 1, "closing without saving must not end with 0")
    check("aren't saved" in tour.desktop.output_of(PROGRAM), "standard error doesn't say why")
    tour.stored.parent.chmod(0o700)
    open_window(tour)
    expect_alert(tour, "ended before it could save. Its changes are here again")
    check(stored == "no", f"{stored} is in the copy")


def agent_that_does_not_start(tour: Tour) -> None:
    bundle = tour.out / BUNDLE
    shutil.rmtree(bundle, ignore_errors=True)
    shutil.copytree(tour.build / BUNDLE, bundle, symlinks=True)
    agent = tour.out / AGENT
    real = agent.rename(agent.with_name("real"))
    agent.write_text("#!/bin/sh\nexit 1\n")
    agent.chmod(0o700)
    open_window(tour, bundle)
    click_scan_menu_bar(tour)
    expect_alert(tour, "Korvex Agent didn’t start")
    tour.screen.find("Korvex isn’t running", "label")
    tour.stored.parent.chmod(0o500)
    tour.ask_to_close()
    expect_alert(tour, "couldn’t be saved")  # what was done last is told first
    tour.stored.parent.chmod(0o700)
    tour.screen.click("Hide this", "push button")
    agent.unlink()
    real.rename(agent)
    tour.screen.click("Start Korvex Agent", "push button")
    wait_for_agent()
    tour.screen.find("Ready for your switch", "label")
    until(lambda: not tour.screen.names("alert"), "the alert goes")


def agent_that_keeps_ending(tour: Tour) -> None:
    open_window(tour)
    for endings in range(3):
        if endings:
            click_scan_menu_bar(tour)  # which starts it again
        for _ in range(1 + RESTARTS):
            agent = wait_for_agent()
            os.kill(agent, signal.SIGKILL)
            until(lambda: process_of("org.korvex.Agent") != agent, "the agent ends")
        tour.screen.find("Korvex isn’t running", "label")
    expect_alert(tour, "has ended by itself several times")
    tour.screen.click("Start Korvex Agent", "push button")
    wait_for_agent()
    tour.screen.find("Ready for your switch", "label")


FAULTS = (
    damaged_file,
    unreadable_file,
    unwritable_folder,
    unwritable_folder_at_the_first_steps,
    copy_and_close_anyway,
    agent_that_does_not_start,
    agent_that_keeps_ending,
)


def bring_about(tour: Tour, fault) -> None:
    tour.stored.parent.mkdir(exist_ok=True)
    tour.stored.parent.chmod(0o700)
    tour.stored.unlink(missing_ok=True)
    shutil.rmtree(tour.desktop.home / ".local/state", ignore_errors=True)
    tour.stored.write_bytes(plistlib.dumps({DATE: NEVER}))
    fault(tour)


if __name__ == "__main__":
    with touring(*given("BUILD_DIR OUT_DIR")) as a_tour:
        results = [
            succeeds(a_tour, fault.__name__.replace("_", " "), bring_about, fault)
            for fault in FAULTS
        ]
    sys.exit(0 if all(results) else 1)
