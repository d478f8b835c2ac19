#!/usr/bin/env python3
"""Makes the status lights of the application form: TRFFC10A.ICO (green, complete), TRFFC10B.ICO (yellow, partly)
and TRFFC10C.ICO (red, empty). A light also tells its state by its mark, for those who don't see the colours.

    tools/icons/make_icons.py [FOLDER]        default: data/icons
"""

import math
import struct
import sys
import zlib
from pathlib import Path

SIZES = (16, 24, 32, 48, 64)
SAMPLES = 4  # across a pixel and down it
RADIUS, RIM = 0.46, 0.05  # parts of the icon's width
STROKE = 0.065

WHITE = (255, 255, 255)
TICK = (((0.28, 0.53), (0.44, 0.68)), ((0.44, 0.68), (0.73, 0.34)))
BAR = (((0.30, 0.50), (0.70, 0.50)),)
LIGHTS = {"TRFFC10A.ICO": ((0, 142, 50), (0, 98, 34), WHITE, TICK),
          "TRFFC10B.ICO": ((250, 204, 21), (168, 122, 0), (84, 60, 0), BAR),
          "TRFFC10C.ICO": ((214, 40, 40), (140, 16, 16), WHITE, ())}


def from_segment(x, y, begin, end):
    """How far a point is from a line between two others."""
    dx, dy = end[0] - begin[0], end[1] - begin[1]
    along = max(0.0, min(1.0, ((x - begin[0]) * dx + (y - begin[1]) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - begin[0] - along * dx, y - begin[1] - along * dy)


def colour_at(x, y, light):
    """The colour of a point of the icon, none outside the light."""
    face, rim, mark, strokes = light
    distance = math.hypot(x - 0.5, y - 0.5)
    if distance > RADIUS:
        return None
    if distance > RADIUS - RIM:
        return rim
    if any(from_segment(x, y, *stroke) < STROKE for stroke in strokes):
        return mark
    return face


def pixel(column, row, size, light):
    """Red, green, blue and cover of a pixel, from samples spread over it."""
    points = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    seen = [colour_at((column + x) / size, (row + y) / size, light) for y in points for x in points]
    inside = [colour for colour in seen if colour is not None]
    if not inside:
        return bytes(4)
    mixed = [round(sum(colour[i] for colour in inside) / len(inside)) for i in range(3)]
    return bytes(mixed + [round(255 * len(inside) / len(seen))])


def chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def png(size, light):
    # Stored, not packed: every version of the packer gives the same bytes.
    rows = b"".join(b"\0" + b"".join(pixel(x, y, size, light) for x in range(size)) for y in range(size))
    head = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows, 0)) +
            chunk(b"IEND", b""))


def icon(light):
    pictures = [png(size, light) for size in SIZES]
    entries, place = b"", 6 + 16 * len(SIZES)
    for size, picture in zip(SIZES, pictures):
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    return struct.pack("<HHH", 0, 1, len(SIZES)) + entries + b"".join(pictures)


def make(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, light in LIGHTS.items():
        (folder / name).write_bytes(icon(light))


if __name__ == "__main__":
    root = Path(__file__).resolve().parents[2]
    make(Path(sys.argv[1]) if len(sys.argv) > 1 else root / "data" / "icons")
