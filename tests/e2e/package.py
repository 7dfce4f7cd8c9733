# SPDX-License-Identifier: MIT
"""Installs a package into a clean Debian system, finds the pane by name in a menu of applications there
and opens it, changes settings, has the bus open it as well, and removes the package again. Wants root's
rights.

    python3 -m tests.e2e.package KORVEX.deb OUT_DIR
"""

import plistlib
import subprocess
import tempfile
from contextlib import ExitStack
from pathlib import Path

from tests.e2e.desktop import Desktop, exit_on_signals, given, process_of
from tests.e2e.screen import Screen, press, run, until_at_rest
from tests.e2e.waiting import PATIENCE, check, until

PROGRAM = "korvex-preferences"
NAME = "org.korvex.Preferences"
MENU = "xfce4-appfinder"
CHROOT = "/usr/sbin/chroot"
ASK = ("gdbus", "call", "--session", "--dest", NAME, "--object-path", "/org/korvex/Preferences", "--method")
# What opens the window: menus of GNOME's kind, a file that is named, and the interface that menus use.
WAYS = (
    ("gtk-launch", NAME),
    ("gio", "launch", f"/usr/share/applications/{NAME}.desktop"),
    (*ASK, "org.freedesktop.Application.Activate", "@a{sv} {}"),
    (*ASK, "org.freedesktop.Application.Open", "@as []", "@a{sv} {}"),
)
SECTION = (*ASK, "org.freedesktop.Application.ActivateAction", "general", "@av []", "@a{sv} {}")
FIND = f"from gi.repository import Gio; exit(['{NAME}.desktop'] not in Gio.DesktopAppInfo.search('korvex'))"


def install(package: Path, root: Path) -> None:
    """Makes a minimal Debian in a folder, with the package, what it depends on and recommends, and a menu
    of applications."""
    inside = f"/tmp/{package.name}"
    hooks = (
        f"--customize-hook=copy-in {package} /tmp",
        f'--customize-hook=chroot "$1" apt-get install -qq -y --install-recommends {inside}',
        f'--customize-hook=rm "$1{inside}"',
        '--customize-hook=chroot "$1" apt-get install -qq -y --no-install-recommends'
        f" {MENU} libgtk-3-bin libglib2.0-bin python3-gi",
    )
    command = ("mmdebstrap", "--quiet", "--variant=apt", *hooks, "bookworm", root)
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    check(done.returncode == 0, f"it can't be installed: {done.stderr[-2000:]}")


def remove(root: Path) -> None:
    command = ("chroot", root, "dpkg", "--purge", "korvex")
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    left = [path for path in root.rglob("*orvex*") if path.parts[len(root.parts)] != "tmp"]
    check(not left, f"removing it leaves {left}")


class InstalledDesktop(Desktop):
    """A desktop whose programs and bus are those of the system in the folder `root`."""

    def __init__(self, root: Path, undo: ExitStack):
        super().__init__(1024, 768, {"NO_AT_BRIDGE": "1", "XDG_CURRENT_DESKTOP": "XFCE"}, first_start=True)
        self.root, self.undo = root, undo

    def open_bus(self, *daemon: str) -> None:
        place = self.root / self.folder.relative_to("/")
        place.mkdir(parents=True)
        subprocess.run(("mount", "--bind", self.folder, place), check=True)
        self.undo.callback(subprocess.run, ("umount", "--lazy", place), check=True)
        super().open_bus(CHROOT, str(self.root), *daemon)

    def run(self, *command: str) -> subprocess.Popen:
        return self.start(CHROOT, str(self.root), *command)


class Visit:
    """What is done in the window that something has opened."""

    def __init__(self, screen: Screen):
        self.screen = screen

    def lengthen(self, seconds: float) -> None:
        self.screen.click("Line crosses the screen in, longer", "push button")
        slider = self.screen.find("Line crosses the screen in", "slider")
        until(lambda: slider.value == seconds, f"the time becomes {seconds}")

    def close(self) -> None:
        press("key", "alt+F4")
        until(lambda: not self.screen.windows(PROGRAM), "the window closes")


def open_itself(desktop: InstalledDesktop, visit: Visit) -> None:
    program = desktop.run(f"/usr/bin/{PROGRAM}")
    visit.screen.find("Not now", "push button")
    press("key", "Escape")
    visit.screen.click("Start", "push button")
    visit.lengthen(10.5)
    visit.close()
    status = program.wait(PATIENCE)
    check(status == 0, f"the program ended with {status}: {desktop.output_of('chroot')}")


def open_from_menu(desktop: InstalledDesktop, visit: Visit, out: Path) -> None:
    """Its name is typed, and Return pressed."""
    desktop.run(MENU)
    until(lambda: visit.screen.windows(MENU), "the menu is there")
    empty = until_at_rest(lambda: run("maim"))
    press("type", "korvex")
    until(lambda: run("maim") != empty, "the menu looks for it")
    visit.screen.picture(out / "menu.png")
    press("key", "Return")
    visit.lengthen(11)
    visit.screen.picture(out / "installed.png")
    visit.close()


def open_by_bus(desktop: InstalledDesktop, visit: Visit) -> None:
    """As GNOME's menu does: the bus is asked, and starts it."""
    # As a session does when it starts: the bus came before the display.
    check(desktop.run("dbus-update-activation-environment", "--all").wait(PATIENCE) == 0, "no display told")
    check(desktop.run("/usr/bin/python3", "-c", FIND).wait(PATIENCE) == 0, "not found by name")
    for number, way in enumerate((*WAYS, SECTION)):
        check(desktop.run(*way).wait(PATIENCE) == 0, desktop.output_of("chroot"))
        if way == SECTION:
            visit.screen.find("Volume", "slider")
        else:
            visit.lengthen(11.5 + number / 2)
        command = Path(f"/proc/{process_of(NAME)}/cmdline").read_bytes().split(b"\0")
        asks_bus = way[0] != "gio"  # which starts the file's own command
        check((b"--service" in command) == asks_bus, f"{way} has started {command}")
        visit.close()
        until(lambda: not process_of(NAME), "the program ends")


def main(*arguments: str) -> None:
    package, out = (Path(argument).resolve() for argument in arguments)
    exit_on_signals()
    with ExitStack() as undo:
        folder = Path(undo.enter_context(tempfile.TemporaryDirectory(prefix="korvex-system.")))
        root = folder / "root"
        install(package, root)
        print("Installed into a clean system", flush=True)
        desktop = undo.enter_context(InstalledDesktop(root, undo))
        visit = Visit(Screen())
        open_itself(desktop, visit)
        open_from_menu(desktop, visit, out)
        print("Found by name in a menu, opened from there, a setting changed", flush=True)
        open_by_bus(desktop, visit)
        print(f"Found by name, opened in {len(WAYS) + 1} ways more, settings changed", flush=True)
        remove(root)
        stored = plistlib.loads((desktop.config / "Preferences/org.korvex.Agent.plist").read_bytes())
        check(stored["scanner.lineScanTime"] == "13.000000", "the user's settings are gone")
        autostart = desktop.config / "autostart/org.korvex.Agent.desktop"
        _, _, agent = autostart.read_text().partition("TryExec=/")
        agent = agent.splitlines()[0].replace("\\s", " ")
        check(not (root / agent).exists(), "the login would still start an agent")
    print("Removed: nothing is left but the user's settings")


if __name__ == "__main__":
    main(*given("KORVEX.deb OUT_DIR"))
