# SPDX-License-Identifier: MIT
"""Scans a Wayland session: sway without a screen, on two outputs, the second at twice the scale. The
switch is a key of a keyboard, which sway's shortcuts tell the agent of; the programs that are
clicked have no X11.

    python3 -m tests.e2e.wayland BUILD_DIR OUT_DIR
"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from contextlib import suppress
from pathlib import Path

from PIL import Image

from tests.e2e.desktop import adopt_orphans, end_children, exit_on_signals, given
from tests.e2e.waiting import Failure, check, until

NOBODY = "65534"
AGENT = "Korvex.prefPane/Contents/Linux/Korvex Agent.app/Contents/Linux/korvex-agent"
WIDTH, HEIGHT = 1280, 800  # of the first output
SECOND = 800, 600  # of the second, in the compositor's units
OUTPUTS = "HEADLESS-1", "HEADLESS-2"

DELAY, LINE, POINTER = 0.5, 4.0, 8.0  # seconds
BUTTON = 100  # points
HOLD = 4.4  # seconds
RED = (200, 0, 0)  # the line
SETTINGS = {
    "scanner.preScanDelay": DELAY, "scanner.lineScanTime": LINE, "scanner.pointerScanTime": POINTER,
    "scanner.useScanAcceleration": "off", "scanner.lineColor": "#c80000", "scanner.lineTransparency": 0,
    "scanner.lineGhostTransparency": 0, "scanner.clickDuration": 300, "playClickSounds": "off",
    "palette.buttonSize": f"({BUTTON},{BUTTON})", "palette.buttonGap": 0,
    "palette.buttonActions": "[ 21 7 30 31 0 0 0 0 0]",  # Double, Return, Windows, Close
}
CONFIG = """
xwayland disable
default_border none
output HEADLESS-1 resolution {0}x{1} position 0 0 bg #ffffff solid_color
output HEADLESS-2 resolution {2}x{3} position {0} 0 scale 2 bg #ffffff solid_color
bindsym --no-repeat F12 exec '{program} press'
bindsym --release F12 exec '{program} release'
bindsym --no-repeat F11 exec '{program} press on-off'
bindsym --release F11 exec '{program} release on-off'
"""


class Session:
    def __init__(self, build: Path, out: Path, folder: Path):
        self.build, self.out, self.folder = build, out, folder
        for part in ("run", "home"):
            (folder / part).mkdir(mode=0o700)
        bus = f"unix:path={folder}/run/bus"
        keep = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
        os.environ.clear()
        os.environ.update(
            keep, DBUS_SESSION_BUS_ADDRESS=bus, HOME=f"{folder}/home", GDK_BACKEND="wayland",
            XDG_CONFIG_HOME=f"{folder}/home/.config", XDG_RUNTIME_DIR=f"{folder}/run", NO_AT_BRIDGE="1",
        )
        self.start("dbus-daemon", "--session", "--nofork", f"--address={bus}")
        until(lambda: (folder / "run/bus").exists(), "the bus is up")
        config = folder / "sway.conf"
        size = WIDTH, HEIGHT, 2 * SECOND[0], 2 * SECOND[1]
        config.write_text(CONFIG.format(*size, program=build / "host/korvex-preferences"))
        headless = {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_HEADLESS_OUTPUTS": "2",
                    "WLR_LIBINPUT_NO_DEVICES": "1"}
        self.sway = self.start("sway", "-c", config, env=os.environ | headless)
        socket = until(lambda: next((folder / "run").glob("sway-ipc*"), None), "sway is up")
        os.environ.update(SWAYSOCK=str(socket), WAYLAND_DISPLAY="wayland-1")
        until(lambda: len(json.loads(self.swaymsg("-t", "get_outputs"))) == 2, "both outputs are there")

    def start(self, *command: str | Path, env: dict[str, str] | None = None) -> subprocess.Popen:
        """Its output is a file of its name in the folder."""
        with (self.folder / Path(command[0]).name).open("ab") as output:
            return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=output, env=env)

    def swaymsg(self, *message: str) -> str:
        return subprocess.run(("swaymsg", "-r", *message), capture_output=True, text=True, check=True).stdout

    def focused(self) -> str:
        return next((each["name"] for each in windows(json.loads(self.swaymsg("-t", "get_tree")))
                     if each["focused"]), "")

    def picture(self, output: str, name: str = "") -> Image.Image:
        file = self.out / f"{name}.png" if name else self.folder / "picture.png"
        subprocess.run(("grim", "-o", output, file), check=True)
        return Image.open(file).convert("RGB")

    def reds(self, output: str, column: int, name: str = "") -> list[int]:
        """The rows of a column that have the line's colour."""
        picture = self.picture(output, name)
        return [y for y in range(picture.height) if picture.getpixel((column, y)) == RED]

    def press(self, key: str = "F12", seconds: float = 0.08) -> None:
        """Through the compositor."""
        subprocess.run(("wtype", "-P", key, "-s", str(int(seconds * 1000)), "-p", key), check=True)


def windows(node: dict) -> list[dict]:
    inner = node.get("nodes", []) + node.get("floating_nodes", [])
    return [each for part in inner for each in windows(part)] if inner else [node]


class Target:
    """A program with a window."""

    def __init__(self, session: Session, title: str, output: str):
        session.swaymsg("focus", "output", output)
        session.swaymsg("workspace", title)  # which it covers
        self.log = session.folder / title
        self._read = 0
        with self.log.open("wb") as log:
            self.process = subprocess.Popen((sys.executable, Path(__file__).with_name("target.py"), title),
                                            stdout=log, stdin=subprocess.DEVNULL)
        until(lambda: session.focused() == title, f"{title} is open")

    def told(self, beginning: str) -> str:
        """The rest of the next line that begins so; others before it are dropped."""
        def look() -> str:
            lines = self.log.read_text().splitlines()[self._read:]
            for number, line in enumerate(lines, 1):
                if line.startswith(beginning):
                    self._read += number
                    return line[len(beginning):] or " "
            return ""
        return until(look, f"{self.log.name} gets: {beginning}", 10)


class Scan:
    def __init__(self, session: Session):
        self.session = session
        self.agent: subprocess.Popen | None = None

    def start_agent(self) -> None:
        self.agent = self.session.start(self.session.build / AGENT)
        self.wait_for_agent()

    def wait_for_agent(self) -> None:
        program = self.session.build / "host/korvex-preferences"
        until(lambda: subprocess.run((program, "release"), capture_output=True).returncode == 0,
              "the agent listens")

    def stop_line(self, output: str = OUTPUTS[0], after: float = 0.0, picture: str = "") -> float:
        """Presses, and again when the line is on that output. Gives the guide's row."""
        scale = OUTPUTS.index(output) + 1
        self.session.press()
        edge = ((WIDTH, 2 * SECOND[0])[scale - 1]) - 3
        until(lambda: self.session.reds(output, edge), "the line is there", 20)
        time.sleep(after)
        self.session.press()
        until(lambda: self.session.reds(output, edge) == self.session.reds(output, edge), "it stops")
        rows = self.session.reds(output, edge, picture)
        return (rows[0] + rows[-1] + 1) / 2 / scale

    def click(self, target: Target, output: str = OUTPUTS[0], picture: str = "") -> None:
        row = self.stop_line(output, 0.3, picture)
        time.sleep(0.5)
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
        time.sleep(DELAY + (slot + 0.4) * BUTTON / WIDTH * POINTER)
        self.session.press()


def scans(scan: Scan) -> None:
    session = scan.session
    target = Target(session, "first", OUTPUTS[0])
    scan.start_agent()
    scan.click(target, picture="line")
    session.swaymsg("fullscreen", "enable")
    scan.click(target, picture="full-screen")
    session.swaymsg("fullscreen", "disable")


def palette(scan: Scan) -> None:
    session = scan.session
    target = Target(session, "palette", OUTPUTS[0])
    scan.choose(0)
    scan.session.press()
    time.sleep(DELAY + 0.6)
    scan.session.press()
    time.sleep(DELAY + 2.5)
    scan.session.press()
    for _ in range(2):
        target.told("press 1 at ")
        target.told("release 1")
    scan.choose(1)
    target.told("key Return")
    scan.choose(2)
    until(lambda: any(row > HEIGHT / 2 + 5 for row in session.reds(OUTPUTS[0], WIDTH // 2, "windows")),
          "the list is scanned to its second row", 20)
    session.press()
    until(lambda: session.focused() != "palette", "another window comes to the front", 10)
    session.swaymsg("[title=palette]", "focus")
    scan.choose(3)
    target.told("closed")


def faults(scan: Scan) -> None:
    session = scan.session
    target = Target(session, "faults", OUTPUTS[0])
    scan.stop_line()
    time.sleep(0.5)
    session.press(seconds=0.01)
    target.told("press 1 at ")
    scan.agent.kill()  # while it holds the button
    target.told("release 1")
    scan.wait_for_agent()  # its guard has started it
    scan.click(target)
    session.press("F11")
    session.press()
    time.sleep(DELAY + 0.5)
    check(not session.reds(OUTPUTS[0], WIDTH - 3), "it scans although it is off")
    session.press(seconds=HOLD)
    scan.click(target)


def second_output(scan: Scan) -> None:
    scan.click(Target(scan.session, "second", OUTPUTS[1]), OUTPUTS[1], "second-output")


def ends_with_the_session(scan: Scan) -> None:
    scan.session.sway.send_signal(signal.SIGKILL)
    until(lambda: not agents(), "the agent and its guard end with the compositor", 10)


def agents() -> list[str]:
    """Those that run. Nobody has waited for others yet."""
    return subprocess.run(("pgrep", "-r", "DRS", "-u", str(os.geteuid()), "korvex-"), capture_output=True, text=True).stdout.split()


def main() -> int:
    build, out = (Path(each).resolve() for each in given("BUILD_DIR OUT_DIR"))
    out.mkdir(parents=True, exist_ok=True)
    if os.geteuid() == 0:  # sway refuses root
        shutil.chown(out, int(NOBODY), int(NOBODY))
        user = ("setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups")
        os.execvp(user[0], (*user, sys.executable, "-B", "-m", "tests.e2e.wayland", build, out))
    exit_on_signals()
    adopt_orphans()
    with tempfile.TemporaryDirectory(prefix="korvex-wayland.") as name:
        try:
            session = Session(build, out, Path(name))
            pairs = [str(word) for pair in SETTINGS.items() for word in pair]
            subprocess.run((build / "host/korvex-preferences", "set", *pairs), check=True)
            scan = Scan(session)
            for part in scans, palette, faults, second_output, ends_with_the_session:
                part(scan)
                print(part.__name__, "ok", flush=True)
        except Failure as failure:
            with suppress(subprocess.CalledProcessError):
                session.picture(OUTPUTS[0], "failed")
            print(f"FAILED: {failure}\n{(Path(name) / 'korvex-agent').read_text(errors='replace')}")
            return 1
        finally:
            end_children()
    return 0


if __name__ == "__main__":
    sys.exit(main())
