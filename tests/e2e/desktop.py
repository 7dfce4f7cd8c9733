# SPDX-License-Identifier: MIT
"""A desktop of its own: a virtual display, a window manager, a session bus, and a fresh home."""

import ctypes
import os
import plistlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from contextlib import ExitStack
from pathlib import Path

from gi.repository import Gio, GLib

from tests.e2e.waiting import Failure, until

PR_SET_CHILD_SUBREAPER = 36

PROGRAMS = ("setpriv", "Xvfb", "openbox", "dbus-daemon", "xdotool", "maim")

libc = ctypes.CDLL(None, use_errno=True)


class Desktop:
    """While it is entered, this process lives on it, with nothing left of the environment that it
    was started in. Everything that was started meanwhile ends when it is left, also what has
    detached itself, and also when a signal ends this process.

    `environment` is added to what the desktop's programs see. Only at a first start the pane shows
    the page for that: otherwise all users' preferences keep it away.
    """

    def __init__(self, width: int, height: int, environment: dict[str, str], first_start: bool = False):
        self.size = (width, height)
        self.environment = environment
        self.first_start = first_start

    def __enter__(self) -> "Desktop":
        with ExitStack() as undo:
            self.folder = Path(
                undo.enter_context(tempfile.TemporaryDirectory(prefix="korvex-tour."))
            )
            undo.callback(end_children)
            adopt_orphans()
            self._open()
            self._undo = undo.pop_all()
        return self

    def __exit__(self, *failure) -> None:
        self._undo.close()

    @property
    def home(self) -> Path:
        return self.folder / "home"

    @property
    def config(self) -> Path:
        return self.home / ".config"

    def set_for_all_users(self, preferences: dict) -> None:
        file = self.folder / "etc/Preferences/org.korvex.Agent.plist"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(plistlib.dumps(preferences))

    def output_of(self, program: str) -> str:
        """What a program wrote to its standard output and error. Empty when it wasn't started."""
        file = self.folder / program
        return file.read_text(errors="replace") if file.exists() else ""

    def forget_output_of(self, program: str) -> None:
        (self.folder / program).unlink(missing_ok=True)

    def start(
        self, *command: str | Path, files: tuple[int, ...] = (), name: str = ""
    ) -> subprocess.Popen:
        """Starts a program, which keeps the open `files`. `name` is that of its output, if the
        command begins with another program. Even if this process is killed, its programs end, and
        with the bus and the display the rest. What may not be read or written isn't, even by root's
        programs."""
        obedient = ("--bounding-set=-dac_override,-dac_read_search",) if os.geteuid() == 0 else ()
        with (self.folder / (name or Path(command[0]).name)).open("ab") as output:
            return subprocess.Popen(
                ("setpriv", "--pdeathsig", "TERM", *obedient, *command),
                stdin=subprocess.DEVNULL,
                stdout=output,
                stderr=output,
                pass_fds=files,
                start_new_session=True,
            )

    def _open(self) -> None:
        for program in PROGRAMS:
            if not shutil.which(program):
                raise Failure(f"{program} is not installed; tools/packages.sh names the packages")
        runtime = self.folder / "run"
        for folder in (runtime, self.home, self.config):
            folder.mkdir(mode=0o700)
        if not self.first_start:
            self.set_for_all_users({"firstStepsSeen": True})
        path = os.environ["PATH"]
        os.environ.clear()
        os.environ.update(
            PATH=path,
            HOME=str(self.home),
            LC_ALL="C.UTF-8",
            XDG_CONFIG_HOME=str(self.config),
            XDG_CONFIG_DIRS=str(self.folder / "etc"),
            XDG_RUNTIME_DIR=str(runtime),
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            **self.environment,
        )
        self.open_bus("dbus-daemon")
        self.open_display()

    def open_bus(self, *daemon: str) -> None:
        """Starts the session bus with a command."""
        bus = ("--session", "--nofork", f"--address=unix:path={self.folder}/run/bus")
        _, os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_ask(
            *daemon, *bus, "--print-address"
        )

    def open_display(self) -> None:
        """Starts a display server, `display`, and its window manager."""
        width, height = self.size
        screen = ("-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-noreset")
        self.display, number = self._start_and_ask("Xvfb", *screen, "-displayfd")
        os.environ["DISPLAY"] = ":" + number
        self.start("openbox", "--config-file", "/etc/xdg/openbox/rc.xml")
        # It can tell the desktop's number as soon as it manages windows.
        until(lambda: ask("xdotool", "get_desktop"), "the window manager is up")

    def _start_and_ask(self, *command: str) -> tuple[subprocess.Popen, str]:
        """Starts a server that takes a file's number as its last argument, and returns it with the
        line that it writes there once it is up."""
        reader, writer = os.pipe()
        with open(reader, encoding="ascii") as answer:
            try:
                server = self.start(*command, str(writer), files=(writer,))
            finally:
                os.close(writer)
            line = answer.readline().strip()
        if not line:
            raise Failure(f"{command[0]} does not start:\n{self.output_of(command[0])}")
        return server, line


def ask(*command: str) -> str:
    """What a short command prints; when it fails, as xdotool does without an answer, nothing."""
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    return result.stdout if result.returncode == 0 else ""


def process_of(bus_name: str) -> int:
    """The process that owns a name on the session bus; 0 when none does."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    daemon = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
    call = ("GetConnectionUnixProcessID", GLib.Variant("(s)", (bus_name,)))
    try:
        return bus.call_sync(*daemon, *call, None, Gio.DBusCallFlags.NONE, -1)[0]
    except GLib.Error:
        return 0


def adopt_orphans() -> None:
    """From now on a process that was started below this one and loses its parent becomes this
    one's child, whatever session it has moved to."""
    if libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl")


def end_children(patience: float = 5.0) -> None:
    """Ends all children, and theirs as they fall to this process. Only its own children, not reaped
    yet, are signalled, so that no number can have passed to another process."""
    deadline = time.monotonic() + patience
    while True:
        try:
            while os.waitpid(-1, os.WNOHANG) != (0, 0):
                pass
        except ChildProcessError:
            return
        for tasks in Path("/proc/self/task").glob("*/children"):
            for child in tasks.read_text().split():
                late = time.monotonic() > deadline
                os.kill(int(child), signal.SIGKILL if late else signal.SIGTERM)
        time.sleep(0.02)


def apart(action, *arguments) -> bool:
    """Whether the action returns true in a process of its own: one reads one desktop in its life."""
    child = os.fork()
    if not child:
        exit_on_signals()
        sys.exit(0 if action(*arguments) else 1)
    return os.waitpid(child, 0)[1] == 0


def given(usage: str) -> list[str]:
    """The command line's arguments. There must be as many as `usage` names."""
    if len(sys.argv) != 1 + len(usage.split()):
        sys.exit(f"Usage: python3 -m tests.e2e.{Path(sys.argv[0]).stem} {usage}")
    return sys.argv[1:]


def exit_on_signals() -> None:
    """Makes the signals that end a program leave through its clean-up."""
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda number, _: sys.exit(128 + number))
