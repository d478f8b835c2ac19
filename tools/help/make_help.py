#!/usr/bin/env python3
"""Makes the documents that the text viewer shows, as RTF.

usage: make_help.py [FOLDER]     default: data/help of this tree
"""

import sys
from pathlib import Path

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "data" / "help"

HEAD = (r"{\rtf1\ansi\ansicpg1252\uc1\deff0{\fonttbl{\f0\fswiss Arial;}{\f1\froman Times New Roman;}"
        r"{\f2\fmodern Courier New;}}{\colortbl;\red0\green40\blue110;\red90\green96\blue112;\red190\green20\blue20;}"
        "\r\n")
TABLE_EDGES = (1500, 3600, 9000)


def escape(text):
    out = []
    for character in text:
        if character in "\\{}":
            out.append("\\" + character)
        elif ord(character) < 128:
            out.append(character)
        else:
            out.append(f"\\u{ord(character)}?")
    return "".join(out)


def title(text):
    return r"\pard\sa200{\f0\fs40\b\cf1 " + escape(text) + r"}\par" + "\r\n"


def heading(text):
    return r"\pard\sb240\sa80{\f0\fs26\b\cf1 " + escape(text) + r"}\par" + "\r\n"


def paragraph(text):
    return r"\pard\sa120{\f0\fs21 " + escape(text) + r"}\par" + "\r\n"


def bullet(text):
    return r"\pard\li360\fi-240\tx360\sa60{\f0\fs21\bullet\tab " + escape(text) + r"}\par" + "\r\n"


def row(cells, head=False):
    look = r"\f0\fs20\b\cf1 " if head else r"\f0\fs20 "
    edges = "".join(f"\\cellx{edge}" for edge in TABLE_EDGES[-len(cells):])
    body = "".join(r"\pard\intbl{" + look + escape(cell) + r"}\cell " for cell in cells)
    return r"\trowd\trgaph80" + edges + "\r\n" + body + r"\row" + "\r\n"


def table(head, rows):
    return row(head, True) + "".join(row(cells) for cells in rows) + "\\pard\r\n"


def document(*parts):
    return HEAD + "".join(parts) + "}\r\n"


def warranty():
    return document(
        title("Warranty"),
        paragraph("This software is given to design engineers who use the Varden catalogue, free of charge."),
        heading("What it is for"),
        paragraph("It works out ratings, life, static safety, speeds, fits and data sheets of Norlaring thin-section ball "
                  "bearings from the catalogue tables that come with it. Its results support the choice of a bearing; "
                  "they do not replace the judgement of the engineer who is responsible for the machine."),
        heading("Limits"),
        bullet("Results hold for the loads, speeds and materials that were entered, with rigid shafts and housings."),
        bullet("Torque and speed values are typical ones. Values that must be kept have to be agreed before ordering."),
        bullet("Fits that are recommended take the catalogue tolerances; parts outside of them need a check of their own."),
        bullet("Availability changes. Please ask Varden before a design is settled."),
        heading("Liability"),
        paragraph("The software is provided as it is, without warranty of any kind. Varden is not liable for loss or damage "
                  "that follows from its use. The warranty for bearings is that of the order confirmation."))


def introduction():
    return document(
        title("Introduction to NORLAPLAN MM\u2122 Software"),
        paragraph("NORLAPLAN MM helps to choose a thin-section ball bearing and tells what it does under load. There are two "
                  "ways through the program, and the main menu marks the one that you have taken."),
        heading("You know the part number"),
        bullet("Enter Model Number: type it, for example K19013XP0, and press Enter."),
        bullet("Data Sheet: the drawing, sizes, ratings, fits and speeds on one page to print and save."),
        bullet("Load Input, then Static + Dynamic Life: L10 life, static safety factor, torque and the speed verdict."),
        bullet("Preload Torque, Axial Play, Deflection: what preload or clearance does to the bearing."),
        heading("You look for a bearing"),
        bullet("Set Style: one of six styles."),
        bullet("Set Sizes: the smallest bore, the largest outer diameter and the height that you have room for."),
        bullet("Load Input: at least one load, and the speed if there is one."),
        bullet("Search Results: every bearing that fits, with its life and stock; sort, print or save the list and choose "
               "one."),
        heading("Units"),
        paragraph("Options, Dimensions changes between inches and pounds and millimetres and newtons. What you have entered is "
                  "converted. The main menu is blue in US units and green in metric ones."))


def distributor():
    return document(
        title("Varden Distributor Information"),
        paragraph("Norlaring bearings are sold through Varden's own offices and through distributors that stock the common "
                  "sizes."),
        table(("Region", "Office", "Telephone"),
              (("Americas", "Varden Bearings, Millbrook", "1-800-555-0142"),
               ("Europe", "Varden Lager, Altstadt", "+00 555 0143"),
               ("Asia", "Varden Pacific, Minato", "+00 555 0144"))),
        heading("What to have at hand"),
        bullet("The part number, or the envelope and the loads."),
        bullet("Quantity and date."),
        bullet("Whether torque, runout or speed have to be kept within limits."))


def break_down():
    positions = (
        ("1", "Ring material", "K vacuum degassed 52100 steel; S 440C steel; N 52100 steel with Armorline coating"),
        ("2 to 4", "Bore", "in whole millimetres, three digits"),
        ("5 and 6", "Cross-section", "08, 13 or 20 mm"),
        ("7", "Style", "A angular contact; B back-to-back pair; C radial contact; F face-to-face pair; T tandem pair; "
                       "U universal ground; X four-point contact"),
        ("8", "Separator", "P or R brass ribbon; J or N crown; M or W formed wire; S springs; F no separator; Z with a "
                           "second choice: toroids, slugs or spacer balls"),
        ("9", "Precision", "0 class 1; 1 class 1 with class 4 runouts; 2 class 1 with class 6 runouts; 4 class 4; 6 class 6"),
        ("10", "Internal fit", "A to J clearance; K to Y preload; Z special. Pairs must have one; single angular contact "
                               "bearings and tandem pairs have none"),
    )
    return document(
        title("Part Number Breakdown"),
        paragraph("A part number has nine or ten characters. Small letters and a letter O in place of a zero are put right."),
        table(("Position", "Meaning", "Codes"), positions),
        heading("Example"),
        r"\pard\sa120{\f2\fs28\b\cf3 K 190 13 X P 0}\par" + "\r\n",
        paragraph("52100 steel, 190 mm bore, 13 mm cross-section, four-point contact, brass ribbon separator, precision "
                  "class 1, standard clearance."))


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


if __name__ == "__main__":
    make(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER)
