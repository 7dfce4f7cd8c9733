# SPDX-License-Identifier: MIT
"""Goes from the notice through every section, and changes the same settings once by keyboard alone,
once by clicks alone, once through accessibility actions alone, and by a command. All must store the
same.

    python3 -m tests.e2e.roads BUILD_DIR OUT_DIR

OUT_DIR gets what each of them stored.
"""

import plistlib
import sys
from pathlib import Path

from tests.e2e.desktop import Desktop, apart, given
from tests.e2e.screen import Atspi, Control, GLib, Screen, children, press
from tests.e2e.startup import DATE
from tests.e2e.waiting import PATIENCE, Failure, check, until

FAR = 200  # presses of one key, which reach everything
FOCUSED = Atspi.StateType.FOCUSED

WANTED = {
    "scanner.lineScanTime": "12.5",
    "scanner.menuScanSpeedScaleFactor": "70",
    "scanner.useScanAcceleration": "off",
    "scanner.scanArea": "origin(0.000000,50.000000); size(500.000000,900.000000)",
    "scanner.useScanArea": "1",
    "scanner.scanMode": "2",
    "scanner.afterClickDelay": "1",
    "scanner.wantMouseClickTrigger": "off",
    "hotkeys.keys": "[ {0x7,0x1200} {0x4c,0x100} {0x35,0x0} {0x7,0x1a00} {0x62,0xa00}]",
    "scanner.lineColor": "[0x0000,0x0053,0x008a]",
    "scanner.lineThickness": "9",
    "scanner.pointerImageName": "Ring+20x20",
    "palette.buttonShape": "1",
    "palette.buttonSize": "(43,43)",
    "palette.buttonActions": "[ 20 21 22 1 2 15 0 0 0]",
    "playDragPrompts": "off",
    "soundLevel": "45",
    "launchAtLogin": "off",
    "on": "off",
}

# What is used on the way in and then in each section: a control's role and name, and behind a
# number's the number and the way to it, behind a menu's what is chosen there.
WELCOME = ("Not now", "Press your switch", "Start")
STEPS = {
    "Scanning": (
        ("text", "Line crosses the screen in", "12.5", "longer"),
        ("text", "Speed in menus", "70", "faster"),
        ("check box", "Start slowly, then speed up"),
        ("list item", "Left third"),
        ("text", "Top edge of my own area", "50", "further down"),
        ("push button", "Reset 5 settings"),
        ("push button", "Undo this"),
        ("push button", "Redo"),
        ("push button", "Undo"),
    ),
    "Presses": (
        ("radio button", "Each press moves one step"),
        ("text", "Ignore presses after a click for", "1.0", "longer"),
        ("check box", "Listen to mouse clicks"),
        ("push button", "Change: Scan, second key", "Choose keys…"),
        ("check box", "shift"),
        ("push button", "Choose a key", "F7"),
    ),
    "Look": (
        ("list item", "Blue"),
        ("text", "Line thickness", "9", "thicker"),
        ("list item", "Ring"),
    ),
    "Palette": (
        ("push button", "Add a button", "Undo"),
        ("radio button", "Rounded"),
        ("text", "Size of the buttons", "43", "larger"),
    ),
    "General": (
        ("check box", "Prompts while dragging"),
        ("text", "Volume", "45", "quieter"),
        ("push button", "Morning"),
        ("push button", "Save the settings under the name above"),
        ("text", "Volume", "35", "quieter"),
        ("push button", "Profile: Morning, changed", "Back to “Morning”"),
        ("check box", "Start Korvex when you log in"),
        ("radio button", "Off"),
    ),
}


class Road:
    """One way to use controls."""

    def __init__(self, screen: Screen):
        self.screen = screen

    def go(self) -> None:
        for name in WELCOME:
            self.use(self.screen.find(name, "push button"))
        for section, steps in STEPS.items():
            self.use(self.screen.find(section, "page tab"))
            self.screen.find(section, "filler")
            for role, name, *more in steps:
                control = self.screen.find(name, role)
                before = control.checked
                if role == "text":
                    self.set(control, *more)
                    continue
                self.use(control)
                if role in ("check box", "radio button"):
                    until(lambda: control.checked != before, f"“{name}” changes")
                for item in more:
                    self.use(self.screen.find(item, "list item"))

    def use(self, control: Control) -> None:
        """As a mouse does by a click."""
        raise NotImplementedError

    def set(self, field: Control, value: str, way: str) -> None:
        button = self.screen.find(f"{field.name}, {way}", "push button")
        while field.text.split()[0].rstrip("%") != value:
            before = field.text
            self.use(button)
            until(lambda: field.text != before, f"“{button.name}” changes the number")


class Clicks(Road):
    def use(self, control: Control) -> None:
        press("mousemove", *self.screen.bring_into_view(control).centre, "click", "1")


class Actions(Road):
    def use(self, control: Control) -> None:
        control.act()

    def set(self, field: Control, value: str, way: str) -> None:
        sliders = [each for each in self.screen.shown() if each.role == "slider"]
        for slider in sliders:
            if slider.name == field.name:
                return Atspi.Value.set_current_value(slider._node, float(value))
        return super().set(field, value, way)


class Keys(Road):
    def __init__(self, screen: Screen):
        super().__init__(screen)
        self._moves = 0  # of the keyboard, as a screen reader hears them
        Atspi.EventListener.new(self._hear).register("object:state-changed:focused")

    def _hear(self, event) -> None:
        self._moves += event.detail1

    def _moved(self) -> int:
        while GLib.MainContext.default().iteration(False):
            pass
        return self._moves

    def use(self, control: Control) -> None:
        """Tab goes to it, or to what it is a part of, where arrows go on."""
        if control.role == "page tab":
            return press("key", "alt+" + str(1 + list(STEPS).index(control.name)))
        self._go_to(control)
        press("key", "space")

    def set(self, field: Control, value: str, way: str) -> None:
        self._go_to(field)
        press("type", value)
        press("key", "Return")

    def _go_to(self, control: Control) -> None:
        group = [control]
        if control.role in ("list item", "radio button"):
            parts = children(control._node.get_parent())
            group = [each for each in parts if each.role == control.role]
        goal = [each.name for each in group].index(control.name)
        for _ in range(FAR):
            places = [place for place, each in enumerate(group) if each.has(FOCUSED)]
            if goal in places:
                return
            before = self._moved()
            press("key", self._key(group, goal - places[0]) if places else "Tab")
            until(lambda: self._moved() > before, "a screen reader hears where the keyboard is")
        raise Failure(f"the keyboard doesn’t come to “{control.name}”")

    def _key(self, group: list[Control], way: int) -> str:
        first, second = (each.box for each in group[:2])
        keys = ("Left", "Right") if first.top == second.top else ("Up", "Down")
        return keys[way > 0]


def store(road: type[Road] | None, build: Path, out: Path) -> bool:
    """Goes the road, or gives the command, in a fresh home, and keeps what was stored."""
    with Desktop(1500, 900, {"KORVEX_AGENT_LOG": "/dev/null"}, first_start=True) as desktop:
        program = build / "host/korvex-preferences"
        name = road.__name__ if road else "Command"
        try:
            if road:
                started = desktop.start(program)
                road(Screen()).go()
                started.terminate()
            else:
                words = (word for setting in WANTED.items() for word in setting)
                started = desktop.start(program, "set", *words)
            check(started.wait(PATIENCE) == 0, "the program failed")
            stored = desktop.config / "Preferences/org.korvex.Agent.plist"
            (out / f"{name}.plist").write_bytes(stored.read_bytes())
        except Failure as failure:
            print(f"{name}: {failure}.\n{desktop.output_of(program.name)}", file=sys.stderr)
            return False
    return True


def main(build: str, out: str) -> int:
    folder = Path(out).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    roads = None, Keys, Clicks, Actions
    if not all([apart(store, road, Path(build).resolve(), folder) for road in roads]):
        return 1
    wanted, *others = [
        plistlib.loads((folder / f"{road.__name__ if road else 'Command'}.plist").read_bytes())
        for road in roads
    ]
    faults = 0
    for road, stored in zip(roads[1:], others):
        stored = {key: stored[key] for key in stored if key not in (DATE, "firstStepsSeen")}
        for key in sorted(wanted.keys() | stored.keys()):
            if wanted.get(key) != stored.get(key):
                faults += 1
                print(f"{road.__name__}: {key} is {stored.get(key)}, not {wanted.get(key)}")
    print(f"{len(roads)} ways, {len(wanted)} keys, {faults} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*given("BUILD_DIR OUT_DIR")))
