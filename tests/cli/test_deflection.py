"""norlaplan-cli deflection: results, refusals and faults as a user's shell sees them."""

import unittest

from program import result, run

NUMBERS = ("radialSpringRate", "radialReliefLoad", "axialSpringRate", "axialReliefLoad", "momentSpringRate",
           "momentReliefLoad", "radialConstant", "momentConstant1", "momentConstant2", "initialTilt")


class Deflection(unittest.TestCase):
    def test_gives_every_result_of_a_four_point_bearing_by_name(self):
        status, found = result("deflection", "K19013XP0", "--preload", "0.001")
        self.assertEqual(status, 0)
        self.assertEqual(list(found), [*NUMBERS, "initialAngle", "curveOffset", "axialPoints", "radialCurve",
                                       "axialCurve", "momentCurve", "warnings"])
        for name in NUMBERS:
            self.assertIsInstance(found[name], (int, float), name)
        self.assertEqual(found["initialAngle"], "30")
        self.assertEqual(found["initialTilt"], 0)
        self.assertEqual(found["axialPoints"][0], "0       30.0     0.000000")
        for curve in ("radialCurve", "axialCurve", "momentCurve"):
            self.assertEqual(len(found[curve]), 51)
            self.assertEqual(found[curve][0], [0, 0])

    def test_takes_the_rate_of_a_pair_from_its_relief_load(self):
        for number in ("K19013BP0T", "K19013FP0T"):
            status, found = result("deflection", number, "--preload", "0.001")
            self.assertEqual(status, 0)
            # The relief load is a 32-bit field and prints with its own digits.
            self.assertAlmostEqual(found["axialSpringRate"] * 0.001 / 2 / found["axialReliefLoad"], 1, places=6)
            self.assertIsNone(found["initialAngle"])

    def test_leaves_out_what_a_radial_contact_bearing_has_not(self):
        status, found = result("deflection", "K19013CP0", "--preload", "0.001")
        self.assertEqual(status, 0)
        for name in ("axialSpringRate", "momentReliefLoad", "momentConstant1", "initialTilt", "initialAngle",
                     "axialPoints", "axialCurve", "momentCurve"):
            self.assertIsNone(found[name], name)
        self.assertEqual(len(found["radialCurve"]), 51)

    def test_with_no_preload_has_relief_loads_of_minus_one_and_no_rate(self):
        status, found = result("deflection", "K19013XP0", "--preload", "0")
        self.assertEqual(status, 0)
        self.assertEqual([found[n] for n in ("radialReliefLoad", "axialReliefLoad", "momentReliefLoad")], [-1] * 3)
        self.assertIsNone(found["radialSpringRate"])
        self.assertEqual(found["curveOffset"], 0)

    def test_ends_the_curves_at_the_given_maxima_else_at_a_fifth_of_the_ratings(self):
        status, found = result("deflection", "K19013XP0", "--preload", "0", "--max-radial", "700", "--max-moment", "900")
        self.assertEqual(status, 0)
        _, bearing = result("decode", "K19013XP0")
        self.assertEqual(found["radialCurve"][50][0], 700)
        self.assertEqual(found["momentCurve"][50][0], 900)
        self.assertAlmostEqual(found["axialCurve"][50][0], int(bearing["dynamicThrust"] * 0.2), places=6)

    def test_takes_preload_and_maxima_in_display_units_and_answers_in_inches_and_pounds(self):
        _, us = result("deflection", "K19013BP0T", "--preload", "0.001", "--max-radial", "224.8089")
        status, metric = result("--units", "METRIC", "deflection", "K19013BP0T", "--preload", "0.0254",
                                "--max-radial", "1000")
        self.assertEqual(status, 0)
        self.assertAlmostEqual(metric["axialReliefLoad"], us["axialReliefLoad"], places=3)
        self.assertAlmostEqual(metric["radialCurve"][50][0], 224.8089, places=4)

    def test_prints_a_table_in_display_units(self):
        us = run("deflection", "K19013CP0", "--preload", "0.001").stdout
        self.assertIn("K19013CP0, diametral preload 0.001000 inches\n", us)
        self.assertRegex(us, r"\nSpring rate +[0-9,]+\n")
        self.assertIn("Radial (lbs)  Deflection (inches)\n", us)
        metric = run("--units", "METRIC", "deflection", "K19013BP0T", "--preload", "0.02").stdout
        self.assertIn("K19013BP0T, axial preload 0.020000 mm\n", metric)
        self.assertIn("Moment (N-m)  Tilt (radians)\n", metric)

    def test_refuses_single_angular_contact_bearings_and_tandem_sets(self):
        for letter in "AUT":
            status, told = result("deflection", f"K19013{letter}P0", "--preload", "0.001")
            self.assertEqual(status, 1)
            self.assertEqual(told["error"], {"kind": "message", "number": None, "title": "Try another Bearing type",
                                             "prompt": f"Bearing type {letter} Not allowed"})

    def test_tells_of_a_preload_that_no_bearing_has_as_a_run_time_error(self):
        status, told = result("deflection", "K19013XP0", "--preload", "-0.001")
        self.assertEqual((status, told["error"]["kind"], told["error"]["number"]), (3, "runtime", 5))
        status, told = result("deflection", "K19013BP0T", "--preload", "-0.001")
        self.assertEqual((status, told["error"]["kind"], told["error"]["number"]), (3, "runtime", None))
        self.assertEqual(told["error"]["title"], "The calculation does not converge")

    def test_needs_a_preload_that_is_a_number(self):
        for words in ((), ("--preload", "much")):
            status, told = result("deflection", "K19013XP0", *words)
            self.assertEqual((status, told["error"]["kind"]), (2, "usage"), words)


if __name__ == "__main__":
    unittest.main()
