"""The drawing overlays are those that their script makes, and the data sheet's reader can draw all of them."""

import re
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "overlays"))

import make_overlays  # noqa: E402

OVERLAYS = ROOT / "data" / "overlays"
KNOWN = {"IN", "PU", "PD", "SP", "AA"}
UNITS = 1016.0


class Overlays(unittest.TestCase):
    def test_are_made_by_their_script(self):
        with tempfile.TemporaryDirectory() as folder:
            make_overlays.make(Path(folder))
            made = {path.name: path.read_bytes() for path in Path(folder).iterdir()}
        self.assertEqual(made, {path.name: path.read_bytes() for path in OVERLAYS.iterdir()})

    def test_hold_known_instructions_inside_the_page(self):
        for path in OVERLAYS.iterdir():
            instructions = re.findall(r"([A-Z]{2})([^A-Z;]*);", path.read_text("ascii"))
            self.assertTrue({name for name, _ in instructions} <= KNOWN, path.name)
            self.assertLess(len(instructions), 1000, path.name)
            for name, parameters in instructions:
                if name not in ("PU", "PD"):
                    continue
                x, y = (float(number) for number in parameters.split(","))
                self.assertTrue(0 <= 0.25 + x / UNITS <= 8.5 and 0 <= 0.625 + y / UNITS <= 11, (path.name, x, y))

    def test_serve_every_separator_of_the_catalogue(self):
        for table, suffixes in (("ASEPARATOR.CSV", ("A", "U")), ("XSEPARATOR.CSV", ("XC",))):
            for row in (ROOT / "data" / "Data Tables" / table).read_text("cp1252").splitlines():
                name = row.rsplit(",", 1)[-1]
                for suffix in suffixes:
                    self.assertTrue((OVERLAYS / f"{name}{suffix}.sep").exists(), name + suffix)


if __name__ == "__main__":
    unittest.main()
