"""The bearing series: which bores each cross-section has, and the rings and balls of one bearing.

Lengths are millimetres unless a name says inches.
"""

import math

MM = 25.4

SECTIONS = (8, 13, 20)
FAMILIES = ("A", "C", "X")

BORES = {
    8: [20, 25, 30, 35, 40, 45, 50, 60, 70, 80, 90, 100, 110, 120, 130, 140, 150, 160, 170, 180, 190, 200, 220, 240],
    13: [40, 50, 60, 70, 80, 90, 100, 110, 120, 130, 140, 150, 160, 170, 180, 190, 200, 220, 240, 260, 280, 300,
         320, 340, 360],
    20: [60, 80, 100, 110, 120, 130, 140, 150, 160, 170, 180, 190, 200, 220, 240, 260, 280, 300, 320, 340, 360, 400,
         420, 450, 480, 500],
}

# Ball and groove, inches; ring sections by family, inches: inner, outer.
BALL = {8: 0.15625, 13: 0.25, 20: 0.375}
GROOVE = {8: 0.0828125, 13: 0.1325, 20: 0.19875}
RING_SECTIONS = {
    (8, "A"): (0.0985, 0.0921), (13, "A"): (0.1647, 0.1523), (20, "A"): (0.2602, 0.2374),
    (8, "C"): (0.099, 0.0998), (13, "C"): (0.1656, 0.1656), (20, "C"): (0.2618, 0.2616),
    (8, "X"): (0.099, 0.0998), (13, "X"): (0.1656, 0.1656), (20, "X"): (0.2618, 0.2616),
}
FILLET = {8: 0.40, 13: 0.60, 20: 1.00}
# The part of the ball circle that balls take up in the standard separator.
PACKING = {"A": 0.855, "C": 0.815, "X": 0.815}
STEEL = 7.83e-6  # kg per cubic millimetre


def all_bores():
    """Every bore of the catalogue, ascending."""
    return sorted({bore for bores in BORES.values() for bore in bores})


def outside_diameter(section, bore):
    return bore + 2 * section


def ball_count(section, family, bore):
    circle = math.pi * (bore + section)
    return int(PACKING[family] * circle / (BALL[section] * MM))


def reference_diameters(section, family, bore):
    """Land diameters as the drawing shows them; the third is the counterbore of angular contact rings."""
    inner, outer = (MM * side for side in RING_SECTIONS[section, family])
    od = outside_diameter(section, bore)
    first = bore + 2 * inner
    if family == "A":
        return first, od - 2 * inner, od - 2 * (2 * outer - inner)
    return first, od - 2 * outer, 0.0


def mass(section, family, bore):
    """Rings less their grooves, plus balls, in kg."""
    inner, outer = (MM * side for side in RING_SECTIONS[section, family])
    od = outside_diameter(section, bore)
    pitch = bore + section
    ball, groove = BALL[section] * MM, GROOVE[section] * MM
    rings = math.pi * section * ((bore + inner) * inner + (od - outer) * outer)
    depth = ball / 2 - (section - inner - outer) / 2
    chord = 2 * math.sqrt(groove ** 2 - (groove - depth) ** 2)
    grooves = 2 * math.pi * pitch * 2 / 3 * chord * depth
    balls = ball_count(section, family, bore) * math.pi / 6 * ball ** 3
    return STEEL * (rings - grooves + balls)


def stock_code(section, family, bore):
    """1 in stock, 2 limited, 0 ask the maker: common sizes stand on the shelf."""
    if bore % 20 == 0 and bore <= 200 and section != 20:
        return 1
    return 2 if bore <= 300 else 0


def speed_index(bore):
    """The column of the speed tables: small bearings first."""
    return 1 if bore <= 80 else 2 if bore <= 160 else 3 if bore <= 280 else 4
