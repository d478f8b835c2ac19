"""Checks of the help documents: none is missing, they are what their script
makes, they are whole, they quote the program word for word, and the part
number page agrees with the catalogue tables.

Run from the root: python3 -m unittest discover -s tests/tools
"""

import csv
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HELP = ROOT / "data" / "help"
TABLES = ROOT / "data" / "Data Tables"
SCRIPT = ROOT / "tools" / "help" / "make_help.py"
TOPICS = 21
NAMES = {"warranty.rtf", "introduction.rtf", "Distributor.rtf",
         "Break Down.rtf", "INTRO.RTF",
         *(f"HELP{topic}.RTF" for topic in range(1, TOPICS + 1))}

sys.path[:0] = [str(SCRIPT.parent), str(Path(__file__).resolve().parent)]

from help_pages import pages  # noqa: E402
from page_source import CAPTION, QUOTED, read_page, words_of  # noqa: E402
from program_texts import captions, program_texts, texts_of, tidy  # noqa: E402


def kept():
    return {path.name: path.read_bytes() for path in HELP.iterdir()}


def rows(name):
    with open(TABLES / name, encoding="cp1252", newline="") as table:
        return list(csv.reader(table))


def cells(name):
    """The texts of all table cells of a document, without their look."""
    text = (HELP / name).read_text(encoding="ascii")
    for content in re.findall(r"\\pard\\intbl(.*?)\\cell", text, re.S):
        yield re.sub(r"\\[a-z]+-?\d* ?|[{}]", "", content).strip()


class TheDocumentsAre(unittest.TestCase):
    def test_all_there(self):
        self.assertEqual(kept().keys(), NAMES)

    def test_what_the_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", SCRIPT, folder],
                           check=True)
            made = {path.name: path.read_bytes()
                    for path in Path(folder).iterdir()}
        self.assertEqual(made.keys(), NAMES)
        self.assertEqual(made.keys(), kept().keys())
        for name in sorted(NAMES):
            with self.subTest(name):
                self.assertEqual(made[name], kept()[name])

    def test_rich_text_of_ascii_bytes_that_closes_each_group(self):
        for name, content in kept().items():
            with self.subTest(name):
                text = content.decode("ascii")
                self.assertTrue(text.startswith(r"{\rtf1"))
                bare = re.sub(r"\\[\\{}]", "", text)
                depths = [0]
                for brace in re.findall("[{}]", bare):
                    depths.append(depths[-1] + (1 if brace == "{" else -1))
                self.assertEqual(depths[-1], 0)
                self.assertNotIn(0, depths[1:-1])

    def test_named_with_words_that_the_tables_list(self):
        for name, content in kept().items():
            text = content.decode("ascii")
            fonts = text.split(r"\fonttbl")[1].split("}}")[0]
            colours = text.split(r"\colortbl")[1].split("}")[0].count(";")
            with self.subTest(name):
                for font in set(re.findall(r"\\f(\d+)", text)):
                    self.assertIn(rf"\f{font}\f", fonts)
                for number in re.findall(r"\\(?:cf|clcbpat|brdrcf)(\d+)",
                                         text):
                    self.assertLess(int(number), colours)


class TheRowsOfATable(unittest.TestCase):
    def test_have_as_many_cells_as_their_definition(self):
        for name, content in kept().items():
            text = content.decode("ascii")
            for row in re.findall(r"\\trowd.*?\\row", text, re.S):
                with self.subTest(name):
                    self.assertEqual(len(re.findall(r"\\cellx\d", row)),
                                     len(re.findall(r"\\cell\b(?!x)", row)))


class AHelpPage(unittest.TestCase):
    """What stands between double quotes or brackets in a page's source is a
    text or a caption of the program, word for word."""

    @classmethod
    def setUpClass(cls):
        cls.texts = program_texts()
        cls.captions = captions(cls.texts)

    def test_quotes_messages_as_the_program_has_them(self):
        for name, text in self.words():
            for quoted in QUOTED.findall(text):
                with self.subTest(name, quoted=quoted):
                    self.assertTrue(any(tidy(quoted) in one
                                        for one in self.texts))

    def test_names_controls_as_the_program_has_them(self):
        for name, text in self.words():
            for caption in CAPTION.findall(text):
                with self.subTest(name, caption=caption):
                    self.assertIn(tidy(caption), self.captions)

    def test_gives_the_maker_s_telephone_numbers(self):
        found = 0
        for name, text in self.words():
            for number in re.findall(r"\b1-\d{3}-\d{3}-\d{4}\b", text):
                found += 1
                with self.subTest(name, number=number):
                    self.assertIn(number, self.texts)
        self.assertGreater(found, 3)

    @staticmethod
    def words():
        for name, page in pages().items():
            for text in page.texts():
                yield name, words_of(text)


class TroubleShooting(unittest.TestCase):
    def test_lists_every_run_time_error_with_its_text(self):
        faults = ROOT / "src" / "numbers"
        texts = dict(re.findall(
            r'case fault::(k\w+):\s*return "([^"]+)"',
            (faults / "RuntimeError.cpp").read_text("utf-8")))
        numbers = dict(re.findall(
            r"constexpr int (k\w+) = (\d+);",
            (faults / "RuntimeError.h").read_text("utf-8")))
        self.assertEqual(texts.keys(), numbers.keys())
        self.assertGreater(len(texts), 10)
        shown = [tuple(cell.strip('"\u201c\u201d') for cell in row[:2])
                 for block in pages()["HELP21.RTF"].blocks
                 if block.kind == "table" for row in block.texts]
        for name, number in numbers.items():
            with self.subTest(number):
                self.assertIn((number, texts[name]), shown)

    def test_lists_every_message_that_is_two_plain_texts(self):
        messages = re.compile(r'(?:Message(?: \w+)?|\.show\()\s*\{+\s*'
                              r'"([^"]+)",\s*((?:"[^"]+"\s*)+)[,}]')
        page = pages()["HELP21.RTF"]
        listed = [tidy(quoted) for text in page.texts() for quoted in
                  re.findall('["\u201c]([^"\u201c\u201d]+)["\u201d]',
                             words_of(text))]
        found = 0
        for path in sorted((ROOT / "src").rglob("*.cpp")):
            if path.parent.name == "cli":
                continue
            for title, text in messages.findall(path.read_text("utf-8")):
                text = tidy("".join(re.findall('"([^"]+)"', text)))
                found += 1
                with self.subTest(path.name, title=title, text=text):
                    self.assertTrue(any(one in (title, text) or one in text
                                        for one in listed))
        self.assertGreater(found, 15)


class TheTextsOfASource(unittest.TestCase):
    def test_are_its_literals_joined_and_without_comments(self):
        source = ('show("One  half \\n"  // "not this"\n     "and \\"the\\" '
                  'other"); /* "nor this" */ a("&Print");')
        self.assertEqual(list(texts_of(source)),
                         ['One half and "the" other', "&Print"])
        self.assertEqual(captions(texts_of(source)),
                         {'One half and "the" other', "Print"})


class ThePageReader(unittest.TestCase):
    def page(self, text):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "PAGE.txt"
            path.write_text("title: T\nunder: U\n" + text, "utf-8")
            return read_page(path)

    def test_takes_marks_and_lines_that_run_on(self):
        page = self.page("case a = play K19013XP0\n\nholds a.sx > 1\n\n"
                         "= Head\nOne\ntwo {a.sx ; 0.0}\n- b\n- c\nd\n\n"
                         "|# 1 2\n| x | [y]\n")
        self.assertEqual(page.cases, {"a": "play K19013XP0"})
        self.assertEqual(page.claims, ["a.sx > 1"])
        self.assertEqual([(block.kind, block.texts) for block in page.blocks],
                         [("heading", ["Head"]),
                          ("paragraph", ["One two {a.sx ; 0.0}"]),
                          ("bullet", ["b", "c d"]),
                          ("table", [["x", "[y]"]])])
        self.assertEqual(page.numbers(), ["a.sx ; 0.0"])

    def test_refuses_what_it_cannot_mean(self):
        for text in ("|: 1 2\n| one\n", "| row without shares\n",
                     "|: 1\n| row\nnot a row\n"):
            with self.subTest(text), self.assertRaises(ValueError):
                self.page(text)


class ThePartNumberPage(unittest.TestCase):
    def test_names_every_code_of_the_separator_tables(self):
        shown = set(cells("Break Down.rtf"))
        for table in ("ASEPARATOR.CSV", "XSEPARATOR.CSV"):
            for code, text, _ in rows(table):
                with self.subTest(code):
                    self.assertIn(code, shown)
                    self.assertIn(text.split("=", 1)[1].strip(), shown)

    def test_names_every_fit_with_its_limits(self):
        shown = list(cells("Break Down.rtf"))
        for letter, low, high, kind in rows("Fitnumber.doc"):
            if kind in ("Clearance", "Preload"):
                with self.subTest(letter):
                    self.assertIn((letter, f"{low} to {high}"),
                                  zip(shown, shown[1:]))

    def test_names_the_codes_of_every_other_position(self):
        shown = set(cells("Break Down.rtf"))
        for code in ("K", "S", "N", "08", "13", "20", *"ABCFTUX", *"01246"):
            with self.subTest(code):
                self.assertIn(code, shown)


if __name__ == "__main__":
    unittest.main()
