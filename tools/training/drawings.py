"""Drawings of the slide show, from geometry. Lengths are centimetres on the
slide, angles degrees, 0 along +x and growing toward the top."""

import math

STEEL, EDGE, BALL = "#c9d4ea", "#22305c", "#f4f6fb"
RED, GREEN, BLUE, GRAY = "#b01818", "#1c7a3c", "#00286e", "#5a6070"
PALE, NOTE = "#eef2fa", "#fff7db"


def at(x, y, radius, angle):
    turn = math.radians(angle)
    return x + radius * math.cos(turn), y - radius * math.sin(turn)


def arc(x, y, radius, start, end, steps=24):
    return [at(x, y, radius, start + (end - start) * step / steps)
            for step in range(steps + 1)]


def ring_section(slide, x, y, size, ball, contacts, height=1.0):
    """The section of a bearing: two rings, a ball in its groove, and lines of
    contact at the angles given. `size` is half of the square's side."""
    groove, wide = 1.04 * ball, size * height
    for side in (1, -1):
        land = 0.72 * ball
        reach = math.degrees(math.acos(land / groove))
        bed = [at(x, y, groove, side * angle) for angle in
               (90 - reach + 2 * reach * step / 24 for step in range(25))]
        slide.polygon([(x - wide, y - side * size), (x + wide, y - side * size),
                       (x + wide, y - side * land), *bed,
                       (x - wide, y - side * land)],
                      fill=STEEL, line=EDGE)
    slide.circle(x, y, ball, fill=BALL, line=EDGE)
    for angle in contacts:
        x1, y1 = at(x, y, 1.45 * size, angle)
        x2, y2 = at(x, y, 1.45 * size, angle + 180)
        slide.line(x1, y1, x2, y2, line=RED, thick=0.06, dash=True)


def face(slide, x, y, outer, section, balls):
    """A bearing seen along its axis."""
    pitch = outer - section / 2
    slide.circle(x, y, outer, fill=STEEL, line=EDGE)
    slide.circle(x, y, outer - 0.30 * section, fill="#ffffff", line=EDGE,
                 thick=0.03)
    slide.circle(x, y, outer - 0.70 * section, fill=STEEL, line=EDGE,
                 thick=0.03)
    slide.circle(x, y, outer - section, fill="#ffffff", line=EDGE)
    for ball in range(balls):
        bx, by = at(x, y, pitch, 360 * ball / balls)
        slide.circle(bx, by, 0.25 * section, fill=BALL, line=EDGE, thick=0.03)


def rose(slide, x, y, radius, loads, reach, colour):
    """Ball loads as spikes on the ball circle, the first ball at the bottom,
    where the radial load presses."""
    greatest = max(loads)
    slide.circle(x, y, radius, line=GRAY, thick=0.04)
    tips = []
    for ball, load in enumerate(loads):
        angle = -90 + 360 * ball / len(loads)
        foot = at(x, y, radius, angle)
        tip = at(x, y, radius + reach * load / greatest, angle)
        tips.append(tip)
        if load > 0:
            slide.line(*foot, *tip, line=colour, thick=0.06)
    slide.polygon(tips, line=colour, thick=0.04)


class Chart:
    """Axes with grid lines and numbers; curves in the units of the axes."""

    def __init__(self, slide, left, top, width, height, x_max, y_max):
        self.slide, self.left, self.top = slide, left, top
        self.width, self.height = width, height
        self.x_max, self.y_max = x_max, y_max
        slide.rect(left, top, width, height, fill="#ffffff", line=EDGE)

    def point(self, x, y):
        return (self.left + self.width * x / self.x_max,
                self.top + self.height * (1 - y / self.y_max))

    def grid(self, xs, ys):
        """Grid lines at values, each with its text."""
        for value, text in xs:
            x, bottom = self.point(value, 0)
            self.slide.line(x, self.top, x, bottom, line="#cfd5e3", thick=0.02)
            self.slide.text(x - 1.5, bottom + 0.1, 3, 0.7, text, size=12,
                            align="center", colour=GRAY)
        for value, text in ys:
            left, y = self.point(0, value)
            self.slide.line(left, y, left + self.width, y, line="#cfd5e3",
                            thick=0.02)
            self.slide.text(left - 2.6, y - 0.33, 2.4, 0.7, text, size=12,
                            align="end", colour=GRAY)

    def names(self, x, y):
        self.slide.text(self.left, self.top + self.height + 0.75, self.width,
                        0.8, x, size=13, align="center", colour=BLUE)
        self.slide.text(self.left - 2.6, self.top - 0.95, self.width, 0.8, y,
                        size=13, colour=BLUE)

    def curve(self, points, colour, thick=0.09):
        self.slide.polyline([self.point(x, y) for x, y in points],
                            line=colour, thick=thick)

    def band(self, low, high, colour="#e0e0e0"):
        x1, _ = self.point(low, 0)
        x2, _ = self.point(high, 0)
        self.slide.rect(x1, self.top, x2 - x1, self.height, fill=colour)


def arrow(slide, x1, y1, x2, y2, colour=GREEN):
    slide.line(x1, y1, x2, y2, line=colour, thick=0.14, arrow=True)
