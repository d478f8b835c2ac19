"""Reads what the tests need of PowerPoint 97 and Excel 97 files: the texts of slides, the cells of sheets."""

import struct

SECTOR_END = 0xFFFFFFFE


class CompoundFile:
    """The streams of a compound file, by name."""

    def __init__(self, data):
        if data[:8] != bytes.fromhex("d0cf11e0a1b11ae1"):
            raise ValueError("no compound file")
        self.data = data
        self.size = 1 << struct.unpack_from("<H", data, 30)[0]
        small_shift, = struct.unpack_from("<H", data, 32)
        directory, = struct.unpack_from("<I", data, 48)
        cutoff, small_table = struct.unpack_from("<II", data, 56)
        self.table = self.allocation_table()
        self.streams, root = {}, None
        entries = self.chain(directory)
        small = struct.unpack(f"<{len(self.chain(small_table)) // 4}I", self.chain(small_table))
        found = []
        for at in range(0, len(entries), 128):
            length, kind = struct.unpack_from("<HB", entries, at + 64)
            name = entries[at:at + max(length - 2, 0)].decode("utf-16-le")
            start, size = struct.unpack_from("<II", entries, at + 116)
            if kind == 5:
                root = self.chain(start)
            elif kind == 2:
                found.append((name, start, size))
        for name, start, size in found:
            if size >= cutoff:
                self.streams[name] = self.chain(start)[:size]
            else:
                self.streams[name] = self.small_chain(root, small, start, 1 << small_shift)[:size]

    def sector(self, number):
        return self.data[(number + 1) * self.size:(number + 2) * self.size]

    def allocation_table(self):
        sectors = list(struct.unpack_from("<109I", self.data, 76))
        following, = struct.unpack_from("<I", self.data, 68)
        while following < SECTOR_END:
            more = struct.unpack(f"<{self.size // 4}I", self.sector(following))
            sectors += more[:-1]
            following = more[-1]
        return [entry for number in sectors if number < SECTOR_END
                for entry in struct.unpack(f"<{self.size // 4}I", self.sector(number))]

    def chain(self, start):
        parts = []
        while start < SECTOR_END:
            parts.append(self.sector(start))
            start = self.table[start]
        return b"".join(parts)

    @staticmethod
    def small_chain(root, table, start, size):
        parts = []
        while start < SECTOR_END:
            parts.append(root[start * size:(start + 1) * size])
            start = table[start]
        return b"".join(parts)


def slide_texts(data):
    """The texts of each slide of a show, in order."""
    slide, bytes_text, wide_text = 0x03EE, 0x0FA8, 0x0FA0

    def walk(stream, at, end, texts):
        while at + 8 <= end:
            version, kind, length = struct.unpack_from("<HHI", stream, at)
            body = stream[at + 8:at + 8 + length]
            if kind == slide:
                slides.append([])
                walk(stream, at + 8, at + 8 + length, slides[-1])
            elif texts is not None and kind == wide_text:
                texts += body.decode("utf-16-le").split("\r")
            elif texts is not None and kind == bytes_text:
                texts += body.decode("latin-1").split("\r")
            elif version & 0xF == 0xF:
                walk(stream, at + 8, at + 8 + length, texts)
            at += 8 + length

    slides = []
    stream = CompoundFile(data).streams["PowerPoint Document"]
    walk(stream, 0, len(stream), None)
    return slides


def sheet_cells(data):
    """Every filled cell of a workbook: (sheet, row, column) and its text or number."""
    stream = CompoundFile(data).streams["Workbook"]
    records = list(workbook_records(stream))
    names, texts = {}, shared_texts(records)
    for _, kind, body in records:
        if kind == 0x85:
            start, = struct.unpack_from("<I", body)
            names[start] = body[8:].decode("utf-16-le" if body[7] & 1 else "latin-1")
    cells, sheet = {}, None
    for at, kind, body in records:
        if kind == 0x809:
            sheet = names.get(at)
        elif kind == 0xFD:
            row, column, _, text = struct.unpack_from("<HHHI", body)
            cells[sheet, row, column] = texts[text]
        elif kind == 0x203:
            row, column, _, number = struct.unpack_from("<HHHd", body)
            cells[sheet, row, column] = number
        elif kind == 0x27E:
            row, column, _, packed = struct.unpack_from("<HHHI", body)
            cells[sheet, row, column] = packed_number(packed)
        elif kind == 0xBD:
            row, first = struct.unpack_from("<HH", body)
            for column, offset in enumerate(range(4, len(body) - 2, 6), first):
                cells[sheet, row, column] = packed_number(struct.unpack_from("<I", body, offset + 2)[0])
    return cells


def packed_number(packed):
    """A number that is packed into 32 bits."""
    if packed & 2:
        value = float(struct.unpack("<i", struct.pack("<I", packed))[0] >> 2)
    else:
        value = struct.unpack("<d", struct.pack("<Q", (packed & ~3) << 32))[0]
    return value / 100 if packed & 1 else value


def workbook_records(stream):
    """Position, kind and body of each record; a long one with its continuations kept apart by their lengths."""
    at = 0
    while at + 4 <= len(stream):
        kind, length = struct.unpack_from("<HH", stream, at)
        yield at, kind, stream[at + 4:at + 4 + length]
        at += 4 + length


def shared_texts(records):
    """The table of texts. One that runs into a continuation states the width of its characters anew there."""
    parts = []
    for _, kind, body in records:
        if kind == 0xFC:
            parts = [body]
        elif kind == 0x3C and parts:
            parts.append(body)
        elif parts:
            break
    count, = struct.unpack_from("<I", parts[0], 4)
    found, part, at = [], 0, 8
    for _ in range(count):
        if at >= len(parts[part]):
            part, at = part + 1, 0
        length, flags = struct.unpack_from("<HB", parts[part], at)
        at += 3
        if flags & 0xC:
            raise ValueError("a text with runs or phonetics")
        text = ""
        while len(text) < length:
            if at >= len(parts[part]):
                part, at, flags = part + 1, 1, parts[part + 1][0]
            width = 2 if flags & 1 else 1
            take = min(length - len(text), (len(parts[part]) - at) // width)
            text += parts[part][at:at + take * width].decode("utf-16-le" if width == 2 else "latin-1")
            at += take * width
        found.append(text)
    return found
