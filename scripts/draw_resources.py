#!/usr/bin/env python3
"""Draws the pictures that the programs carry as resources: zoom and section icons, the column cursor, the desk's icon.

Run it without arguments from anywhere; it writes module/resources/*.png, columnmove.cur and OrtinDesk.ico anew. It needs
nothing but Python. Shapes are functions of a point in the unit square; each pixel is the mean of 16 by 16 samples of it.
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
    image = device_image(size, pixels)
    entry = struct.pack("<BBBBHHII", size, size, 0, 0, 15, 15, len(image), 22)
    path.write_bytes(struct.pack("<HHH", 0, 2, 1) + entry + image)


def device_image(size, pixels):
    """The form that icons and cursors share: a header, pixels of 32 bits from the bottom row on, an empty mask."""
    mask = b"\0" * ((size + 31) // 32 * 4 * size)
    return struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(pixels), 0, 0, 0, 0) + pixels + mask


def desk_icon(path):
    """Three candles that rise, white on a tile of the accent."""
    tile = union(*(segment(x, 0.18, x, 0.82, 0.32) for x in (0.18, 0.34, 0.5, 0.66, 0.82)))
    candles = union(*(union(segment(x, top + 0.06, x, bottom - 0.06, 0.12), segment(x, top - 0.1, x, bottom + 0.1, 0.04))
                      for x, top, bottom in ((0.26, 0.52, 0.76), (0.5, 0.38, 0.62), (0.74, 0.24, 0.48))))
    images = []
    for size in (16, 24, 32, 48):
        ground, figure = coverage(tile, size), coverage(candles, size)
        pixels = b""
        for y in reversed(range(size)):
            for x in range(size):
                share = figure[y][x] / 255
                red, green, blue = (round(ink + (255 - ink) * share) for ink in ACCENT)
                pixels += bytes((blue, green, red, ground[y][x]))
        images.append((size, device_image(size, pixels)))
    place = 6 + 16 * len(images)
    entries = b""
    for size, image in images:
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(image), place)
        place += len(image)
    path.write_bytes(struct.pack("<HHH", 0, 1, len(images)) + entries + b"".join(image for _, image in images))


def main():
    root = Path(__file__).resolve().parent.parent
    folder = root / "module" / "resources"
    folder.mkdir(parents=True, exist_ok=True)
    png(folder / "3011.png", magnifier(plus=False), 16, ACCENT)
    png(folder / "3012.png", magnifier(plus=True), 16, ACCENT)
    families = ((3013, CHEVRON_DOWN, WHITE_THEME_INK), (3017, CHEVRON_RIGHT, WHITE_THEME_INK),
                (3021, CHEVRON_DOWN, BLACK_THEME_INK), (3025, CHEVRON_RIGHT, BLACK_THEME_INK))
    for first, shape, ink in families:
        for offset, size in enumerate((12, 16, 24, 32)):
            png(folder / f"{first + offset}.png", shape, size, ink)
    column_cursor(folder / "columnmove.cur")
    desk_icon(root / "showcase" / "OrtinDesk.ico")


if __name__ == "__main__":
    main()
