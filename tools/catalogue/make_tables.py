#!/usr/bin/env python3
"""Makes the sample catalogue: all tables of the data folder.

usage: make_tables.py [FOLDER]     default: data/Data Tables of this tree
"""

import sys
from pathlib import Path

import limits
import series

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "data" / "Data Tables"
STANDARD_SEPARATOR = {"A": "R", "C": "P", "X": "P"}
KEY_COLUMNS = 24


def text_of(value):
    """A cell: numbers in their shortest form that holds seven digits; a text with a comma stands in quotes."""
    text = f"{value:.7g}" if isinstance(value, float) else str(value)
    return f'"{text}"' if "," in text else text


def write(folder, name, rows):
    lines = (",".join(text_of(cell) for cell in row) for row in rows)
    (folder / name).write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))


def section_rows(section, family):
    yield [series.FILLET[section], "fillet radius mm"] + [""] * 8
    yield [float(section), "height mm", "bore mm", "od mm", "ref 1 mm", "ref 2 mm", "ref 3 mm", "mass kg",
           "speed column", "balls"]
    for bore in series.BORES[section]:
        name = f"K{bore:03d}{section:02d}{family}{STANDARD_SEPARATOR[family]}0"
        references = [round(d, 4) for d in series.reference_diameters(section, family, bore)]
        yield [name, series.stock_code(section, family, bore), bore, series.outside_diameter(section, bore),
               *references, round(series.mass(section, family, bore), 4), series.speed_index(bore),
               series.ball_count(section, family, bore)]


def precision_rows(code):
    yield ["bore mm", "bore tol", "od tol", "inner radial runout", "inner axial runout", "outer radial runout",
           "outer axial runout", "clearance low", "clearance high", "width tol"]
    for bore in series.all_bores():
        yield [bore, *(f"{value:.5f}" for value in limits.tolerances(bore, code))]


def coating_rows(code):
    yield ["bore mm", "bore addition", "bore tol", "od addition", "od tol"]
    for bore in series.all_bores():
        yield [bore, *(f"{value:.5f}" for value in limits.coating(bore, code))]


def speed_block(style, separator, thrust):
    head = [separator, "thrust" if thrust else "load"] + [""] * (KEY_COLUMNS - 2)
    return head + [f"{value:.3f}" for value in limits.speed_numbers(style, separator, thrust)]


def speed_rows(style):
    for separator in limits.SPEED_SEPARATORS[style]:
        blocks = (True, False) if style == "X" else (False,)
        yield [cell for thrust in blocks for cell in speed_block(style, separator, thrust)]


def make(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for section in series.SECTIONS:
        for family in series.FAMILIES:
            write(folder, f"{section}-{family}.csv", section_rows(section, family))
    for code in limits.PRECISIONS:
        write(folder, f"CLS{code}.csv", precision_rows(code))
    for code in limits.COATINGS:
        write(folder, f"CLS{code}N.csv", coating_rows(code))
    for family in ("A", "X"):
        write(folder, f"{family}SEPARATOR.CSV", limits.SEPARATORS[family])
    write(folder, "Fitnumber.doc", ((letter, f"{low:.4f}", f"{high:.4f}", kind)
                                    for letter, low, high, kind in limits.fits()))
    for style in limits.SPEED_SEPARATORS:
        write(folder, f"SPEED{style}.CSV", speed_rows(style))


if __name__ == "__main__":
    make(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER)
