# SPDX-License-Identifier: MIT
"""What the agent says it received."""

import json
import struct
from pathlib import Path

from tests.e2e.waiting import check, until

KEYS = "PPhd"  # who has the keys: the agent or the pane

# The record's fields that the tour changes: struct's format and the offset in bytes.
FIELDS = {
    "on": ("<B", 0),
    "launchAtLogin": ("<B", 5),
    "canScanMenuBar": ("<B", 12),
    "scanMode": ("<i", 60),
    "scanArea": ("<4fB", 64),  # and, behind it, whether it is in use
    "lineScanTime": ("<d", 84),
    "lineColor": ("<3H", 136),
    "lineThickness": ("<i", 144),
    "pointerImageName": ("10s", 164),
    "buttonSize": ("<2h", 312),
    "buttonShape": ("<I", 316),
}


class AgentLog:
    """Reads the log event by event: what was not asked for is noticed at the next question."""

    def __init__(self, path: Path):
        self.path = path
        self._read = 0  # bytes
        self._record = b""  # of the last change

    def skip(self) -> None:
        """Leaves out what was heard so far."""
        self._read = self.path.stat().st_size if self.path.exists() else 0

    def expect(self, name: str) -> dict:
        """The next event, which must be of that name. One about the keys is only seen if asked for."""
        event = {"event": KEYS}
        while event["event"] == KEYS:
            event = json.loads(until(self._next_line, f"the agent hears {name}"))
            if name == KEYS:
                break
        heard = {key: value for key, value in event.items() if key != "record"}
        check(event["event"] == name, f"the agent heard {heard}, not {name}")
        return event

    def expect_change(self, mask: int, field: str, value: float | tuple | bytes) -> str:
        """The next event must be a changed record with that mask and value, in which nothing else
        is new. Returns an account of it."""
        event = self.expect("SAPr")
        record = bytes.fromhex(event["record"])
        form, offset = FIELDS[field]
        numbers = struct.unpack_from(form, record, offset)
        got = numbers if len(numbers) > 1 else numbers[0]
        check(event["mask"] == mask, f"mask {event['mask']}, not {mask}")
        check(got == value, f"{field} (byte {offset}) is {got}, not {value}")
        own = range(offset, offset + struct.calcsize(form))
        others = [
            place
            for place, (old, new) in enumerate(zip(self._record, record))
            if old != new and place not in own
        ]
        check(not others, f"bytes {others} changed along with {field}")
        self._record = record
        return f"SAPr, mask {mask}, {field} {got} at byte {offset}"

    def _next_line(self) -> bytes:
        if not self.path.exists():
            return b""
        with self.path.open("rb") as file:
            file.seek(self._read)
            line = file.readline()
        if not line.endswith(b"\n"):
            return b""
        self._read += len(line)
        return line
