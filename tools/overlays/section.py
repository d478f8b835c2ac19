"""The section drawing of a bearing or set on the data sheet, in page inches.

The axis is vertical and far to the right: outer ring on the left, inner ring on the right. A bearing and a set are both
two inches high; a set is drawn at half the scale.
"""

import math

from plot import BLUE, RED

CENTRE, TOP, BOTTOM = 3.95, 8.80, 6.80
FAMILY_A = "ABFTU"
SETS = "BFT"


class Shape:
    """The outline of one style."""

    def __init__(self, style):
        self.style = style
        self.is_set = style in SETS
        scale = 0.5 if self.is_set else 1.0
        self.left, self.right = CENTRE - scale, CENTRE + scale
        self.ball, self.groove = 0.488 * scale, 0.518 * scale
        self.outer_land, self.inner_land = CENTRE - 0.355 * scale, CENTRE + 0.355 * scale
        self.relief = CENTRE - 0.454 * scale
        self.round = 0.09 * scale
        self.hatch = 0.075 if self.is_set else 0.11
        rows = (8.30, 7.30) if self.is_set else (7.80,)
        half = 0.5 if self.is_set else 1.0
        # Each row: its ball, its lower and upper end, and where the outer ring is counterbored ("up", "down", "").
        bores = {"A": ("down",), "U": ("down",), "T": ("down", "down"), "B": ("up", "down"), "F": ("down", "up")}
        self.rows = [(y, y - half, y + half, bore)
                     for y, bore in zip(rows, bores.get(style, ("",) * len(rows)))]
        self.contacts = {"C": ((0,),), "X": ((30, -30),), "A": ((-30,),), "U": ((-30,),), "T": ((-30,), (-30,)),
                         "B": ((30,), (-30,)), "F": ((-30,), (30,))}[style]


OUTER, INNER = -1, 1  # the ring's side of the ball
UPPER, LOWER = 1, -1


def groove_centre(shape, row, side, half):
    """The centre of a groove arc. The groove is wider than the ball and touches it on the contact line, so the centre
    lies beyond the ball's, away from the contact. A four-point ring has an arc for each half."""
    angles = shape.contacts[shape.rows.index(row)]
    angle = math.radians(angles[0] if len(angles) == 1 else 30 * side * half)
    shift = shape.groove - shape.ball
    return CENTRE - side * shift * math.cos(angle), row[0] - side * shift * math.sin(angle)


def groove_edge(shape, row, side, half, land):
    """The height at which the groove meets a land."""
    x, y = groove_centre(shape, row, side, half)
    return y + half * math.sqrt(shape.groove ** 2 - (land - x) ** 2)


def lands(shape, row, side):
    """The ring's lands above and below the groove."""
    if side == INNER:
        return shape.inner_land, shape.inner_land
    bore = row[3]
    return (shape.relief if bore == "up" else shape.outer_land, shape.relief if bore == "down" else shape.outer_land)


def draw_corner(plot, shape, side, x, y, half):
    """A rounded exterior corner at (x, y)."""
    r = shape.round
    start = {(OUTER, UPPER): 90, (OUTER, LOWER): 180, (INNER, UPPER): 0, (INNER, LOWER): 270}[side, half]
    plot.curve(x - side * r, y - half * r, r, start, 90, 3 if shape.is_set else 5)


def draw_ring(plot, shape, row, side):
    _, low, high, _ = row
    upper, lower = lands(shape, row, side)
    upper_end = groove_edge(shape, row, side, UPPER, upper)
    lower_end = groove_edge(shape, row, side, LOWER, lower)
    edge = shape.left if side == OUTER else shape.right
    inside = edge - side * shape.round
    plot.path((upper, upper_end), (upper, high), (inside, high))
    draw_corner(plot, shape, side, edge, high, UPPER)
    plot.path((edge, high - shape.round), (edge, low + shape.round))
    draw_corner(plot, shape, side, edge, low, LOWER)
    plot.path((inside, low), (lower, low), (lower, lower_end))
    draw_groove(plot, shape, row, side, (upper, upper_end), (lower, lower_end))


def draw_groove(plot, shape, row, side, upper, lower):
    """The groove between its ends, counter-clockwise; the two arcs of a four-point ring meet in the ball's plane."""
    x, y = groove_centre(shape, row, side, UPPER)
    middle = (x + side * math.sqrt(shape.groove ** 2 - (row[0] - y) ** 2), row[0])
    if len(shape.contacts[shape.rows.index(row)]) == 1:
        pieces = [(UPPER, upper, lower)]
    else:
        pieces = [(UPPER, upper, middle), (LOWER, middle, lower)]
    for half, first, last in pieces:
        if side == INNER:
            first, last = last, first
        x, y = groove_centre(shape, row, side, half)
        start = math.degrees(math.atan2(first[1] - y, first[0] - x)) % 360
        stop = math.degrees(math.atan2(last[1] - y, last[0] - x)) % 360
        sweep = (stop - start) % 360
        plot.curve(x, y, shape.groove, start, sweep, math.ceil(sweep / 8))


def draw_rings(plot, shape):
    for row in shape.rows:
        draw_ring(plot, shape, row, OUTER)
        draw_ring(plot, shape, row, INNER)


def is_steel(shape, side, x, y):
    """Whether a place lies in the ring of any row."""
    edge = shape.left if side == OUTER else shape.right
    if side * (x - edge) > 0:
        return False
    for row in shape.rows:
        ball, low, high, _ = row
        if not low <= y <= high:
            continue
        r = shape.round
        corner_x, corner_y = edge - side * r, high - r if y > high - r else low + r
        if side * (x - corner_x) > 0 and not low + r <= y <= high - r and math.hypot(x - corner_x, y - corner_y) > r:
            return False
        half = UPPER if y >= ball else LOWER
        land = lands(shape, row, side)[0 if half == UPPER else 1]
        beyond = half * (y - groove_edge(shape, row, side, half, land)) >= 0
        centre = groove_centre(shape, row, side, half)
        return (side * (x - (land if beyond else CENTRE)) >= 0
                and (beyond or math.hypot(x - centre[0], y - centre[1]) >= shape.groove))
    return False


def hatch(plot, shape):
    """45 degrees, opposite in the two rings."""

    step = shape.hatch * math.sqrt(2)
    offset = -2.2
    while offset < 2.2:
        y = 7.80 + offset
        for side, slope, left, right in ((OUTER, 1, shape.left, CENTRE), (INNER, -1, CENTRE, shape.right)):
            width = right - left
            ends = ((left, y - slope * width / 2), (right, y + slope * width / 2))
            plot.clipped(*ends, lambda px, py, ring=side: is_steel(shape, ring, px, py))
        offset += step


def draw_section(plot, style):
    """Balls first, then the rings in the first thick black, then hatching and the thin lines."""
    shape = Shape(style)
    for y, *_ in shape.rows:
        plot.circle(CENTRE, y, shape.ball)
    draw_rings(plot, shape)
    plot.pen(BLUE)
    hatch(plot, shape)
    plot.pen(RED)
    plot.dash_dot((CENTRE, 6.72), (CENTRE, 9.06))
    for (y, *_), angles in zip(shape.rows, shape.contacts):
        reach = 0.93 * (0.5 if shape.is_set else 1.0)
        if 0 not in angles:
            plot.dash_dot((CENTRE - 0.6 * reach, y), (CENTRE + 0.6 * reach, y))
        for angle in angles:
            dx, dy = reach * math.cos(math.radians(angle)), reach * math.sin(math.radians(angle))
            plot.dash_dot((CENTRE - dx, y - dy), (CENTRE + dx, y + dy))
    return shape
