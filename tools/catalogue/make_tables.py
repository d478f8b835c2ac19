#!/usr/bin/env python3
"""Makes the sample catalogue: all the tables of the data folder.

usage: make_tables.py [FOLDER]    default: data/Data Tables of this tree

The same call always writes the same bytes. docs/catalogue-tables.md tells
what each column means.
"""

import sys
from pathlib import Path

import separators
import series
import tolerances

DEFAULT_FOLDER = (Path(__file__).resolve().parents[2]
                  / "data" / "Data Tables")
KEY_FIELDS = 24
STYLES = ("C", "A", "X")


def cell(value):
    """One field; a text that holds a comma goes into quotes."""
    text = str(value)
    return f'"{text}"' if "," in text else text


def padded(fields, width):
    """The fields, filled up with empty ones: readers count fields."""
    return [*fields, *[""] * (width - len(fields))]


def millimetres(value):
    """A length in mm or a mass in kg without trailing zeros."""
    return f"{round(value, 4):.7g}"


def section_rows(section, family):
    """Rows of a cross-section table, two head rows included."""
    yield padded([series.FILLET[section], "fillet radius mm"], 10)
    yield [section, "height mm", "bore mm", "od mm", "ref 1 mm",
           "ref 2 mm", "ref 3 mm", "mass kg", "speed column", "balls"]
    for bore in series.BORES[section]:
        size = (section, family, bore)
        yield [series.row_name(*size),
               series.stock_code(section, bore),
               bore, series.outside_diameter(section, bore),
               *map(millimetres, series.reference_diameters(*size)),
               millimetres(series.mass(*size)),
               series.speed_index(bore), series.ball_count(*size)]


def precision_rows(code):
    """Rows of a precision table, one for every bore of the catalogue."""
    yield ["bore mm", "bore tol", "od tol", "inner radial runout",
           "inner axial runout", "outer radial runout",
           "outer axial runout", "clearance low", "clearance high",
           "width tol"]
    for bore in series.all_bores():
        values = tolerances.precision_values(bore, code)
        yield [bore, *(f"{value:.5f}" for value in values)]


def coating_rows(code):
    """Rows of a coating table, one for every bore of the catalogue."""
    yield ["bore mm", "bore addition", "bore tol", "od addition", "od tol"]
    for bore in series.all_bores():
        values = tolerances.coating_values(bore, code)
        yield [bore, *(f"{value:.5f}" for value in values)]


def fit_rows():
    """Rows of the fit table."""
    for letter, low, high, kind in tolerances.fits():
        yield [letter, f"{low:.4f}", f"{high:.4f}", kind]


def speed_block(style, code, thrust):
    """Key, label, empty fields up to the 24th, then the 24 numbers."""
    head = padded([code, "thrust" if thrust else "load"], KEY_FIELDS)
    numbers = separators.speed_numbers(style, code, thrust)
    return head + [f"{number:.3f}" for number in numbers]


def speed_rows(style):
    """Rows of a speed table; four-point rows have two blocks."""
    for code in separators.SPEED_SHARE:
        row = speed_block(style, code, thrust=False)
        if style == "X":
            row = speed_block(style, code, thrust=True) + row
        yield row


def tables():
    """Every table of the catalogue: pairs of file name and rows."""
    for section in series.SECTIONS:
        for family in series.FAMILIES:
            yield f"{section}-{family}.csv", section_rows(section, family)
    for code in tolerances.PRECISIONS:
        yield f"CLS{code}.csv", precision_rows(code)
    for code in tolerances.COATINGS:
        yield f"CLS{code}N.csv", coating_rows(code)
    for family, rows in separators.SEPARATORS.items():
        yield f"{family}SEPARATOR.CSV", rows
    yield "Fitnumber.doc", fit_rows()
    for style in STYLES:
        yield f"SPEED{style}.CSV", speed_rows(style)


def make(folder):
    """Writes every table into the folder, which is made when missing."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, rows in tables():
        lines = (",".join(map(cell, row)) + "\r\n" for row in rows)
        (folder / name).write_bytes("".join(lines).encode("ascii"))


if __name__ == "__main__":
    make(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER)
