# SPDX-License-Identifier: MIT
"""Waiting for an effect. Nothing here sleeps for a fixed time: a wait ends with its effect."""

import time
from typing import Callable, TypeVar

T = TypeVar("T")

PATIENCE = 30.0  # seconds; generous, since a loaded machine is slow but still right
PAUSE = 0.02  # seconds between two looks


class Failure(Exception):
    """Something did not have its effect; the text says what."""


def until(effect: Callable[[], T], what: str, patience: float = PATIENCE) -> T:
    """Looks until `effect` returns something true, and returns that."""
    deadline = time.monotonic() + patience
    while not (result := effect()):
        if time.monotonic() > deadline:
            raise Failure(f"{what}: not within {patience:.0f} seconds")
        time.sleep(PAUSE)
    return result


def check(holds: bool, what: str) -> None:
    """Unlike assert, also when Python optimises."""
    if not holds:
        raise Failure(what)
