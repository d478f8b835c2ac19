"""The drawing overlays are those that their script makes, and the data sheet's reader can draw all of them."""

import functools
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
                self.assertLess(strokes(style_plot(style)) + count + 16, 500, (style, name))


SHEET_TEXTS = ROOT / "src" / "documents" / "SizeTexts.cpp"
RED, BLACK, BLUE, THICK = "red", "black", "blue", "thick black"
PENS = {1: RED, 2: BLACK, 3: BLUE}


def lines(text):
    """Every line and circle of a plot as (pen, start, end) in page inches; a circle is its extent along x and y."""
    pen, at = THICK, None
    for name, numbers in instructions(text):
        if name == "SP":
            pen = PENS[int(numbers[0])]
            continue
        if name not in ("PU", "PD", "AA"):
            continue
        place = (0.25 + numbers[0] / UNITS, 0.625 + numbers[1] / UNITS)
        if name == "PD":
            yield pen, at, place
        if name == "AA":
            radius = math.dist(at, place)
            for dx, dy in ((radius, 0), (0, radius)):
                yield pen, (place[0] - dx, place[1] - dy), (place[0] + dx, place[1] + dy)
        else:
            at = place


@functools.cache
def style_plot(style):
    return make_overlays.style_overlay(style)


@functools.cache
def style_lines(style):
    return list(lines(style_plot(style)))


def angle(start, end):
    return math.degrees(math.atan2(end[1] - start[1], end[0] - start[0])) % 180


class LineWeights(unittest.TestCase):
    """The pen of a plot's beginning is the thick one; every pen that is taken later is thin."""

    def test_outline_is_thick_and_hatching_and_axes_and_dimensions_are_thin(self):
        for style in make_overlays.STYLES:
            shape = section.Shape(style)
            drawn = style_lines(style)
            for pen, start, end in drawn:
                inside = (shape.left - 0.01 <= min(start[0], end[0]) and max(start[0], end[0]) <= shape.right + 0.01
                          and section.BOTTOM - 0.01 <= min(start[1], end[1])
                          and max(start[1], end[1]) <= section.TOP + 0.01)
                if pen == THICK:
                    self.assertTrue(inside, (style, start, end))
                if pen == BLUE:
                    self.assertTrue(inside, (style, start, end))
                    # The plot's grid of a thousandth turns short strokes a little.
                    self.assertLess(abs(abs(angle(start, end) - 90) - 45), 4, (style, start, end))
            sides = [(start, end) for pen, start, end in drawn if pen == THICK
                     and abs(start[0] - end[0]) < 1e-3 and abs(start[0] - shape.left) < 1e-3]
            self.assertGreater(sum(math.dist(*side) for side in sides), 1.7, style)
            axis = [(start, end) for pen, start, end in drawn if pen == RED
                    and abs(start[0] - section.CENTRE) < 1e-3 and abs(end[0] - section.CENTRE) < 1e-3]
            self.assertGreater(sum(math.dist(*stroke) for stroke in axis), 1.5, style)

    def test_hatching_leans_the_other_way_in_the_other_ring(self):
        for style in make_overlays.STYLES:
            for pen, start, end in style_lines(style):
                if pen == BLUE:
                    rises = angle(start, end) < 90
                    self.assertEqual(rises, (start[0] + end[0]) / 2 < section.CENTRE, (style, start, end))

    def test_balls_of_a_separator_are_thick(self):
        for name in separators.SEPARATORS:
            pen, start, end = next(lines(make_overlays.separator_overlay(name)))
            self.assertEqual(pen, THICK, name)
            self.assertGreater(math.dist(start, end), 0.25, name)


def stated_boxes():
    """The boxes of the size texts as the sheet's own source gives them: left, top."""
    numbers = r"\{([\d.]+), ([\d.]+), [\d.]+, [\d.]+\}"
    return {(float(left), float(top)) for left, top in re.findall(numbers, SHEET_TEXTS.read_text("utf-8"))}


class DimensionLines(unittest.TestCase):
    # Courier New of 14 points: the middle of a figure below the top of its line of text, as measured on a sheet:
    # 0.162 inch down to the feet and half of a height of 0.130 inch up again.
    MIDDLE = 0.162 - 0.065

    def test_end_a_little_in_front_of_their_texts_at_the_middle_of_the_figures(self):
        diameters = {"bore": (5.372, 6.467), "outside diameter": (3.898, 5.25), "pitch": (4.808, 9.088),
                     "reference 1": (4.563, 5.741)}
        more = {(5.313, 9.631): "AUT", (4.25, 5.47): "AUTB", (4.31, 5.487): "CXF"}
        places = [(place, make_overlays.STYLES) for place in diameters.values()] + list(more.items())
        self.assertTrue({place for place, _ in places} <= stated_boxes())
        for (left, top), styles in places:
            for style in styles:
                # The line to the text is the longest that ends there.
                ends = [end for pen, start, end in style_lines(style)
                        if pen == BLACK and abs(start[1] - end[1]) < 1e-3 and end[0] > start[0]
                        and abs(end[1] - (top - self.MIDDLE)) < 0.005 and 0.03 < left - end[0] < 0.07]
                self.assertEqual(len(ends), 1, (style, left, top))

    def test_heights_leave_a_gap_for_their_text(self):
        for x, top in ((1.59, 8.14), (7.09, 8.022)):
            for style in make_overlays.STYLES:
                middle = top - self.MIDDLE
                upright = [sorted((start[1], end[1])) for pen, start, end in style_lines(style)
                           if pen == BLACK and abs(start[0] - x) < 1e-3 and abs(end[0] - x) < 1e-3]
                self.assertEqual(len(upright), 2, (style, x))
                below, above = sorted(upright)
                self.assertAlmostEqual((below[1] + above[0]) / 2, middle, delta=0.005)
                self.assertAlmostEqual(above[0] - below[1], 0.25, delta=0.002)

    def test_leader_ends_on_the_rounded_corner(self):
        for style in make_overlays.STYLES:
            shape = section.Shape(style)
            ends = [end for pen, start, end in style_lines(style)
                    if pen == BLACK and math.dist(start, (2.08, 9.965)) < 2e-3]
            self.assertEqual(len(ends), 1, style)
            corner = (shape.left + shape.round, section.TOP - shape.round)
            self.assertAlmostEqual(math.dist(ends[0], corner), shape.round, delta=0.002)


class SeparatorDetails(unittest.TestCase):
    def test_stay_in_their_field(self):
        for name in separators.SEPARATORS:
            for _, *ends in lines(make_overlays.separator_overlay(name)):
                for x, y in ends:
                    self.assertTrue(6.40 <= x <= 8.10 and 5.10 <= y <= 6.10, (name, x, y))

    def test_find_their_field_free(self):
        for style in make_overlays.STYLES:
            for _, start, end in style_lines(style):
                for i in range(21):
                    x, y = (start[k] + (end[k] - start[k]) * i / 20 for k in (0, 1))
                    self.assertFalse(6.40 < x < 8.10 and 5.10 < y < 6.10, (style, start, end))

    def test_hatch_only_what_is_cut(self):
        hatched = {name for name in separators.SEPARATORS
                   if any(pen == BLUE for pen, *_ in lines(make_overlays.separator_overlay(name)))}
        self.assertEqual(hatched, {"CROWN", "TOROID", "SLUG"})
        for name in hatched:
            drawn = list(lines(make_overlays.separator_overlay(name)))
            circles = [(start, end) for pen, start, end in drawn if pen == THICK and start[1] == end[1]
                       and abs(start[1] - separators.MIDDLE) < 1e-3 and math.dist(start, end) < 0.4]
            for pen, start, end in drawn:
                if pen != BLUE:
                    continue
                middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
                for left, right in circles:
                    centre = ((left[0] + right[0]) / 2, left[1])
                    self.assertGreater(math.dist(middle, centre), math.dist(left, right) / 2, (name, start, end))


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
