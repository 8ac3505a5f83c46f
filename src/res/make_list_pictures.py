#!/usr/bin/env python3
"""Draws the pictures of the library's lists: layers of (colour, region) on a 16 x 16 grid, from the ground up. They
stand side by side on a ground that the lists leave out.
"""
import pathlib
import struct

from regions import arrow, box, disc, stroke, union

# Of the system's sixteen colours: lists keep no others.
LEFT_OUT = (0, 128, 128)
INK, PALE, SHADE = (0, 0, 0), (255, 255, 255), (192, 192, 192)
BLUE, GREEN, RED, YELLOW = (0, 0, 128), (0, 128, 0), (255, 0, 0), (255, 255, 0)


def outlined(colour, left, top, right, bottom):
    return [(INK, box(left, top, right, bottom)), (colour, box(left + 1, top + 1, right - 1, bottom - 1))]


def part(colour):
    """A block with studs, as pieces that go together."""
    return outlined(colour, 2, 6, 14, 14) + outlined(colour, 3, 3, 7, 7) + outlined(colour, 9, 3, 13, 7)


def folder(colour):
    return outlined(colour, 1, 3, 8, 8) + outlined(colour, 1, 5, 15, 14)


def computer():
    return outlined(SHADE, 2, 1, 14, 11) + [(BLUE, box(4, 3, 12, 9))] + outlined(PALE, 4, 12, 12, 15)


def person():
    return [(INK, disc(8, 5, 4)), (PALE, disc(8, 5, 3)), (INK, box(2, 10, 14, 15)), (BLUE, box(3, 11, 13, 15))]


def window():
    lines = union(box(4, 8, 12, 9), box(4, 11, 9, 12))
    return outlined(PALE, 1, 2, 15, 14) + [(BLUE, box(2, 3, 14, 6)), (SHADE, lines)]


def numbered():
    one = union(box(7, 4, 9, 12), box(6, 5, 8, 6), box(5, 11, 11, 12))
    return [(INK, disc(8, 8, 7)), (PALE, disc(8, 8, 6)), (INK, one)]


def way():
    return [(INK, union(stroke(3, 13, 3, 5, 2), stroke(3, 9, 11, 9, 2), arrow(15, 9, 1, 0, 5, 4), disc(3, 3, 2)))]


def crossed(layers):
    return layers + [(RED, union(stroke(3, 3, 13, 13, 2), stroke(13, 3, 3, 13, 2)))]


LIST_PICTURES = {
    'version_components': [part(GREEN), crossed(part(SHADE)), part(YELLOW), part(BLUE), folder(YELLOW)],
    'version_environment': [computer(), person(), window(), folder(YELLOW), numbered(), way()],
}


def strip_row(pictures, y):
    colours = [next((c for c, region in reversed(layers) if region(x + 0.5, y + 0.5)), LEFT_OUT)
               for layers in pictures for x in range(16)]
    return b''.join(bytes(reversed(colour)) for colour in colours)


def strip_bytes(pictures):
    pixels = b''.join(strip_row(pictures, y) for y in reversed(range(16)))
    header = struct.pack('<IiiHHIIiiII', 40, 16 * len(pictures), 16, 1, 24, 0, len(pixels), 0, 0, 0, 0)
    return b'BM' + struct.pack('<IHHI', 14 + 40 + len(pixels), 0, 0, 14 + 40) + header + pixels


if __name__ == '__main__':
    for name, pictures in LIST_PICTURES.items():
        (pathlib.Path(__file__).resolve().parent / f'{name}.bmp').write_bytes(strip_bytes(pictures))
