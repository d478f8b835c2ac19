"""What norlaplan-cli says of its own words, of damaged settings and of a result that nobody can take."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from program import own_tables, result, run


class Settings(unittest.TestCase):
    def test_damaged_settings_are_told_and_do_not_stop_a_call(self):
        with own_tables() as folder:
            for lines in (0, 3, 8):
                (folder / "SETTINGS.INI").write_text("a\r\n" * lines, "ascii")
                done = run("--program-folder", str(folder), "decode", "K19013XP0")
                self.assertEqual(done.returncode, 0, lines)
                self.assertIn("SETTINGS.INI", done.stderr)
            for lines in (9, 5000):
                (folder / "SETTINGS.INI").write_text("METRIC\r\n" * lines, "ascii")
                done = run("--program-folder", str(folder), "decode", "K19013XP0")
                self.assertEqual((done.returncode, done.stderr), (0, ""), lines)


class Usage(unittest.TestCase):
    def test_help_and_version(self):
        self.assertEqual(run("--version").stdout, "NORLAPLAN-MM version 1.00\n")
        for words in ((), ("decode",), ("life",), ("report",), ("report", "life"), ("search",), ("datasheet",),
                      ("torque",), ("play",), ("fits",), ("qlx",)):
            done = run(*words, "--help")
            self.assertEqual(done.returncode, 0)
            self.assertIn("--help", done.stdout)
        about = run("--help").stdout.splitlines()
        self.assertEqual(about[0], "NORLAPLAN-MM: thin-section ball bearings, without a screen")
        self.assertTrue(about[1].startswith("Usage: norlaplan-cli "))

    @unittest.skipUnless(Path("/dev/full").exists(), "no full device here")
    def test_a_result_that_cannot_be_printed_is_an_error(self):
        with open("/dev/full", "w", encoding="ascii") as full:
            done = run("decode", "K19013XP0", capture_output=False, stdout=full, stderr=subprocess.PIPE)
        self.assertEqual((done.returncode, done.stderr), (3, "Run-time error '61': Disk full: standard output\n"))

    def test_a_standard_output_that_is_closed_is_told(self):
        for words in (("decode", "K19013XP0"), ("decode", "K19013XP0", "--json"), ("--help",)):
            done = run(*words, capture_output=False, stderr=subprocess.PIPE, preexec_fn=lambda: os.close(1))
            self.assertEqual((done.returncode, done.stderr),
                             (3, "Run-time error '57': Device I/O error: standard output\n"), words)

    def test_messages_to_a_closed_standard_error_do_not_land_in_a_file_that_is_written(self):
        with tempfile.TemporaryDirectory() as folder:
            cases = Path(folder, "cases.csv")
            cases.write_text("partNumber,radial,axial,moment,speed\nK19013XP0,500,0,0,100\nnothing,1,0,0,1\n")
            written = []
            for closed in ((), (2,), (0, 1, 2)):
                results = Path(folder, f"results{len(closed)}.csv")
                run("batch", cases, "--output", results, preexec_fn=lambda: [os.close(one) for one in closed])
                written.append(results.read_text())
            self.assertEqual(written[0].count("\n"), 3)
            self.assertEqual(written[1:], written[:1] * 2)

    def test_wrong_words_are_status_2(self):
        for words in ((), ("nonsense",), ("decode",), ("decode", "K19013XP0", "--nonsense"),
                      ("life", "K19013XP0", "--radial", "abc"), ("--units", "feet", "decode", "K19013XP0")):
            self.assertEqual(run(*words).returncode, 2, words)
        self.assertEqual(result("nonsense")[1]["error"]["kind"], "usage")

    def test_an_error_says_its_kind_its_number_its_title_and_its_prompt_in_this_order(self):
        for words, kind, number in ((("nonsense",), "usage", None), (("decode", "K0"), "message", None),
                                    (("life", "K19013XP0", "--axial", "-100"), "runtime", 5)):
            told = result(*words)[1]
            self.assertEqual(list(told), ["error"])
            self.assertEqual(list(told["error"]), ["kind", "number", "title", "prompt"])
            self.assertEqual((told["error"]["kind"], told["error"]["number"]), (kind, number))
            self.assertEqual(run(*words).stderr, f"{told['error']['title']}: {told['error']['prompt']}\n")

    def test_a_style_that_is_none_is_told_with_those_that_are(self):
        status, told = result("search", "--style", "ROLLER", "--min-bore", "5", "--max-od", "9", "--min-height", ".2",
                              "--max-height", "1.2")
        self.assertEqual((status, told["error"]["kind"], told["error"]["title"]), (2, "usage", "Unknown style"))
        self.assertRegex(told["error"]["prompt"], r'^--style is one of ("[A-Z4 -]+"(, |$)){6}')


if __name__ == "__main__":
    unittest.main()
