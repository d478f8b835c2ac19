"""The pictures that the build draws: which there are, and how large."""

import os
import struct
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from programs import BIN

DESKTOP_ICONS = Path(os.environ["NORLAPLAN_BUILD"]) / "desktop-icons" / "hicolor"
PRODUCTS = ("custom.jpg", "duplex.jpg", "four-point.jpg", "hybrid.jpg", "inch series.jpg", "metrics.jpg", "slewing.jpg",
            "stainless.jpg")
BROWSED = {"Flanged ring.jpg": (1200, 900), "Gimbal pair.jpg": (1200, 900), "Radar pedestal.jpg": (900, 1200),
           "START.JPG": (1200, 900), "Spring separator.jpg": (1200, 900), "Toroid separator.jpg": (1200, 900),
           "Wire race.jpg": (300, 200)}


def jpeg_size(path):
    data = path.read_bytes()
    at = 2
    while data[at + 1] not in (0xC0, 0xC2):
        at += 2 + struct.unpack(">H", data[at + 2:at + 4])[0]
    height, width = struct.unpack(">HH", data[at + 5:at + 9])
    return width, height


def png_size(data):
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "no PNG"
    return struct.unpack(">II", data[16:24])


class Pictures(unittest.TestCase):
    def test_every_product_line_has_one_of_the_same_size(self):
        for name in PRODUCTS:
            with self.subTest(picture=name):
                self.assertEqual(jpeg_size(BIN / "bearing pictures" / name), (960, 720))

    def test_the_picture_browser_has_upright_and_small_ones_too(self):
        for name, size in BROWSED.items():
            with self.subTest(picture=name):
                self.assertEqual(jpeg_size(BIN / "neds Pictures" / name), size)

    def test_the_monitors_are_icons_in_five_sizes_and_differ(self):
        files = [(BIN / "icons" / name).read_bytes() for name in ("onmoniter.ico", "offmoniter.ico")]
        for data in files:
            count = struct.unpack("<HHH", data[:6])[2]
            entries = [struct.unpack("<BBBBHHII", data[6 + 16 * i:22 + 16 * i]) for i in range(count)]
            self.assertEqual([entry[0] for entry in entries], [16, 24, 32, 48, 64])
            for width, height, _, _, _, _, length, place in entries:
                self.assertEqual(png_size(data[place:place + length]), (width, height))
            self.assertEqual(entries[-1][6] + entries[-1][7], len(data))
        self.assertNotEqual(*files)

    def test_the_desktop_has_the_programs_icon_in_every_size(self):
        for size in (16, 22, 24, 32, 48, 64, 128, 256):
            with self.subTest(size=size):
                path = DESKTOP_ICONS / f"{size}x{size}" / "apps" / "com.varden.norlaplan.png"
                self.assertEqual(png_size(path.read_bytes()), (size, size))

    def test_the_scalable_icon_is_two_rings_with_fourteen_balls(self):
        root = ElementTree.parse(DESKTOP_ICONS / "scalable" / "apps" / "com.varden.norlaplan.svg").getroot()
        circles = root.findall("{http://www.w3.org/2000/svg}circle")
        rings = [circle for circle in circles if circle.get("stroke") == "#2a3668"]
        balls = [circle for circle in circles if circle.get("fill") == "#be5400"]
        self.assertEqual((len(rings), len(balls)), (2, 14))


if __name__ == "__main__":
    unittest.main()
