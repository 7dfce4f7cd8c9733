# SPDX-License-Identifier: MIT
"""The line of a try as it is on the screen, and presses of known moments, straight from and to the
X server. Moments are those of the monotonic clock, by which the server stamps presses."""

import ctypes
import time
from typing import NamedTuple

SPACE = 0x20
SUCCESS, ASYNCHRONOUS, CURRENT_TIME = 0, 1, 0  # X's
BYTES_A_PIXEL = 4
HELD = 0.08  # seconds
STANDS = 0.1  # seconds, some frames


class Span(NamedTuple):
    """What was measured lies between these: the machine does other things, too."""

    least: float
    most: float

    def since(self, earlier: "Span") -> "Span":
        return Span(self.least - earlier.most, self.most - earlier.least)

    def __sub__(self, length: float) -> "Span":
        return Span(self.least - length, self.most - length)

    @property
    def middle(self) -> float:
        return (self.least + self.most) / 2

    @property
    def sure(self) -> float:
        """How far it is from 0 at the least."""
        return max(self.least, -self.most, 0)

    @property
    def possible(self) -> float:
        return max(-self.least, self.most)


class Server:
    """A connection of its own."""

    def __init__(self) -> None:
        self.x11 = ctypes.CDLL("libX11.so.6")
        for name in ("XOpenDisplay", "XGetImage"):
            getattr(self.x11, name).restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def pixels(self, left: int, top: int, width: int, height: int) -> bytes:
        """Blue, green, red and nothing of each."""
        all_planes, z_pixmap = ctypes.c_ulong(-1), 2
        image = ctypes.c_void_p(self.x11.XGetImage(
            self.display, self.root, left, top, width, height, all_planes, z_pixmap))
        data = ctypes.cast(image.value + 16, ctypes.POINTER(ctypes.c_void_p))[0]  # of XImage
        copy = ctypes.string_at(data, width * height * BYTES_A_PIXEL)
        self.x11.XDestroyImage(image)
        return copy

    def keys_are_free(self) -> bool:
        """Whether a program, such as the agent or the desktop, gets keys that it asks for."""
        answer = self.x11.XGrabKeyboard(self.display, self.root, False, ASYNCHRONOUS, ASYNCHRONOUS,
                                        ctypes.c_ulong(CURRENT_TIME))
        self.x11.XUngrabKeyboard(self.display, ctypes.c_ulong(CURRENT_TIME))
        self.x11.XSync(self.display, False)
        return answer == SUCCESS


class Column(Server):
    """One column of the screen's pixels."""

    def __init__(self, left: int, top: int, bottom: int) -> None:
        super().__init__()
        self._place = left, top, 1, bottom - top

    def rows(self) -> list[tuple[int, int]]:
        """Red and green, from the top."""
        pixels = self.pixels(*self._place)
        return list(zip(pixels[2::BYTES_A_PIXEL], pixels[1::BYTES_A_PIXEL]))

    def line(self) -> float | None:
        """Where the middle of the dark red line is, in pixels from the top; nothing without one."""
        rows = [row for row, (red, green) in enumerate(self.rows()) if red > 80 > green]
        return sum(rows) / len(rows) + 0.5 if rows else None

    def stopped_line(self) -> float | None:
        """The same, once it moves no more; nothing while it does."""
        place = self.line()
        time.sleep(STANDS)
        return place if place == self.line() else None

    def mark(self) -> int:
        """How many rows are the mark's: neither white nor the frame's, at the edges."""
        frame = 4
        return sum(pixel != (255, 255) for pixel in self.rows()[frame:-frame])


class Switch(Server):
    """A key, pressed without a program to be started first."""

    def __init__(self) -> None:
        super().__init__()
        self._test = ctypes.CDLL("libXtst.so.6")
        self._key = self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(SPACE))

    def press(self, length: float = HELD) -> Span:
        """Gives the moment when it went down."""
        before = time.monotonic()
        self._send(True)
        moment = Span(before, time.monotonic())
        time.sleep(length)
        self._send(False)
        return moment

    def _send(self, down: bool) -> None:
        self._test.XTestFakeKeyEvent(self.display, self._key, down, ctypes.c_ulong(0))
        self.x11.XSync(self.display, False)


def watch(column: Column, until: float) -> list[tuple[float, Span]]:
    """Each new place of the line, with the moment when it appeared there, until that moment."""
    looked, seen, frames = time.monotonic(), column.line(), []
    while looked < until:
        before = time.monotonic()
        place = column.line()
        if place is not None and place != seen and seen is not None:
            frames.append((place, Span(looked, time.monotonic())))
        looked, seen = before, place
        time.sleep(0.0005)
    return frames
