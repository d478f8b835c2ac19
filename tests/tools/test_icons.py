"""The status lights are those that their script makes, and tell their state by colour and by mark."""

import struct
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "icons"))

import make_icons  # noqa: E402

ICONS = ROOT / "data" / "icons"


def pixels(path, wanted):
    """The rows of (red, green, blue, cover) of the picture of that size in an icon."""
    content = path.read_bytes()
    for i in range(struct.unpack("<H", content[4:6])[0]):
        size, *_, length, place = struct.unpack("<BBBBHHII", content[6 + 16 * i:22 + 16 * i])
        if size == wanted:
            picture = content[place:place + length]
            data = picture[picture.index(b"IDAT") + 4:]
            raw = zlib.decompress(data[:struct.unpack(">I", picture[picture.index(b"IDAT") - 4:][:4])[0]])
            rows = [raw[y * (4 * size + 1) + 1:(y + 1) * (4 * size + 1)] for y in range(size)]
            return [[tuple(row[4 * x:4 * x + 4]) for x in range(size)] for row in rows]
    return None


class Icons(unittest.TestCase):
    def test_are_made_by_their_script(self):
        with tempfile.TemporaryDirectory() as folder:
            make_icons.make(Path(folder))
            made = {path.name: path.read_bytes() for path in Path(folder).iterdir()}
        self.assertEqual(made, {path.name: (ICONS / path.name).read_bytes() for path in ICONS.iterdir()
                                if path.name in made})
        self.assertEqual(len(made), 3)

    def test_show_green_yellow_and_red_on_nothing(self):
        for letter, is_colour in (("A", lambda r, g, b: g > r + 80 and g > b + 80),
                                  ("B", lambda r, g, b: r > b + 80 and g > b + 80),
                                  ("C", lambda r, g, b: r > g + 80 and r > b + 80)):
            rows = pixels(ICONS / f"TRFFC10{letter}.ICO", 32)
            self.assertEqual(rows[0][0][3], 0, letter)
            # Left of the marks.
            self.assertTrue(is_colour(*rows[16][5][:3]), (letter, rows[16][5]))

    def test_differ_without_their_colours(self):
        marks = []
        for letter in "ABC":
            rows = pixels(ICONS / f"TRFFC10{letter}.ICO", 32)
            face = rows[16][5]
            marks.append(frozenset((x, y) for y in range(8, 24) for x in range(8, 24) if rows[y][x] != face))
        self.assertEqual(len(set(marks)), 3)
        self.assertEqual(marks[2], frozenset())


if __name__ == "__main__":
    unittest.main()
