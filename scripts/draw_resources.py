#!/usr/bin/env python3
"""Draws the pictures that the library carries as resources: the zoom and section icons and the column cursor.

Run it without arguments from anywhere; it writes module/resources/*.png and columnmove.cur anew. It needs nothing but
Python. Shapes are functions of a point in the unit square; each pixel is the mean of 16 by 16 samples of it.
"""
import math
import struct
import zlib
from pathlib import Path

SAMPLES = 16
WHITE_THEME_INK = (0x56, 0x56, 0x56)
BLACK_THEME_INK = (0xBE, 0xBE, 0xBE)
ACCENT = (0x2B, 0x57, 0x9A)


def coverage(shape, size):
    """Rows of 0..255: how much of each pixel the shape covers."""
    def pixel(x, y):
        hits = sum(
            shape((x + (i + 0.5) / SAMPLES) / size, (y + (j + 0.5) / SAMPLES) / size)
            for i in range(SAMPLES) for j in range(SAMPLES))
        return round(255 * hits / SAMPLES**2)
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def segment(ax, ay, bx, by, width):
    """A line with round ends."""
    def inside(x, y):
        dx, dy = bx - ax, by - ay
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
        return math.hypot(x - ax - t * dx, y - ay - t * dy) <= width / 2
    return inside


def ring(cx, cy, radius, width):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - radius) <= width / 2


def union(*shapes):
    return lambda x, y: any(shape(x, y) for shape in shapes)


def magnifier(plus):
    parts = [ring(0.42, 0.42, 0.29, 0.10), segment(0.65, 0.65, 0.88, 0.88, 0.14), segment(0.30, 0.42, 0.54, 0.42, 0.09)]
    if plus:
        parts.append(segment(0.42, 0.30, 0.42, 0.54, 0.09))
    return union(*parts)


CHEVRON_RIGHT = union(segment(0.38, 0.20, 0.66, 0.50, 0.13), segment(0.66, 0.50, 0.38, 0.80, 0.13))
CHEVRON_DOWN = union(segment(0.20, 0.38, 0.50, 0.66, 0.13), segment(0.50, 0.66, 0.80, 0.38, 0.13))


def png(path, shape, size, ink):
    rows = b"".join(
        b"\0" + b"".join(bytes((*ink, alpha)) for alpha in row) for row in coverage(shape, size))
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9))
                     + chunk(b"IEND", b""))


def column_cursor(path):
    """Two arrows away from a divider, black with a white rim, hot spot in the middle."""
    size = 32
    middle = 15.5 / size

    def strokes(width):
        arrows = []
        for side in (-1, 1):
            tip, base, barb = middle + side * 0.40, middle + side * 0.10, middle + side * 0.26
            arrows += [segment(base, middle, tip, middle, width), segment(tip, middle, barb, middle - 0.14, width),
                       segment(tip, middle, barb, middle + 0.14, width)]
        return union(*arrows, segment(middle, 0.16, middle, 0.82, width))

    ink, rim = coverage(strokes(0.05), size), coverage(strokes(0.14), size)
    pixels = b""
    for y in reversed(range(size)):
        for x in range(size):
            black, alpha = ink[y][x], max(ink[y][x], rim[y][x])
            grey = 255 - black
            pixels += bytes((grey, grey, grey, alpha))
    mask = b"\0" * (size * 4)
    image = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(pixels), 0, 0, 0, 0) + pixels + mask
    entry = struct.pack("<BBBBHHII", size, size, 0, 0, 15, 15, len(image), 22)
    path.write_bytes(struct.pack("<HHH", 0, 2, 1) + entry + image)


def main():
    folder = Path(__file__).resolve().parent.parent / "module" / "resources"
    folder.mkdir(parents=True, exist_ok=True)
    png(folder / "3011.png", magnifier(plus=False), 16, ACCENT)
    png(folder / "3012.png", magnifier(plus=True), 16, ACCENT)
    families = ((3013, CHEVRON_DOWN, WHITE_THEME_INK), (3017, CHEVRON_RIGHT, WHITE_THEME_INK),
                (3021, CHEVRON_DOWN, BLACK_THEME_INK), (3025, CHEVRON_RIGHT, BLACK_THEME_INK))
    for first, shape, ink in families:
        for offset, size in enumerate((12, 16, 24, 32)):
            png(folder / f"{first + offset}.png", shape, size, ink)
    column_cursor(folder / "columnmove.cur")


if __name__ == "__main__":
    main()
