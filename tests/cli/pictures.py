"""Reads the pixels of bitmaps, the size of PNG files and the paper of PDF files."""

import re
import struct

DOTS_PER_INCH = 150


class Bitmap:
    """Places are inches from the lower left corner."""

    def __init__(self, data):
        self.offset, _, width, height = struct.unpack("<IIii", data[10:26])
        bits, = struct.unpack("<H", data[28:30])
        assert data.startswith(b"BM") and bits in (24, 32)
        self.data, self.size, self.step = data, (width, height), bits // 8
        self.stride = (width * bits + 31) // 32 * 4

    def at(self, x, y):
        """Red, green and blue of the pixel at a place."""
        return self.pixel(int(x * DOTS_PER_INCH), int(y * DOTS_PER_INCH))

    def around(self, x, y, reach=2):
        """The colours of the pixels around a place."""
        across, up = int(x * DOTS_PER_INCH), int(y * DOTS_PER_INCH)
        return {self.pixel(across + i, up + j)
                for i in range(-reach, reach + 1) for j in range(-reach, reach + 1)}

    def colours(self):
        return {self.pixel(x, y) for y in range(0, self.size[1], 2) for x in range(0, self.size[0], 2)}

    def pixel(self, x, y):
        place = self.offset + y * self.stride + x * self.step
        blue, green, red = self.data[place:place + 3]
        return red, green, blue


def png_size(data):
    """Width and height in pixels."""
    assert data.startswith(b"\x89PNG\r\n\x1a\n")
    return struct.unpack(">II", data[16:24])


def papers(pdf):
    """Width and height in inches of every page of a PDF file."""
    boxes = re.findall(rb"/MediaBox \[([^\]]*)\]", pdf)
    return [tuple(round(float(edge) / 72, 3) for edge in box.split()[2:]) for box in boxes]
