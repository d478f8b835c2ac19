"""The help pages tell the truth: every number of a worked example is what the program calculates today, and what
a page says of its formulas holds for the program's results."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "help"))

from examples import Cases, picture  # noqa: E402
from page_source import plain, read_page, words_of  # noqa: E402
from program import CLI  # noqa: E402
from rtf_text import paragraphs  # noqa: E402

HELP = ROOT / "data" / "help"
SOURCES = sorted((ROOT / "tools" / "help" / "pages").glob("*.txt"))
#: A number that is no part of a name.
NUMBER = r"(?<![A-Za-z\d])\d*\.?\d+(?![A-Za-z\d])"
#: Pages of screens that calculate: each has a worked example.
WITH_EXAMPLE = {f"HELP{number}" for number in (2, 4, 5, 6, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20)} | {"INTRO"}


def expected_texts(page, cases):
    """What the page's source says, with every number calculated now."""
    def text(source):
        return plain(source, cases.text)

    yield text(page.title)
    yield text(page.under)
    for block in page.blocks:
        for number, source in enumerate(block.texts, 1):
            if block.kind == "table":
                yield from (cell for cell in map(text, source) if cell)
            else:
                sign = {"bullet": "", "step": f"{number}.\t"}.get(block.kind, "")
                yield sign + text(source)


class AHelpPage(unittest.TestCase):
    def test_shows_what_the_program_calculates(self):
        for path in SOURCES:
            page = read_page(path)
            cases = Cases(CLI, page.cases)
            shown = paragraphs((HELP / f"{page.name}.RTF").read_text("ascii"))
            with self.subTest(page.name):
                self.assertEqual(shown, list(expected_texts(page, cases)))

    def test_claims_of_the_program_only_what_holds(self):
        for path in SOURCES:
            page = read_page(path)
            cases = Cases(CLI, page.cases)
            for claim in page.claims:
                with self.subTest(page.name, claim=claim):
                    self.assertIs(cases.value(claim), True)

    def test_of_a_screen_that_calculates_has_numbers_of_the_program(self):
        for path in SOURCES:
            page = read_page(path)
            with self.subTest(page.name):
                self.assertEqual(bool(page.numbers()), page.name in WITH_EXAMPLE)
                self.assertEqual(bool(page.cases), page.name in WITH_EXAMPLE)

    def test_uses_each_of_its_cases(self):
        for path in SOURCES:
            page = read_page(path)
            used = " ".join(page.numbers() + page.claims)
            for name in page.cases:
                with self.subTest(page.name, case=name):
                    self.assertRegex(used, rf"\b{name}\b")


class AWorkedExample(unittest.TestCase):
    """A number in it is one that the program calculates, one that was typed to get it, or one of a tested claim."""

    def test_has_no_number_from_elsewhere(self):
        for path in SOURCES:
            page = read_page(path)
            if not page.cases:
                continue
            sources = [*page.cases.values(), *page.claims, *page.numbers()]
            known = {float(one) for one in re.findall(NUMBER, " ".join(sources))}
            for text in self.example(page):
                for number in re.findall(NUMBER, words_of(text).replace(",", "")):
                    with self.subTest(page.name, text=text, number=number):
                        # Small whole numbers count things; they measure nothing.
                        counts = number.isdigit() and int(number) <= 10
                        self.assertTrue(counts or float(number) in known)

    @staticmethod
    def example(page):
        inside = False
        for block in page.blocks:
            if block.kind == "heading":
                inside = block.texts[0] == "Worked example"
            elif inside:
                for text in block.texts:
                    yield from text if isinstance(text, list) else [text]


class APicture(unittest.TestCase):
    def test_shows_a_number_as_the_program_does(self):
        for value, wanted, text in (
                (1234.5, "#,##0", "1,235"), (0.25, ".0000", ".2500"), (0.25, "0.00", "0.25"), (0.125, "0.00", "0.13"),
                (-0.125, "0.00", "-0.13"), (3074053.2, "0.00E+00", "3.07E+06"), (0.000009996, "0.00E+00", "1.00E-05"),
                (12, "0", "12"), (0, "#,##0", "0"), (0.5, "#.000", ".500"), (5.25, "0.0###", "5.25"),
                (1234567, "###0.0", "1234567.0")):
            with self.subTest(value=value, picture=wanted):
                self.assertEqual(picture(value, wanted), text)


class AReaderOfRichText(unittest.TestCase):
    def test_sees_paragraphs_and_cells_without_their_look(self):
        rtf = (r"{\rtf1{\fonttbl{\f0 Arial;}}{\info{\title T}}\pard{\f0\b Plain} \{text\}\par" "\r\n"
               r"{\pntext\f3\'b7\tab}{\*\pn x}1.\tab 2 \'d7 3 \u8722?1\par\trowd\cellx9\pard\intbl{a}\cell\cell\row}")
        self.assertEqual(paragraphs(rtf), ["Plain {text}", "1.\t2 × 3 −1", "a"])

    def test_notices_a_digit_that_changed(self):
        rtf = (HELP / "HELP18.RTF").read_text("ascii")
        self.assertIn("3327.4", rtf)
        self.assertNotEqual(paragraphs(rtf), paragraphs(rtf.replace("3327.4", "3327.5")))


if __name__ == "__main__":
    unittest.main()
