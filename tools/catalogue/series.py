"""The bearing series: its bores, and the rings and balls of one bearing.

Lengths are millimetres, masses kilograms, unless a name says inches.
A section is the width of a bearing's square cross-section (8, 13 or 20),
a family the letter of its tables: A angular contact and the sets made of
it, C radial contact, X four-point contact.
"""

import math

MM_PER_INCH = 25.4

SECTIONS = (8, 13, 20)
FAMILIES = ("A", "C", "X")

BORES = {
    8: (20, 25, 30, 35, 40, 45, 50, 60, 70, 80, 90, 100, 110, 120, 130,
        140, 150, 160, 170, 180, 190, 200, 220, 240),
    13: (40, 50, 60, 70, 80, 90, 100, 110, 120, 130, 140, 150, 160, 170,
         180, 190, 200, 220, 240, 260, 280, 300, 320, 340, 360),
    20: (60, 80, 100, 110, 120, 130, 140, 150, 160, 170, 180, 190, 200,
         220, 240, 260, 280, 300, 320, 340, 360, 400, 420, 450, 480, 500),
}

FILLET = {8: 0.40, 13: 0.60, 20: 1.00}

# The program holds these sizes as well: balls, groove radii and the radial
# sections of the inner and the outer ring. The tables must agree with it.
BALL_INCHES = {8: 0.15625, 13: 0.25, 20: 0.375}
GROOVE_INCHES = {8: 0.0828125, 13: 0.1325, 20: 0.19875}
ANGULAR_RINGS_INCHES = {
    8: (0.0985, 0.0921), 13: (0.1647, 0.1523), 20: (0.2602, 0.2374),
}
DEEP_RINGS_INCHES = {
    8: (0.099, 0.0998), 13: (0.1656, 0.1656), 20: (0.2618, 0.2616),
}

# Separator whose ball count stands in the tables, and the share of the
# ball circle that balls take up in it. The counterbored ring of angular
# contact bearings lets more balls in than a snapped-over ribbon does.
STANDARD_SEPARATOR = {"A": "R", "C": "P", "X": "P"}
PACKING = {"A": 0.855, "C": 0.815, "X": 0.815}

STEEL_DENSITY = 7.83e-6  # kg per cubic millimetre


def all_bores():
    """Every bore of the catalogue once, ascending."""
    return sorted({bore for bores in BORES.values() for bore in bores})


def row_name(section, family, bore):
    """Part number of the standard bearing, such as K19013XP0."""
    separator = STANDARD_SEPARATOR[family]
    return f"K{bore:03d}{section:02d}{family}{separator}0"


def outside_diameter(section, bore):
    """Outside diameter of a bearing with a square cross-section."""
    return bore + 2 * section


def pitch_diameter(section, bore):
    """Diameter of the ball circle, midway between bore and outside."""
    return bore + section


def ring_sections(section, family):
    """Radial sections of the inner and the outer ring."""
    rings = ANGULAR_RINGS_INCHES if family == "A" else DEEP_RINGS_INCHES
    inner, outer = rings[section]
    return inner * MM_PER_INCH, outer * MM_PER_INCH


def ball_count(section, family, bore):
    """Balls that the standard separator holds on the ball circle."""
    circle = math.pi * pitch_diameter(section, bore)
    ball = BALL_INCHES[section] * MM_PER_INCH
    return int(PACKING[family] * circle / ball)


def reference_diameters(section, family, bore):
    """The three land diameters that the drawing on the data sheet shows.

    The inner ring's land, the outer ring's land, and the counterbore of
    the outer ring, which only angular contact rings have (else 0).
    """
    inner, outer = ring_sections(section, family)
    outside = outside_diameter(section, bore)
    land = bore + 2 * inner
    if family != "A":
        return land, outside - 2 * outer, 0.0
    # The outer section is the mean of the full shoulder, as thick as the
    # inner ring, and the counterbored side.
    return land, outside - 2 * inner, outside - 2 * (2 * outer - inner)


def _groove_area(section, family):
    """Cross-section area of one groove, as a parabolic segment."""
    inner, outer = ring_sections(section, family)
    ball = BALL_INCHES[section] * MM_PER_INCH
    radius = GROOVE_INCHES[section] * MM_PER_INCH
    depth = (ball - (section - inner - outer)) / 2
    chord = 2 * math.sqrt(radius ** 2 - (radius - depth) ** 2)
    return chord * depth * 2 / 3


def mass(section, family, bore):
    """Mass of both rings less their grooves, and of the balls."""
    inner, outer = ring_sections(section, family)
    outside = outside_diameter(section, bore)
    rings = math.pi * section * ((bore + inner) * inner
                                 + (outside - outer) * outer)
    grooves = (2 * math.pi * pitch_diameter(section, bore)
               * _groove_area(section, family))
    ball = BALL_INCHES[section] * MM_PER_INCH
    balls = ball_count(section, family, bore) * math.pi / 6 * ball ** 3
    return STEEL_DENSITY * (rings - grooves + balls)


def stock_code(section, bore):
    """1 in stock, 2 limited, 0 ask the maker: common sizes are on hand."""
    if section != 20 and bore <= 200 and bore % 20 == 0:
        return 1
    return 2 if bore <= 300 else 0


def speed_index(bore):
    """Column of the speed tables, 1 for small bearings to 4 for large."""
    return 1 + sum(bore > end for end in (80, 160, 280))
