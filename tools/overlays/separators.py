"""The separator details of the data sheet: a stretch of the ball row, seen along the axis, in a field of its own.

Balls and massive parts have the thick outline of the first pen; strip, wire and springs are thin; what is cut is
hatched. Nothing of a detail leaves the field.
"""

import math

from plot import BLACK, BLUE, RED

LEFT, RIGHT, MIDDLE = 6.42, 8.08, 5.60
CENTRE = (LEFT + RIGHT) / 2
HATCH = 0.06


def balls(plot, count, pitch, radius):
    """Balls in a row around the middle of the field; gives their centres."""
    centres = [CENTRE + pitch * (i - (count - 1) / 2) for i in range(count)]
    for x in centres:
        plot.circle(x, MIDDLE, radius)
    return centres


def gaps(centres):
    """The middles between neighbours."""
    return [(left + right) / 2 for left, right in zip(centres, centres[1:])]


def centre_line(plot):
    plot.pen(RED)
    plot.dash_dot((LEFT, MIDDLE), (RIGHT, MIDDLE))


def hatch(plot, left, right, low, high, is_cut):
    """Hatching at 45 degrees in the part of a rectangle that is cut material."""
    plot.pen(BLUE)
    step = HATCH * math.sqrt(2)
    offset = math.floor((left - high) / step) * step
    while offset < right - low:
        start, end = max(left, low + offset), min(right, high + offset)
        if start < end:
            plot.clipped((start, start - offset), (end, end - offset), is_cut)
        offset += step


def ribbon(plot, rivets):
    """Two strips that close around each ball and meet between them; one kind snaps over, the other is riveted."""
    radius, sheet, chords = 0.19, 0.03, 14
    centres = balls(plot, 3, 0.56, radius)
    reach = radius + 0.045
    opening = math.degrees(math.asin(sheet / reach))
    end = reach * math.cos(math.radians(opening))
    edges = [LEFT + 0.02] + [x + to * end for x in centres for to in (-1, 1)] + [RIGHT - 0.02]
    plot.pen(BLACK)
    for side in (-1, 1):
        for x in centres:
            plot.curve(x, MIDDLE, reach, opening if side > 0 else 180 + opening, 180 - 2 * opening, chords)
        for left, right in zip(edges[::2], edges[1::2]):
            plot.path((left, MIDDLE + side * sheet), (right, MIDDLE + side * sheet))
    for x in gaps(centres):
        if rivets:
            rivet(plot, x, sheet)
        else:
            # The tongue that snaps over the strip of the other side.
            plot.path((x - 0.025, MIDDLE + sheet), (x - 0.025, MIDDLE - sheet - 0.025), (x + 0.02, MIDDLE - sheet - 0.025),
                      (x + 0.02, MIDDLE - sheet))


def rivet(plot, x, sheet):
    for side in (-1, 1):
        y = MIDDLE + side * sheet
        plot.path((x - 0.04, y), (x - 0.03, y + side * 0.035), (x + 0.03, y + side * 0.035), (x + 0.04, y))
    for edge in (x - 0.018, x + 0.018):
        plot.path((edge, MIDDLE - sheet), (edge, MIDDLE + sheet))


def crown(plot):
    """One piece: a rail on one side with prongs that grip the balls."""
    radius, pocket, opening = 0.18, 0.215, 25
    centres = balls(plot, 3, 0.53, radius)
    left, right, rail = LEFT + 0.05, RIGHT - 0.05, MIDDLE - 0.34
    end = pocket * math.cos(math.radians(opening))
    tip = MIDDLE + pocket * math.sin(math.radians(opening))
    for x in centres:
        plot.curve(x, MIDDLE, pocket, 180 - opening, 180 + 2 * opening, 16)
    edges = [left] + [x + side * end for x in centres for side in (-1, 1)] + [right]
    for start, stop in zip(edges[::2], edges[1::2]):
        plot.path((start, tip), (stop, tip))
    plot.path((left, tip), (left, rail), (right, rail), (right, tip))
    hatch(plot, left, right, rail, tip, lambda x, y: all(math.hypot(x - c, y - MIDDLE) > pocket for c in centres))


def toroid(plot):
    """Every second ball carries a ring; the balls between stand free."""
    radius, ring = 0.14, 0.235
    centres = balls(plot, 4, radius + ring, radius)
    ringed = centres[1::2]
    for x in ringed:
        plot.circle(x, MIDDLE, ring)
    for x in ringed:
        hatch(plot, x - ring, x + ring, MIDDLE - ring, MIDDLE + ring,
              lambda px, py, c=x: radius < math.hypot(px - c, py - MIDDLE) < ring)


def slug(plot):
    """Cylinders between the balls, with hollow ends."""
    radius, half = 0.15, 0.10
    centres = balls(plot, 3, 0.60, radius)
    reach = radius + 0.035
    bow = math.degrees(math.asin(half / reach))
    end = reach * math.cos(math.radians(bow))
    for left, right in zip(centres, centres[1:]):
        plot.curve(left, MIDDLE, reach, -bow, 2 * bow, 6)
        plot.curve(right, MIDDLE, reach, 180 - bow, 2 * bow, 6)
        for y in (MIDDLE - half, MIDDLE + half):
            plot.path((left + end, y), (right - end, y))
    for left, right in zip(centres, centres[1:]):
        hatch(plot, left, right, MIDDLE - half, MIDDLE + half,
              lambda x, y, a=left, b=right: min(math.hypot(x - a, y - MIDDLE), math.hypot(x - b, y - MIDDLE)) > reach)


def spacer(plot):
    """Smaller balls, which carry nothing, between the ones that do."""
    radius, small = 0.175, 0.125
    centres = balls(plot, 3, 2 * (radius + small), radius)
    plot.pen(BLACK)
    for x in gaps(centres):
        plot.circle(x, MIDDLE, small)


def spring(plot):
    """Coils between the balls."""
    radius, coils, height = 0.15, 5, 0.09
    centres = balls(plot, 3, 0.62, radius)
    plot.pen(BLACK)
    for left, right in zip(centres, centres[1:]):
        start = left + math.sqrt(radius ** 2 - height ** 2) + 0.03
        step = (left + right - 2 * start) / coils
        for i in range(coils + 1):
            x = start + step * i
            plot.path((x, MIDDLE - height), (x, MIDDLE + height))
            if i < coils:
                plot.path((x, MIDDLE + height), (x + step, MIDDLE - height))


def wire(plot):
    """A wire that winds around the balls, above and below them in turn."""
    radius, pitch, thick = 0.135, 0.32, 0.025
    centres = balls(plot, 5, pitch, radius)
    plot.pen(BLACK)
    for i, x in enumerate(centres):
        for reach in (pitch / 2 - thick / 2, pitch / 2 + thick / 2):
            plot.curve(x, MIDDLE, reach, 0 if i % 2 else 180, 180, 10)


def full(plot):
    """Ball beside ball."""
    balls(plot, 5, 0.33, 0.165)


SEPARATORS = {
    "RIBBON": lambda plot: ribbon(plot, False),
    "RIVET": lambda plot: ribbon(plot, True),
    "CROWN": crown,
    "TOROID": toroid,
    "SLUG": slug,
    "SPACER": spacer,
    "SPRING": spring,
    "WIRE": wire,
    "FULL": full,
}


def draw_separator(plot, name):
    SEPARATORS[name](plot)
    centre_line(plot)
