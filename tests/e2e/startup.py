# SPDX-License-Identifier: MIT
"""Steps of the tour: the notice about assistive access, and starting the agent at login."""

import os
import plistlib
import signal
import subprocess
import time
from pathlib import Path

from tests.e2e.desktop import process_of
from tests.e2e.screen import Atspi, GLib, press
from tests.e2e.waiting import check, until

LAUNCH = 0x8000  # the group of settings that the agent is told

NOTICE = "Assistive access is switched off"
DATE = "axReqLastNoticeDate"  # in days since 1970
NEVER = 0x7FFFFFFF  # the date of the last notice that there is
SHOWING = "object:state-changed:showing"


def forbid_the_notice(desktop) -> None:
    desktop.set_for_all_users({DATE: NEVER, "firstStepsSeen": True})


def ask_for_help(tour) -> str:
    """Press F1"""
    press("key", "F1")
    page = until(lambda: tour.opened.exists() and tour.opened.read_text(), "a page opens").strip()
    check(page.endswith("/help/index.html"), f"{page} was opened")
    check("<h1>" in Path(page.removeprefix("file://")).read_text(), "it is no page of the help")
    return "the help opens in the browser"


def dismiss_the_notice(tour) -> str:
    """Meet the notice about assistive access, and dismiss it"""
    heard = []  # the names of what assistive technology is told to have come into sight
    listener = Atspi.EventListener.new(
        lambda event: heard.append(event.source.get_name()) if event.detail1 else None
    )

    def is_announced() -> bool:
        while GLib.MainContext.default().iteration(False):
            pass
        return NOTICE in heard

    listener.register(SHOWING)
    tour.start()
    until(is_announced, "the notice is announced")
    listener.deregister(SHOWING)
    button = tour.screen.find("Not now", "push button")
    until(lambda: button.has(Atspi.StateType.FOCUSED), "the keyboard is at “Not now”")
    tour.picture("notice")
    press("key", "Escape")
    until(lambda: NOTICE not in tour.screen.names("notification"), "the notice has gone")
    tour.noticed = plistlib.loads(tour.stored.read_bytes())
    check(tour.noticed == {DATE: int(time.time()) // 86400}, f"{tour.noticed} is stored")
    return "it was announced, had the keyboard and went by Escape"


def take_the_first_steps(tour) -> str:
    """Press the switch on the page of the first start, and leave it"""
    field = tour.screen.find("Press your switch", "push button")
    until(lambda: field.has(Atspi.StateType.FOCUSED), "the keyboard is at the field for presses")
    tour.screen.check_names()
    press("keydown", "space", "sleep", "2", "keyup", "space")  # the key repeats meanwhile
    until(lambda: any(name.startswith("It answers: 1 press.") for name in tour.screen.names("label")),
          "the held key is answered as one press")
    tour.picture("first-steps")
    tour.screen.click("Start", "push button")
    tour.screen.find("Scanning", "filler")
    return "the press was answered"


def launch_at_login(tour) -> str:
    """Switch launching at login off and on"""
    entry = tour.desktop.config / "autostart/org.korvex.Agent.desktop"
    check(entry.exists(), f"{entry} was not written when the pane first opened")
    tour.choose_tab("General")
    tour.screen.click("Start Korvex when you log in", "check box")
    off = tour.log.expect_change(LAUNCH, "launchAtLogin", 0)
    check(not entry.exists(), f"{entry} is still there")
    tour.screen.click("Start Korvex when you log in", "check box")
    on = tour.log.expect_change(LAUNCH, "launchAtLogin", 1)
    check(entry.exists(), f"{entry} is not there")
    said = subprocess.run(("desktop-file-validate", entry), capture_output=True, check=False)
    check(said.returncode == 0 and not said.stdout, f"desktop-file-validate: {said.stdout}")
    return f"{off}; {on}; the entry came and went with it"


def log_in(tour) -> str:
    """Start what a login starts"""
    os.kill(tour.agent, signal.SIGTERM)
    until(lambda: not process_of("org.korvex.Agent"), "the agent ends")
    tour.desktop.start(Path("/usr/bin/dex"), "--autostart", "--environment", "XFCE")
    tour.agent = until(lambda: process_of("org.korvex.Agent"), "the entry starts the agent")
    return "the agent runs again, started from its entry"
