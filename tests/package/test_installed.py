"""An installed program: its own folders are only read, and the user's folder stands over them."""

import json
import os
import shutil
import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = os.environ["NORLAPLAN_BUILD"]
NUMBER = "K19013XP0"


def lock(folder, locked):
    """Takes or gives the right to write into a folder and all under it."""
    for path in [folder, *folder.rglob("*")]:
        mode = path.stat().st_mode
        path.chmod(mode & ~0o222 if locked else mode | stat.S_IWUSR)


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory()
        cls.root = Path(cls.place.name) / "usr"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.root], check=True, capture_output=True, timeout=300)
        lock(cls.root, True)

    @classmethod
    def tearDownClass(cls):
        lock(cls.root, False)
        cls.place.cleanup()

    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.home = Path(home.name)
        self.own = self.home / ".local" / "share" / "norlaplan-mm"

    def run_program(self, program, *words, **more):
        environment = {"HOME": str(self.home), "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", **more}
        return subprocess.run([self.root / "bin" / program, *words], env=environment, capture_output=True, text=True,
                              check=False, timeout=120)

    def decoded(self, **more):
        done = self.run_program("norlaplan-cli", "--json", "decode", NUMBER, **more)
        self.assertEqual(done.returncode, 0, done.stderr)
        return json.loads(done.stdout)

    def own_table(self, folder, od):
        """The table of the user, in which the bearing has another outside diameter, mm."""
        table = (self.root / "share/norlaplan-mm/Data Tables/13-X.csv").read_text(encoding="utf-8")
        tables = folder / "data tables"
        tables.mkdir(parents=True)
        (tables / "13-X.csv").write_text(table.replace(f"{NUMBER},2,190,216,", f"{NUMBER},2,190,{od},"), encoding="utf-8")

    def test_reads_the_installed_catalog_and_writes_nothing(self):
        # 216 mm in inches, rounded to 32 bits.
        self.assertAlmostEqual(self.decoded()["outsideDiameter"], 216 / 25.4, places=6)
        self.assertEqual(list(self.home.iterdir()), [])

    def test_a_table_of_the_user_stands_in_place_of_the_installed_one(self):
        self.own_table(self.own, 217)
        self.assertAlmostEqual(self.decoded()["outsideDiameter"], 217 / 25.4, places=6)
        shutil.rmtree(self.own)
        self.assertAlmostEqual(self.decoded()["outsideDiameter"], 216 / 25.4, places=6)

    def test_the_data_home_counts_when_it_is_absolute(self):
        self.own_table(self.home / "data" / "norlaplan-mm", 217)
        self.assertAlmostEqual(self.decoded(XDG_DATA_HOME=str(self.home / "data"))["outsideDiameter"], 217 / 25.4,
                               places=6)
        self.assertAlmostEqual(self.decoded(XDG_DATA_HOME="data")["outsideDiameter"], 216 / 25.4, places=6)

    def test_a_program_folder_that_is_named_is_the_only_one(self):
        done = self.run_program("norlaplan-cli", "--program-folder", str(self.home), "decode", NUMBER)
        self.assertEqual(done.returncode, 3)

    def test_pictures_are_made_with_the_installed_module(self):
        sheet = self.home / "sheet.pdf"
        done = self.run_program("norlaplan-cli", "datasheet", NUMBER, "--output", str(sheet))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(sheet.read_bytes()[:5], b"%PDF-")

    def test_the_window_program_tells_its_version_without_a_display(self):
        done = self.run_program("norlaplan", "--version")
        self.assertEqual((done.returncode, done.stdout), (0, "norlaplan 1.00\n"))

    def test_the_window_program_refuses_what_it_does_not_know(self):
        for words in (["--nothing"], ["a file"], ["--program-folder", "/not/there"]):
            with self.subTest(words=words):
                done = self.run_program("norlaplan", *words, QT_QPA_PLATFORM="offscreen")
                self.assertEqual(done.returncode, 2)
                self.assertIn(words[-1].lstrip("-"), done.stderr)

    def test_everything_that_the_program_folder_holds_is_installed(self):
        built = Path(os.environ["NORLAPLAN_BIN"])
        installed = self.root / "share" / "norlaplan-mm"
        for folder in (entry for entry in built.iterdir() if entry.is_dir() and entry.name != "save"):
            names = {path.name for path in folder.iterdir() if not path.name.startswith(".")}
            there = {path.name for path in (installed / folder.name).glob("*")}
            with self.subTest(folder=folder.name):
                self.assertEqual(names, there)

    @unittest.skipUnless(shutil.which("desktop-file-validate"), "desktop-file-utils isn't there")
    def test_the_desktop_entry_is_valid(self):
        done = subprocess.run(["desktop-file-validate", self.root / "share/applications/com.varden.norlaplan.desktop"],
                              capture_output=True, text=True, check=False, timeout=60)
        self.assertEqual((done.returncode, done.stdout), (0, ""))

    @unittest.skipUnless(shutil.which("appstreamcli"), "appstream isn't there")
    def test_the_metainfo_is_valid(self):
        done = subprocess.run(["appstreamcli", "validate", "--no-net",
                               self.root / "share/metainfo/com.varden.norlaplan.metainfo.xml"],
                              capture_output=True, text=True, check=False, timeout=60)
        self.assertEqual(done.returncode, 0, done.stdout)


if __name__ == "__main__":
    unittest.main()
