#!/usr/bin/env python3
"""Draws packaging/ordalyn.ico: a log page with coloured lines and an arrow from source to target.

The picture is a list of polygons for each class of sizes, on a field of 16, 20, 24 or 32 units: their level and upright
edges lie on pixels, also in twice that size. Nothing but the standard library is needed.
"""
import math
import struct
import sys
import zlib
from pathlib import Path

PAGE = (255, 255, 255)
EDGE = (88, 98, 112)
FOLD = (205, 214, 224)
GREEN = (52, 152, 84)
BLUE = (38, 112, 196)
ORANGE = (226, 132, 28)
RED = (206, 62, 54)
TEXT = (150, 160, 172)
ARROW = (24, 92, 178)
HALO = (255, 255, 255)


# Small and large icons at 100, 125, 150 and 200 percent, and the one that folders show.
SIZES = (16, 20, 24, 32, 40, 48, 64, 256)


def box(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


def page(left, top, right, bottom, fold, edge):
    """A page with its upper right corner folded."""
    outer = [(left, top), (right - fold, top), (right, top + fold), (right, bottom), (left, bottom)]
    inner = [
        (left + edge, top + edge),
        (right - fold - edge * 0.4, top + edge),
        (right - edge, top + fold + edge * 0.4),
        (right - edge, bottom - edge),
        (left + edge, bottom - edge),
    ]
    corner = [(right - fold, top), (right, top + fold), (right - fold, top + fold)]
    corner_inner = [
        (right - fold + edge * 0.6, top + edge * 1.6),
        (right - edge * 1.6, top + fold - edge * 0.6),
        (right - fold + edge * 0.6, top + fold - edge * 0.6),
    ]
    return [(EDGE, outer), (PAGE, inner), (EDGE, corner), (FOLD, corner_inner)]


def arrow(left, middle, right, shaft, head, length):
    return [
        (left, middle - shaft), (right - length, middle - shaft), (right - length, middle - head),
        (right, middle), (right - length, middle + head), (right - length, middle + shaft),
        (left, middle + shaft),
    ]


def picture(outline, marks, texts, height, lines, halo, shape):
    """A page with lines, each a coloured mark and a text, and an arrow with a bright edge across it."""
    shapes = page(*outline)
    for top, color, end in lines:
        shapes.append((color, box(marks[0], top, marks[1], top + height)))
        shapes.append((TEXT, box(texts, top, end, top + height)))
    return [*shapes, (HALO, arrow(*halo)), (ARROW, arrow(*shape))]


SMALL = 16, picture((2, 0, 13, 16, 4, 1), (4, 6), 7, 1, ((3, GREEN, 8), (5, BLUE, 11), (7, ORANGE, 11)),
                    (4, 11, 17, 2, 5.1, 5), (5, 11, 16, 1, 4, 4))
# For 125 and 150 percent, where lines made for 16 units would fall between the pixels.
MEDIUM = 20, picture((3, 1, 16, 19, 4, 1), (5, 7), 8, 1, ((4, GREEN, 11), (7, BLUE, 14), (10, ORANGE, 14)),
                     (5, 14, 21, 2, 6.1, 6), (6, 14, 20, 1, 5, 5))
LARGER = 24, picture((3, 1, 19, 23, 5, 1), (6, 8), 10, 1, ((5, GREEN, 12), (8, BLUE, 16), (11, ORANGE, 16)),
                     (6, 17.5, 25, 2.6, 6.2, 7), (7, 17.5, 24, 1.5, 5, 6))
LARGE = 32, picture((4, 1, 26, 31, 7, 1), (7, 10), 12, 2,
                    ((6, GREEN, 16), (10, BLUE, 22), (14, ORANGE, 20), (18, RED, 22)),
                    (9, 24, 32.4, 3, 7.4, 9.4), (10, 24, 31, 2, 6, 7))


SAMPLES = 4  # of a pixel, on each line of them


def spans(corners, y):
    """Where a line at that height is inside of a polygon: pairs of left and right."""
    crossings = []
    before = corners[-1]
    for corner in corners:
        (ax, ay), (bx, by) = corner, before
        if (ay > y) != (by > y):
            crossings.append((bx - ax) * (y - ay) / (by - ay) + ax)
        before = corner
    crossings.sort()
    return zip(crossings[::2], crossings[1::2])


def line_of_samples(shapes, y, unit, count):
    """The colours on a line, None outside of all shapes."""
    line = [None] * count
    for color, corners in shapes:
        for left, right in spans(corners, y):
            first, end = (min(count, max(0, math.ceil(at / unit - 0.5))) for at in (left, right))
            line[first:end] = [color] * (end - first)
    return line


def draw(size):
    """Rows of (r, g, b, a)."""
    field, shapes = {16: SMALL, 20: MEDIUM, 24: LARGER, 40: MEDIUM, 48: LARGER}.get(size, LARGE)
    unit = field / size / SAMPLES
    rows = []
    for py in range(size):
        lines = [line_of_samples(shapes, (py * SAMPLES + i + 0.5) * unit, unit, size * SAMPLES)
                 for i in range(SAMPLES)]
        row = []
        for px in range(0, size * SAMPLES, SAMPLES):
            samples = [color for line in lines for color in line[px:px + SAMPLES]]
            hits = [color for color in samples if color is not None]
            if hits:
                row.append((*(round(sum(part) / len(hits)) for part in zip(*hits)),
                            round(255 * len(hits) / len(samples))))
            else:
                row.append((0, 0, 0, 0))
        rows.append(row)
    return rows


def as_png(rows):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    size = len(rows)
    raw = b"".join(b"\0" + bytes(v for pixel in row for v in pixel) for row in rows)
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9)) +
            chunk(b"IEND", b""))


def as_bitmap(rows):
    size = len(rows)
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    colors = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    stride = (size + 31) // 32 * 4
    mask = b""
    for row in reversed(rows):
        bits = 0
        for _, _, _, a in row:
            bits = bits << 1 | (a == 0)
        mask += (bits << (stride * 8 - size)).to_bytes(stride, "big")
    return header + colors + mask


def icon():
    """The bytes of the file."""
    images = [(s, as_png(draw(s)) if s == 256 else as_bitmap(draw(s))) for s in SIZES]
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = len(directory) + 16 * len(images)
    for size, data in images:
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return directory + b"".join(data for _, data in images)


def main():
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else (
        Path(__file__).resolve().parent.parent / "packaging" / "ordalyn.ico")
    target.write_bytes(icon())


if __name__ == "__main__":
    main()
