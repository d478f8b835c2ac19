"""Checks of the help documents: they are what their script makes, they are
whole, and the part number page agrees with the catalogue tables.

Run from the root: python3 -m unittest discover -s tests/tools
"""

import csv
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HELP = ROOT / "data" / "help"
TABLES = ROOT / "data" / "Data Tables"
SCRIPT = ROOT / "tools" / "help" / "make_help.py"
NAMES = {"warranty.rtf", "introduction.rtf", "Distributor.rtf",
         "Break Down.rtf"}


def kept():
    return {path.name: path.read_bytes() for path in HELP.iterdir()
            if path.name in NAMES}


def rows(name):
    with open(TABLES / name, encoding="cp1252", newline="") as table:
        return list(csv.reader(table))


def cells(name):
    """The texts of all table cells of a document, without their look."""
    text = (HELP / name).read_text(encoding="ascii")
    for content in re.findall(r"\\pard\\intbl(.*?)\\cell", text, re.S):
        yield re.sub(r"\\[a-z]+-?\d* ?|[{}]", "", content).strip()


class TheDocumentsAre(unittest.TestCase):
    def test_what_the_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", SCRIPT, folder],
                           check=True)
            made = {path.name: path.read_bytes()
                    for path in Path(folder).iterdir()}
        self.assertEqual(made.keys(), NAMES)
        self.assertEqual(made.keys(), kept().keys())
        for name in sorted(NAMES):
            with self.subTest(name):
                self.assertEqual(made[name], kept()[name])

    def test_rich_text_of_ascii_bytes_that_closes_each_group(self):
        for name, content in kept().items():
            with self.subTest(name):
                text = content.decode("ascii")
                self.assertTrue(text.startswith(r"{\rtf1"))
                bare = re.sub(r"\\[\\{}]", "", text)
                depths = [0]
                for brace in re.findall("[{}]", bare):
                    depths.append(depths[-1] + (1 if brace == "{" else -1))
                self.assertEqual(depths[-1], 0)
                self.assertNotIn(0, depths[1:-1])

    def test_named_with_words_that_the_tables_list(self):
        for name, content in kept().items():
            text = content.decode("ascii")
            fonts = text.split(r"\fonttbl")[1].split("}}")[0]
            colours = text.split(r"\colortbl")[1].split("}")[0].count(";")
            with self.subTest(name):
                for font in set(re.findall(r"\\f(\d+)", text)):
                    self.assertIn(rf"\f{font}\f", fonts)
                for number in re.findall(r"\\(?:cf|clcbpat|brdrcf)(\d+)",
                                         text):
                    self.assertLess(int(number), colours)


class TheRowsOfATable(unittest.TestCase):
    def test_have_as_many_cells_as_their_definition(self):
        for name, content in kept().items():
            text = content.decode("ascii")
            for row in re.findall(r"\\trowd.*?\\row", text, re.S):
                with self.subTest(name):
                    self.assertEqual(len(re.findall(r"\\cellx\d", row)),
                                     len(re.findall(r"\\cell\b(?!x)", row)))


class ThePartNumberPage(unittest.TestCase):
    def test_names_every_code_of_the_separator_tables(self):
        shown = set(cells("Break Down.rtf"))
        for table in ("ASEPARATOR.CSV", "XSEPARATOR.CSV"):
            for code, text, _ in rows(table):
                with self.subTest(code):
                    self.assertIn(code, shown)
                    self.assertIn(text.split("=", 1)[1].strip(), shown)

    def test_names_every_fit_with_its_limits(self):
        shown = list(cells("Break Down.rtf"))
        for letter, low, high, kind in rows("Fitnumber.doc"):
            if kind in ("Clearance", "Preload"):
                with self.subTest(letter):
                    self.assertIn((letter, f"{low} to {high}"),
                                  zip(shown, shown[1:]))

    def test_names_the_codes_of_every_other_position(self):
        shown = set(cells("Break Down.rtf"))
        for code in ("K", "S", "N", "08", "13", "20", *"ABCFTUX", *"01246"):
            with self.subTest(code):
                self.assertIn(code, shown)


if __name__ == "__main__":
    unittest.main()
