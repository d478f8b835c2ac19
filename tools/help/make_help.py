#!/usr/bin/env python3
"""Makes the documents that the text viewer and the help show, as RTF.

usage: make_help.py [--cli NORLAPLAN_CLI] [FOLDER]

FOLDER is data/help of this tree unless it is named. With --cli the numbers of
all worked examples are calculated anew first.
"""

import argparse
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from help_pages import calculate, documents  # noqa: E402
from part_numbers import break_down  # noqa: E402
from rtf_pieces import (bullets, document, heading, note, paragraph,  # noqa: E402
                        small, steps, table, title)

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "data" / "help"


def warranty():
    return document(
        "Warranty",
        title("Warranty", "Terms of use and limits of this software"),
        paragraph("Varden gives this software to design engineers who use the "
                  "Norlaring catalogue. It is free of charge and may be "
                  "copied and passed on unchanged."),
        heading("What it is for"),
        paragraph("The program works out ratings, life, static safety, "
                  "limiting speeds, fits and data sheets of thin-section "
                  "ball bearings from the catalogue tables that come with "
                  "it. Its results *support* the choice of a bearing. They "
                  "do not replace the judgement of the engineer who answers "
                  "for the machine."),
        heading("Limits of the results"),
        bullets("*Life* is the basic L10 life: nine of ten bearings reach it "
                "with clean lubricant, the stated load and rigid seats.",
                "*Static safety* is measured against lasting deformation of "
                "the raceways, with rings held round by a rigid shaft and "
                "housing.",
                "*Speeds* hold for the lubrication named beside them and for "
                "heat that can leave the bearing.",
                "*Torque* is a typical value. A torque that has to be kept "
                "must be agreed before ordering.",
                "*Fits* take the tolerances of the catalogue. Thin walls, "
                "soft materials and uneven temperature need a check of their "
                "own."),
        note("A thin-section bearing takes the shape of its seat. Check the "
             "roundness of shaft and housing first when torque or life does "
             "not come out as calculated."),
        heading("Availability"),
        paragraph("Stock changes from day to day. Whatever a list or data "
                  "sheet says, please ask Varden before a design is "
                  "settled."),
        heading("Liability"),
        steps("The software and its data are provided as they are, without "
              "warranty of any kind, express or implied.",
              "Varden is not liable for loss or damage, direct or indirect, "
              "that follows from the use of the software or of its results.",
              "The warranty for bearings is the one of the order "
              "confirmation, and nothing in this program widens it.",
              "Should one of these terms not be valid, the others stand."),
        small("Varden, Norlaring, NORLAPLAN and Armorline are names of "
              "Varden Corporation."))


def introduction():
    name = "Introduction to NORLAPLAN MM\u2122 Software"
    return document(
        name,
        title(name, "From a part number or a load to the bearing"),
        paragraph("NORLAPLAN MM helps to choose a thin-section ball bearing "
                  "and tells what it does under load. There are two ways "
                  "through the program. *Is Part Number Known ?* on the main "
                  "menu leads you to the right one, and a mark shows which "
                  "one you are on."),
        heading("You know the part number"),
        steps("*Enter Model Number*: type it, for example *K19013XP0*, and "
              "press Enter. *Explain Part Numbers* tells what each character "
              "means.",
              "*Data Sheet*: drawing, sizes, ratings, fits and speeds on one "
              "page to view, print and save.",
              "*Load Input*: radial load, axial load, moment and speed.",
              "*Static + Dynamic Life*: L10 life, static safety factor, "
              "torque, and whether the speed is within the limit.",
              "*Deflection*, *Preload Torque* and *Axial Play*: what preload "
              "and clearance do to the bearing."),
        heading("You look for a bearing"),
        steps("*Set Style*: one of six bearing styles.",
              "*Set Sizes*: the smallest bore, the largest outside diameter "
              "and the heights that you have room for.",
              "*Load Input*: at least one load, and the speed if there is "
              "one.",
              "*Search Results*: every bearing that fits, with its life and "
              "stock. Sort, print or save the list, then choose one: it "
              "becomes the current bearing, and all the buttons of the first "
              "way work on it."),
        heading("Which bearing takes which load"),
        table((3300, 2020, 2020, 2020),
              ("Style", "Radial", "Axial", "Moment"), (
                  ("C  Radial contact", "yes", "no", "no"),
                  ("A  Angular contact", "with axial load", "one way",
                   "no"),
                  ("T  Tandem pair", "with axial load", "one way, heavy",
                   "no"),
                  ("X  Four-point contact", "good", "both ways", "good"),
                  ("B  Back-to-back pair", "best", "both ways", "best"),
                  ("F  Face-to-face pair", "best", "both ways", "fair")),
              coded=False),
        heading("Units"),
        paragraph("*Options*, *Dimensions* changes between U.S. units "
                  "(inches and pounds) and SI units (mm and Newtons). The "
                  "main menu is *blue* in U.S. units and *green* in SI "
                  "units."),
        heading("Saving your work"),
        paragraph("Data sheets, reports and lists are saved as rich text, "
                  "which every word processor opens, or as pictures. The "
                  "program proposes a name made from the part number and the "
                  "folder *save*."),
        note("Results rest on the catalogue tables beside the program. When "
             "Varden sends new tables, copy them over the old ones: nothing "
             "has to be installed."))


def distributor():
    return document(
        "Varden Distributor Information",
        title("Varden Distributor Information",
              "Where to ask, and what to have at hand"),
        paragraph("Norlaring bearings are sold by Varden's own offices and "
                  "by distributors that keep the common sizes in stock. An "
                  "office names the distributor that is nearest to you."),
        heading("Offices"),
        table((1700, 4160, 1900, 1600),
              ("Region", "Office", "Telephone", "Hours"), (
                  ("Americas", "Varden Corporation, 12 Foundry Road, "
                               "Millbrook", "555 0142", "8:00 \u2013 17:00"),
                  ("Europe", "Varden W\u00e4lzlager, Am Werkstor 3, "
                             "Altstadt", "555 0143", "8:00 \u2013 16:30"),
                  ("Asia", "Varden Pacific, Harbour Building 7, Minato",
                   "555 0144", "9:00 \u2013 17:30")), coded=False),
        heading("What to have at hand"),
        bullets("The *part number*, or style, envelope and loads when there "
                "is none yet.",
                "*Quantity* and the *date* at which the bearings are needed.",
                "Speed, temperature and lubrication.",
                "Limits of torque, runout or stiffness that have to be "
                "kept.",
                "The *data sheet* or report that this program has saved."),
        heading("From the question to the bearing"),
        steps("The distributor checks stock and gives a delivery date.",
              "For bearings that are not in stock, and for special fits, the "
              "question goes on to Varden's application engineers.",
              "You receive a drawing to approve before anything is made to "
              "order."),
        note("Names, addresses and numbers change. What the order "
             "confirmation says is what counts."))


DOCUMENTS = {
    "warranty.rtf": warranty,
    "introduction.rtf": introduction,
    "Distributor.rtf": distributor,
    "Break Down.rtf": break_down,
}


def make(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in DOCUMENTS.items():
        (folder / name).write_bytes(text().encode("ascii"))
    for name, text in documents().items():
        (folder / name).write_bytes(text.encode("ascii"))


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli")
    parser.add_argument("folder", nargs="?", type=Path,
                        default=DEFAULT_FOLDER)
    options = parser.parse_args()
    if options.cli:
        calculate(options.cli)
    make(options.folder)
