"""An HP-GL plot in page inches: the few instructions that the data sheet's reader draws."""

import math

UNITS = 1016.0
LEFT, BOTTOM = 0.25, 0.625

RED, BLACK, BLUE = 1, 2, 3
SHORTEST = 0.02  # a shorter hatch line is a speck


class Plot:
    """Collects instructions. Coordinates are page inches from the lower left corner."""

    def __init__(self):
        self.words = ["IN"]

    @staticmethod
    def _at(x, y):
        return f"{round((x - LEFT) * UNITS)},{round((y - BOTTOM) * UNITS)}"

    def pen(self, number):
        """Colour; the line is thin from here on."""
        self.words.append(f"SP{number}")

    def path(self, *points):
        """Lines through the points."""
        first, *rest = points
        self.words.append("PU" + self._at(*first))
        self.words.extend("PD" + self._at(*point) for point in rest)

    def box(self, left, bottom, right, top):
        self.path((left, bottom), (right, bottom), (right, top), (left, top), (left, bottom))

    def circle(self, x, y, radius):
        self.words.append("PU" + self._at(x + radius, y))
        self.words.append(f"AA{self._at(x, y)},360")

    def curve(self, x, y, radius, start, sweep, chords):
        """An arc as chords, angles in degrees, counter-clockwise; the reader's own arcs have more of them than a text
        program needs."""
        angles = [math.radians(start + sweep * i / chords) for i in range(chords + 1)]
        self.path(*((x + radius * math.cos(angle), y + radius * math.sin(angle)) for angle in angles))

    def dash_dot(self, start, end, dash=0.16, gap=0.035, dot=0.03):
        """A centre line as strokes of its own."""
        length = math.dist(start, end)
        ux, uy = (end[0] - start[0]) / length, (end[1] - start[1]) / length
        at = 0.0
        long_stroke = True
        while at < length:
            stroke = dash if long_stroke else dot
            stop = min(at + stroke, length)
            self.path((start[0] + ux * at, start[1] + uy * at), (start[0] + ux * stop, start[1] + uy * stop))
            at = stop + gap
            long_stroke = not long_stroke

    def clipped(self, start, end, is_inside):
        """The parts of a line whose points are inside, found by walking along it."""
        steps = 160
        run = None
        for i in range(steps + 2):
            t = i / steps
            point = (start[0] + (end[0] - start[0]) * t, start[1] + (end[1] - start[1]) * t)
            if i <= steps and is_inside(*point):
                run = (run[0], point) if run else (point, point)
            elif run:
                if math.dist(*run) > SHORTEST:
                    self.path(*run)
                run = None

    def arrow(self, x, y, direction):
        """A slim arrowhead with its tip at (x, y); direction in degrees of the way it points."""
        angle = math.radians(direction)
        ux, uy = math.cos(angle), math.sin(angle)
        for half in (0.02, 0.0125, 0.005):
            self.path((x - 0.11 * ux + half * uy, y - 0.11 * uy - half * ux), (x, y),
                      (x - 0.11 * ux - half * uy, y - 0.11 * uy + half * ux))
        self.path((x - 0.11 * ux + 0.02 * uy, y - 0.11 * uy - 0.02 * ux),
                  (x - 0.11 * ux - 0.02 * uy, y - 0.11 * uy + 0.02 * ux))

    def text(self):
        return ";\r\n".join(self.words) + ";\r\n"
