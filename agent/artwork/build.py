#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the agent's resources: the action list, an icon family an action, and the pointers.

    build.py --list        prints the files that a build writes, one a line, relative to FOLDER
    build.py --table       prints the rows of the agent's table of actions, in C++
    build.py FOLDER        writes the files
    build.py --pictures FOLDER   writes a picture of each action, for the help book

Needs rsvg-convert (librsvg2-bin) and png2icns (icnsutils). The same sources give the same bytes.
"""

import os
import pathlib
import plistlib
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

from actions import ACTIONS, APPLICATION
from pointers import POINTERS
from shapes import icon_svg

ACTION_LIST = "btn_icons_std.plist"
# libicns knows no 64 pixels; 128 serves an icon of 32 points on a display of double density.
FAMILY_SIZES = (16, 32, 48, 128)
PICTURE_SIZE = 64  # shown at half of it
APPLICATION_SIZES = (*FAMILY_SIZES, 256)


def render(svg, png):
    subprocess.run(["rsvg-convert", "--output", png], input=svg.encode(), check=True)


def render_family(drawing, sizes, icns):
    """Writes an icon family that holds the drawing at every size, with 8-bit masks."""
    with tempfile.TemporaryDirectory() as scratch:
        pngs = [f"{scratch}/{size}.png" for size in sizes]
        for size, png in zip(sizes, pngs):
            render(icon_svg(drawing, size), png)
        subprocess.run(["png2icns", icns, *pngs], check=True, stdout=subprocess.DEVNULL)


def jobs(folder):
    """What to write: path, function, arguments before the path."""
    for name, _, _, drawing in ACTIONS:
        yield folder / f"btn_{name}.icns", render_family, (drawing, FAMILY_SIZES)
    for name, svg in POINTERS:
        yield folder / "Pointers" / f"{name}.png", render, (svg,)
    yield folder / "Korvex.icns", render_family, (APPLICATION, APPLICATION_SIZES)
    yield folder / "Korvex.png", render, (icon_svg(APPLICATION, 128),)


def build(folder):
    (folder / "Pointers").mkdir(parents=True, exist_ok=True)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for done in [pool.submit(draw, *arguments, path) for path, draw, arguments in jobs(folder)]:
            done.result()
    entries = [{"title": title, "icon": f"btn_{name}"} for name, title, _, _ in ACTIONS]
    (folder / ACTION_LIST).write_bytes(plistlib.dumps(entries))


def table_row(kind, repeats, names):
    text = f'"{names}"' if names else "nullptr"
    return f"{{ActionKind::{kind}, {str(repeats).lower()}, {text}}},"


def build_pictures(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, _, _, drawing in ACTIONS:
        render(icon_svg(drawing, PICTURE_SIZE), folder / f"{name}.png")


def main(argument, folder=None):
    if argument == "--pictures":
        build_pictures(pathlib.Path(folder))
    elif argument == "--table":
        print(*(table_row(*what) for _, _, what, _ in ACTIONS), sep="\n")
    elif argument == "--list":
        print(*(path for path, _, _ in jobs(pathlib.Path())), ACTION_LIST, sep="\n")
    else:
        build(pathlib.Path(argument))


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    main(*sys.argv[1:])
