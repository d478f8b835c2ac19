"""The training show and the workbook of the metric series say what the program calculates today."""

import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tools" / "training"), str(ROOT / "tools" / "help")]

from examples import Cases, run  # noqa: E402
from office_files import packed_number, sheet_cells, slide_texts  # noqa: E402
from program import CLI  # noqa: E402
from slides import CASES, training_show  # noqa: E402
from workbook import metric_workbook, names  # noqa: E402

TRAINING = ROOT / "data" / "training"


class TheShow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.slides = slide_texts((TRAINING / "varden.pps").read_bytes())

    def test_says_on_each_slide_what_the_program_calculates(self):
        show = training_show(Cases(CLI, CASES).text)
        self.assertEqual(len(self.slides), len(show.slides))
        for number, (shown, wanted) in enumerate(zip(self.slides, show.slides), 1):
            with self.subTest(slide=number):
                self.assertEqual([text.strip() for text in shown if text.strip()],
                                 [text.strip() for text in wanted.texts if text.strip()])

    def test_uses_each_of_its_cases(self):
        used = set()

        def text(mark):
            used.add(mark.split(".")[0])
            return cases.text(mark)

        cases = Cases(CLI, CASES)
        training_show(text)
        # The load of each ball is asked for by its number.
        self.assertEqual(used, set(CASES))

    def test_has_the_life_of_the_worked_example(self):
        life = run(CLI, "life K19013XP0 --radial 1200 --axial 300 --moment 900 --speed 400").l10Hours
        self.assertIn(f"{life:,.1f} hours", self.slides[-1])


class TheWorkbook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.cells = sheet_cells((TRAINING / "Metric Bearings.xls").read_bytes())

    def test_holds_in_each_cell_what_the_program_calculates(self):
        book = metric_workbook(CLI)
        wanted = {(sheet.name, row, column): value
                  for sheet in book.sheets for row, column, value in sheet.cells()}
        self.assertEqual(self.cells.keys(), wanted.keys())
        for place, value in wanted.items():
            with self.subTest(place):
                self.assertEqual(self.cells[place], value)

    def test_has_every_bearing_of_the_catalogue(self):
        shown = {value for value in self.cells.values() if isinstance(value, str)}
        for section in (8, 13, 20):
            for family in "CXA":
                for name in names(section, family):
                    with self.subTest(name):
                        self.assertIn(name, shown)

    def test_has_the_ratings_in_newtons(self):
        rows = {value: place for place, value in self.cells.items() if value == "K19013XP0"}
        sheet, row, _ = rows["K19013XP0"]
        heads = {self.cells[sheet, 2, column]: column for column in range(15)}
        # 2280 x 81 balls x 0.25 inch squared is 11542.5 lbs; a pound is 1 / 0.2248089 N.
        self.assertEqual(self.cells[sheet, row, heads["Static radial"]], round(11542.5 / 0.2248089))
        self.assertEqual(self.cells[sheet, row, heads["Bore"]], 190)
        self.assertEqual(self.cells[sheet, row, heads["Outside diameter"]], 216)
        self.assertEqual(self.cells[sheet, row, heads["Ball diameter"]], 6.35)


class APackedNumber(unittest.TestCase):
    def test_is_a_whole_number_or_the_upper_half_of_a_long_one_perhaps_in_hundredths(self):
        for packed, value in ((0x3FF00000, 1.0), (0x3FF00001, 0.01), (0x004B5646, 1234321.0), (0x004B5647, 12343.21),
                              (0xFFFFFFFA, -2.0)):
            with self.subTest(hex(packed)):
                self.assertEqual(packed_number(packed), value)


if __name__ == "__main__":
    unittest.main()
