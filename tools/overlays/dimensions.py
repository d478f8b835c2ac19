"""Dimension lines, runout frames and datum signs around the section, meeting the texts of the sheet."""

import math

from plot import BLACK
from section import BOTTOM, CENTRE, TOP

GAP, OVER = 0.05, 0.06


def middle(top):
    """The middle of the figures of a size text whose box has this top: Courier of 14 points has its feet 0.833 em below
    the top of its line, and its figures are 0.67 em high."""
    return top - (0.833 - 0.67 / 2) * 14 / 72


# The middles of the size texts of the sheet.
PITCH, BORE, OUTSIDE = middle(9.088), middle(6.467), middle(5.25)
INNER_LAND, UPPER_LAND, RELIEF, OUTER_LAND = middle(5.741), middle(9.631), middle(5.47), middle(5.487)
LEFT_HEIGHT, RIGHT_HEIGHT = middle(8.14), middle(8.022)
INNER_RUNOUT, OUTER_RUNOUT = middle(6.102), middle(4.91)
HALF_GAP = 0.125
HALF_FRAME = 0.125


def extension_down(plot, x, top, y):
    plot.path((x, top), (x, y - OVER))


def half_dimension(plot, x, y, text_x):
    """An arrow to the left at the extension line, and a line to the text."""
    plot.path((x, y), (text_x, y))
    plot.arrow(x, y, 180)


def height(plot, edge, x, text):
    """A vertical dimension with a gap for its text; `edge` is the ring's side that it measures."""
    gap_low, gap_high = text - HALF_GAP, text + HALF_GAP
    sign = 1 if x > edge else -1
    for y in (TOP, BOTTOM):
        plot.path((edge + sign * GAP, y), (x + sign * OVER, y))
    plot.path((x, TOP), (x, gap_high))
    plot.path((x, gap_low), (x, BOTTOM))
    plot.arrow(x, TOP, 90)
    plot.arrow(x, BOTTOM, 270)


def letter(plot, name, x, y):
    """A datum letter 0.1 high with its left lower corner at (x, y)."""
    if name == "A":
        plot.path((x, y), (x + 0.04, y + 0.11), (x + 0.08, y))
        plot.path((x + 0.015, y + 0.04), (x + 0.065, y + 0.04))
    else:
        plot.path((x, y), (x, y + 0.11), (x + 0.055, y + 0.11), (x + 0.07, y + 0.095), (x + 0.07, y + 0.07),
                  (x + 0.055, y + 0.057), (x, y + 0.057))
        plot.path((x + 0.055, y + 0.057), (x + 0.075, y + 0.04), (x + 0.075, y + 0.015), (x + 0.06, y), (x, y))


def runout_frame(plot, begin, text, value, datum_end, datum):
    """Three cells: the runout arrow, the value (a text of the sheet), the datum."""
    bottom, top = text - HALF_FRAME, text + HALF_FRAME
    plot.box(begin, bottom, datum_end, top)
    for x in value:
        plot.path((x, bottom), (x, top))
    tip = (value[0] - 0.05, top - 0.05)
    plot.path((begin + 0.05, bottom + 0.05), tip)
    plot.path((tip[0] - 0.075, tip[1] - 0.03), tip, (tip[0] - 0.035, tip[1] - 0.075))
    letter(plot, datum, (value[1] + datum_end) / 2 - 0.04, bottom + 0.07)


def datum_sign(plot, x, y, side, name):
    """A box beside a triangle that stands on an extension line; side is +1 for a box to the right."""
    plot.path((x, y + 0.06), (x + side * 0.1, y), (x, y - 0.06))
    plot.path((x + side * 0.1, y), (x + side * 0.16, y))
    left = x + 0.16 if side > 0 else x - 0.36
    plot.box(left, y - 0.1, left + 0.2, y + 0.1)
    letter(plot, name, left + 0.06, y - 0.055)


def reference_dimensions(plot, shape):
    """The second and third reference diameter, as the style has them."""
    style = shape.style
    if style in "AUT":
        upper = shape.outer_land
        plot.path((upper, TOP + GAP), (upper, UPPER_LAND + OVER))
        half_dimension(plot, upper, UPPER_LAND, 5.26)
    if style in "AUTB":
        extension_down(plot, shape.relief, BOTTOM - GAP, RELIEF)
        half_dimension(plot, shape.relief, RELIEF, 4.20)
    if style in "CXF":
        extension_down(plot, shape.outer_land, BOTTOM - GAP, OUTER_LAND)
        half_dimension(plot, shape.outer_land, OUTER_LAND, 4.26)


def frames(plot, shape):
    if shape.style in "CX":
        inner, outer = (4.95, (5.20, 5.97), 6.19), (2.95, (3.20, 3.97), 4.19)
    elif shape.style in "BFT":
        inner, outer = (4.45, (4.67, 5.44), 5.66), (3.45, (3.67, 4.44), 4.66)
    else:
        inner, outer = (4.42, (4.67, 5.44), 5.66), (3.42, (3.67, 4.44), 4.66)
    runout_frame(plot, inner[0], INNER_RUNOUT, inner[1], inner[2], "B")
    runout_frame(plot, outer[0], OUTER_RUNOUT, outer[1], outer[2], "A")
    if shape.style in "AU":
        # Its value stands off the ring, so the frame hangs on an elbow of the outside diameter's line.
        plot.path((shape.left, BOTTOM - GAP), (shape.left, OUTER_RUNOUT), (outer[0], OUTER_RUNOUT))


def draw_dimensions(plot, shape):
    plot.pen(BLACK)
    height(plot, shape.left, 1.59, LEFT_HEIGHT)
    height(plot, shape.right, 7.09, RIGHT_HEIGHT)
    half_dimension(plot, CENTRE, PITCH, 4.76)
    # The runout frames hang on the lines of the bore and the outside diameter.
    plot.path((shape.right, BOTTOM - GAP), (shape.right, INNER_RUNOUT + HALF_FRAME))
    half_dimension(plot, shape.right, BORE, 5.32)
    extension_down(plot, shape.inner_land, BOTTOM - GAP, INNER_LAND)
    half_dimension(plot, shape.inner_land, INNER_LAND, 4.51)
    if shape.style not in "AU":
        plot.path((shape.left, BOTTOM - GAP), (shape.left, OUTER_RUNOUT + HALF_FRAME))
    half_dimension(plot, shape.left, OUTSIDE, 3.85)
    reference_dimensions(plot, shape)
    # The leader ends on the rounded corner itself.
    inset = shape.round * (1 - math.sqrt(0.5))
    tip = (shape.left + inset, TOP - inset)
    plot.path((1.93, 9.965), (2.08, 9.965), tip)
    plot.arrow(*tip, math.degrees(math.atan2(tip[1] - 9.965, tip[0] - 2.08)))
    frames(plot, shape)
    datum_sign(plot, shape.right, 6.60, 1, "A")
    datum_sign(plot, shape.left, 5.70, -1, "B")
