"""Pictures for the tests, and what is seen on printed sheets, without any library."""

import struct
import subprocess
import zlib


def png(path, width, height, rows):
    """Writes a PNG of 24 bits a pixel from the bytes of its rows."""

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    raw = b"".join(b"\0" + row for row in rows)
    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    content = chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(raw, 1)) + chunk(b"IEND", b"")
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + content)
    return str(path)


def plain(path, color, width=720, height=576):
    """A picture of one colour."""
    return png(path, width, height, [bytes(color) * width] * height)


class Page:
    """The pixels of a page of a PDF, and where on the paper they stand."""

    def __init__(self, pdf, dpi=127):
        self.per_mm = dpi / 25.4
        content = subprocess.run(["pdftoppm", "-r", str(dpi), str(pdf)], check=True, capture_output=True).stdout
        kind, size, depth, self.bytes = content.split(b"\n", 3)
        assert (kind, depth) == (b"P6", b"255")
        self.width, self.height = map(int, size.split())

    def near(self, x, y, color, tolerance=10):
        at = 3 * (y * self.width + x)
        return all(abs(self.bytes[at + i] - color[i]) <= tolerance for i in range(3))

    def is_all(self, place, color):
        """Whether each pixel of a rectangle (left, top, width, height in mm) is of about this colour."""
        left, top, width, height = (round(edge * self.per_mm) for edge in place)
        return all(self.near(x, y, color) for y in range(top, top + height) for x in range(left, left + width))

    def rectangle(self, color):
        """Left, top, width and height in mm of all pixels of about this colour, None if there is none."""
        lefts, tops = [], []
        for y in range(self.height):
            row = [x for x in range(self.width) if self.near(x, y, color)]
            if row:
                lefts += [row[0], row[-1]]
                tops.append(y)
        if not tops:
            return None
        left, top = min(lefts), tops[0]
        edges = (left, top, max(lefts) + 1 - left, tops[-1] + 1 - top)
        return tuple(edge / self.per_mm for edge in edges)
