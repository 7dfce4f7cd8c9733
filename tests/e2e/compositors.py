# SPDX-License-Identifier: MIT
"""Wayland compositors without a screen, for tests: each on two outputs, with a session bus and a fresh
home of their own. What is started in them has no X11, unless it asks for it."""

import json
import os
import re
import subprocess
import sys
import time
from pathlib import Path

from PIL import Image

from tests.e2e.desktop import ask
from tests.e2e.waiting import until

FIRST, SECOND = (1280, 800), (800, 600)  # of the outputs, in the compositor's units
RED = (200, 0, 0)  # the line


class Compositor:
    """It becomes this process's environment."""

    program = ""
    can_list_windows = False
    keyboard = ""  # on the screen

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
        self.process = self.begin()

    def begin(self) -> subprocess.Popen:
        raise NotImplementedError

    def press(self, key: str = "scan", seconds: float = 0.08) -> None:
        """Of one of the user's hot keys."""
        raise NotImplementedError

    def line(self, output: int, name: str = "", column: int = -3) -> float | None:
        """The centre of the red line in a column of an output, in its units; with a picture of that name."""
        raise NotImplementedError

    def focused(self) -> str:
        """The title of the window in front. Empty when nobody tells."""
        return ""

    def prepare(self, title: str, output: int) -> None:
        """For a window that covers the output."""

    def replug(self) -> None:
        """The second output, if it can be."""

    def start(self, *command: str | Path, **environment: str) -> subprocess.Popen:
        """Its output is a file of its name in the folder."""
        with (self.folder / Path(command[0]).name).open("ab") as output:
            return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                                    env=os.environ | environment)

    def command(self, *words: str) -> bool:
        """Whether one of Korvex's own succeeds."""
        program = self.build / "host/korvex-preferences"
        return subprocess.run((program, *words), capture_output=True, check=False).returncode == 0


class Sway(Compositor):
    """The second output has twice the scale. Keys of a keyboard are pressed, which its shortcuts tell."""

    program = "sway"
    can_list_windows = True
    keyboard = "squeekboard"
    keys = {"scan": "F12", "on-off": "F11"}

    def begin(self) -> subprocess.Popen:
        (width, height), (second_width, second_height) = FIRST, SECOND
        program = self.build / "host/korvex-preferences"
        shortcuts = (f"bindsym {option} {key} exec '{program} {word} {name}'"
                     for name, key in self.keys.items()
                     for option, word in (("--no-repeat", "press"), ("--release", "release")))
        config = self.folder / "sway.conf"
        config.write_text("\n".join((
            "xwayland disable", "default_border none", *shortcuts,
            f"output HEADLESS-1 resolution {width}x{height} position 0 0",
            f"output HEADLESS-2 resolution {2 * second_width}x{2 * second_height} position {width} 0 scale 2",
        )) + "\n")
        sway = self.start("sway", "-c", config, WLR_BACKENDS="headless", WLR_RENDERER="pixman",
                          WLR_HEADLESS_OUTPUTS="2", WLR_LIBINPUT_NO_DEVICES="1")
        socket = until(lambda: next((self.folder / "run").glob("sway-ipc*"), None), "sway is up")
        os.environ.update(SWAYSOCK=str(socket), WAYLAND_DISPLAY="wayland-1")
        until(lambda: len(json.loads(self._tell("-t", "get_outputs"))) == 2, "both outputs are there")
        return sway

    def press(self, key: str = "scan", seconds: float = 0.08) -> None:
        name = self.keys[key]
        subprocess.run(("wtype", "-P", name, "-s", str(int(seconds * 1000)), "-p", name), check=True)

    def line(self, output: int, name: str = "", column: int = -3) -> float | None:
        file = self.out / f"{name}.png" if name else self.folder / "picture.png"
        subprocess.run(("grim", "-o", f"HEADLESS-{output + 1}", file), check=True)
        picture = Image.open(file).convert("RGB")
        rows = [y for y in range(picture.height) if picture.getpixel((column % picture.width, y)) == RED]
        return (rows[0] + rows[-1] + 1) / 2 / (output + 1) if rows else None

    def focused(self) -> str:
        return next((each["name"] for each in windows(json.loads(self._tell("-t", "get_tree")))
                     if each["focused"]), "")

    def prepare(self, title: str, output: int) -> None:
        self._tell("focus", "output", f"HEADLESS-{output + 1}")
        self._tell("workspace", title)

    def replug(self) -> None:
        for state in "disable", "enable":
            self._tell("output", "HEADLESS-2", state)

    def _tell(self, *message: str) -> str:
        return subprocess.run(("swaymsg", "-r", *message), capture_output=True, text=True, check=True).stdout


def windows(node: dict) -> list[dict]:
    inner = node.get("nodes", []) + node.get("floating_nodes", [])
    return [each for part in inner for each in windows(part)] if inner else [node]


class Mutter(Compositor):
    """Without GNOME's shell there are no shortcuts: their commands are called."""

    program = "mutter"

    def begin(self) -> subprocess.Popen:
        self.start("pipewire")
        monitors = [word for size in (FIRST, SECOND) for word in ("--virtual-monitor", "{}x{}".format(*size))]
        mutter = self.start("mutter", "--headless", "--wayland", *monitors, "--wayland-display", "korvex")
        log = self.folder / "mutter"
        number = until(lambda: re.search(r"public X11 display (:\d+)", log.read_text()), "mutter is up")
        until(lambda: (self.folder / "run/korvex").exists(), "its socket is there")
        key = until(lambda: next((self.folder / "run").glob(".mutter-Xwaylandauth.*"), None), "X11 is allowed")
        os.environ.update(WAYLAND_DISPLAY="korvex", DISPLAY=number[1], XAUTHORITY=str(key))
        return mutter

    def press(self, key: str = "scan", seconds: float = 0.08) -> None:
        self.command("press", key)
        time.sleep(seconds)
        self.command("release", key)

    def line(self, output: int, name: str = "", column: int = -3) -> float | None:
        """As its window lies."""
        left, width = (0, FIRST[0]) if output == 0 else (FIRST[0], SECOND[0])
        for window in ask("xdotool", "search", "--onlyvisible", "--class", "^korvex-agent$").split():
            found = re.findall(r"=(-?\d+)", ask("xdotool", "getwindowgeometry", "--shell", window))
            if len(found) >= 5 and (int(found[1]), int(found[3])) == (left, width):
                return int(found[2]) + int(found[4]) / 2
        return None


class Target:
    """A program with a window that covers an output."""

    def __init__(self, compositor: Compositor, title: str, output: int = 0, full_screen: bool = False):
        compositor.prepare(title, output)
        self.log = compositor.folder / title
        self._read = 0
        monitor = [str(output)] if full_screen or output > 0 else []
        with self.log.open("wb") as log:
            self.process = subprocess.Popen(
                (sys.executable, "-B", Path(__file__).with_name("target.py"), title, *monitor),
                stdout=log, stdin=subprocess.DEVNULL)
        self.told("shown")

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
