# SPDX-License-Identifier: GPL-3.0-or-later
"""Anti-aliased shapes on a small canvas, using only the standard library.

A shape is a function that returns the distance of a point from its edge (negative inside), in drawing units. Edges
are anti-aliased over one pixel, so that a drawing is crisp at every size.
"""

import math


class Canvas:
    """An RGBA image with opacities from 0 to 1; a drawing unit is `scale` pixels."""

    def __init__(self, width, height, scale=1.0):
        self.scale = scale
        self.width = round(width * scale)
        self.height = round(height * scale)
        self.pixels = [[(0.0, 0.0, 0.0, 0.0)] * self.width for _ in range(self.height)]

    def paint(self, shape, color, opacity=1.0):
        """Paints `shape` over the canvas; `color` is an (r, g, b) or a function of (x, y) that returns one."""
        for row in range(self.height):
            y = (row + 0.5) / self.scale
            line = self.pixels[row]
            for column in range(self.width):
                x = (column + 0.5) / self.scale
                cover = min(1.0, max(0.0, 0.5 - shape(x, y) * self.scale)) * opacity
                if cover > 0:
                    line[column] = over(color(x, y) if callable(color) else color, cover, line[column])


def over(color, cover, below):
    alpha = cover + below[3] * (1 - cover)
    mixed = [(c * cover + b * below[3] * (1 - cover)) / alpha for c, b in zip(color, below)]
    return (mixed[0], mixed[1], mixed[2], alpha)


def circle(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) - radius


def rounded_box(left, top, right, bottom, radius):
    cx, cy = (left + right) / 2, (top + bottom) / 2
    half_width, half_height = (right - left) / 2 - radius, (bottom - top) / 2 - radius

    def distance(x, y):
        dx, dy = abs(x - cx) - half_width, abs(y - cy) - half_height
        return math.hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0) - radius

    return distance


def line(x1, y1, x2, y2, width):
    length_squared = (x2 - x1) ** 2 + (y2 - y1) ** 2

    def distance(x, y):
        t = ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length_squared
        t = min(1, max(0, t))
        return math.hypot(x - x1 - t * (x2 - x1), y - y1 - t * (y2 - y1)) - width / 2

    return distance


def arc(cx, cy, radius, facing, spread, width):
    """A stroke along a circle, `spread` radians to either side of the direction `facing`."""
    ends = [(cx + radius * math.cos(facing + s), cy + radius * math.sin(facing + s)) for s in (-spread, spread)]

    def distance(x, y):
        turn = math.remainder(math.atan2(y - cy, x - cx) - facing, 2 * math.pi)
        if abs(turn) <= spread:
            return abs(math.hypot(x - cx, y - cy) - radius) - width / 2
        return min(math.hypot(x - ex, y - ey) for ex, ey in ends) - width / 2

    return distance


def triangle(*corners):
    """The corners must be in clockwise order on the screen."""
    edges = []
    for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
        length = math.hypot(x2 - x1, y2 - y1)
        edges.append((x1, y1, (y2 - y1) / length, (x1 - x2) / length))
    return lambda x, y: max((x - px) * nx + (y - py) * ny for px, py, nx, ny in edges)


def vertical_blend(top, bottom, y1, y2):
    def color(_, y):
        t = min(1, max(0, (y - y1) / (y2 - y1)))
        return tuple(a + (b - a) * t for a, b in zip(top, bottom))

    return color
