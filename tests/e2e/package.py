# SPDX-License-Identifier: MIT
"""Installs a package into a clean Debian system, opens the pane there, changes a setting, and removes
the package again. Wants root's rights.

    python3 -m tests.e2e.package KORVEX.deb OUT_DIR
"""

import plistlib
import subprocess
import tempfile
from contextlib import ExitStack
from pathlib import Path

from tests.e2e.desktop import Desktop, exit_on_signals, given
from tests.e2e.screen import Screen, press
from tests.e2e.waiting import PATIENCE, check, until

PROGRAM = "korvex-preferences"


def install(package: Path, root: Path) -> None:
    """Makes a minimal Debian in a folder, with the package and what it depends on."""
    inside = f"/tmp/{package.name}"
    hooks = (
        f"--customize-hook=copy-in {package} /tmp",
        f'--customize-hook=chroot "$1" apt-get install -qq -y --no-install-recommends {inside}',
        f'--customize-hook=rm "$1{inside}"',
    )
    command = ("mmdebstrap", "--quiet", "--variant=apt", *hooks, "bookworm", root)
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    check(done.returncode == 0, f"it can't be installed: {done.stderr[-2000:]}")


def remove(root: Path) -> None:
    command = ("chroot", root, "dpkg", "--purge", "korvex")
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    left = [path for path in root.rglob("*orvex*") if path.parts[len(root.parts)] != "tmp"]
    check(not left, f"removing it leaves {left}")


def bind(folder: Path, root: Path, undo: ExitStack) -> None:
    """Has the folder in sight at the same path inside."""
    place = root / folder.relative_to("/")
    place.mkdir(parents=True, exist_ok=True)
    subprocess.run(("mount", "--bind", folder, place), check=True)
    undo.callback(subprocess.run, ("umount", place), check=True)


def open_and_change(desktop: Desktop, root: Path, out: Path) -> None:
    screen = Screen()
    program = desktop.start(Path("/usr/sbin/chroot"), str(root), f"/usr/bin/{PROGRAM}")
    screen.find("Not now", "push button")
    press("key", "Escape")
    screen.click("Start", "push button")
    screen.click("Line scan time, longer", "push button")
    slider = screen.find("Line scan time", "slider")
    until(lambda: slider.value == 10.5, "the setting changes")
    screen.picture(out / "installed.png")
    press("key", "alt+F4")
    status = program.wait(PATIENCE)
    check(status == 0, f"the program ended with {status}: {desktop.output_of('chroot')}")


def main(*arguments: str) -> None:
    package, out = (Path(argument).resolve() for argument in arguments)
    exit_on_signals()
    with ExitStack() as undo:
        folder = Path(undo.enter_context(tempfile.TemporaryDirectory(prefix="korvex-system.")))
        root = folder / "root"
        install(package, root)
        desktop = undo.enter_context(Desktop(1024, 768, {}, first_start=True))
        bind(desktop.folder, root, undo)
        open_and_change(desktop, root, out)
        remove(root)
        stored = plistlib.loads((desktop.config / "Preferences/org.korvex.Agent.plist").read_bytes())
        check(stored["scanner.lineScanTime"] == "10.500000", "the user's settings are gone")
        autostart = desktop.config / "autostart"
        check(not autostart.exists(), "without an agent, something starts at login")
    print("Installed, opened, changed, removed: nothing is left but the user's settings")


if __name__ == "__main__":
    main(*given("KORVEX.deb OUT_DIR"))
