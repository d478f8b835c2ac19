"""The separator details of the data sheet: a stretch of the ball row, seen along the axis, in a field of its own."""

import math

LEFT, RIGHT, MIDDLE = 6.50, 8.00, 5.60
BALL = 0.16


def balls(plot, count, radius=BALL):
    """Balls spread evenly over the field; gives their centres."""
    pitch = (RIGHT - LEFT) / count
    centres = [LEFT + pitch * (i + 0.5) for i in range(count)]
    for x in centres:
        plot.circle(x, MIDDLE, radius)
    return centres


def centre_line(plot):
    plot.pen(1)
    plot.dash_dot((LEFT - 0.08, MIDDLE), (RIGHT + 0.08, MIDDLE))


def ribbon(plot, rivets):
    """Two strips that close around each ball and meet between them; one kind snaps over, the other is riveted."""
    centres = balls(plot, 3)
    plot.pen(3)
    reach = BALL + 0.03
    for x in centres:
        plot.curve(x, MIDDLE, reach, 10, 160, 10)
        plot.curve(x, MIDDLE, reach, 190, 160, 10)
    end = reach * math.cos(math.radians(10))
    gap = reach * math.sin(math.radians(10))
    edges = [(LEFT, centres[0] - end)] + [(left + end, right - end) for left, right in zip(centres, centres[1:])]
    for left, right in edges + [(centres[-1] + end, RIGHT)]:
        for y in (MIDDLE - gap, MIDDLE + gap):
            plot.path((left, y), (right, y))
    if not rivets:
        return
    for left, right in zip(centres, centres[1:]):
        x = (left + right) / 2
        for side in (-1, 1):
            plot.path((x - 0.03, MIDDLE + side * gap), (x - 0.02, MIDDLE + side * (gap + 0.03)),
                      (x + 0.02, MIDDLE + side * (gap + 0.03)), (x + 0.03, MIDDLE + side * gap))
        plot.path((x - 0.015, MIDDLE - gap), (x - 0.015, MIDDLE + gap))
        plot.path((x + 0.015, MIDDLE - gap), (x + 0.015, MIDDLE + gap))


def crown(plot):
    """One piece: a rail on one side with prongs that grip the balls."""
    centres = balls(plot, 3)
    plot.pen(3)
    reach, rail = BALL + 0.02, MIDDLE - 0.27
    end, tip = reach * math.cos(math.radians(25)), MIDDLE + reach * math.sin(math.radians(25))
    for x in centres:
        plot.curve(x, MIDDLE, reach, 155, 230, 14)
    edges = [LEFT] + [x + side * end for x in centres for side in (-1, 1)] + [RIGHT]
    for left, right in zip(edges[::2], edges[1::2]):
        plot.path((left, tip), (right, tip))
    plot.path((LEFT, tip), (LEFT, rail), (RIGHT, rail), (RIGHT, tip))


def toroid(plot):
    centres = balls(plot, 4)
    plot.pen(3)
    for x in centres[::2]:
        plot.circle(x, MIDDLE, BALL + 0.045)
        plot.circle(x, MIDDLE, BALL + 0.018)


def slug(plot):
    centres = balls(plot, 4)
    plot.pen(3)
    for left, right in zip(centres, centres[1:]):
        x = (left + right) / 2
        plot.box(x - 0.025, MIDDLE - 0.11, x + 0.025, MIDDLE + 0.11)


def spacer(plot):
    """Smaller balls between the ones that carry."""
    small = 0.11
    pitch = 2 * (BALL + small)
    for i in (-1, 0, 1):
        plot.circle((LEFT + RIGHT) / 2 + i * pitch, MIDDLE, BALL)
    plot.pen(3)
    for i in (-0.5, 0.5):
        plot.circle((LEFT + RIGHT) / 2 + i * pitch, MIDDLE, small)


def spring(plot):
    centres = balls(plot, 4)
    plot.pen(3)
    for left, right in zip(centres, centres[1:]):
        start, stop, coils = left + BALL, right - BALL, 3
        step = (stop - start) / (2 * coils)
        points = [(start + step * i, MIDDLE + (0.07 if i % 2 else -0.07)) for i in range(2 * coils + 1)]
        plot.path(*points)


def wire(plot):
    centres = balls(plot, 5, 0.135)
    plot.pen(3)
    for i, x in enumerate(centres):
        plot.curve(x, MIDDLE, 0.155, 0 if i % 2 else 180, 180, 10)
    plot.path((LEFT - 0.03, MIDDLE - 0.2), (RIGHT + 0.03, MIDDLE - 0.2))


def full(plot):
    radius = (RIGHT - LEFT) / 10
    balls(plot, 5, radius)


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
