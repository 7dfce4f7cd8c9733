# SPDX-License-Identifier: MIT
"""What a user sees and does: controls found by the names that a screen reader tells, real clicks
and keys, pictures."""

import subprocess
from collections import Counter
from contextlib import suppress
from pathlib import Path
from typing import Callable, Iterator, NamedTuple, TypeVar

import gi

from tests.e2e.desktop import ask
from tests.e2e.waiting import PATIENCE, Failure, check, until

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

T = TypeVar("T")

MILLISECONDS_TO_ANSWER = int(PATIENCE * 1000)
WHEEL_UP, WHEEL_DOWN = "4", "5"  # X's buttons


class Box(NamedTuple):
    """A rectangle in the screen's pixels, its right and bottom edges outside."""

    left: int
    top: int
    right: int
    bottom: int

    @property
    def centre(self) -> tuple[str, str]:
        return str((self.left + self.right) // 2), str((self.top + self.bottom) // 2)

    def __and__(self, other: "Box") -> "Box":
        return Box(*map(max, self[:2], other[:2]), *map(min, self[2:], other[2:]))


class Control:
    """Something on the screen, as assistive technology sees it. Nothing is remembered: each look
    asks its program."""

    def __init__(self, node: Atspi.Accessible):
        self._node = node

    @property
    def name(self) -> str:
        return self._node.get_name()

    @property
    def role(self) -> str:
        return self._node.get_role_name()

    @property
    def value(self) -> float:
        return Atspi.Value.get_current_value(self._node)

    @property
    def description(self) -> str:
        return self._node.get_description()

    @property
    def text(self) -> str:
        return Atspi.Text.get_text(self._node, 0, -1)

    def has(self, state: Atspi.StateType) -> bool:
        return self._node.get_state_set().contains(state)

    @property
    def checked(self) -> bool:
        return self.has(Atspi.StateType.CHECKED)

    @property
    def box(self) -> Box:
        extents = self._node.get_extents(Atspi.CoordType.SCREEN)
        right, bottom = extents.x + extents.width, extents.y + extents.height
        return Box(extents.x, extents.y, right, bottom)

    def cut_off_by(self) -> Box | None:
        """The innermost of what encloses the control that shows only a part of it, or nothing.
        A button's menu lies over everything."""
        box, parent = self.box, self._node.get_parent()
        while parent.get_role() not in (Atspi.Role.APPLICATION, Atspi.Role.PUSH_BUTTON):
            frame = Control(parent).box
            if box & frame != box:
                return frame
            parent = parent.get_parent()
        return None

    def focus(self) -> None:
        """Gives it the keyboard; what scrolls brings it into view."""
        check(Atspi.Component.grab_focus(self._node), f"“{self.name}” takes no focus")
        until(lambda: self.has(Atspi.StateType.FOCUSED), f"“{self.name}” has the keyboard")

    def act(self) -> None:
        """Does its first action, as assistive technology does."""
        check(Atspi.Action.do_action(self._node, 0), f"“{self.name}” has no action")

    def shown(self) -> Iterator["Control"]:
        """Itself and all beneath it that isn't on a hidden page."""
        if not self.has(Atspi.StateType.SHOWING):
            return
        yield self
        for child in children(self._node):
            yield from child.shown()


def children(node: Atspi.Accessible) -> Iterator[Control]:
    for index in range(node.get_child_count()):
        if child := node.get_child_at_index(index):
            yield Control(child)


class Screen:
    """The display that DISPLAY names. Controls are told by their name and, in words, their role."""

    def __init__(self) -> None:
        Atspi.init()
        Atspi.set_timeout(MILLISECONDS_TO_ANSWER, MILLISECONDS_TO_ANSWER)
        self._desktop = Atspi.get_desktop(0)
        # What is remembered is only brought up to date by an event loop.
        self._desktop.set_cache_mask(Atspi.Cache.NONE)

    def shown(self) -> list[Control]:
        """All that is shown, in reading order; nothing while a program comes or goes."""
        try:
            return [each for program in children(self._desktop) for each in program.shown()]
        except GLib.Error:
            return []

    def of_role(self, role: str) -> Iterator[tuple[Control, str]]:
        """What is shown of the role, with the names."""
        for each in self.shown():
            with suppress(GLib.Error):  # it may just have gone
                if each.role == role:
                    yield each, each.name

    def names(self, role: str) -> list[str]:
        return [name for _, name in self.of_role(role)]

    def check_names(self) -> None:
        """Every control that the keyboard can reach must have a name of its own."""
        reachable = [each for each in self.shown() if each.has(Atspi.StateType.FOCUSABLE)]
        names = Counter((each.role, each.name) for each in reachable)
        check(bool(names), "nothing can be reached by keyboard")
        unclear = [control for control, count in names.items() if count > 1 or not control[1]]
        unclear += [each.box for each in self.shown() if each.role == "frame" and not each.name]
        check(not unclear, f"not told apart by name: {unclear}")

    def find(self, name: str, role: str) -> Control:
        """Waits for the control. It must be the only one of its name and role."""

        controls = until(
            lambda: [each for each, its_name in self.of_role(role) if its_name == name],
            f"{role} “{name}” is on the screen",
        )
        check(len(controls) == 1, f"{len(controls)} of role {role} are named “{name}”")
        return controls[0]

    def click(self, name: str, role: str) -> Control:
        control = self.find(name, role)
        press("mousemove", *self.bring_into_view(control).centre, "click", "1")
        return control

    def bring_into_view(self, control: Control) -> Box:
        """Turns the wheel until the whole control is in sight, and says where it then is."""
        while frame := control.cut_off_by():
            box, high = control.box, frame.bottom - frame.top
            fits = frame.left <= box.left and box.right <= frame.right and box.bottom - box.top <= high
            check(fits, f"“{control.name}”, {box}, has no room in {frame}")
            wheel = WHEEL_UP if box.top < frame.top else WHEEL_DOWN
            press("mousemove", *frame.centre, "click", wheel)
            until(lambda: control.box != box, f"the page scrolls towards “{control.name}”")
        return until_at_rest(lambda: control.box)

    def windows(self, program: str) -> list[str]:
        """The numbers of a program's windows that are in sight."""
        return ask("xdotool", "search", "--onlyvisible", "--class", f"^{program}$").split()

    def active_window(self) -> str:
        return ask("xdotool", "getactivewindow").strip()

    def picture(self, path: Path, moves: bool = False) -> None:
        """Saves what is on the screen, once it is at rest unless something moves. The pointer would
        hide a part."""
        def look() -> bytes:
            return run("maim", "--hidecursor")

        path.write_bytes(look() if moves else until_at_rest(look))


def until_at_rest(look: Callable[[], T]) -> T:
    """What two looks in succession agree on."""
    seen = look()

    def same() -> bool:
        nonlocal seen
        before, seen = seen, look()
        return before == seen

    until(same, "the screen comes to rest")
    return seen


def press(*actions: str) -> None:
    """Moves, clicks and types as xdotool's arguments say."""
    run("xdotool", *actions)


def run(*command: str) -> bytes:
    try:
        return subprocess.run(command, capture_output=True, check=True).stdout
    except subprocess.CalledProcessError as error:
        raise Failure(f"{' '.join(command)}: {error.stderr.decode()}") from error
