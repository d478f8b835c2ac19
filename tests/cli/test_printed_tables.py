"""What a person reads says the same as the JSON of the same call, column by column, in the units of the display."""

import re
import tempfile
import unittest
from pathlib import Path

from program import result, run

WORDS = re.compile(r"\S+(?: \S+)*")
NUMBER = re.compile(r"-?[\d,]*\.?\d+(E[+-]\d\d)?")
#: Inches to millimetres, pounds to newtons and inch pounds to newton metres, as the screens do it.
MILLIMETRES, POUNDS_OF_A_NEWTON, INCH_POUNDS_OF_A_NEWTON_METRE = 25.4, 0.2248089, 8.850744
BOTH = ("US", "METRIC")
LOADS = ("--radial", "900", "--axial", "150", "--moment", "600", "--speed", "250")


def read(lines):
    """The heads and the rows of a table up to the next empty line, a row as texts by head. A column of numbers ends where
    its head ends, one of words begins where it begins; one without a head is that of the rows' names."""
    heads = [(word.group(), word.start(), word.end()) for word in WORDS.finditer(lines[0])]
    if lines[0].startswith(" ") and NUMBER.fullmatch(lines[1].split()[0]) is None:
        heads.insert(0, ("", 0, heads[0][1] - 2))
    columns = {name: [] for name, _, _ in heads}
    rows = []
    for line in lines[1:]:
        if not line:
            break
        rows.append({})
        for word in WORDS.finditer(line):
            (name, first, last), = [head for head in heads if head[1] < word.end() and word.start() < head[2]]
            rows[-1][name] = word.group()
            columns[name].append((word, first, last))
    for name, cells in columns.items():
        numbers = all(NUMBER.fullmatch(word.group()) for word, _, _ in cells)
        for word, first, last in cells:
            assert word.end() == last if numbers else word.start() == first, f"{name}: {word.group()} stands aside"
    return list(columns), rows


class PrintedTable(unittest.TestCase):
    def same(self, printed, value, places, what=""):
        """A printed number has so many places and is the value, rounded."""
        self.assertEqual(len(printed.partition(".")[2]), places, what)
        self.assertLessEqual(abs(float(printed.replace(",", "")) - value), 0.501 * 10.0 ** -places, f"{what} {printed}")

    def curve(self, lines, heads, points, factors, places):
        """A table of numbers and the JSON's points, each column with its factor and its places."""
        shown, rows = read(lines)
        self.assertEqual(shown, list(heads))
        self.assertEqual(len(rows), len(points))
        for row, point in zip(rows, points):
            for head, value, factor, digits in zip(heads, point, factors, places):
                self.same(row[head], value * factor, digits, head)


class OfADecode(PrintedTable):
    def test_names_every_field_with_its_value(self):
        for number in ("K19013XP0E", "N19013BP0T"):
            bearing = result("decode", number)[1]
            del bearing["warnings"]
            lines = run("decode", number).stdout.splitlines()
            self.assertEqual([line.split()[0] for line in lines], list(bearing))
            for line, (name, value) in zip(lines, bearing.items()):
                text = line[len(name):].strip()
                if isinstance(value, str):
                    self.assertEqual(text, value.strip(), name)
                else:
                    self.assertEqual(float(text), value, name)
            # The values stand one below the other, two blanks behind the longest name.
            at = max(map(len, bearing)) + 2
            for line, value in zip(lines, bearing.values()):
                self.assertIn(line[at - 2:at], ("  ", ""), line)
                if isinstance(value, str):
                    self.assertEqual(line[at:], value.rstrip())


class OfALife(PrintedTable):
    COLUMNS = {"Row": ("row", 0), "Ball": ("ball", 0), "Deflection (in)": ("BallDeflection", 6), "Load (lb)": ("BallLoad", 2),
               "Angle (deg)": ("BallAngleText", 3), "Inner stress (psi)": ("InnerStress", 0),
               "Outer stress (psi)": ("OuterStress", 0)}

    def test_has_a_row_for_every_ball_of_every_row(self):
        for number in ("K19013BP0T", "K19013CP0"):
            life = result("life", number, *LOADS)[1]
            lines = run("life", number, *LOADS).stdout.splitlines()
            heads, rows = read(lines[lines.index("") + 1:])
            self.assertEqual(heads, list(self.COLUMNS))
            self.assertEqual(len(rows), len(life["balls"]))
            for row, ball in zip(rows, life["balls"]):
                for head, (name, places) in self.COLUMNS.items():
                    if name == "BallAngleText":
                        self.assertEqual(row.get(head, ""), ball[name].strip())
                    else:
                        self.same(row[head], ball[name], places, head)

    def test_stands_below_the_lines_of_the_result(self):
        for units, torque_unit in zip(BOTH, ("inch-lbs.", "N-m")):
            life = result("--units", units, "life", "K19013XP0", *LOADS)[1]
            lines = run("--units", units, "life", "K19013XP0", *LOADS).stdout.splitlines()
            self.assertEqual(lines[:6], ["K19013XP0", f"L10 LIFE = {life['l10Revolutions']:.0f} REVOLUTIONS",
                                         f"L10 LIFE = {round(life['l10Hours'], 1)} HOURS",
                                         f"STATIC SAFETY FACTOR = {round(life['staticSafetyFactor'], 1)}",
                                         life["torqueText"], life["speedVerdict"]])
            self.assertRegex(lines[4], rf"^Estimated Starting Torque = \d*\.\d+ {torque_unit} $")
            self.assertEqual(lines[6], "")
            # Without a speed there are neither hours nor a verdict.
            lines = run("--units", units, "life", "K19013XP0", *LOADS[:6]).stdout.splitlines()
            self.assertEqual([line.split(" = ")[0] for line in lines[:5]],
                             ["K19013XP0", "L10 LIFE", "STATIC SAFETY FACTOR", "Estimated Starting Torque", ""])


class OfASearch(PrintedTable):
    COLUMNS = {"Bearing": "name", "Speed limit": "speedLimit", "L10 (rev)": "l10Revolutions", "L10 (h)": "l10Hours",
               "Bore": "boreText", "O.D.": "odText", "Height": "heightText", "Stock": "stock"}

    def test_has_the_texts_of_the_list_under_their_heads(self):
        words = ("search", "--style", "4-POINT CONTACT", "--min-bore", "5", "--max-od", "9", "--min-height", ".2",
                 "--max-height", "1.2", *LOADS)
        found = result(*words)[1]
        heads, rows = read(run(*words).stdout.splitlines())
        self.assertEqual(heads, list(self.COLUMNS))
        self.assertEqual(len(rows), found["hitCount"])
        for row, hit in zip(rows, found["rows"]):
            self.assertEqual(row, {head: hit[name].strip() for head, name in self.COLUMNS.items()})
            # A bearing is larger outside than inside, and higher than nothing.
            self.assertLess(float(row["Bore"]), float(row["O.D."]))
            self.assertLess(0, float(row["Height"]))


class OfTheFits(PrintedTable):
    def test_torque_in_the_units_of_the_display(self):
        for units, heads, factors, places in (
                ("US", ("Preload (inches)", "Torque (in-lbs)"), (1, 1), (4, 3)),
                ("METRIC", ("Preload (mm)", "Torque (N-m)"), (MILLIMETRES, 1 / INCH_POUNDS_OF_A_NEWTON_METRE), (5, 4))):
            curve = result("torque", "K19013BP0R")[1]["curve"]
            lines = run("--units", units, "torque", "K19013BP0R").stdout.splitlines()
            self.assertEqual(lines[:2], ["K19013BP0R", ""])
            self.curve(lines[2:], heads, curve, factors, places)

    def test_play_and_the_range_of_the_bearing_above_it(self):
        for units, unit, factor, places, short in (("US", "inches", 1, (4, 5, 5), 4), ("METRIC", "mm", MILLIMETRES, (5, 4, 5), 3)):
            play = result("--units", units, "play", "K19013XP0E")[1]
            lines = run("--units", units, "play", "K19013XP0E").stdout.splitlines()
            self.curve(lines[3:], (f"Clearance ({unit})", f"Axial play ({unit})", "Tilt (radians)"), play["curve"], (1, 1, 1),
                       places)
            told = re.fullmatch(rf"Clearance (\S+) to (\S+) {unit}: axial play (\S+) to (\S+) {unit}, "
                                r"tilt (\S+) to (\S+) radians", lines[1])
            for text, value, digits in zip(told.groups(), (
                    play["clearanceLow"] * factor, play["clearanceHigh"] * factor, play["playAtLow"], play["playAtHigh"],
                    play["tiltAtLow"], play["tiltAtHigh"]), (short,) * 4 + (5, 5)):
                self.same(text, value, digits, lines[1])
            self.assertEqual((lines[0], lines[2]), ("K19013XP0E", ""))

    def test_sizes_are_the_number_and_the_three_lines(self):
        words = ("fits", "K19013XP0", "--high", "150", "--low", "-20", "--shaft", "7e-6", "--housing", "1.3e-5")
        fits = result(*words)[1]
        self.assertEqual(run(*words).stdout.splitlines(),
                         ["K19013XP0", fits["shaftLine"], fits["housingLine"], fits["comment"]])


class OfADeflection(PrintedTable):
    def test_curves_in_the_units_of_the_display(self):
        for units, preload, load, length, moment, factors in (
                ("US", ".001", "lbs", "inches", "in-lbs", (1, 1, 1)),
                ("METRIC", ".0254", "N", "mm", "N-m",
                 (1 / POUNDS_OF_A_NEWTON, MILLIMETRES, 1 / INCH_POUNDS_OF_A_NEWTON_METRE))):
            words = ("--units", units, "deflection", "K19013BP0T", "--preload", preload)
            found = result(*words)[1]
            lines = run(*words).stdout.splitlines()
            at = next(i for i, line in enumerate(lines) if line.lstrip().startswith("Radial (") and "Deflection" in line)
            self.assertEqual((lines[1], lines[at - 1]), ("", ""), "empty lines stand between the parts")
            # Two columns have one head, so that each curve is read by itself.
            starts = [word.start() for word in re.finditer(r"(Radial|Axial|Moment) \(", lines[at])]
            self.assertEqual(len(starts), 3)
            for curve, first, last, heads, force in zip(
                    ("radialCurve", "axialCurve", "momentCurve"), starts, [*starts[1:], None],
                    ((f"Radial ({load})", f"Deflection ({length})"), (f"Axial ({load})", f"Deflection ({length})"),
                     (f"Moment ({moment})", "Tilt (radians)")), (factors[0], factors[0], factors[2])):
                part = [line[first:last].rstrip() for line in lines[at:]]
                way = 1 if curve == "momentCurve" else factors[1]
                self.curve(part, heads, found[curve], (force, way), (1, 6))

    def test_constants_stand_under_the_load_that_they_are_of(self):
        lines = run("deflection", "K19013XP0", "--preload", ".001").stdout.splitlines()
        found = result("deflection", "K19013XP0", "--preload", ".001")[1]
        radial, axial, moment = "Radial (lbs, inches)", "Axial (lbs, inches)", "Moment (in-lbs, radians)"
        heads, rows = read(lines[2:])
        self.assertEqual(heads, ["", radial, axial, moment])
        fields = {"Spring rate": {radial: "radialSpringRate", axial: "axialSpringRate", moment: "momentSpringRate"},
                  "Relief load": {radial: "radialReliefLoad", axial: "axialReliefLoad", moment: "momentReliefLoad"},
                  "Deflection constant": {radial: "radialConstant", moment: "momentConstant1"},
                  "Linear constant": {moment: "momentConstant2"}, "Initial tilt": {moment: "initialTilt"},
                  "Initial angle (degrees)": {moment: "initialAngle"}}
        self.assertEqual([row[""] for row in rows], list(fields))
        for row in rows:
            names = fields[row.pop("")]
            self.assertEqual(set(row), set(names))
            for head, text in row.items():
                value = float(found[names[head]])
                self.assertLessEqual(abs(float(text.replace(",", "")) - value), 0.001 * abs(value), head)

    def test_points_are_the_lines_of_the_list(self):
        words = ("deflection", "K19013FP0T", "--preload", ".001")
        lines = run(*words).stdout.splitlines()
        at = lines.index("Non-linear axial deflection")
        self.assertEqual(lines[at - 1:at + 2], ["", "Non-linear axial deflection", "Load    Angle    Deflection"])
        points = result(*words)[1]["axialPoints"]
        self.assertEqual(lines[at + 2:at + 3 + len(points)], [*points, ""])

    def test_says_which_preload_it_is(self):
        for number, kind in (("K19013XP0", "diametral"), ("K19013CP0", "diametral"), ("K19013BP0T", "axial"),
                             ("K19013FP0T", "axial")):
            first = run("deflection", number, "--preload", ".0015").stdout.splitlines()[0]
            self.assertEqual(first, f"{number}, {kind} preload 0.001500 inches")


class OfFilmAndContact(PrintedTable):
    def test_film_has_the_bearing_above_and_the_result_below(self):
        words = ("film", "K19013XP0", "--radial", "1000", "--speed", "100", "--viscosity", "150", "--viscosity-unit", "SSU")
        film = result(*words)[1]
        lines = run(*words).stdout.splitlines()
        self.assertEqual(lines[:7], ["K19013XP0", "Ball Diameter = .250 inches", "Pitch Diameter = 7.992 inches",
                                     "Contact Angle = 30 Degrees", "Conformity = 53 %", "Ball Surface Finish = 2AA",
                                     "Path Surface Finish = 16AA"])
        self.assertEqual(lines[7:], [
            f"Maximum Ball Load = {film['maxBallLoad']:.3f} lbs", "Inner Race Rotation Speed = 100 RPM",
            "Outer Race Rotation Speed = 0 RPM", "", f"Min. Iso Lube Film = {film['film']:.2E} inches",
            f"Film/Finish Ratio 'Lambda' = {film['lambda']:.3f}", f"L10 life factor is = {film['lifeFactor']:.2f}",
            f"Minimum recommended viscosity is = {film['minimumViscosity']:.2f} centiStokes", film["comment"]])

    def test_contact_names_bearing_and_row_and_ends_with_the_land(self):
        for row in (1, 2):
            words = ("contact", "K19013XP0", *LOADS, "--row", str(row))
            contact = result(*words)[1]
            self.assertEqual(run(*words).stdout.splitlines(), [
                "Compressive Stress for K19013XP0", f"Contact Stress Row {row} Displayed",
                f"Max. Ball Load = {contact['load']:.1f} lbs.", f"Maximum Avg. Stress = {contact['stress']:,.0f} psi",
                f"Ellipse Major Axis = {contact['majorAxis']:.4f} in.", f"Ellipse Minor Axis = {contact['minorAxis']:.4f} in.",
                f"Contact Angle = {contact['contactAngle']}", f"Land = {contact['land']:.3f} in."])


class OfAFile(unittest.TestCase):
    def test_is_its_name(self):
        with tempfile.TemporaryDirectory() as folder:
            for words, name in ((("datasheet", "K19013XP0"), "sheet.rtf"), (("qlx", "K19013XP0"), "bearing.qlx"),
                                (("report", "torque", "K19013XP0"), "torque.RTF")):
                path = Path(folder, name)
                self.assertEqual(run(*words, "--output", str(path)).stdout, f"{path}\n")
                self.assertEqual(result(*words, "--output", str(path))[1], {"file": str(path), "warnings": []})
                self.assertTrue(path.exists())

    def test_of_a_batch_is_followed_by_what_became_of_its_cases(self):
        with tempfile.TemporaryDirectory() as folder:
            cases, results = Path(folder, "cases.csv"), Path(folder, "results.csv")
            cases.write_text("partNumber,radial\nK19013XP0,500\nK19013CP0,500\nnone,1\n", "ascii")
            self.assertEqual(run("batch", str(cases), "--output", str(results)).stdout, f"{results}: 3 cases, 1 failed\n")


if __name__ == "__main__":
    unittest.main()
