# SPDX-License-Identifier: MIT
"""The pointers that can follow the scan: a name and an SVG document each, in whole pixels.

A name that ends in "+XxY" gives the hot spot, in pixels from the top-left corner; without it the
hot spot is the corner itself. Crosshairs, rings and targets have an odd size and their hot spot in
the middle pixel. An arrow's hot spot is the tip of its inner edge.
"""

from math import ceil, sqrt

from shapes import circle, path, svg

# The pointer's corners from its tip, 12 by 19; its right edge falls at 45 degrees.
ARROW = [(0, 0), (0, 17), (4, 13.2), (6.6, 19.3), (9.4, 18.1), (6.8, 12.1), (12, 12)]
SPIKE = 1 + sqrt(2)  # how far a mitred outline reaches beyond a corner of 45 degrees, in widths


def arrow(scale, fill, edges, opacity=1.0):
    """An arrow inside one or more edges, (colour, width) from the inner to the outer.

    The tip of the outermost edge touches the image's corner.
    """
    total = sum(width for _, width in edges)
    points = " ".join(f"{total + scale * x:.3f},{total * SPIKE + scale * y:.3f}" for x, y in ARROW)
    width = ceil(12 * scale + total * (1 + SPIKE))
    height = ceil(19.3 * scale + total * (1.4 + SPIKE))
    shapes = ""
    for index in reversed(range(len(edges))):
        reach = sum(edge for _, edge in edges[:index + 1])
        shapes += (f'<path d="M{points}z" fill="{edges[index][0]}" stroke="{edges[index][0]}" '
                   f'stroke-width="{2 * reach}" stroke-miterlimit="9"/>')
    shapes += f'<path d="M{points}z" fill="{fill}"/>'
    return svg(f'<g opacity="{opacity}">{shapes}</g>', width, height, width, height)


def crosshair(reach, gap, thickness, fill, edge, opacity=1.0):
    """Four arms that end gap pixels before the middle pixel, which is marked by itself."""
    size, half = 2 * reach + 1, thickness // 2
    near, far, arm = reach - half, reach + gap + 1, reach - gap
    bars = [(0, near, arm, thickness), (far, near, arm, thickness),
            (near, 0, thickness, arm), (near, far, thickness, arm), (reach - 1, reach - 1, 3, 3)]
    shapes = "".join(path(f"M{x} {y}h{w}v{h}h{-w}z", edge, "none", 0)
                     + path(f"M{x + 1} {y + 1}h{w - 2}v{h - 2}h{2 - w}z", fill, "none", 0)
                     for x, y, w, h in bars)
    return svg(f'<g opacity="{opacity}">{shapes}</g>', size, size, size, size)


def rings(reach, radii, thickness, fill, edge):
    """Rings of the given radii around a dot, each between two thin edges."""
    size, middle = 2 * reach + 1, reach + 0.5
    data = "".join(circle(middle, middle, radius) for radius in radii)
    dot = circle(middle, middle, thickness)
    shapes = (path(data, "none", edge, thickness + 2) + path(dot, edge, edge, 2)
              + path(data, "none", fill, thickness) + path(dot, fill, "none", 0))
    return svg(shapes, size, size, size, size)


BLACK, WHITE, YELLOW, RED = "#000000", "#ffffff", "#ffd800", "#d00000"

POINTERS = [
    ("default", arrow(1.5, BLACK, [(WHITE, 1.5)])),
    ("Arrow small", arrow(1, BLACK, [(WHITE, 1)])),
    ("Arrow large", arrow(3, BLACK, [(WHITE, 2)])),
    ("Arrow large white", arrow(3, WHITE, [(BLACK, 2)])),
    ("Arrow huge yellow+1x2", arrow(5, YELLOW, [(BLACK, 3), (WHITE, 1)])),
    ("Arrow large see-through", arrow(3, BLACK, [(WHITE, 2)], opacity=0.45)),
    ("Crosshair small+12x12", crosshair(12, 3, 3, BLACK, WHITE)),
    ("Crosshair large+24x24", crosshair(24, 5, 5, BLACK, WHITE)),
    ("Crosshair large white+24x24", crosshair(24, 5, 5, WHITE, BLACK)),
    ("Crosshair huge see-through+40x40", crosshair(40, 8, 9, RED, WHITE, opacity=0.5)),
    ("Ring+20x20", rings(20, [17], 3, RED, WHITE)),
    ("Target huge+40x40", rings(40, [37, 20], 4, YELLOW, BLACK)),
]
