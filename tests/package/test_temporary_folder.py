"""What the programs leave in the system's temporary folder: nothing, also in a session that has no folder for what
runs."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from programs import BIN

PICTURES = ("sheet.pdf", "sheet.png", "sheet.bmp")


class TemporaryFolder(unittest.TestCase):
    def setUp(self):
        self.places = {}
        for name in ("temporary", "saved"):
            place = tempfile.TemporaryDirectory()
            self.addCleanup(place.cleanup)
            self.places[name] = Path(place.name)

    def run_program(self, program, *words, **more):
        """One run without a runtime folder, or with one that isn't there, as after a change of the user."""
        environment = {key: value for key, value in os.environ.items() if key != "XDG_RUNTIME_DIR"}
        environment.update(TMPDIR=str(self.places["temporary"]), QT_QPA_PLATFORM="offscreen", **more)
        done = subprocess.run([BIN / program, *words], env=environment, capture_output=True, text=True, check=False,
                              timeout=120)
        self.assertEqual(os.listdir(self.places["temporary"]), [], f"{program} {words} {more}")
        return done

    def test_stays_empty_when_the_command_line_draws(self):
        for name in PICTURES:
            for more in ({}, {"XDG_RUNTIME_DIR": "/nowhere/at/all"}):
                done = self.run_program("norlaplan-cli", "datasheet", "K19013XP0", "--output",
                                        str(self.places["saved"] / name), **more)
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                self.assertTrue((self.places["saved"] / name).exists())

    def test_stays_empty_when_the_window_program_starts_which_says_nothing_of_it(self):
        for more in ({}, {"XDG_RUNTIME_DIR": "/nowhere/at/all"}):
            # It ends behind the start of its toolkit, and needs no display for that.
            done = self.run_program("norlaplan", "--nonsense", **more)
            self.assertEqual(done.returncode, 2)
            self.assertRegex(done.stderr, r"\Anorlaplan: .*\n\Z")


if __name__ == "__main__":
    unittest.main()
