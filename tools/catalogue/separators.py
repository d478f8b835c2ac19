"""Separators of the sample catalogue and the speeds that they allow."""

RIBBONS_AND_WIRES = (
    ("P", "P= Snapover Brass Ribbon", "RIBBON"),
    ("R", "R= Riveted Brass Ribbon", "RIVET"),
    ("J", "J= One-Piece Phenolic Crown", "CROWN"),
    ("N", "N= One-Piece Nylon Crown", "CROWN"),
    ("M", "M= Formed Wire, Full Complement Type", "WIRE"),
    ("W", "W= Formed Wire, Strip Type", "WIRE"),
    ("S", "S= Helical Coil Springs", "SPRING"),
    ("F", "F= Full Complement, No Separator", "FULL"),
)

# Rows of the separator tables: code, text, start of the overlay's file
# name. X serves radial contact bearings too.
SEPARATORS = {
    "A": RIBBONS_AND_WIRES + (
        ("ZP", "Z= PTFE Toroids", "TOROID"),
        ("ZV", "Z= Vespel Toroids", "TOROID"),
        ("ZS", "Z= Spacer Balls", "SPACER"),
    ),
    "X": RIBBONS_AND_WIRES + (
        ("ZT", "Z= PTFE Slugs", "SLUG"),
        ("ZS", "Z= Spacer Balls", "SPACER"),
    ),
}

# Codes with a line in the speed tables, and the speed each allows as a
# share of the ribbons' speed. The program limits F, S and the Z codes by
# the speed of the ball circle alone and looks for no line.
SPEED_SHARE = {"P": 1.0, "R": 1.0, "J": 1.8, "N": 1.4, "M": 0.5, "W": 0.5}

# Speed times bore in thousands of rpm x inch: grease, small bearing,
# standard precision, ribbon separator.
GREASE_SPEED = {"C": 9.0, "A": 13.0, "X": 8.0}
COLUMN_FACTORS = (1.0, 0.92, 0.85, 0.78)
LUBRICANT_FACTORS = (1.0, 1.3, 1.7)  # grease, oil, oil mist
FINE_RUNOUT_FACTOR = 1.25
# Under pure thrust a four-point bearing runs on two points and heats less.
THRUST_FACTOR = 1.5


def speed_numbers(style, code, thrust=False):
    """The 24 numbers of a speed block, thousands of rpm x inch.

    Three lubricants of four size columns, for the standard runouts and
    then again for those of class 6.
    """
    base = GREASE_SPEED[style] * SPEED_SHARE[code]
    if thrust:
        base *= THRUST_FACTOR
    standard = [base * lubricant * column
                for lubricant in LUBRICANT_FACTORS
                for column in COLUMN_FACTORS]
    return standard + [FINE_RUNOUT_FACTOR * value for value in standard]
