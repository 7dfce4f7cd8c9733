# SPDX-License-Identifier: MIT
"""Ends visits in the ways that leave no time, and checks that each ends with its change stored.

    python3 -m tests.e2e.ends BUILD_DIR OUT_DIR

Every visit makes a change, comes to a state and loses its display, or its display hangs and it is
asked to end.
"""

import os
import plistlib
import signal
import subprocess
import sys
import time
from pathlib import Path
from typing import Callable

from tests.e2e import hotkeys
from tests.e2e.agentlog import AgentLog
from tests.e2e.desktop import given, process_of
from tests.e2e.scanarea import BUTTON
from tests.e2e.screen import press
from tests.e2e.startup import DATE, NEVER, NOTICE
from tests.e2e.tour import PROGRAM, Tour, touring, wait_for_agent
from tests.e2e.waiting import Failure, check, until

TABS = "Scanning|Presses|Look|Palette|General"
SANITIZER_FOUND = 99  # the exit status
MOST_SECONDS = 1.5  # from the end of the display, or the request, to that of the program


def show_tab(name: str) -> Callable[[Tour], None]:
    return lambda tour: tour.choose_tab(name)


def show_notice(tour: Tour) -> None:
    tour.screen.find(NOTICE, "notification")


def capture(tour: Tour) -> None:
    tour.choose_tab("Presses")
    hotkeys.begin(tour, "Scan")


def show_overlay(tour: Tour) -> None:
    tour.choose_tab("Scanning")
    tour.screen.find(*BUTTON).focus()
    press("key", "space")
    until(lambda: len(tour.screen.windows(PROGRAM)) > 1, "the overlay is on the screen")


def try_out(tour: Tour) -> None:
    tour.choose_tab("Scanning")
    tour.screen.click("Find my speed", "push button")
    tour.screen.find("Full screen", "push button")


def die(tour: Tour) -> None:
    tour.desktop.display.kill()


def hang_and_be_asked(tour: Tour) -> None:
    tour.desktop.display.send_signal(signal.SIGSTOP)
    tour.program.terminate()


STATES = {f"the tab {name}": show_tab(name) for name in TABS.split("|")} | {
    "the notice": show_notice,
    "a capture": capture,
    "the overlay": show_overlay,
    "a try": try_out,
}
# State, end, whether somebody reads the program's standard error, and the exit status.
VISITS = (
    *((state, die, read, 1) for state in STATES for read in (True, False)),
    *((state, hang_and_be_asked, True, 0) for state in ("the tab Palette", "the notice", "a try")),
)


def start_unread(tour: Tour) -> subprocess.Popen:
    """Starts the program with a standard error that nobody reads."""
    reader, writer = os.pipe()
    os.close(reader)
    with open(writer, "wb") as nobody:
        return subprocess.Popen((tour.build / "host" / PROGRAM,), stderr=nobody)


def change(tour: Tour) -> None:
    """Has the agent report that it went off. The file, where it has noted that as well, goes."""
    tour.agent = wait_for_agent()
    inherited = Path(f"/proc/{tour.agent}/environ").read_bytes()
    check(b"QT_QPA_PLATFORM" not in inherited, "the agent has the host's choice of platform")
    os.kill(tour.agent, signal.SIGUSR1)
    tour.wait_for_choice("Off")
    tour.stored.unlink()


def store_only(tour: Tour, date: int) -> None:
    """Leaves nothing in the file but when the notice was shown."""
    tour.stored.parent.mkdir(exist_ok=True)
    tour.stored.write_bytes(plistlib.dumps({DATE: date}))


def visit(tour: Tour, state: str, end: Callable, read: bool, status: int) -> None:
    store_only(tour, 1 if state == "the notice" else NEVER)
    tour.program = tour.start_program() if read else start_unread(tour)
    tour.wait_for_window()
    change(tour)
    STATES[state](tour)
    end(tour)
    asked = time.monotonic()
    until(lambda: tour.program.poll() is not None, "it ends")
    check(time.monotonic() - asked < MOST_SECONDS, "it took too long to end")
    found = tour.program.returncode
    check(found != SANITIZER_FOUND, "the sanitizer found a fault")
    check(found == status, f"it ended with {found}")
    check(tour.stored.exists(), "nothing was stored")
    check(plistlib.loads(tour.stored.read_bytes())["on"] == "no", "the change is lost")
    if end is not die:  # which ends the agent as well
        until(lambda: '"PPcl"' in tour.log.path.read_text(), "the agent hears PPcl")


def crash_and_return(tour: Tour) -> None:
    """A visit that is killed after a change, and the next one, which must have it again."""
    unsaved = tour.desktop.home / ".local/state/korvex"
    store_only(tour, NEVER)
    tour.start()
    tour.wait_for_window()
    change(tour)
    until(lambda: [file for file in unsaved.glob("unsaved.*") if ".new" not in file.name],
          "the change is on disk and in its place")
    tour.program.kill()
    tour.program.wait()
    store_only(tour, NEVER)
    tour.start()
    (text,) = until(lambda: tour.screen.names("alert"), "the user is told")
    check("ended before it could save" in text, text)
    tour.wait_for_choice("Off")
    tour.picture("recovered")
    tour.ask_to_close()
    until(lambda: tour.program.poll() is not None, "it ends")
    check(plistlib.loads(tour.stored.read_bytes())["on"] == "no", "the change is lost")
    check(not list(unsaved.glob("unsaved.*")), "the file of unsaved changes is still there")


def clear_away(tour: Tour) -> None:
    """Ends what the visit leaves: the program, the display, the agent, their outputs."""
    tour.program.kill()
    tour.program.wait()
    tour.desktop.display.kill()
    if agent := process_of("org.korvex.Agent"):
        os.kill(agent, signal.SIGTERM)
    until(lambda: not process_of("org.korvex.Agent"), "the agent ends")
    tour.log.path.unlink(missing_ok=True)
    tour.log = AgentLog(tour.log.path)
    tour.desktop.forget_output_of(PROGRAM)


def succeeds(tour: Tour, what: str, step: Callable, *arguments) -> bool:
    tour.desktop.open_display()
    try:
        step(tour, *arguments)
        print(f"{what}: as it must be.", flush=True)
        return True
    except Failure as failure:
        print(f"{what}: FAILED. {failure}.\n{tour.desktop.output_of(PROGRAM)}", flush=True)
        return False
    finally:
        clear_away(tour)


if __name__ == "__main__":
    sanitizers = {
        "ASAN_OPTIONS": f"detect_leaks=0:exitcode={SANITIZER_FOUND}",
        "UBSAN_OPTIONS": f"exitcode={SANITIZER_FOUND}",
    }
    with touring(*given("BUILD_DIR OUT_DIR"), environment=sanitizers) as a_tour:
        results = [
            succeeds(a_tour, f"{visited[0]}, {visited[1].__name__}, read: {visited[2]}", visit, *visited)
            for visited in VISITS
        ]
        results.append(succeeds(a_tour, "killed", crash_and_return))
    sys.exit(0 if all(results) else 1)
