"""Checks of the sample catalogue: it is what its script makes, it is whole,
and its numbers agree with each other and with the program's constants.

Run from the root: python3 -m unittest discover -s tests/tools
"""

import csv
import math
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TABLES = ROOT / "data" / "Data Tables"
OVERLAYS = ROOT / "data" / "overlays"
SCRIPT = ROOT / "tools" / "catalogue" / "make_tables.py"

SECTIONS = (8, 13, 20)
FAMILIES = ("A", "C", "X")
CODES = ("0", "1", "2", "4", "6")
COATINGS = ("0", "4", "6")
SECTION_FILES = [f"{s}-{f}.csv" for s in SECTIONS for f in FAMILIES]
NAMES = {*SECTION_FILES, *(f"CLS{c}.csv" for c in CODES),
         *(f"CLS{c}N.csv" for c in COATINGS), "ASEPARATOR.CSV",
         "XSEPARATOR.CSV", "Fitnumber.doc", "SPEEDC.CSV", "SPEEDA.CSV",
         "SPEEDX.CSV"}

BALL = {8: 0.15625, 13: 0.25, 20: 0.375}
# Section, angular contact or not: radial sections of inner and outer ring.
RINGS = {(8, True): (0.0985, 0.0921), (8, False): (0.099, 0.0998),
         (13, True): (0.1647, 0.1523), (13, False): (0.1656, 0.1656),
         (20, True): (0.2602, 0.2374), (20, False): (0.2618, 0.2616)}
# Separators whose speed follows from the ball circle without a table.
FIXED_SPEED = {"C": {"F", "S", "ZS", "ZT"}, "X": {"F", "S", "ZS", "ZT"},
               "A": {"F", "S", "ZP", "ZV", "ZS"}}


def rows(name):
    """All rows of a table as lists of texts."""
    with open(TABLES / name, encoding="cp1252", newline="") as table:
        return list(csv.reader(table))


def bearings(section, family):
    """Data rows of a cross-section table: name and nine numbers."""
    for name, *numbers in rows(f"{section}-{family}.csv")[2:]:
        yield [name, *map(float, numbers)]


def every_bearing():
    """Section, family and data row of each bearing of the catalogue."""
    for section in SECTIONS:
        for family in FAMILIES:
            for row in bearings(section, family):
                yield section, family, row


def by_bore(name):
    """Numbers of a precision or coating table under the bore."""
    numbers = [[float(field) for field in row] for row in rows(name)[1:]]
    return {row[0]: row[1:] for row in numbers}


def catalogue_bores():
    return {row[2] for _, _, row in every_bearing()}


class TheFilesAre(unittest.TestCase):
    def test_exactly_those_that_the_program_reads(self):
        self.assertEqual({path.name for path in TABLES.iterdir()}, NAMES)

    def test_what_the_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", SCRIPT, folder],
                           check=True)
            made = {path.name: path.read_bytes()
                    for path in Path(folder).iterdir()}
        kept = {path.name: path.read_bytes() for path in TABLES.iterdir()}
        self.assertEqual(made.keys(), kept.keys())
        for name in sorted(made):
            with self.subTest(name):
                self.assertEqual(made[name], kept[name])

    def test_lines_that_end_in_carriage_return_and_line_feed(self):
        for name in sorted(NAMES):
            with self.subTest(name):
                content = (TABLES / name).read_bytes()
                self.assertTrue(content.endswith(b"\r\n"))
                self.assertEqual(content.count(b"\n"),
                                 content.count(b"\r\n"))

    def test_rows_of_a_fixed_number_of_fields(self):
        widths = {name: 10 for name in SECTION_FILES}
        widths.update({f"CLS{code}.csv": 10 for code in CODES})
        widths.update({f"CLS{code}N.csv": 5 for code in COATINGS})
        widths.update({"ASEPARATOR.CSV": 3, "XSEPARATOR.CSV": 3,
                       "Fitnumber.doc": 4, "SPEEDC.CSV": 48,
                       "SPEEDA.CSV": 48, "SPEEDX.CSV": 96})
        for name, width in widths.items():
            with self.subTest(name):
                self.assertEqual({len(row) for row in rows(name)}, {width})


class ASeriesHas(unittest.TestCase):
    def test_twenty_to_thirty_bores_from_20_to_500_mm(self):
        for section in SECTIONS:
            for family in FAMILIES:
                bores = [row[2] for row in bearings(section, family)]
                with self.subTest(f"{section}-{family}"):
                    self.assertTrue(20 <= len(bores) <= 30)
                    self.assertEqual(bores, sorted(set(bores)))
                    self.assertTrue(20 <= bores[0] < bores[-1] <= 500)
                    self.assertTrue(all(b == int(b) for b in bores))

    def test_the_190_mm_bore_of_section_13(self):
        names = [row[0] for row in bearings(13, "X")]
        self.assertIn("K19013XP0", names)

    def test_head_rows_with_fillet_and_height(self):
        for section in SECTIONS:
            for family in FAMILIES:
                fillet, height = rows(f"{section}-{family}.csv")[:2]
                with self.subTest(f"{section}-{family}"):
                    self.assertTrue(0 < float(fillet[0]) <= section / 10)
                    self.assertEqual(float(height[0]), section)

    def test_all_three_stock_codes_and_speed_columns_1_to_4(self):
        found = [(row[1], row[8]) for _, _, row in every_bearing()]
        self.assertEqual({stock for stock, _ in found}, {0, 1, 2})
        self.assertEqual({column for _, column in found}, {1, 2, 3, 4})


class ABearingRow(unittest.TestCase):
    def test_is_named_by_its_standard_part_number(self):
        for section, family, row in every_bearing():
            separator = "R" if family == "A" else "P"
            self.assertEqual(
                row[0], f"K{row[2]:03.0f}{section:02d}{family}{separator}0")

    def test_is_square(self):
        for section, _, row in every_bearing():
            self.assertEqual(row[3], row[2] + 2 * section, row[0])

    def test_shows_the_land_diameters_of_the_drawing(self):
        for section, family, row in every_bearing():
            name, _, bore, od, *references = row[:7]
            inner, outer = (25.4 * side
                            for side in RINGS[section, family == "A"])
            expected = [bore + 2 * inner, od - 2 * outer, 0]
            if family == "A":
                expected[1] = od - 2 * inner
                expected[2] = od - 2 * (2 * outer - inner)
            for found, wanted in zip(references, expected):
                self.assertAlmostEqual(found, wanted, delta=6e-5, msg=name)

    def test_has_balls_that_leave_the_separator_its_room(self):
        for section, _, row in every_bearing():
            circle = math.pi * (row[2] + section) / 25.4
            share = row[9] * BALL[section] / circle
            self.assertTrue(0.7 < share < 0.9, f"{row[0]}: {share}")

    def test_weighs_less_than_solid_steel_and_more_than_half_of_it(self):
        for section, _, row in every_bearing():
            solid = 7.83e-6 * math.pi * (row[2] + section) * section ** 2
            self.assertTrue(0.5 * solid < row[7] < solid, row[0])


class TheToleranceTables(unittest.TestCase):
    def test_hold_every_bore_of_the_catalogue(self):
        wanted = catalogue_bores()
        names = [f"CLS{code}.csv" for code in CODES]
        names += [f"CLS{code}N.csv" for code in COATINGS]
        for name in names:
            with self.subTest(name):
                self.assertEqual(by_bore(name).keys(), wanted)

    def test_have_negative_sizes_and_positive_runouts_and_clearances(self):
        for code in CODES:
            for bore, values in by_bore(f"CLS{code}.csv").items():
                with self.subTest(f"class {code}, bore {bore}"):
                    for column in (0, 1, 8):
                        self.assertLess(values[column], 0)
                    self.assertTrue(all(v > 0 for v in values[2:8]))
                    self.assertLess(values[6], values[7])

    def test_are_tighter_in_a_finer_class(self):
        coarse, mid, fine = (by_bore(f"CLS{c}.csv") for c in "046")
        for bore, values in coarse.items():
            for column in range(6):
                with self.subTest(f"bore {bore}, column {column + 2}"):
                    widths = [abs(table[bore][column])
                              for table in (coarse, mid, fine)]
                    self.assertTrue(widths[0] > widths[1] >= widths[2])

    def test_of_codes_1_and_2_have_sizes_of_0_and_runouts_of_4_and_6(self):
        for code, runouts in (("1", "4"), ("2", "6")):
            sizes, rotation = (by_bore(f"CLS{c}.csv") for c in ("0", runouts))
            for bore, values in by_bore(f"CLS{code}.csv").items():
                with self.subTest(f"class {code}, bore {bore}"):
                    self.assertEqual(values[:2], sizes[bore][:2])
                    self.assertEqual(values[2:6], rotation[bore][2:6])

    def test_of_coatings_shrink_the_bore_and_grow_the_outside(self):
        for code in COATINGS:
            plain = by_bore(f"CLS{code}.csv")
            for bore, values in by_bore(f"CLS{code}N.csv").items():
                with self.subTest(f"class {code}, bore {bore}"):
                    self.assertLess(values[0], 0)
                    self.assertGreater(values[2], 0)
                    self.assertEqual([values[1], values[3]],
                                     plain[bore][:2])


class TheFitTable(unittest.TestCase):
    def setUp(self):
        self.fits = [(letter, float(low), float(high), kind)
                     for letter, low, high, kind in rows("Fitnumber.doc")]

    def test_holds_the_letters_a_to_z(self):
        self.assertEqual("".join(fit[0] for fit in self.fits),
                         "ABCDEFGHIJKLMNOPQRSTUVWXYZ")

    def test_has_clearances_up_to_j_then_preloads_and_a_special_fit(self):
        kinds = [fit[3] for fit in self.fits]
        self.assertEqual(kinds, ["Clearance"] * 10 + ["Preload"] * 15
                         + ["Special"])

    def test_has_rising_bands(self):
        for letter, low, high, _ in self.fits[:25]:
            with self.subTest(letter):
                self.assertTrue(0 <= low < high)
        for group in (self.fits[:10], self.fits[10:25]):
            highs = [fit[2] for fit in group]
            self.assertEqual(highs, sorted(set(highs)))

    def test_has_preloads_from_one_to_fifteen_ten_thousandths(self):
        # The graphs mark a limit only where it is a whole multiple of
        # 0.0001 inch, and below 0.00005 some preload solves fail.
        for letter, low, high, _ in self.fits[10:25]:
            with self.subTest(letter):
                for limit in (low, high):
                    steps = limit / 0.0001
                    self.assertAlmostEqual(steps, round(steps), places=6)
                self.assertTrue(0.0001 <= high <= 0.0015)


class TheSeparatorTables(unittest.TestCase):
    def test_hold_every_code_that_their_bearings_can_carry(self):
        common = {"P", "R", "F", "M", "W", "S", "J", "N"}
        codes = {family: {row[0] for row in rows(f"{family}SEPARATOR.CSV")}
                 for family in "AX"}
        self.assertEqual(codes["A"], common | {"ZP", "ZV", "ZS"})
        self.assertEqual(codes["X"], common | {"ZT", "ZS"})

    def test_begin_each_text_with_the_letter_that_the_sheet_drops(self):
        for family in "AX":
            for code, text, _ in rows(f"{family}SEPARATOR.CSV"):
                with self.subTest(f"{family} {code}"):
                    self.assertTrue(text.startswith(f"{code[0]}= "))

    def test_name_overlays_that_are_there_for_every_style(self):
        present = {path.name.lower() for path in OVERLAYS.iterdir()}
        for family, suffixes in (("A", ("A", "U")), ("X", ("XC",))):
            for code, _, overlay in rows(f"{family}SEPARATOR.CSV"):
                for suffix in suffixes:
                    with self.subTest(f"{family} {code} {suffix}"):
                        self.assertRegex(overlay, re.compile("^[A-Z]{1,8}$"))
                        self.assertIn(f"{overlay}{suffix}.sep".lower(),
                                      present)


class TheSpeedTables(unittest.TestCase):
    def blocks(self, style):
        for row in rows(f"SPEED{style}.CSV"):
            for start in range(0, len(row), 48):
                numbers = [float(n) for n in row[start + 24:start + 48]]
                yield row[start], numbers

    def test_have_a_line_for_each_separator_that_is_looked_up(self):
        for style, fixed in FIXED_SPEED.items():
            name = "ASEPARATOR.CSV" if style == "A" else "XSEPARATOR.CSV"
            wanted = {row[0] for row in rows(name)} - fixed
            with self.subTest(style):
                keys = [row[0] for row in rows(f"SPEED{style}.CSV")]
                self.assertEqual(sorted(keys), sorted(wanted))

    def test_have_the_line_that_a_search_reads(self):
        for style, key in (("C", "P"), ("X", "P"), ("A", "R")):
            keys = [block[0] for block in self.blocks(style)]
            self.assertIn(key, keys)

    def test_name_both_blocks_of_a_four_point_line_alike(self):
        for row in rows("SPEEDX.CSV"):
            self.assertEqual(row[0], row[48])

    def test_allow_more_under_pure_thrust(self):
        for row in rows("SPEEDX.CSV"):
            for column in range(24, 48):
                self.assertGreater(float(row[column]),
                                   float(row[column + 48]))

    def test_fall_with_size_and_rise_with_oil_mist_and_precision(self):
        for style in FIXED_SPEED:
            for key, numbers in self.blocks(style):
                with self.subTest(f"{style} {key}"):
                    self.check_block(numbers)

    def check_block(self, numbers):
        for start in range(0, 24, 4):
            columns = numbers[start:start + 4]
            self.assertEqual(columns, sorted(set(columns), reverse=True))
        for column in range(4):
            for half in (0, 12):
                grease, oil, mist = numbers[half + column:half + 12:4]
                self.assertTrue(grease < oil < mist)
        for standard, fine in zip(numbers[:12], numbers[12:]):
            self.assertLess(standard, fine)


if __name__ == "__main__":
    unittest.main()
