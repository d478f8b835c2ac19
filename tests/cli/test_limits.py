"""A shell's limits: what the program may not have ends in an error that is told, never in an abort."""

import os
import resource
import tempfile
import unittest
from pathlib import Path

from program import WITH_PICTURES, WITH_SANITIZERS, own_tables, run, table

MEGABYTE = 1 << 20
SHEET = ("datasheet", "K19013XP0", "--output")
LIFE = ("report", "life", "K19013XP0", "--radial", "100", "--output")
SEARCH = ("report", "search", "--style", "4-POINT CONTACT", "--min-bore", "4", "--max-od", "10", "--min-height", "0.1",
          "--max-height", "2", "--radial", "100", "--output")


def limited(what, value, *words, **options):
    """The call under a limit, which holds for it alone."""
    return run("--json", *words, preexec_fn=lambda: resource.setrlimit(what, (value, value)), **options)


@unittest.skipIf(WITH_SANITIZERS, "the address sanitizer wants more than these limits leave")
class Limits(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.told_by_its_end = 0

    def ends_in_a_file_or_an_error(self, what, value, words, name):
        output = Path(self.folder.name, name)
        done = limited(what, value, *words, str(output))
        told = f"{words[0]} {name} with {value}: {done.returncode} {done.stderr}"
        left = sorted(os.listdir(self.folder.name))
        if done.returncode == 0:
            self.assertEqual(left, [name], told)
            output.unlink()
            return "file"
        self.assertIn(done.returncode, (1, 3), told)
        self.assertIn('"error"', done.stdout, told)
        self.assertNotIn("terminate", done.stderr, told)
        self.assertNotIn("Too many files\n", done.stderr, "it is told what could not be opened")
        if "a picture takes more memory, open files or stack" in done.stderr:
            self.assertTrue(done.stderr.startswith("Run-time error '7': Out of memory: "), told)
            self.assertIn('"number": 7,', done.stdout)
            self.told_by_its_end += 1
        self.assertEqual(left, [], told)
        return "error"

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_memory_that_runs_out_in_a_picture_is_an_error(self):
        ends = {self.ends_in_a_file_or_an_error(resource.RLIMIT_AS, megabytes * MEGABYTE, words, name)
                for words, name in ((SHEET, "sheet.pdf"), (SHEET, "sheet.png"), (LIFE, "life.pdf"), (SEARCH, "list.bmp"))
                for megabytes in (16, 72, 80, 88, 96, 104, 400)}
        self.assertEqual(ends, {"file", "error"})
        self.assertGreater(self.told_by_its_end, 0)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_files_that_run_out_in_a_picture_are_an_error(self):
        ends = {self.ends_in_a_file_or_an_error(resource.RLIMIT_NOFILE, files, words, name)
                for words, name in ((SHEET, "sheet.pdf"), (SHEET, "sheet.png"), (LIFE, "life.bmp"))
                for files in (4, 5, 6, 7, 30)}
        self.assertEqual(ends, {"file", "error"})

    def test_a_stack_that_is_too_small_is_an_error(self):
        # Less than this isn't enough for the system to start any program, with some processors' registers.
        for kilobytes in (64, 100, 200):
            for words in (("decode", "K19013XP0"), ("life", "K19013XP0", "--radial", "100"),
                          (*SHEET, str(Path(self.folder.name, "sheet.pdf")))):
                done = limited(resource.RLIMIT_STACK, kilobytes << 10, *words, env={"PATH": os.defpath})
                self.assertEqual(done.returncode, 3, f"{words} {kilobytes} {done.stderr}")
                self.assertIn("Run-time error '28': Out of stack space", done.stderr)
                self.assertIn('"number": 28', done.stdout)
        for kilobytes in (256, 512):
            self.assertEqual(limited(resource.RLIMIT_STACK, kilobytes << 10, "decode", "K19013XP0").returncode, 0)

    def test_memory_that_runs_out_in_a_calculation_is_error_seven(self):
        seen = set()
        for megabytes in range(8, 24):
            done = limited(resource.RLIMIT_AS, megabytes * MEGABYTE, "decode", "K19013XP0")
            if done.returncode == 127:
                continue  # the system couldn't even load the program
            self.assertIn(done.returncode, (0, 3), f"{megabytes}: {done.stderr}")
            seen.add(done.returncode)
        self.assertIn(0, seen)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_a_fault_in_a_picture_is_told_as_any_other(self):
        done = run("--json", *SHEET, str(Path(self.folder.name, "none", "sheet.pdf")))
        self.assertEqual(done.returncode, 3)
        self.assertRegex(done.stderr, r"^Run-time error '7[56]': Path.*sheet\.pdf\n$")
        self.assertEqual(os.listdir(self.folder.name), [])


@unittest.skipIf(WITH_SANITIZERS, "the address sanitizer wants more than these limits leave")
class LargeFiles(unittest.TestCase):
    """A gigabyte in place of a file is refused unread: the memory of the program stays small."""

    def refused(self, folder, file, *words):
        os.truncate(file, 1 << 30)
        return limited(resource.RLIMIT_AS, 200 * MEGABYTE, "--program-folder", str(folder), *words)

    def test_a_table_is_told(self):
        with own_tables() as folder:
            done = self.refused(folder, table(folder, "13-X.csv"), "decode", "K19013XP0")
            self.assertEqual(done.returncode, 3)
            self.assertEqual(done.stderr.count("\n"), 1)

    def test_options_and_settings_are_told_and_passed_over(self):
        for name in ("SETTINGS.INI", "Extras.txt"):
            with own_tables() as folder:
                (folder / name).touch()
                done = self.refused(folder, folder / name, "decode", "K19013XP0")
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertIn(f"{name} could not be read (Invalid file format: it is larger than 1 MB: ", done.stderr)
                self.assertIn(f'"title": "{name}"', done.stdout)

    def test_an_overlay_is_told(self):
        with own_tables() as folder:
            (folder / "overlays").unlink()
            (folder / "overlays").mkdir()
            for name in ("X.ovl", "RIBBONXC.sep"):
                (folder / "overlays" / name).touch()
            done = self.refused(folder, folder / "overlays" / "X.ovl", "decode", "K19013XP0")
            self.assertEqual(done.returncode, 3)


class LongDrawings(unittest.TestCase):
    def test_an_overlay_of_twenty_thousand_circles_is_cut_with_a_note(self):
        with own_tables() as folder:
            (folder / "overlays").unlink()
            (folder / "overlays").mkdir()
            (folder / "overlays" / "X.ovl").write_text("PU0,0;" + "AA4000,4000,360;" * 20000)
            (folder / "overlays" / "RIBBONXC.sep").write_text("PU0,0;PD10,10;")
            output = folder / "sheet.rtf"
            done = run("--program-folder", str(folder), *SHEET, str(output))
            self.assertEqual(done.returncode, 0, done.stderr)
            text = output.read_text(encoding="ascii")
            self.assertIn("The drawing is not whole: its overlay draws too much.", text)
            self.assertLess(len(text), 2 * MEGABYTE)


if __name__ == "__main__":
    unittest.main()
