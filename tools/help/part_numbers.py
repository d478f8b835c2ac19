"""The character by character explanation of a part number.

Separators and fits are those of the catalogue tables, so that the document
and what the program accepts agree: make it anew when those tables change.
"""

import csv
from pathlib import Path

from rtf_pieces import (AFTER_TABLE, bullets, cell, code, colour, document,
                        heading, note, paragraph, row, small, table, title)

TABLES = Path(__file__).resolve().parents[2] / "data" / "Data Tables"
NAME = "Part Number Breakdown"


def catalogue_rows(name):
    with open(TABLES / name, encoding="cp1252", newline="") as rows:
        return list(csv.reader(rows))


def strip(number, groups):
    """A part number taken apart: positions, characters, meanings."""
    widths = [width for _, width, _, _ in groups]
    quiet = rf"\f0\fs17\cf{colour('quiet')}"
    large = rf"\f2\fs40\b\cf{colour('code')}"
    centred = r"\qc"
    return (row(widths, [cell(place, quiet) for place, _, _, _ in groups],
                "head", centred)
            + row(widths, [cell(sign, large) for _, _, sign, _ in groups],
                  None, centred)
            + row(widths, [cell(meaning, r"\f0\fs18")
                           for _, _, _, meaning in groups], "stripe", centred)
            + AFTER_TABLE
            + paragraph("The number *" + number + "*, character by character."))


def separators():
    """Code, text, and for which styles, in the order of the tables."""
    angular = {key: text for key, text, _ in catalogue_rows("ASEPARATOR.CSV")}
    others = {key: text for key, text, _ in catalogue_rows("XSEPARATOR.CSV")}
    for key in sorted({**angular, **others}, key=lambda k: (len(k), k)):
        text = {**others, **angular}[key].split("=", 1)[1].strip()
        styles = ("all" if key in angular and key in others else
                  "A, B, F, T, U" if key in angular else "C, X")
        yield key, text, styles


def fits(kind):
    for letter, low, high, found in catalogue_rows("Fitnumber.doc"):
        if found == kind:
            yield letter, low, high


def fit_table(kind, head):
    """Two fits in a row, so that the list stays short."""
    found = [(letter, f"{low} to {high}") for letter, low, high in fits(kind)]
    half = (len(found) + 1) // 2
    pairs = [found[number] + (found[number + half]
                              if number + half < len(found) else ("", ""))
             for number in range(half)]
    widths = (1100, 3580, 1100, 3580)
    title_look = rf"\f0\fs20\b\cf{colour('title')}"
    made = [row(widths, [cell(text, title_look)
                         for text in ("Code", head) * 2], "head")]
    for number, (letter, range_text, other, other_range) in enumerate(pairs):
        made.append(row(widths, [code(letter), cell(range_text), code(other),
                                 cell(other_range)],
                        "stripe" if number % 2 else None))
    return "".join(made) + AFTER_TABLE


def overview():
    return "".join((
        title(NAME, "What each character of a Varden part number says"),
        paragraph("A part number of the Norlaring metric series has *nine* "
                  "characters, or *ten* when the internal fit is not the "
                  "standard one."),
        strip("K19013XP0", (
            ("1", 1300, "K", "Ring material"),
            ("2  3  4", 1300, "190", "Bore in mm"),
            ("5  6", 1860, "13", "Cross-section in mm"),
            ("7", 1200, "X", "Style"), ("8", 1240, "P", "Separator"),
            ("9", 1240, "0", "Precision"),
            ("10", 1220, "\u2013", "Internal fit"))),
        paragraph("Rings of vacuum degassed 52100 steel, 190 mm bore, a "
                  "cross-section of 13 mm, four-point contact, a snapover "
                  "brass ribbon, precision class 1, and the standard "
                  "clearance, since there is no tenth character.")))


def rings():
    return "".join((
        heading("Position 1: ring material"),
        table((1100, 8260), ("Code", "Material"), (
            ("K", "Vacuum Degassed 52100 Steel"),
            ("S", "440C Steel, for surroundings that corrode"),
            ("N", "Vacuum Degassed 52100 Steel with Armorline, a thin "
                  "coating that protects against corrosion"))),
        heading("Positions 2 to 4: bore"),
        paragraph("The bore in whole millimetres, always as three digits: "
                  "*040* for 40 mm, *190* for 190 mm. Only the bores of the "
                  "catalogue exist."),
        heading("Positions 5 and 6: cross-section"),
        paragraph("Half the difference of outside diameter and bore, in "
                  "millimetres. It is also the width of one bearing. In a "
                  "series the section stays the same while the bore grows."),
        table((1100, 4130, 4130), ("Code", "Section", "Outside diameter"), (
            ("08", "8 \u00d7 8 mm", "bore + 16 mm"),
            ("13", "13 \u00d7 13 mm", "bore + 26 mm"),
            ("20", "20 \u00d7 20 mm", "bore + 40 mm")))))


def inside():
    return "".join((
        heading("Position 7: style"),
        table((1100, 5860, 2400), ("Code", "Style", "Internal fit"), (
            ("A", "Angular contact, one bearing", "none"),
            ("B", "Pair of angular contact bearings, back to back",
             "needed"),
            ("C", "Radial contact", "may be given"),
            ("F", "Pair of angular contact bearings, face to face",
             "needed"),
            ("T", "Pair of angular contact bearings, in tandem", "none"),
            ("U", "Angular contact, universally ground", "none"),
            ("X", "Four-point contact", "may be given"))),
        heading("Position 8: separator"),
        table((1100, 5860, 2400), ("Code", "Separator", "Styles"),
              separators()),
        note("Codes that begin with *Z* are written with the *Z* alone. The "
             "program then asks which kind is meant.")))


def closeness():
    return "".join((
        heading("Position 9: precision"),
        table((1100, 8260), ("Code", "Class"), (
            ("0", "Precision class 1"),
            ("1", "Precision class 1 with class 4 runouts"),
            ("2", "Precision class 1 with class 6 runouts"),
            ("4", "Precision class 4"),
            ("6", "Precision class 6, the closest"))),
        heading("Position 10: internal fit"),
        paragraph("Without a tenth character the bearing has its standard "
                  "clearance. Limits are in inches: of the diametral "
                  "clearance or preload, for the pairs B and F of the axial "
                  "one."),
        fit_table("Clearance", "Clearance"),
        fit_table("Preload", "Preload"),
        note("*Z* is a special fit that is agreed with Varden.")))


def writing():
    return "".join((
        heading("What the program puts right"),
        bullets("Small letters become capitals.",
                "A letter O in positions 2 to 6 and 9 becomes the digit 0: "
                "*k19o13xp0* is read as *K19013XP0*.",
                "A fit letter that styles A, T and U do not take is dropped, "
                "with a message."),
        heading("More examples"),
        table((2300, 7060), ("Number", "Meaning"), (
            ("N10013BR0M", "Coated rings, 100 mm bore, section 13, a pair "
                           "back to back, riveted brass ribbon, class 1, "
                           "preload M"),
            ("S06008CJ4", "440C rings, 60 mm bore, section 8, radial "
                          "contact, one-piece phenolic crown, class 4, "
                          "standard clearance"),
            ("K12020AZ0", "52100 rings, 120 mm bore, section 20, angular "
                          "contact, toroids or spacer balls, class 1"))),
        small("Please ask Varden for combinations that the catalogue does "
              "not list.")))


def break_down():
    return document(NAME, overview(), rings(), inside(), closeness(),
                    writing())
