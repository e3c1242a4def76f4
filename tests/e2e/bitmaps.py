"""Bitmap files for the album, without any library."""

import math
import random
import struct


def write(path, width, height, row_of):
    """Writes a 24-bit bitmap, blue, green, red; `row_of` gives the bytes of a row from the top."""
    rows = [row_of(y) for y in reversed(range(height))]
    body = b"".join(row + b"\0" * (-len(row) % 4) for row in rows)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(
        struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
        + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 0, 0, 0, 0)
        + body
    )
    return str(path)


def plain(path, color=(200, 30, 30), width=64, height=48):
    """A bitmap of one colour (red, green, blue)."""
    return write(path, width, height, lambda y: bytes(reversed(color)) * width)


def scan(path, seed, width=360, height=270):
    """A grey fan with speckle and a dark round shape, somewhat like an ultrasound picture."""
    rnd = random.Random(seed)
    across, down, size = 0.3 + 0.4 * rnd.random(), 0.45 + 0.2 * rnd.random(), 28 + 30 * rnd.random()

    def grey(x, y):
        from_probe = math.hypot(x - width / 2, y + 40)
        if abs(x - width / 2) > 0.75 * (y + 40) or from_probe > height + 20:
            return 0
        inside = math.hypot(x - across * width, (y - down * height) * 1.3) < size
        return int((18 if inside else 170 - from_probe * 0.35) * (0.35 + 0.65 * rnd.random()))

    return write(path, width, height, lambda y: bytes(v for x in range(width) for v in [max(0, grey(x, y))] * 3))
