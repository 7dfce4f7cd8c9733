"""Steps of the tour: the notice about assistive access, and starting the agent at login."""

import os
import plistlib
import signal
import subprocess
import time
from pathlib import Path

import gi

from tests.e2e.desktop import process_of
from tests.e2e.screen import press
from tests.e2e.waiting import check, until

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LAUNCH = 0x8000  # the group of settings that the agent is told

NOTICE = "Assistive access is switched off"
DATE = "axReqLastNoticeDate"  # in days since 1970


def mute_the_notice(stored: Path) -> None:
    """Has the settings say that it is never to be shown."""
    stored.parent.mkdir(parents=True, exist_ok=True)
    stored.write_bytes(plistlib.dumps({DATE: 0x7FFFFFFF}))


class Announcements:
    """What assistive technology is told while this is entered: names of what comes into sight."""

    EVENT = "object:state-changed:showing"

    def __enter__(self) -> "Announcements":
        self._heard: list[tuple[str, str]] = []
        self._listener = Atspi.EventListener.new(self._hear)
        self._listener.register(self.EVENT)
        return self

    def __exit__(self, *failure) -> None:
        self._listener.deregister(self.EVENT)

    def _hear(self, event: Atspi.Event) -> None:
        if event.detail1:
            self._heard.append((event.source.get_role_name(), event.source.get_name()))

    def heard(self, role: str, name: str) -> bool:
        while GLib.MainContext.default().iteration(False):
            pass
        return (role, name) in self._heard


def dismiss_the_notice(tour) -> str:
    """Meet the notice about assistive access, and dismiss it"""
    with Announcements() as announcements:
        tour.start()
        until(lambda: announcements.heard("notification", NOTICE), "the notice is announced")
    button = tour.screen.find("Not now", "push button")
    until(lambda: button.has(Atspi.StateType.FOCUSED), "the keyboard is at “Not now”")
    tour.picture("notice")
    press("key", "Escape")
    until(lambda: NOTICE not in tour.screen.names("notification"), "the notice has gone")
    tour.noticed = plistlib.loads(tour.stored.read_bytes())
    check(tour.noticed == {DATE: int(time.time()) // 86400}, f"{tour.noticed} is stored")
    return "it was announced, had the keyboard and went by Escape"


def launch_at_login(tour) -> str:
    """Switch launching at login off and on"""
    entry = tour.desktop.config / "autostart/org.korvex.Agent.desktop"
    check(entry.exists(), f"{entry} was not written when the pane first opened")
    tour.choose_tab("Startup")
    tour.screen.click("Start Korvex", "check box")
    off = tour.log.expect_change(LAUNCH, "launchAtLogin", 0)
    check(not entry.exists(), f"{entry} is still there")
    tour.picture("launch-off")
    tour.screen.click("Start Korvex", "check box")
    on = tour.log.expect_change(LAUNCH, "launchAtLogin", 1)
    check(entry.exists(), f"{entry} is not there")
    tour.picture("launch-on")
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
