"""The drawing overlays are those that their script makes, and the data sheet's reader can draw all of them."""

import math
import re
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "overlays"))

import make_overlays  # noqa: E402
import section  # noqa: E402
import separators  # noqa: E402
from plot import Plot  # noqa: E402

OVERLAYS = ROOT / "data" / "overlays"
KNOWN = {"IN", "PU", "PD", "SP", "AA"}
UNITS = 1016.0


def instructions(text):
    for name, parameters in re.findall(r"([A-Z]{2})([^A-Z;]*);", text):
        yield name, [float(number) for number in parameters.split(",") if number]


def strokes(text):
    """How many lines a sheet's reader makes of a plot: it draws an arc as chords, a circle as one shape."""
    count, pen = 0, None
    for name, numbers in instructions(text):
        if name in ("PU", "PD"):
            count += name == "PD"
            pen = numbers
        elif name == "AA" and numbers[2] < 359:
            radius = math.dist(pen, numbers[:2]) / UNITS
            count += 6 if radius <= 0.03 else 10 if radius <= 0.05 else 20 if radius <= 0.25 else 30
    return count


class Section(unittest.TestCase):
    def test_groove_of_a_counterbored_ring_ends_where_its_circle_meets_the_relief(self):
        for style in "AU":
            shape = section.Shape(style)
            # Centre (3.95 + 0.03 cos 30, 7.80 - 0.03 sin 30), radius 0.518: at x 3.496 the height is 7.590.
            edge = section.groove_edge(shape, shape.rows[0], section.OUTER, section.LOWER, 3.496)
            self.assertAlmostEqual(edge, 7.590, places=3)

    def test_grooves_touch_the_ball_on_the_contact_line_and_nowhere_cut_it(self):
        for style in make_overlays.STYLES:
            shape = section.Shape(style)
            for row, angles in zip(shape.rows, shape.contacts):
                for side in (section.OUTER, section.INNER):
                    for half in (section.UPPER, section.LOWER):
                        centre = section.groove_centre(shape, row, side, half)
                        apart = math.dist(centre, (section.CENTRE, row[0]))
                        self.assertAlmostEqual(apart, shape.groove - shape.ball)
                        touching = [angle for angle in angles if math.dist(
                            centre, (section.CENTRE + side * shape.ball * math.cos(math.radians(angle)),
                                     row[0] + side * shape.ball * math.sin(math.radians(angle)))) - shape.groove > -1e-9]
                        self.assertEqual(len(touching), 1, (style, side, half))

    def test_hatching_stays_inside_the_rounded_rings(self):
        for style in make_overlays.STYLES:
            shape = section.Shape(style)
            plot = Plot()
            section.hatch(plot, shape)
            for name, numbers in instructions(plot.text()):
                if name not in ("PU", "PD"):
                    continue
                x, y = 0.25 + numbers[0] / UNITS, 0.625 + numbers[1] / UNITS
                outside = []
                for _, low, high, _ in shape.rows:
                    if low <= y <= high:
                        dx = max(shape.left + shape.round - x, x - (shape.right - shape.round), 0.0)
                        dy = max(low + shape.round - y, y - (high - shape.round), 0.0)
                        outside.append(math.hypot(dx, dy) - shape.round)
                self.assertLess(min(outside, default=0.0), 0.002, (style, x, y))

    def test_is_drawn_in_strokes_that_a_text_program_can_bear(self):
        separator = {name: strokes(make_overlays.separator_overlay(name)) for name in separators.SEPARATORS}
        for style in make_overlays.STYLES:
            for name, count in separator.items():
                # The sheet's tables and its chart bring 16 lines more.
                self.assertLess(strokes(make_overlays.style_overlay(style)) + count + 16, 500, (style, name))


class Overlays(unittest.TestCase):
    def test_are_made_by_their_script(self):
        with tempfile.TemporaryDirectory() as folder:
            make_overlays.make(Path(folder))
            made = {path.name: path.read_bytes() for path in Path(folder).iterdir()}
        self.assertEqual(made, {path.name: path.read_bytes() for path in OVERLAYS.iterdir()})

    def test_hold_known_instructions_inside_the_page(self):
        for path in OVERLAYS.iterdir():
            plot = list(instructions(path.read_text("ascii")))
            self.assertTrue({name for name, _ in plot} <= KNOWN, path.name)
            for name, numbers in plot:
                if name not in ("PU", "PD"):
                    continue
                x, y = numbers
                self.assertTrue(0 <= 0.25 + x / UNITS <= 8.5 and 0 <= 0.625 + y / UNITS <= 11, (path.name, x, y))

    def test_serve_every_separator_of_the_catalogue(self):
        for table, suffixes in (("ASEPARATOR.CSV", ("A", "U")), ("XSEPARATOR.CSV", ("XC",))):
            for row in (ROOT / "data" / "Data Tables" / table).read_text("ascii").splitlines():
                name = row.rsplit(",", 1)[-1]
                for suffix in suffixes:
                    self.assertTrue((OVERLAYS / f"{name}{suffix}.sep").exists(), name + suffix)


if __name__ == "__main__":
    unittest.main()
