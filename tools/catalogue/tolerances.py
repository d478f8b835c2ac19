"""Tolerances, coatings and internal fits of the sample catalogue.

Values are kept as whole ten thousandths of an inch and returned in inches.
"""

INCHES_PER_UNIT = 1e-4

# Upper ends of the bore bands, mm. Each row below holds a value per band.
BAND_ENDS = (30, 50, 80, 120, 180, 250, 315, 400, 500)

# By class: 1 commercial, 4 precise, 6 very precise.
BORE = {
    1: (4, 5, 6, 8, 10, 12, 14, 16, 18),
    4: (3, 3, 4, 5, 6, 8, 9, 10, 11),
    6: (2, 2, 3, 3, 4, 5, 6, 7, 8),
}
OUTSIDE = {
    1: (4, 5, 6, 8, 10, 12, 14, 16, 18),
    4: (3, 4, 4, 5, 6, 8, 9, 10, 12),
    6: (2, 2, 3, 4, 4, 5, 6, 7, 8),
}
INNER_RADIAL_RUNOUT = {
    1: (6, 8, 8, 10, 12, 16, 20, 24, 26),
    4: (3, 4, 4, 5, 6, 8, 10, 12, 14),
    6: (2, 2, 2, 3, 3, 4, 5, 6, 7),
}
# The other runouts as multiples of the inner ring's radial runout.
INNER_AXIAL, OUTER_RADIAL, OUTER_AXIAL = 1.2, 1.4, 1.5

CLEARANCE = (
    (4, 9), (4, 10), (5, 12), (6, 14), (7, 17), (8, 19), (9, 22), (10, 25),
    (12, 29),
)
WIDTH = (50, 50, 50, 50, 50, 50, 100, 100, 100)

# Precision code: class of the sizes, class of the runouts.
PRECISIONS = {"0": (1, 1), "1": (1, 4), "2": (1, 6), "4": (4, 4),
              "6": (6, 6)}

# Coating tables by the class of the sizes; codes 1 and 2 share that of 0.
COATINGS = {"0": 1, "4": 4, "6": 6}
COATING_THICKNESS = 1

CLEARANCE_FITS = (
    (0, 2), (0, 5), (2, 6), (3, 8), (5, 10), (6, 12), (8, 15), (10, 20),
    (15, 25), (20, 30),
)
PRELOAD_FITS = (
    (0, 1), (0, 2), (1, 3), (2, 4), (2, 5), (3, 6), (3, 7), (4, 8), (5, 9),
    (5, 10), (6, 11), (7, 12), (8, 13), (9, 14), (10, 15),
)


def band(bore):
    """Number of the size band that a bore in mm falls into."""
    return next(i for i, end in enumerate(BAND_ENDS) if bore <= end)


def precision_values(bore, code):
    """The nine inch values of a precision row, in the table's order.

    Bore, outside and width tolerances are negative, since the other limit
    is zero; runouts and clearances are positive.
    """
    sizes, runouts = PRECISIONS[code]
    i = band(bore)
    radial = INNER_RADIAL_RUNOUT[runouts][i]
    low, high = CLEARANCE[i]
    units = (-BORE[sizes][i], -OUTSIDE[sizes][i],
             radial, INNER_AXIAL * radial,
             OUTER_RADIAL * radial, OUTER_AXIAL * radial,
             low, high, -WIDTH[i])
    return [unit * INCHES_PER_UNIT for unit in units]


def coating_values(bore, code):
    """The four inch values of a coating row, in the table's order.

    A layer on either side makes the bore smaller, so its addition is
    negative, and the outside diameter larger.
    """
    size = COATINGS[code]
    i = band(bore)
    layers = 2 * COATING_THICKNESS
    units = (-layers, -BORE[size][i], layers, -OUTSIDE[size][i])
    return [unit * INCHES_PER_UNIT for unit in units]


def _fit_rows(first_letter, limits, kind):
    for i, (low, high) in enumerate(limits):
        yield (chr(ord(first_letter) + i), low * INCHES_PER_UNIT,
               high * INCHES_PER_UNIT, kind)


def fits():
    """Rows of the fit table: letter, low and high limit, kind.

    A to J are clearances, K to Y preloads. Z is a fit agreed with the
    customer, so it has no limits and is neither of the two kinds.
    """
    return [*_fit_rows("A", CLEARANCE_FITS, "Clearance"),
            *_fit_rows("K", PRELOAD_FITS, "Preload"),
            ("Z", 0.0, 0.0, "Special")]
