# SPDX-License-Identifier: MIT
"""The vocabulary of the drawings: SVG path data in named styles, rendered over a light halo.

Icons are drawn on a grid of 16 units. An outline is one unit wide and runs along half units, a bold
line is two units wide and runs along whole units, so that both fill whole pixels at 16, 32, 48 and
128 pixels. Lines reach half their width beyond their ends. Every drawing keeps one unit free at the
edge for its halo.
"""

INK = "#16243a"
PAPER = "#ffffff"
ACCENT = "#1769c7"

# style: (fill, stroke, stroke width in units)
STYLES = {
    "body": (PAPER, INK, 1),
    "line": ("none", INK, 1),
    "bold": ("none", INK, 2),
    "solid": (INK, "none", 0),
    "paper": (PAPER, "none", 0),
    "mark": (ACCENT, "none", 0),
    "markline": ("none", ACCENT, 1),
    "markbold": ("none", ACCENT, 2),
    "gap": (PAPER, PAPER, 0),
}


def rect(x, y, width, height, radius=0.0):
    """Path data of a rectangle with rounded corners."""
    r = radius
    arc = f"a{r} {r} 0 0 1" if r else "l"
    return (f"M{x + r} {y}h{width - 2 * r}{arc} {r} {r}v{height - 2 * r}{arc} {-r} {r}"
            f"h{2 * r - width}{arc} {-r} {-r}v{2 * r - height}{arc} {r} {-r}z")


def circle(x, y, radius):
    """Path data of a circle around (x, y)."""
    r = radius
    return f"M{x - r} {y}a{r} {r} 0 1 1 {2 * r} 0a{r} {r} 0 1 1 {-2 * r} 0z"


def svg(body, width, height, pixel_width, pixel_height):
    """An SVG document of the given size in pixels, over a view of width by height units."""
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{pixel_width}" '
            f'height="{pixel_height}" viewBox="0 0 {width} {height}">{body}</svg>')


def path(data, fill, stroke, stroke_width):
    """One path element."""
    return (f'<path d="{data}" fill="{fill}" stroke="{stroke}" stroke-width="{stroke_width}" '
            'stroke-linejoin="round" stroke-linecap="square"/>')


def icon_svg(drawing, pixels):
    """The SVG document of an icon, a list of (style, path data), at a size in pixels.

    The halo keeps the ink apart from a dark button, and a "gap" the shape above it apart from those
    below. It is a whole pixel at 16 pixels and grows more slowly than the drawing.
    """
    halo = {16: 1.0, 32: 0.75, 48: 2 / 3}.get(pixels, 0.5)
    under, over = [], []
    for style, data in drawing:
        fill, stroke, width = STYLES[style]
        if style == "gap":
            width = 2 * halo
        else:
            under.append(path(data, "none" if fill == "none" else PAPER, PAPER, width + 2 * halo))
        over.append(path(data, fill, stroke, width))
    return svg("".join(under + over), 16, 16, pixels, pixels)
