# SPDX-License-Identifier: MIT
"""What moves and what flashes on the screen, straight from the X server."""

import time
from typing import Iterable, NamedTuple

from PIL import Image, ImageChops

from tests.e2e.line import Server, Span
from tests.e2e.waiting import check

# WCAG 2's flash: two opposing changes of relative luminance, of which 1 is white.
CHANGE, DARKER_BELOW = 0.1, 0.8
BLOCK = 8  # pixels, of a place whose luminance is looked at
LOOK_EVERY = 1 / 60  # seconds
FEWEST_LOOKS = 12  # a second

# From sRGB to luminance, both up to 255.
LINEAR = [round(255 * ((c + 14.025) / 269.025) ** 2.4 if c > 10.3 else c / 12.92) for c in range(256)]
WEIGHTS = 0.2126, 0.7152, 0.0722, 0


class Look(NamedTuple):
    taken: Span
    image: Image.Image

    def places(self) -> bytes:
        """The luminance of each block."""
        return self.image.point(LINEAR * 3).convert("L", WEIGHTS).reduce(BLOCK).tobytes()

    def changed_since(self, earlier: "Look") -> tuple[int, int, int, int] | None:
        """What encloses all that differs: left, top, right, bottom."""
        return ImageChops.difference(self.image, earlier.image).getbbox()


def look_for(seconds: float, size: tuple[int, int]) -> list[Look]:
    """As many looks at the whole screen as there is time for."""
    server, looks = Server(), []
    end = time.monotonic() + seconds
    while (before := time.monotonic()) < end:
        data = server.pixels(0, 0, *size)
        image = Image.frombytes("RGB", size, data, "raw", "BGRX")
        looks.append(Look(Span(before, time.monotonic()), image))
        time.sleep(max(before + LOOK_EVERY - time.monotonic(), 0))
    check(len(looks) >= FEWEST_LOOKS * seconds, f"only {len(looks)} looks in {seconds} s")
    return looks


def most_flashes(looks: list[Look]) -> int:
    """Of any place in any second."""
    moments = [each.taken.middle for each in looks]
    return max(flashes(turns(moments, place)) for place in zip(*(each.places() for each in looks)))


def turns(moments: list[float], values: Iterable[int]) -> list[float]:
    """When a place became lighter or darker by enough, after it had become the opposite."""
    found, lightest, darkest, wants = [], 0, 255, 0
    for moment, value in zip(moments, values):
        lightest, darkest = max(lightest, value), min(darkest, value)
        for way, change, darker in ((1, value - darkest, darkest), (-1, lightest - value, value)):
            if wants != -way and change >= CHANGE * 255 and darker < DARKER_BELOW * 255:
                found.append(moment)
                lightest = darkest = value
                wants = -way
                break
    return found


def flashes(found: list[float]) -> int:
    return max((sum(start <= each < start + 1 for each in found) // 2 for start in found), default=0)
