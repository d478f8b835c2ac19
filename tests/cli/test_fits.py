"""torque, play and fits of norlaplan-cli: results, refusals, errors."""

import math
import struct
import unittest

from program import result, run

TORQUE_FIELDS = {"curve", "axes", "warnings"}
AXES = ["xMax", "xStep", "yMax", "yStep", "yExp", "yMant", "sx", "sy"]
PLAY_FIELDS = ["rowCount", "curve", "clearanceLow", "clearanceHigh", "curveClearanceMax", "playAtLow", "playAtHigh",
               "tiltAtLow", "tiltAtHigh", "sx", "sy", "sTilt", "warnings"]
FITS_FIELDS = ["highTemp", "lowTemp", "shaftExpansion", "housingExpansion", "shaftSize", "housingSize", "shaftLine",
               "housingLine", "comment", "warnings"]
ROOM = ("--high", "68", "--low", "68", "--shaft", "7e-6", "--housing", "7e-6")


def single(value):
    """The 32-bit value nearest to it."""
    return struct.unpack("f", struct.pack("f", value))[0]


class Torque(unittest.TestCase):
    def test_gives_fifty_points_that_rise_for_every_style_and_letter(self):
        for number in ("K19013XP0", "K19013XP0E", "K19013XP0R", "K19013XP0Z", "K04008CP0", "K50020BP0E", "K19013FP0R"):
            for units in ("US", "METRIC"):
                status, torque = result("--units", units, "torque", number)
                self.assertEqual(status, 0, number)
                self.assertEqual(set(torque), TORQUE_FIELDS)
                self.assertEqual(list(torque["axes"]), AXES)
                self.assertEqual([preload for preload, _ in torque["curve"]], [i / 10000 for i in range(1, 51)])
                values = [value for _, value in torque["curve"]]
                self.assertEqual(values, sorted(values))
                self.assertGreater(values[0], 0)

    def test_points_are_inches_and_inch_pounds_in_both_units(self):
        self.assertEqual(result("torque", "K19013XP0")[1]["curve"],
                         result("--units", "METRIC", "torque", "K19013XP0")[1]["curve"])

    def test_axes_end_at_the_next_unit_of_the_leading_figure(self):
        for number in ("K19013XP0", "K04008CP0", "K19013BP0R"):
            for units, step, end, moment in (("US", 0.0005, single(0.005), 1.0), ("METRIC", 0.01 / 25.4, 0.13 / 25.4, 8.850744)):
                torque = result("--units", units, "torque", number)[1]
                axes, top = torque["axes"], torque["curve"][-1][1] / moment
                exponent = math.floor(math.log10(top))
                leading = math.floor(top / 10.0**exponent) + 1
                most = leading * 10.0**exponent
                expected = (end, step, most, most / leading if leading >= 4 else most / (2 * leading), exponent, leading,
                            7.25 / end, 4 / most)
                for name, value in zip(AXES, expected):
                    self.assertAlmostEqual(axes[name] / value if value else 1 + axes[name], 1, places=9,
                                           msg=f"{number} {units} {name}")

    def test_shows_a_table(self):
        lines = run("torque", "K19013XP0").stdout.splitlines()
        self.assertEqual(lines[0], "K19013XP0")
        self.assertEqual(lines[2], "Preload (inches)  Torque (in-lbs)")
        self.assertEqual(len(lines), 53)
        self.assertIn("Preload (mm)", run("--units", "METRIC", "torque", "K19013XP0").stdout)

    def test_refuses_single_angular_contact_bearings_and_tandem_sets(self):
        for style in "AUT":
            status, told = result("torque", f"K19013{style}P0")
            self.assertEqual(status, 1)
            self.assertEqual(told["error"], {"kind": "message", "number": None, "title": "Wrong Bearing style",
                                             "prompt": "Only Duplexes , 'C' or 'X' styles allowed"})


class Play(unittest.TestCase):
    def test_gives_the_curve_its_marks_and_its_scales(self):
        for number in ("K19013XP0", "K19013CP0E", "K19013XP0R", "K19013XP0Z"):
            status, play = result("play", number)
            self.assertEqual(status, 0, number)
            self.assertEqual(list(play), PLAY_FIELDS)
            self.assertEqual(play["rowCount"], len(play["curve"]))
            self.assertEqual(play["curve"][0], [0, 0, 0])
            for column in range(3):
                values = [row[column] for row in play["curve"]]
                self.assertEqual(values, sorted(values))
            self.assertGreater(play["playAtHigh"], play["playAtLow"])

    def test_rows_are_in_display_length_and_tilt_in_radians(self):
        inches = result("play", "K19013XP0")[1]["curve"]
        millimetres = result("--units", "METRIC", "play", "K19013XP0")[1]["curve"]
        for us, metric in zip(inches, millimetres):
            self.assertAlmostEqual(us[0] * 25.4, metric[0], places=6)
            self.assertAlmostEqual(us[1] * 25.4, metric[1], places=6)
            self.assertEqual(us[2], metric[2])

    def test_marks_the_range_of_the_bearing_and_fills_the_plot(self):
        # A clearance letter has its own range; without one, and with a preload letter, it is the standard one.
        for number, low, high in (("K19013XP0E", "fitLow", "fitHigh"), ("K19013XP0", "stdClearanceLow", "stdClearanceHigh"),
                                  ("K19013XP0R", "stdClearanceLow", "stdClearanceHigh")):
            bearing = result("decode", number)[1]
            for units, length in (("US", 1.0), ("METRIC", 25.4)):
                play = result("--units", units, "play", number)[1]
                curve = play["curve"]
                self.assertEqual((play["clearanceLow"], play["clearanceHigh"]), (bearing[low], bearing[high]))
                self.assertEqual(play["curveClearanceMax"], 0.006)
                self.assertAlmostEqual(play["sx"] * length * 0.006, 7.25, places=5)
                self.assertAlmostEqual(play["sy"] * curve[-1][1], 4, places=5)
                self.assertAlmostEqual(play["sTilt"] * curve[-1][2], 4, places=5)
                for limit, at_play, at_tilt in (("clearanceLow", "playAtLow", "tiltAtLow"),
                                                ("clearanceHigh", "playAtHigh", "tiltAtHigh")):
                    # The last row that isn't beyond the limit; rows follow each other by a ten thousandth of an inch.
                    row = curve[int(play[limit] * 10000 + 0.1)]
                    self.assertEqual((play[at_play], play[at_tilt]), (row[1], row[2]), f"{number} {units} {limit}")

    def test_shows_a_table_whose_digits_tell_its_rows_apart(self):
        # From row to row the clearance grows by a ten thousandth of an inch.
        for units, clearances, play in (("US", ["0.0000", "0.0001", "0.0002"], r"^\d\.\d{5}$"),
                                        ("METRIC", ["0.00000", "0.00254", "0.00508"], r"^\d\.\d{4}$")):
            lines = run("--units", units, "play", "K19013XP0").stdout.splitlines()
            self.assertEqual(lines[0], "K19013XP0")
            self.assertTrue(lines[3].startswith("Clearance ("))
            rows = [line.split() for line in lines[4:]]
            self.assertEqual([row[0] for row in rows[:3]], clearances)
            for row in rows:
                self.assertRegex(row[1], play)

    def test_refuses_all_styles_but_radial_and_four_point_contact(self):
        for number in ("K19013AP0", "K19013UP0", "K19013TP0", "K19013BP0E", "K19013FP0E"):
            status, told = result("play", number)
            self.assertEqual((status, told["error"]["title"], told["error"]["prompt"]),
                             (1, "Wrong Bearing style", "Only radial and 4-point contact bearings allowed"))


class Fits(unittest.TestCase):
    def test_gives_sizes_and_lines_for_every_style(self):
        for number in ("K19013XP0", "K19013CP0E", "S19013BP0R", "N19013AP0", "K19013UP0", "K19013TP0"):
            status, fits = result("fits", number, *ROOM)
            self.assertEqual(status, 0, number)
            self.assertEqual(list(fits), FITS_FIELDS)
            self.assertTrue(fits["shaftLine"].startswith("Shaft size "))
            self.assertTrue(fits["housingLine"].startswith("Housing size "))

    def test_at_room_temperature_the_shaft_takes_the_whole_clearance(self):
        for number, clearance in (("K19013XP0", "stdClearanceLow"), ("K19013CP0E", "fitLow")):
            bearing = result("decode", number)[1]
            fits = result("fits", number, *ROOM)[1]
            expected = {"highTemp": 68, "lowTemp": 68, "shaftExpansion": 7e-6, "housingExpansion": 7e-6,
                        "shaftSize": bearing["bore"] + bearing["boreTolerance"] + bearing[clearance],
                        "housingSize": bearing["outsideDiameter"]}
            for name, value in expected.items():
                self.assertAlmostEqual(fits[name] / value, 1, places=6, msg=f"{number} {name}")

    def test_takes_a_material_by_name_through_its_text(self):
        for name, us, metric in (("52100 Steel", 7e-6, 7e-6), ("440C steel", 5.6e-6, 1.01e-5 / 1.8),
                                 ("7075 Aluminum", 1.31e-5, 2.36e-5 / 1.8), ("ti6al4v", 5.3e-6, 9.54e-6 / 1.8)):
            for units, expected in (("US", us), ("METRIC", metric)):
                status, fits = result("--units", units, "fits", "K19013XP0", "--high", "50", "--low", "-40",
                                      "--shaft", name, "--housing", name)
                self.assertEqual(status, 0, name)
                self.assertAlmostEqual(fits["shaftExpansion"] / expected, 1, places=6)
                self.assertEqual(fits["shaftExpansion"], fits["housingExpansion"])

    def test_lets_swapped_temperatures_change_places(self):
        words = ("--shaft", "1.3e-5", "--housing", "5.3e-6")
        right = result("fits", "K19013XP0", "--high", "250", "--low", "-65", *words)
        self.assertEqual(right, result("fits", "K19013XP0", "--high", "-65", "--low", "250", *words))
        self.assertEqual((right[1]["highTemp"], right[1]["lowTemp"]), (250, -65))

    def test_temperatures_are_internally_in_degrees_fahrenheit(self):
        fits = result("--units", "METRIC", "fits", "K19013XP0", "--high", "100", "--low", "-40", *ROOM[4:])[1]
        self.assertEqual((fits["highTemp"], fits["lowTemp"]), (212, -40))

    def test_refuses_an_unspecified_fit(self):
        status, told = result("fits", "K19013XP0Z", *ROOM)
        self.assertEqual(status, 1)
        self.assertEqual(told["error"], {"kind": "message", "number": None,
                                         "title": "Fitup information is required for this option",
                                         "prompt": "Cannot Calculate with 'Z' Fitup"})

    def test_a_size_that_shrinks_to_nothing_is_a_run_time_error(self):
        status, told = result("fits", "K19013XP0", "--high", "67", "--low", "60", "--shaft", "1", "--housing", "0")
        self.assertEqual((status, told["error"]["kind"], told["error"]["number"]), (3, "runtime", 11))

    def test_refuses_texts_that_are_no_number_and_no_material_as_wrong_usage(self):
        for words in (("--high", "hot", *ROOM[2:]), (*ROOM[:4], "--shaft", "Wood", "--housing", "0"),
                      (*ROOM[:4], "--shaft", "", "--housing", "0"), (*ROOM[:6], "--housing", "Other"), ROOM[:6]):
            self.assertEqual(run("fits", "K19013XP0", *words).returncode, 2, words)
        told = run("fits", "K19013XP0", *ROOM[:6], "--housing", "Wood").stderr
        self.assertIn('--housing is a coefficient or one of "52100 Steel", "440C steel"', told)


if __name__ == "__main__":
    unittest.main()
