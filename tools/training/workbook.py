"""The metric series as a workbook: a sheet for each section and kind of
contact, every bearing as norlaplan-cli decodes it."""

import csv
from pathlib import Path

from examples import run
from flat_sheets import Workbook

TABLES = Path(__file__).resolve().parents[2] / "data" / "Data Tables"
FORCE, MOMENT, MASS = 0.2248089, 8.850744, 2.204622
KINDS = {"C": "radial contact", "X": "four-point contact",
         "A": "angular contact"}
RADIAL = (("Static radial", "N", "staticRadial", FORCE),
          ("Dynamic radial", "N", "dynamicRadial", FORCE))
AXIAL = (("Static axial", "N", "staticThrust", FORCE),
         ("Dynamic axial", "N", "dynamicThrust", FORCE))
MOMENTS = (("Static moment", "N\u00b7m", "staticMoment", MOMENT),
           ("Dynamic moment", "N\u00b7m", "dynamicMoment", MOMENT))
RATINGS = {"C": RADIAL, "A": RADIAL + AXIAL, "X": RADIAL + AXIAL + MOMENTS}
#: Each column: heading, unit, value of a bearing, decimals.
SIZES = (
    ("Bore", "mm", lambda b: b.bore * 25.4, 0),
    ("Outside diameter", "mm", lambda b: b.outsideDiameter * 25.4, 0),
    ("Width", "mm", lambda b: b.height * 25.4, 0),
    ("Ball diameter", "mm", lambda b: b.ballDiameter * 25.4, 3),
    ("Balls", "", lambda b: b.ballCount, 0),
    ("Mass", "kg", lambda b: b.mass / MASS, 3))
SPEEDS = (("Speed, grease", "rpm", lambda b: b.limitSpeedGrease, 0),
          ("Speed, oil", "rpm", lambda b: b.limitSpeedOil, 0))
#: Single angular contact bearings get theirs when they are paired.
CLEARANCE = (("Clearance, least", "mm", lambda b: b.stdClearanceLow * 25.4, 3),
             ("Clearance, most", "mm", lambda b: b.stdClearanceHigh * 25.4, 3))


def names(section, family):
    """Part numbers of a table of the catalogue, in its order."""
    with open(TABLES / f"{section}-{family}.csv", encoding="cp1252",
              newline="") as rows:
        return [row[0] for row in list(csv.reader(rows))[2:]]


def columns(family):
    ratings = tuple((name, unit, lambda b, f=field, by=factor:
                     getattr(b, f) / by, 0)
                    for name, unit, field, factor in RATINGS[family])
    return SIZES + (CLEARANCE if family != "A" else ()) + ratings + SPEEDS


def series_sheet(book, cli, section, family):
    wanted = columns(family)
    sheet = book.sheet(f"{section:02d} {family} {KINDS[family].split()[0]}",
                       [3.2] + [2.4] * len(wanted))
    sheet.row(f"Section {section} \u00d7 {section} mm, {KINDS[family]}",
              look="title")
    sheet.row("Norlaring metric series, standard separator and precision",
              look="quiet")
    sheet.row("Part number", *(name for name, _, _, _ in wanted), look="head")
    sheet.row(" ", *(unit or " " for _, unit, _, _ in wanted), look="head")
    for name in names(section, family):
        bearing = run(cli, f"decode {name}")
        sheet.rows.append([(name, "name")] + [
            ((value(bearing), places), "text")
            for _, _, value, places in wanted])


def cover_sheet(book):
    sheet = book.sheet("Norlaring", [5.2, 17])
    sheet.row("Norlaring metric series", look="title")
    sheet.row("Thin-section ball bearings of Varden Corporation",
              look="quiet")
    sheet.row("")
    sheet.row("Sheet", "What it holds", look="head")
    for section in (8, 13, 20):
        for family, kind in KINDS.items():
            sheet.row(f"{section:02d} {family} {kind.split()[0]}",
                      f"Section {section} mm, {kind}, separator "
                      f"{'R' if family == 'A' else 'P'}, precision 0",
                      look="text")
    sheet.row("")
    sheet.row("Term", "Meaning", look="head")
    for term, meaning in (
            ("Width", "Of one bearing; a pair is twice as wide"),
            ("Ball diameter", "Nominal; 5/32, 1/4 and 3/8 inch"),
            ("Clearance", "Standard diametral clearance, without a fit letter"),
            ("Static ratings", "Onset of lasting deformation that does no harm"),
            ("Dynamic ratings", "L10 life of 1,000,000 revolutions"),
            ("Ratings", "They do not apply at the same time; for mixed loads "
                        "use the life calculation"),
            ("Speed", "Limit without load; it falls as the load rises"),
            ("Angular contact", "Single bearings; pairs B, F and T have other "
                                "ratings, see their data sheets")):
        sheet.row(term, meaning, look="text")
    sheet.row("")
    sheet.row("The data sheet of NORLAPLAN-MM counts: it knows separator, "
              "precision, material and fit.", look="quiet")


def metric_workbook(cli):
    book = Workbook()
    cover_sheet(book)
    for section in (8, 13, 20):
        for family in KINDS:
            series_sheet(book, cli, section, family)
    return book
