"""The reports and graphs of everything that is calculated."""

import math
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from pictures import Bitmap, papers, png_size
from program import CLI, PROGRAM_FOLDER, WITH_PICTURES, result, run
from rtf_text import paragraphs

LOADS = ("--radial", "1000", "--axial", "300", "--moment", "500")
TEMPERATURES = ("--high", "250", "--low", "-65", "--shaft", "6061 Aluminum", "--housing", "5.6e-6")
DEFLECTION = ("report", "deflection", "K19013XP0", "--preload", ".001", "--graph")
PORTRAIT, LANDSCAPE = (8.5, 11), (11, 8.5)
GRAPH = (8.5, 5)

# Words of the call, paper of the page, inches of the picture, a text of the RTF form (none: there is no such form).
REPORTS = (
    ((*DEFLECTION, "radial"), LANDSCAPE, (8.5, 8.5), "RADIAL DEFLECTION AT 0.0010 INCHES PRELOAD"),
    ((*DEFLECTION, "axial"), LANDSCAPE, (8.5, 8.5), "AXIAL DEFLECTION AT 0.0010 INCHES PRELOAD"),
    ((*DEFLECTION, "moment"), LANDSCAPE, (8.5, 8.5), "MOMENT DEFLECTION AT 0.0010 INCHES PRELOAD"),
    (("report", "torque", "K19013BP0R"), PORTRAIT, GRAPH, "UNMOUNTED STARTING TORQUE DUE TO PRELOAD"),
    (("report", "play", "K19013XP0E"), PORTRAIT, GRAPH, "AXIAL PLAY DUE TO DIAMETRAL CLEARANCE"),
    (("report", "tilt", "K19013CP0"), PORTRAIT, GRAPH, "TILT OF AXIS DUE TO DIAMETRAL CLEARANCE"),
    (("report", "fits", "K19013XP0", *TEMPERATURES), PORTRAIT, (8.5, 7), "Suggested Shaft and housing sizes"),
    (("report", "ballloads", "K19013XP0", *LOADS), LANDSCAPE, (8.5, 8.5), None),
    (("report", "contact", "K19013BP0T", *LOADS), PORTRAIT, PORTRAIT, None),
)

BLACK, WHITE, BAND = (0, 0, 0), (255, 255, 255), (224, 224, 224)
RED, GREEN, BLUE = (255, 0, 0), (0, 255, 0), (0, 0, 255)
DARK_GREEN, DARK_BLUE, MAGENTA = (0, 128, 0), (0, 0, 128), (255, 0, 255)


class Reports(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def written(self, kind, *words):
        target = self.folder / ("out" + kind)
        done = run(*words, "--output", str(target))
        self.assertEqual(done.returncode, 0, done.stderr)
        return target.read_bytes()

    def picture(self, *words):
        return Bitmap(self.written(".bmp", *words))


class EveryReport(Reports):
    def test_has_its_rtf_form(self):
        for words, _, _, text in REPORTS:
            if text is not None:
                with self.subTest(words):
                    rtf = self.written(".rtf", *words).decode("ascii")
                    self.assertTrue(rtf.startswith("{\\rtf1"))
                    self.assertIn(text, rtf)

    def test_of_a_search_lists_the_bearings_that_the_search_finds_in_its_order(self):
        words = ("search", "--style", "4-POINT CONTACT", "--min-bore", "5", "--max-od", "9", "--min-height", ".2",
                 "--max-height", "1.2", "--radial", "500", "--sort", "life", "--descending")
        names = [row["name"] for row in result(*words)[1]["rows"]]
        self.assertGreater(len(names), 5)
        shown = paragraphs(self.written(".rtf", "report", *words).decode("ascii"))
        self.assertEqual([text.split()[0] for text in shown if text.split()[0] in names], names)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_prints_one_page_on_its_paper(self):
        for words, paper, _, _ in REPORTS:
            with self.subTest(words):
                self.assertEqual(papers(self.written(".pdf", *words)), [paper])

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_is_a_picture_of_its_size_as_png_and_as_bitmap(self):
        for words, _, inches, _ in REPORTS:
            with self.subTest(words):
                pixels = tuple(150 * length for length in inches)
                self.assertEqual(png_size(self.written(".png", *words)), pixels)
                self.assertEqual(self.picture(*words).size, pixels)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_is_drawn_by_the_module_of_an_installation_or_tells_which_one_is_missing(self):
        programs = self.folder / "bin"
        modules = self.folder / "lib" / "norlaplan-mm" / "modules"
        programs.mkdir()
        program, picture = programs / "norlaplan-cli", self.folder / "out.png"
        shutil.copy2(CLI, program)
        words = [program, "--program-folder", PROGRAM_FOLDER, "report", "torque", "K19013XP0", "--output", picture]
        missing = subprocess.run(words, capture_output=True, text=True, check=False, timeout=600)
        self.assertEqual(missing.returncode, 1)
        self.assertTrue(missing.stderr.startswith(
            f"No picture: Pictures need the module {programs / 'norlaplan-paint.so'}, which can't be loaded ("), missing.stderr)
        self.assertFalse(picture.exists())
        modules.mkdir(parents=True)
        shutil.copy2(PROGRAM_FOLDER / "norlaplan-paint.so", modules)
        subprocess.run(words, capture_output=True, check=True, timeout=600)
        self.assertEqual(png_size(picture.read_bytes()), (1275, 750))

    def test_refuses_a_kind_that_it_does_not_have_before_it_calculates(self):
        for words, _, _, text in REPORTS:
            kinds = ".pdf, .png or .bmp" if text is None else ".rtf, .pdf, .png or .bmp"
            for kind in (".txt", "") if text else (".rtf", ".txt", ""):
                with self.subTest(words + (kind,)):
                    target = self.folder / ("out" + kind)
                    done = run(*words[:2], "K0", *words[3:], "--output", str(target))
                    self.assertEqual((done.returncode, done.stderr), (
                        2, "Unknown format: --output takes a file name that ends in " + kinds + "\n"))
                    self.assertFalse(target.exists())

    def test_says_its_kinds_in_its_help(self):
        for words, _, _, text in REPORTS:
            kinds = ".pdf, .png or .bmp" if text is None else ".rtf, .pdf, .png or .bmp"
            self.assertIn("File to write: " + kinds, " ".join(run(*words[:2], "--help").stdout.split()))


class Refusals(Reports):
    def refused(self, *words):
        target = self.folder / "out.rtf"
        status, told = result(*words, "--output", str(target))
        self.assertFalse(target.exists())
        return status, told["error"]["prompt"]

    def test_a_graph_is_asked_for_by_its_name(self):
        self.assertEqual(self.refused(*DEFLECTION[:-1])[0], 2)
        self.assertEqual(self.refused(*DEFLECTION, "sideways")[0], 2)

    def test_a_radial_bearing_has_the_radial_curve_alone(self):
        words = ("report", "deflection", "K19013CP0", "--preload", "0", "--graph")
        for load in ("axial", "moment"):
            self.assertEqual(self.refused(*words, load), (
                1, f"K19013CP0 has no curve of {load} deflection: a radial contact bearing carries radial loads only"))
        self.written(".rtf", *words, "radial")

    def test_the_rules_of_the_calculations_hold(self):
        self.assertEqual(self.refused("report", "play", "K19013BP0E"),
                         (1, "Only radial and 4-point contact bearings allowed"))
        self.assertEqual(self.refused("report", "tilt", "K19013BP0E")[0], 1)
        self.assertEqual(self.refused("report", "fits", "K19013XP0Z", *TEMPERATURES),
                         (1, "Cannot Calculate with 'Z' Fitup"))
        self.assertEqual(self.refused("report", "fits", "K19013XP0", *TEMPERATURES[:-2])[0], 2)
        self.assertEqual(self.refused("report", "deflection", "K19013XP0", "--graph", "radial")[0], 2)
        self.assertEqual(run("report", "contact", "K19013XP0", *LOADS, "--row", "3", "--output",
                             str(self.folder / "a.png")).returncode, 2)


def torque_axis(top):
    """The end of the torque axis: the next whole unit of the leading figure."""
    unit = 10.0 ** math.floor(math.log10(top))
    return (math.floor(top / unit) + 1) * unit


@unittest.skipUnless(WITH_PICTURES, "built without pictures")
class Pixels(Reports):
    def test_of_the_torque_graph(self):
        picture = self.picture("report", "torque", "K19013XP0R")
        for corner in ((0.75, 0.5), (8, 0.5), (8, 4.5), (0.75, 4.5)):
            self.assertIn(BLACK, picture.around(*corner), corner)
        # The fit's range, 0.0004 to 0.0008 inches of preload, stands in grey below the curve; beyond it nothing.
        across = 7.25 / 0.005
        self.assertEqual(picture.at(0.75 + 0.0006 * across, 0.55), BAND)
        self.assertEqual(picture.at(0.75 + 0.0002 * across, 0.55), WHITE)
        self.assertEqual(picture.at(0.75 + 0.0009 * across, 0.55), WHITE)
        curve = result("torque", "K19013XP0R")[1]["curve"]
        up = 4 / torque_axis(curve[-1][1])
        for preload, torque in curve[7::8]:
            self.assertIn(RED, picture.around(0.75 + preload * across, 0.5 + torque * up), preload)

    def test_of_a_deflection_curve_with_its_corner_at_relief(self):
        words = ("K19013XP0", "--preload", ".001", "--max-radial", "6000")
        found = result("deflection", *words)[1]
        relief, curve = found["radialReliefLoad"], found["radialCurve"]
        self.assertTrue(4000 < relief < 5500, relief)
        picture = self.picture("report", "deflection", *words, "--graph", "radial")
        # The axes end at 7,000 pounds and at the next whole ten-thousandth or thousandth of an inch.
        step = 10.0 ** (math.floor(math.log10(curve[-1][1]) + 0.5) - 1)
        most = (math.floor(curve[-1][1] / step) + 1) * step
        seen = []
        for load, deflection in curve[2:-2]:
            colours = picture.around(1 + load * 7 / 7000, 1.25 + deflection * 4 / most)
            seen.append((load, RED in colours, DARK_GREEN in colours))
        for load, red, green in seen:
            if abs(load - relief) > 200:
                self.assertEqual((red, green), (load < relief, load > relief), load)

    def test_of_a_curve_without_preload_which_is_green_all_the_way(self):
        picture = self.picture("report", "deflection", "K19013CP0", "--preload", "0", "--graph", "radial")
        self.assertIn(DARK_GREEN, picture.colours())
        self.assertNotIn(RED, picture.colours())

    def test_of_the_play_graph(self):
        picture = self.picture("report", "play", "K19013XP0E")
        # A curve that fills the plot to its upper right corner.
        play = result("play", "K19013XP0E")[1]
        across, up = 7.25 / 0.006, 4 / play["curve"][-1][1]
        for clearance, axial, _ in play["curve"][5:-2:10]:
            self.assertIn(RED, picture.around(0.75 + clearance * across, 0.5 + axial * up), clearance)
        low, high = play["clearanceLow"], play["clearanceHigh"]
        self.assertEqual(picture.at(0.75 + (0.4 * low + 0.6 * high) * across, 0.55), BAND)
        self.assertEqual(picture.at(0.75 + (high + 0.0002) * across, 0.55), WHITE)

    def test_of_the_thermal_fits(self):
        picture = self.picture("report", "fits", "K19013XP0", *TEMPERATURES)
        low, high, room = -65, 250, 68
        left, right = low - (high - low) * 0.25, (low + high) * 0.25 + high
        for temperature, colour in ((low, BLUE), (room, GREEN), (high, RED)):
            place = 0.5 + 7.5 * (temperature - left) / (right - left)
            self.assertIn(colour, picture.around(place, 5.2), temperature)

    def test_of_the_ball_loads(self):
        picture = self.picture("report", "ballloads", "K19013XP0", *LOADS)
        self.assertEqual(picture.at(0.1, 0.1), BLACK)
        self.assertIn(MAGENTA, picture.around(4.25, 4.25))
        # Row 1 blue, row 2 red, which a radial bearing doesn't have.
        self.assertLessEqual({RED, GREEN, BLUE}, picture.colours())
        radial = self.picture("report", "ballloads", "K19013CP0", "--radial", "1000").colours()
        self.assertIn(BLUE, radial)
        self.assertNotIn(RED, radial)

    def test_of_the_contact_check_whose_chosen_row_is_blue(self):
        columns = ((0.9, 4.2), (4.4, 7.6))
        for row in (1, 2):
            picture = self.picture("report", "contact", "K19013XP0", *LOADS, "--row", str(row))
            heads = [any(DARK_BLUE in picture.around(left + step * 0.02, 9.44, 6) for step in range(90))
                     for left, _ in columns]
            self.assertEqual(heads, [row == 1, row == 2])


if __name__ == "__main__":
    unittest.main()
