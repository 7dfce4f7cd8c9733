"""The property list that the pane stores: each key and the text of its factory value."""

import plistlib
from pathlib import Path

from tests.e2e.waiting import check

DOMAIN = "org.korvex.Agent"

FACTORY = {
    "on": "yes", "playClickSounds": "yes", "playDragPrompts": "yes", "priorityScheduling": "no",
    "launchAtLogin": "yes", "activateAtLaunch": "yes", "soundLevel": "0x00000032",
    "scanner.canScanMenuBar": "yes", "scanner.minTriggerDuration": "0.000000",
    "scanner.afterClickDelay": "0.000000", "scanner.preScanDelay": "1.500000",
    "scanner.inverseReleaseTime": "2.000000", "scanner.stepScanCancelTime": "10.000000",
    "scanner.wantHotKeyTrigger": "yes", "scanner.wantMouseClickTrigger": "yes",
    "scanner.triggerOnRelease": "no", "scanner.fakeMouse2SwitchMode": "yes",
    "scanner.scanMode": "0",
    "scanner.scanArea": "origin(0.000000,0.000000); size(0.000000,0.000000)",
    "scanner.useScanArea": "no", "scanner.lineScanCanEndKybdMode": "yes",
    "scanner.lineScanTime": "10.000000", "scanner.pointerScanTime": "10.000000",
    "scanner.menuScanSpeedScaleFactor": "60.000000", "scanner.useScanAcceleration": "yes",
    "scanner.autoRepeatTime": "4.000000", "scanner.clickDuration": "70.000000",
    "scanner.interClickDelay": "10.000000", "scanner.lineColor": "[0x0064,0x0000,0x0000]",
    "scanner.lineThickness": "7", "scanner.lineTransparency": "5.000000",
    "scanner.lineGhostTransparency": "75.000000", "scanner.pointerImageName": "default",
    "hotkeys.keys": "[ {0x7,0x1200} {0x4c,0x100} {0x35,0x0} {0x7,0x1a00} {0x4c,0x800}]",
    "palette.borderGap": "4", "palette.buttonGap": "6", "palette.buttonSize": "(40,40)",
    "palette.buttonShape": "0x00000000", "palette.buttonContent": "0x00000003",
    "palette.buttonActions": "[ 20 21 22 1 2 0 0 0 0]",
}


def stored_file(config: Path) -> Path:
    return config / "Preferences" / f"{DOMAIN}.plist"


def check_stored(config: Path, changed: dict[str, str | int]) -> str:
    """The file must hold every key in its stored form, the changed ones with their new text, and
    nothing else. Returns an account."""
    found = plistlib.loads(stored_file(config).read_bytes())
    expected = FACTORY | changed
    wrong = [
        f"{key} is {found.get(key)!r}, not {expected.get(key)!r}"
        for key in sorted(expected.keys() | found.keys())
        if found.get(key) != expected.get(key)
    ]
    check(not wrong, "stored " + "; ".join(wrong))
    return f"{len(found)} keys stored, {len(changed)} of them changed"
