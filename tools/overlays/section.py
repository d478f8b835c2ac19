"""The section drawing of a bearing or set on the data sheet, in page inches.

The axis is vertical and far to the right: outer ring on the left, inner ring on the right. A bearing and a set are both
two inches high; a set is drawn at half the scale.
"""

import math

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


def groove_edge(shape, land):
    """How far above and below the ball's centre the groove meets a land."""
    return math.sqrt(max(shape.groove ** 2 - (land - CENTRE) ** 2, 0.0))


def outer_profile(shape, row):
    """The inner side of the outer ring from the row's top to its bottom: pieces of land between which the groove lies."""
    y, low, high, bore = row
    upper = shape.relief if bore == "up" else shape.outer_land
    lower = shape.relief if bore == "down" else shape.outer_land
    return upper, y + groove_edge(shape, upper), lower, y - groove_edge(shape, lower)


def draw_rings(plot, shape):
    for row in shape.rows:
        y, low, high, _ = row
        upper, upper_end, lower, lower_end = outer_profile(shape, row)
        r = shape.round
        plot.path((upper, upper_end), (upper, high), (shape.left + r, high))
        plot.arc(shape.left + r, high - r, r, 90, 90)
        plot.path((shape.left, high - r), (shape.left, low + r))
        plot.arc(shape.left + r, low + r, r, 180, 90)
        plot.path((shape.left + r, low), (lower, low), (lower, lower_end))
        draw_groove(plot, shape, y, (upper, upper_end), (lower, lower_end))
        edge = groove_edge(shape, shape.inner_land)
        plot.path((shape.inner_land, y + edge), (shape.inner_land, high), (shape.right - r, high))
        plot.arc(shape.right - r, high - r, r, 0, 90)
        plot.path((shape.right, high - r), (shape.right, low + r))
        plot.arc(shape.right - r, low + r, r, 270, 90)
        plot.path((shape.right - r, low), (shape.inner_land, low), (shape.inner_land, y - edge))
        draw_groove(plot, shape, y, (shape.inner_land, y - edge), (shape.inner_land, y + edge))


def draw_groove(plot, shape, y, start, end):
    """The visible groove between two land ends, around the ball's centre."""
    first = math.degrees(math.atan2(start[1] - y, start[0] - CENTRE)) % 360
    last = math.degrees(math.atan2(end[1] - y, end[0] - CENTRE)) % 360
    sweep = (last - first) % 360
    radius = math.hypot(start[0] - CENTRE, start[1] - y)
    plot.arc(CENTRE, y, radius, first, round(sweep, 2))


def clip(start, end, blocks):
    """The parts of a hatch line whose points `blocks` says are steel, found by walking along it."""
    steps = 160
    run = None
    for i in range(steps + 1):
        t = i / steps
        point = (start[0] + (end[0] - start[0]) * t, start[1] + (end[1] - start[1]) * t)
        if blocks(*point):
            run = (run[0], point) if run else (point, point)
        elif run:
            if run[0] != run[1]:
                yield run
            run = None
    if run and run[0] != run[1]:
        yield run


def hatch(plot, shape):
    """45 degrees, opposite in the two rings."""

    def outer_steel(x, y):
        for row in shape.rows:
            centre, low, high, _ = row
            upper, upper_end, lower, lower_end = outer_profile(shape, row)
            if low <= y <= high and x >= shape.left:
                edge = upper if y >= upper_end else lower if y <= lower_end else CENTRE
                return x <= edge and math.hypot(x - CENTRE, y - centre) >= shape.groove
        return False

    def inner_steel(x, y):
        for centre, low, high, _ in shape.rows:
            if low <= y <= high and x <= shape.right:
                edge = groove_edge(shape, shape.inner_land)
                land = shape.inner_land if abs(y - centre) >= edge else CENTRE
                return x >= land and math.hypot(x - CENTRE, y - centre) >= shape.groove
        return False

    step = shape.hatch * math.sqrt(2)
    offset = -2.2
    while offset < 2.2:
        y = 7.80 + offset
        for steel, slope, left, right in ((outer_steel, 1, shape.left, CENTRE), (inner_steel, -1, CENTRE, shape.right)):
            width = right - left
            ends = ((left, y - slope * width / 2), (right, y + slope * width / 2))
            for start, end in clip(*ends, steel):
                plot.path(start, end)
        offset += step


def draw_section(plot, style):
    """Balls first, then the rings in the first thick black, then hatching and the thin lines."""
    shape = Shape(style)
    for y, *_ in shape.rows:
        plot.circle(CENTRE, y, shape.ball)
    draw_rings(plot, shape)
    plot.pen(3)
    hatch(plot, shape)
    plot.pen(1)
    plot.dash_dot((CENTRE, 6.72), (CENTRE, 9.06))
    for (y, *_), angles in zip(shape.rows, shape.contacts):
        reach = 0.93 * (0.5 if shape.is_set else 1.0)
        if 0 not in angles:
            plot.dash_dot((CENTRE - 0.6 * reach, y), (CENTRE + 0.6 * reach, y))
        for angle in angles:
            dx, dy = reach * math.cos(math.radians(angle)), reach * math.sin(math.radians(angle))
            plot.dash_dot((CENTRE - dx, y - dy), (CENTRE + dx, y + dy))
    return shape
