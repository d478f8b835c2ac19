"""The separator details of the data sheet: a stretch of the ball row, seen along the axis, in a field of its own."""

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
    centres = balls(plot, 4)
    plot.pen(3)
    for x in centres:
        plot.arc(x, MIDDLE, BALL + 0.03, 15, 150)
        plot.arc(x, MIDDLE, BALL + 0.03, 195, 150)
    for left, right in zip(centres, centres[1:]):
        for y in (MIDDLE - 0.05, MIDDLE + 0.05):
            plot.path((left + BALL + 0.02, y), (right - BALL - 0.02, y))
        if rivets:
            plot.circle((left + right) / 2, MIDDLE, 0.022)


def crown(plot):
    centres = balls(plot, 4)
    plot.pen(3)
    plot.path((LEFT, MIDDLE - 0.30), (RIGHT, MIDDLE - 0.30))
    for x in centres:
        plot.arc(x, MIDDLE, BALL + 0.02, 150, 240)
    for left, right in zip(centres, centres[1:]):
        plot.path((left + BALL, MIDDLE + 0.09), ((left + right) / 2, MIDDLE + 0.02), (right - BALL, MIDDLE + 0.09))


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
    centres = balls(plot, 4)
    plot.pen(3)
    for left, right in zip(centres, centres[1:]):
        plot.circle((left + right) / 2, MIDDLE, 0.028)
    for x in (LEFT + 0.0, RIGHT):
        plot.circle(x, MIDDLE, 0.028)


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
        plot.arc(x, MIDDLE, 0.155, 0 if i % 2 else 180, 180)
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
