"""Tolerances, fits, separators and speed limits of the sample catalogue. Inches, unless a name says otherwise."""

# Upper ends of the bore bands, mm, and one value a band (ten thousandths of an inch).
BANDS = (30, 50, 80, 120, 180, 250, 315, 400, 500)
BORE_TOLERANCE = {1: (4, 5, 6, 8, 10, 12, 14, 16, 18), 4: (3, 3, 4, 5, 6, 8, 9, 10, 11), 6: (2, 2, 3, 3, 4, 5, 6, 7, 8)}
OD_TOLERANCE = {1: (4, 5, 6, 8, 10, 12, 14, 16, 18), 4: (3, 4, 4, 5, 6, 8, 9, 10, 12), 6: (2, 2, 3, 4, 4, 5, 6, 7, 8)}
RADIAL_RUNOUT = {1: (6, 8, 8, 10, 12, 16, 20, 24, 26), 4: (3, 4, 4, 5, 6, 8, 10, 12, 14), 6: (2, 2, 2, 3, 3, 4, 5, 6, 7)}
CLEARANCE = ((4, 9), (4, 10), (5, 12), (6, 14), (7, 17), (8, 19), (9, 22), (10, 25), (12, 29))
WIDTH_TOLERANCE = (50, 50, 50, 50, 50, 50, 100, 100, 100)

# Precision code: class of the sizes, class of the runouts.
PRECISIONS = {"0": (1, 1), "1": (1, 4), "2": (1, 6), "4": (4, 4), "6": (6, 6)}
COATINGS = {"0": 1, "4": 4, "6": 6}
COATING_LAYER = 0.0001


def band(bore):
    return next(i for i, end in enumerate(BANDS) if bore <= end)


def tolerances(bore, code):
    """The nine columns behind the bore. Size tolerances are negative: the plus side is zero."""
    sizes, runouts = PRECISIONS[code]
    i = band(bore)
    radial = RADIAL_RUNOUT[runouts][i] / 1e4
    low, high = CLEARANCE[i]
    return (-BORE_TOLERANCE[sizes][i] / 1e4, -OD_TOLERANCE[sizes][i] / 1e4, radial, 1.2 * radial, 1.4 * radial,
            1.5 * radial, low / 1e4, high / 1e4, -WIDTH_TOLERANCE[i] / 1e4)


def coating(bore, code):
    """Additions of the coated rings: the bore shrinks, the outside diameter grows by a layer on either side."""
    size = COATINGS[code]
    i = band(bore)
    return (-2 * COATING_LAYER, -BORE_TOLERANCE[size][i] / 1e4, 2 * COATING_LAYER, -OD_TOLERANCE[size][i] / 1e4)


# Code, text (its first character gives way to the code on the sheet), start of the overlay's file name.
SEPARATORS = {
    "A": [
        ("R", "R= Riveted Brass Ribbon", "RIVET"),
        ("P", "P= Snapover Brass Ribbon", "RIBBON"),
        ("J", "J= One-Piece Phenolic Crown", "CROWN"),
        ("N", "N= One-Piece Nylon Crown", "CROWN"),
        ("M", "M= Formed Wire, Full Complement Type", "WIRE"),
        ("W", "W= Formed Wire, Strip Type", "WIRE"),
        ("S", "S= Helical Coil Springs", "SPRING"),
        ("F", "F= Full Complement, No Separator", "FULL"),
        ("ZP", "Z= PTFE Toroids", "TOROID"),
        ("ZV", "Z= Vespel Toroids", "TOROID"),
        ("ZS", "Z= Spacer Balls", "SPACER"),
    ],
    "X": [
        ("P", "P= Snapover Brass Ribbon", "RIBBON"),
        ("R", "R= Riveted Brass Ribbon", "RIVET"),
        ("J", "J= One-Piece Phenolic Crown", "CROWN"),
        ("N", "N= One-Piece Nylon Crown", "CROWN"),
        ("M", "M= Formed Wire, Full Complement Type", "WIRE"),
        ("W", "W= Formed Wire, Strip Type", "WIRE"),
        ("S", "S= Helical Coil Springs", "SPRING"),
        ("F", "F= Full Complement, No Separator", "FULL"),
        ("ZT", "Z= PTFE Slugs", "SLUG"),
        ("ZS", "Z= Spacer Balls", "SPACER"),
    ],
}

# Fit letters: low and high limit in ten thousandths of an inch.
CLEARANCE_FITS = ((0, 2), (0, 5), (2, 6), (3, 8), (5, 10), (6, 12), (8, 15), (10, 20), (15, 25), (20, 30))
PRELOAD_FITS = ((0, 1), (0, 2), (1, 3), (2, 4), (2, 5), (3, 6), (3, 7), (4, 8), (5, 9), (5, 10), (6, 11), (7, 12),
                (8, 13), (9, 14), (10, 15))


def fits():
    """Letter, low, high, kind: A to J clearance, K to Y preload, Z the special fit."""
    rows = [(chr(ord("A") + i), low / 1e4, high / 1e4, "Clearance") for i, (low, high) in enumerate(CLEARANCE_FITS)]
    rows += [(chr(ord("K") + i), low / 1e4, high / 1e4, "Preload") for i, (low, high) in enumerate(PRELOAD_FITS)]
    return rows + [("Z", 0.0, 0.0, "Special")]


# Speed limits: thousands of inch-rpm with grease at the first speed column, standard precision.
SPEED_SEPARATORS = {"C": ("P", "R", "J", "N", "M", "W"), "A": ("R", "P", "J", "N", "M", "W", "ZT"),
                    "X": ("P", "R", "J", "N", "M", "W", "ZP", "ZV")}
GREASE_BASE = {"C": 9.0, "A": 13.0, "X": 8.0}
SEPARATOR_FACTOR = {"P": 1.0, "R": 1.0, "J": 1.8, "N": 1.4, "M": 0.5, "W": 0.5, "ZP": 0.8, "ZV": 0.8, "ZT": 0.8}
COLUMN_FACTOR = (1.0, 0.92, 0.85, 0.78)
LUBRICANT_FACTOR = (1.0, 1.3, 1.7)
FINE_FACTOR = 1.25
THRUST_FACTOR = 1.5


def speed_numbers(style, separator, thrust=False):
    """24 numbers: grease, oil, mist by four columns, then the same for the finer precisions."""
    base = GREASE_BASE[style] * SEPARATOR_FACTOR[separator] * (THRUST_FACTOR if thrust else 1.0)
    half = [base * lubricant * column for lubricant in LUBRICANT_FACTOR for column in COLUMN_FACTOR]
    return half + [FINE_FACTOR * value for value in half]
