#!/usr/bin/env python3
"""Draws the pictures of the gallery's toolbars in two sizes: layers of (colour, region) on a 16 x 16 grid, from the
ground up, with smooth edges on a transparent ground.
"""
import pathlib
import struct
import sys

FOLDER = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(FOLDER.parent / 'src' / 'res'))

from regions import box, disc, polygon, stroke, union  # noqa: E402

INK, PALE, SHADE, DARK = (48, 52, 60), (255, 255, 255), (176, 184, 196), (96, 104, 116)
BLUE, GREEN, RED, YELLOW = (40, 96, 176), (40, 148, 64), (204, 52, 44), (236, 184, 40)
SAMPLES = 4


def outlined(colour, left, top, right, bottom):
    return [(INK, box(left, top, right, bottom)), (colour, box(left + 1, top + 1, right - 1, bottom - 1))]


def floppy():
    return outlined(BLUE, 2, 2, 14, 14) + [(PALE, box(4, 3, 12, 7)), (SHADE, box(5, 9, 11, 13)), (INK, box(6, 10, 8, 12))]


def folder():
    return (outlined(YELLOW, 1, 3, 8, 8) + outlined(YELLOW, 1, 5, 15, 14)
            + [((250, 216, 120), box(2, 8, 14, 13))])


def printer():
    return (outlined(PALE, 4, 1, 12, 8) + outlined(SHADE, 1, 6, 15, 12) + outlined(PALE, 4, 10, 12, 15)
            + [(DARK, box(6, 12, 10, 13)), (GREEN, box(12, 7, 14, 9))])


def lens():
    return [(INK, stroke(9.5, 9.5, 14, 14, 2.4)), (INK, disc(6.5, 6.5, 5.5)), ((196, 224, 248), disc(6.5, 6.5, 4))]


def chart():
    return outlined(PALE, 1, 2, 15, 14) + [
        (RED, union(stroke(3, 11, 6, 7, 1.3), stroke(6, 7, 9, 9, 1.3), stroke(9, 9, 13, 4.5, 1.3)))]


def bars():
    return [(GREEN, box(2, 9, 5, 14)), (YELLOW, box(6.5, 5, 9.5, 14)), (RED, box(11, 2, 14, 14)),
            (INK, box(1, 14, 15, 15))]


def bell():
    return [(INK, union(disc(8, 6.5, 4.6), polygon((3.4, 6.5), (12.6, 6.5), (14.4, 12.6), (1.6, 12.6)),
                        disc(8, 13.2, 1.9))),
            (YELLOW, union(disc(8, 6.6, 3.5), polygon((4.5, 6.6), (11.5, 6.6), (12.8, 11.6), (3.2, 11.6))))]


def dial():
    return [(INK, disc(8, 8, 7)), (PALE, disc(8, 8, 5.9)), (RED, stroke(8, 8, 11.4, 4.8, 1.4)), (INK, disc(8, 8, 1.4)),
            (DARK, union(box(7.5, 2.6, 8.5, 4), box(2.6, 7.5, 4, 8.5), box(12, 7.5, 13.4, 8.5)))]


PICTURES = (
    [(GREEN, polygon((4, 2), (13.5, 8), (4, 14)))],
    [(DARK, union(box(4, 3, 7, 13), box(9, 3, 12, 13)))],
    [(RED, box(3, 3, 13, 13))],
    folder(), floppy(), printer(), lens(), chart(), bars(), bell(), dial(),
)


def pixel(layers, x, y, size):
    """Blue, green, red and opacity of a pixel: the mean of its samples."""
    unit = 16 / size
    sums = [0, 0, 0, 0]
    for i in range(SAMPLES * SAMPLES):
        at = (x + (i % SAMPLES + 0.5) / SAMPLES) * unit, (y + (i // SAMPLES + 0.5) / SAMPLES) * unit
        hit = [colour for colour, region in layers if region(*at)]
        if hit:
            red, green, blue = hit[-1]
            sums = [s + v for s, v in zip(sums, (blue, green, red, 1))]
    count = sums[3]
    if not count:
        return bytes(4)
    return bytes([round(v / count) for v in sums[:3]] + [round(255 * count / SAMPLES ** 2)])


def strip_bytes(size):
    rows = b''.join(pixel(layers, x, y, size) for y in reversed(range(size)) for layers in PICTURES for x in range(size))
    header = struct.pack('<IiiHHIIiiII', 40, size * len(PICTURES), size, 1, 32, 0, len(rows), 0, 0, 0, 0)
    start = 14 + len(header)
    return b'BM' + struct.pack('<IHHI', start + len(rows), 0, 0, start) + header + rows


if __name__ == '__main__':
    for size in (16, 32):
        (FOLDER / f'tools{size}.bmp').write_bytes(strip_bytes(size))
