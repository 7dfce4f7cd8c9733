# SPDX-License-Identifier: MIT
"""Steps of the tour: what the user is told when something fails."""

import plistlib

from tests.e2e.screen import press
from tests.e2e.waiting import PATIENCE, check, until

NO_GROUP = 0  # of settings


def fail_to_save(tour) -> str:
    """Close the pane when its folder is read-only, then try again"""
    tour.start()
    tour.log.expect("PPop")
    tour.screen.click("Scan the menu bar too", "check box")
    tour.log.expect_change(NO_GROUP, "canScanMenuBar", 1)
    folder = tour.stored.parent
    folder.chmod(0o500)
    press("key", "alt+F4")
    (text,) = until(lambda: tour.screen.names("alert"), "an alert is told")
    check("couldn’t be saved: no permission" in text, text)
    tour.picture("not-saved")
    folder.chmod(0o700)
    tour.screen.click("Try again", "push button")
    tour.log.expect("PPcl")
    check(tour.program.wait(PATIENCE) == 0, "the program failed")
    stored = plistlib.loads(tour.stored.read_bytes())["scanner.canScanMenuBar"]
    check(stored == "yes", f"{stored} is stored")
    return "the window stayed and said why; then it saved and closed"
