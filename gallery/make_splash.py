#!/usr/bin/env python3
"""Draws the gallery's splash: the dial of the icon and the name on a ground that grows lighter, in a table of 256
colours.
"""
import pathlib
import struct
import sys

FOLDER = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(FOLDER.parent / 'src' / 'res'))

from make_icon import icon_pixels  # noqa: E402
from regions import stroke, union  # noqa: E402

SPLASH = (360, 200)
LETTERING = (40, 44, 52)
LETTERS = {
    'Z': (((0, 0), (4, 0)), ((4, 0), (0, 7)), ((0, 7), (4, 7))),
    'O': (((0, 0), (4, 0)), ((4, 0), (4, 7)), ((4, 7), (0, 7)), ((0, 7), (0, 0))),
    'P': (((0, 7), (0, 0)), ((0, 0), (4, 0)), ((4, 0), (4, 3.5)), ((4, 3.5), (0, 3.5))),
    'W': (((0, 0), (1, 7)), ((1, 7), (2, 2.5)), ((2, 2.5), (3, 7)), ((3, 7), (4, 0))),
    'N': (((0, 7), (0, 0)), ((0, 0), (4, 7)), ((4, 7), (4, 0))),
    'T': (((0, 0), (4, 0)), ((2, 0), (2, 7))),
}


def name_region(text, left, top, unit):
    strokes = [stroke(left + (6 * i + x1) * unit, top + y1 * unit, left + (6 * i + x2) * unit, top + y2 * unit, unit)
               for i, letter in enumerate(text) for (x1, y1), (x2, y2) in LETTERS[letter]]
    return union(*strokes)


def blended(pixel, ground):
    blue, green, red, opacity = pixel
    return tuple((over * opacity + under * (255 - opacity)) // 255 for over, under in zip((red, green, blue), ground))


def splash_pixels():
    width, height = SPLASH
    dial, size = icon_pixels(120), 120
    name = name_region('ZOPWNT', 172, 84, 5)
    for y in range(height):
        for x in range(width):
            edge = x in (0, width - 1) or y in (0, height - 1)
            ground = LETTERING if edge else tuple(c + 40 * y // height for c in (176, 194, 214))
            column, row = x - 28, y - 40
            if 0 <= column < size and 0 <= row < size:
                ground = blended(dial[row][column], ground)
            yield LETTERING if name(x + 0.5, y + 0.5) else ground


def splash_bytes():
    """Six steps for each part of a colour, then the exact ones of the ground as far as there is room."""
    width, height = SPLASH
    pixels = list(splash_pixels())
    counts = {}
    for pixel in pixels:
        counts[pixel] = counts.get(pixel, 0) + 1
    cube = [(r, g, b) for r in range(0, 256, 51) for g in range(0, 256, 51) for b in range(0, 256, 51)]
    table = cube + sorted(counts, key=counts.get, reverse=True)[:256 - len(cube)]

    def distance(a, b):
        return sum((x - y) ** 2 for x, y in zip(a, b))

    nearest = {pixel: min(range(len(table)), key=lambda i: distance(table[i], pixel)) for pixel in counts}
    rows = b''.join(bytes(nearest[pixels[y * width + x]] for x in range(width)) for y in reversed(range(height)))
    colours = b''.join(bytes((b, g, r, 0)) for r, g, b in table)
    header = struct.pack('<IiiHHIIiiII', 40, width, height, 1, 8, 0, len(rows), 0, 0, len(table), 0)
    start = 14 + len(header) + len(colours)
    return b'BM' + struct.pack('<IHHI', start + len(rows), 0, 0, start) + header + colours + rows


if __name__ == '__main__':
    (FOLDER / 'splash.bmp').write_bytes(splash_bytes())
