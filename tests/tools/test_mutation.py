"""The mistakes that are made on purpose are the ones that their kinds name, and hit what a test can notice."""

import sys
import tempfile
import unittest
from pathlib import Path
from types import SimpleNamespace

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "mutation"))

import kinds  # noqa: E402
import mutant as mutants  # noqa: E402
import workshop  # noqa: E402
from cpp_text import Source  # noqa: E402

EXAMPLE = """\
#include "a < b.h"
constexpr double kLimit = 2.5;
struct Place { double x = 0.0; };
Form::Form(int width) : width_(width), names_{"a"} {
    if (width < 3 && !hidden_) draw("bold", "plain");  // a < b
    for (int i = 0; i < width; ++i) total += i - 1;
}
"""


def made(kind, text=EXAMPLE):
    """What stands where, before and after, of the mistakes of one kind."""
    return [(text[start:end], replacement) for name, start, end, replacement in kinds.all_mutants(Source(text))
            if name == kind]


class Mistakes(unittest.TestCase):
    def test_operators_bounds_and_constants_change_but_not_in_comments_or_includes(self):
        self.assertEqual(made("operator"), [("&&", "||"), ("+=", "-="), ("-", "+")])
        self.assertEqual(made("bound"), [("<", "<="), ("<", "<=")])
        self.assertIn(("2.5", "3.5"), made("constant"))
        self.assertIn(("3", "4"), made("constant"))
        self.assertIn(("3", "2"), made("constant"))

    def test_conditions_turn_as_a_whole(self):
        self.assertEqual(made("condition turned"), [("width < 3 && !hidden_", " !(width < 3 && !hidden_)")])
        self.assertEqual(made("condition turned", "void f() { if (int a = g(); a > 1) h(); }"),
                         [(" a > 1", " !(a > 1)")])

    def test_statements_vanish_and_declarations_stay(self):
        removed = [before for before, _ in made("statement removed")]
        self.assertEqual(removed, ['draw("bold", "plain")', "total += i - 1"])

    def test_neighbouring_texts_and_arguments_change_places(self):
        self.assertEqual(made("texts reordered"), [('"bold", "plain"', '"plain", "bold"')])
        self.assertEqual(made("arguments swapped", "void f() { g(low, high); }"), [("low, high", "high, low")])
        self.assertEqual(made("arguments swapped", "void f(double low, double high);"), [])

    def test_choices_swap_also_nested_ones(self):
        self.assertEqual(made("choice swapped", "int f() { return a ? b ? 1 : 2 : 3; }"),
                         [(" b ? 1 : 2 : 3", " 3 : b ? 1 : 2"), (" 1 : 2", " 2 : 1")])

    def test_formatting_words_are_lost(self):
        self.assertEqual(made("RTF word dropped", r'void f() { w("\\b\\cf2 x", R"(\par y)"); }'),
                         [(r"\\b", ""), (r"\\cf2", ""), (r"\par", "")])

    def test_a_body_is_that_of_a_function_alone(self):
        source = Source(EXAMPLE)
        self.assertEqual(len(source.bodies), 1)
        first, last = source.bodies[0]
        self.assertTrue(EXAMPLE[first:last].startswith("{\n    if (width < 3"))
        self.assertIsNone(source.body_at(EXAMPLE.index("2.5")))
        self.assertIsNone(source.body_at(EXAMPLE.index('"a"')))


class TheListOfEquivalentOnes(unittest.TestCase):
    def test_names_a_mistake_by_its_lines_wherever_they_stand(self):
        text = "int a;\n  int b = 1;\n"
        one = mutants.Mutant("src/a.cpp", "constant", text.index("1"), text.index("1") + 1, "2", text, None)
        self.assertEqual(one.line, 2)
        self.assertEqual(one.difference(), "- int b = 1;\n+ int b = 2;")
        with tempfile.TemporaryDirectory() as folder:
            listed = Path(folder) / "equivalent.txt"
            listed.write_text("# a comment\nsrc/a.cpp\n- int b = 1;\n+ int b = 2;\nnobody\nreads it\n")
            known = mutants.read_equivalent(listed)
        self.assertEqual(mutants.reason(known, one), "nobody reads it")

    def test_every_entry_still_fits_the_sources(self):
        known = mutants.read_equivalent(ROOT / "tools" / "mutation" / "equivalent.txt")
        for (path, before, _), why in known.items():
            lines = [line.strip() for line in (ROOT / path).read_text(encoding="utf-8").splitlines()]
            self.assertTrue(set(before) <= set(lines), f"{path}: {before}")
            self.assertTrue(why, f"{path}: {before} has no reason")


class TheTestsOfAFolder(unittest.TestCase):
    def test_come_before_those_of_its_users_and_of_the_command_line(self):
        stages = [[target for target, _ in stage] for stage in workshop.stages_of(ROOT, "catalogue")]
        self.assertEqual(stages, [["test_catalogue"], ["test_search", "test_deflection", "test_fits"], ["norlaplan-cli"]])
        self.assertEqual(workshop.stages_of(ROOT, "paint")[0][0][0], "test_paint")
        self.assertEqual(len(workshop.stages_of(ROOT, "screens")), 1)

    def test_of_the_screens_are_asked_by_how_much_they_speak_of_the_form(self):
        screens = workshop.stages_of(ROOT, "screens")
        bench = workshop.Bench(SimpleNamespace(root=ROOT, seconds={}, nearest=None), screens)

        def first(name):
            return bench.order(screens[0], SimpleNamespace(path=f"src/screens/{name}"))[0][0]

        self.assertEqual(first("Form18.cpp"), "test_screens_Form18Test")
        self.assertEqual(first("Form17.cpp"), "test_screens_DataSheetTest")
        self.assertEqual(first("BallLoadPicture.cpp"), "test_screens_tlodestarballloadsTest")
        bench.kills["test_screens_StepsTest"] = 3
        self.assertEqual(first("NoForm.cpp"), "test_screens_StepsTest")
        bench.shop.nearest = 3
        self.assertEqual(len(bench.order(screens[0], SimpleNamespace(path="src/screens/Form18.cpp"))), 3)


if __name__ == "__main__":
    unittest.main()
