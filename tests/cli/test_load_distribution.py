"""The results around a life calculation: its warnings, film and contact."""

import unittest

from program import result, run

LOADS = ("--radial", "1000", "--speed", "100")
OIL = ("--viscosity", "150", "--viscosity-unit", "SSU")


class Warnings(unittest.TestCase):
    def test_tells_of_the_shorter_life_of_row_two(self):
        # The mirror image of a moment loads the other row; the life that is shown is always row 1's.
        _, straight = result("life", "K19013XP0", "--radial", "1000", "--moment", "2000")
        status, mirrored = result("life", "K19013XP0", "--radial", "1000", "--moment=-2000")
        self.assertEqual(status, 0)
        self.assertEqual(straight["warnings"], [])
        life = int(straight["l10Revolutions"])
        self.assertEqual(mirrored["warnings"], [{"title": "Load Life Calculation",
                                                 "prompt": f"Row 2 has the shorter life: {life:,} revolutions"}])
        self.assertGreater(mirrored["l10Revolutions"], life)

    def test_tells_of_loads_that_do_not_balance(self):
        loads = ("--radial", "10", "--moment=-4000")
        status, life = result("life", "K04008FP0K", *loads)
        self.assertEqual(status, 0)
        self.assertGreater(abs(life["solver"]["MomentSum"] + 4000), 1000)
        self.assertIn("The ball loads do not balance the applied loads.", [w["prompt"] for w in life["warnings"]])
        self.assertIn("Load Life Calculation: The ball loads do not balance the applied loads.\n",
                      run("life", "K04008FP0K", *loads).stderr)


class Film(unittest.TestCase):
    def test_gives_every_field(self):
        status, film = result("film", "K19013XP0", *LOADS, *OIL)
        self.assertEqual(status, 0)
        self.assertEqual(list(film), ["maxBallLoad", "film", "lambda", "lifeFactor", "minimumViscosity", "comment",
                                      "stress", "ellipticity", "warnings"])
        self.assertEqual(film["maxBallLoad"], result("life", "K19013XP0", *LOADS)[1]["solver"]["MaxBallLoad"])
        # Composite roughness of 2.2 and 13.2 microinches.
        self.assertAlmostEqual(film["lambda"], film["film"] / ((2.2**2 + 13.2**2) ** 0.5 * 1e-6), places=9)

    def test_specific_gravity_is_that_of_the_screen_unless_given(self):
        usual = result("film", "K19013XP0", *LOADS, *OIL)[1]
        self.assertEqual(result("film", "K19013XP0", *LOADS, *OIL, "--gravity", "0.8608")[1], usual)
        self.assertGreater(result("film", "K19013XP0", *LOADS, *OIL, "--gravity", "1.85")[1]["film"], usual["film"])

    def test_is_the_same_in_display_units(self):
        us = run("film", "K19013XP0", *LOADS, *OIL)
        self.assertIn("Ball Surface Finish = 2AA", us.stdout)
        newtons = ("--radial", str(1000 / 0.2248089), "--speed", "100")
        metric = run("--units", "METRIC", "film", "K19013XP0", *newtons, *OIL)
        self.assertIn("Ball Surface Finish = 0.05 um", metric.stdout)
        self.assertIn("L10 life factor is = ", metric.stdout)

    def test_faults(self):
        for oil, number in ((("--viscosity", "0", "--viscosity-unit", "SSU"), 11),
                            (("--viscosity", "20", "--viscosity-unit", "SSU"), 5)):
            status, told = result("film", "K19013XP0", *LOADS, *oil)
            self.assertEqual((status, told["error"]["number"]), (3, number))
        for oil in (("--viscosity", "thick", "--viscosity-unit", "SSU"), ("--viscosity", "10"),
                    ("--viscosity", "10", "--viscosity-unit", "poise")):
            self.assertEqual(result("film", "K19013XP0", *LOADS, *oil)[0], 2)

    def test_without_speed_there_is_no_film(self):
        status, film = result("film", "K19013XP0", "--radial", "1000", *OIL)
        self.assertEqual((status, film["film"], film["lambda"], film["lifeFactor"]), (0, 0, 0, 0.16))


class Contact(unittest.TestCase):
    LOADS = ("--radial", "1000", "--axial", "100", "--moment", "500")

    def test_gives_the_heaviest_ball_of_the_row(self):
        life = result("life", "K19013XP0", *self.LOADS)[1]
        for row in (1, 2):
            status, contact = result("contact", "K19013XP0", *self.LOADS, "--row", str(row))
            self.assertEqual(status, 0)
            self.assertEqual(list(contact), ["row", "ball", "load", "stress", "majorAxis", "minorAxis",
                                             "contactAngle", "land", "warnings"])
            ball = max((b for b in life["balls"] if b["row"] == row), key=lambda b: b["BallLoad"])
            self.assertEqual((contact["row"], contact["ball"], contact["load"], contact["stress"]),
                             (row, ball["ball"], ball["BallLoad"], ball["InnerStress"]))
            self.assertAlmostEqual(contact["majorAxis"], 2 * ball["InnerSemiMajor"], places=7)
            self.assertAlmostEqual(contact["minorAxis"], 2 * ball["InnerSemiMinor"], places=7)
            self.assertRegex(contact["contactAngle"], r"^\d+\.\d\d°$")
            self.assertAlmostEqual(float(contact["contactAngle"][:-1]), float(ball["BallAngleText"]), delta=0.0051)
            self.assertGreater(contact["land"], 0)

    def test_a_row_without_load_falls_to_the_other(self):
        status, contact = result("contact", "K19013XP0", "--axial", "1000", "--row", "2")
        self.assertEqual((status, contact["row"]), (0, 1))
        status, contact = result("contact", "K19013CP0", "--radial", "500", "--row", "2")
        self.assertEqual((status, contact["row"], contact["contactAngle"]), (0, 1, "0°"))

    def test_is_wrong_usage_for_a_third_row(self):
        self.assertEqual(result("contact", "K19013XP0", *self.LOADS, "--row", "3")[0], 2)


if __name__ == "__main__":
    unittest.main()
