"""Two calls at the same time in one program folder: each gets its own, and a file that both write is one's or the
other's, whole."""

import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from program import CLI, WITH_PICTURES, run

ROUNDS = 12
NUMBERS = ("K19013XP0", "K20013CP0")
CASES = "partNumber,radial\n" + "{number},100\n" * 30
MADE = re.compile(rb"\d\d/\d\d/\d\d +\d\d:\d\d:\d\d")


def content(path):
    """A file without the moment at which it was made."""
    return MADE.sub(b"", path.read_bytes())


class SideBySide(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)

    def together(self, *calls):
        """Starts them all, then waits for them. Gives what each has printed."""
        running = [subprocess.Popen([CLI, *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
                   for words in calls]
        printed = []
        for words, process in zip(calls, running):
            out, told = process.communicate(timeout=120)
            self.assertEqual((process.returncode, told), (0, ""), words)
            printed.append(out)
        return printed

    def files(self):
        return sorted(path.name for path in self.folder.iterdir())

    def test_decode_each_its_own_bearing(self):
        alone = [run("--json", "decode", number).stdout for number in NUMBERS]
        self.assertNotEqual(*alone)
        for _ in range(ROUNDS):
            self.assertEqual(self.together(*(("--json", "decode", number) for number in NUMBERS)), alone)

    def save_together(self, name, words_of, rounds):
        """`words_of(number)` are the words of a call but for its output."""
        alone = []
        for number in NUMBERS:
            done = run(*words_of(number), "--output", str(self.folder / name))
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            alone.append(content(self.folder / name))
        self.assertNotEqual(*alone)
        own = [f"{number}-{name}" for number in NUMBERS]
        for _ in range(rounds):
            for number in own:
                (self.folder / number).unlink(missing_ok=True)
            self.together(*((*words_of(number), "--output", str(self.folder / file))
                            for number, file in zip(NUMBERS, own)))
            self.assertEqual([content(self.folder / file) for file in own], alone)
            self.together(*((*words_of(number), "--output", str(self.folder / name)) for number in NUMBERS))
            self.assertIn(content(self.folder / name), alone)
            self.assertEqual(self.files(), sorted([name, *own]))

    def test_write_each_its_own_sheet_and_into_one_file_one_of_them_whole(self):
        self.save_together("sheet.rtf", lambda number: ("datasheet", number), ROUNDS)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_draw_each_its_own_sheet_and_into_one_file_one_of_them_whole(self):
        self.save_together("sheet.bmp", lambda number: ("datasheet", number), 3)

    def test_write_each_its_own_results_and_into_one_file_one_of_them_whole(self):
        with tempfile.TemporaryDirectory() as cases:
            for number in NUMBERS:
                Path(cases, number).write_text(CASES.format(number=number), "ascii")
            self.save_together("results.csv", lambda number: ("batch", str(Path(cases, number))), ROUNDS)


if __name__ == "__main__":
    unittest.main()
