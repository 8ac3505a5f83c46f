#!/usr/bin/env python3
"""Draws the toolbar's pictures, in two sizes, and the program's icon: shapes on a square of 16 units, seen by the
middles of the pixels, in the system's sixteen colours.
"""
import math
import pathlib
import struct

FOLDER = pathlib.Path(__file__).resolve().parent
COLOURS = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128),
           (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255),
           (0, 255, 255), (255, 255, 255)]
BLACK, GREEN, OLIVE, NAVY, TEAL, FACE, GREY, RED, YELLOW, BLUE, WHITE = 0, 2, 3, 4, 6, 7, 8, 9, 11, 12, 15


def box(left, top, right, bottom):
    return lambda x, y: left <= x < right and top <= y < bottom


def ellipse(cx, cy, rx, ry):
    return lambda x, y: ((x - cx) / rx) ** 2 + ((y - cy) / ry) ** 2 <= 1


def line(*points, width=1.0):
    def near(x, y):
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            dx, dy = x2 - x1, y2 - y1
            at = max(0, min(1, ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy)))
            if math.hypot(x - x1 - at * dx, y - y1 - at * dy) <= width / 2:
                return True
        return False
    return near


def polygon(*points):
    def inside(x, y):
        odd = False
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > y) != (y2 > y) and x < x1 + (x2 - x1) * (y - y1) / (y2 - y1):
                odd = not odd
        return odd
    return inside


def arc(cx, cy, r, first, last, width):
    return line(*((cx + r * math.cos(math.radians(a)), cy - r * math.sin(math.radians(a)))
                  for a in range(first, last + 1, 15)), width=width)


LENS = [(BLACK, line((10, 10), (14, 14), width=2.2)), (GREY, ellipse(6.5, 6.5, 5.2, 5.2)),
        (WHITE, ellipse(6.5, 6.5, 4.1, 4.1))]
PAPER = [(BLACK, polygon((3, 1), (10, 1), (13, 4), (13, 15), (3, 15))),
         (WHITE, polygon((4, 2), (9.5, 2), (12, 4.5), (12, 14), (4, 14)))]
PICTURES = [
    PAPER + [(BLACK, box(9, 2, 10, 5)), (BLACK, box(9, 4, 12, 5))],
    [(BLACK, box(1, 3, 13, 14)), (BLACK, box(2, 2, 7, 4)), (YELLOW, box(2, 4, 12, 13)),
     (BLACK, polygon((1, 14), (4, 7), (16, 7), (13, 14))), (OLIVE, polygon((2.5, 13), (4.7, 8), (14.5, 8), (12.4, 13)))],
    [(BLACK, box(1, 2, 15, 14)), (TEAL, box(2, 3, 14, 13)), (WHITE, box(4, 3, 12, 8)), (BLACK, box(4, 10, 12, 13)),
     (FACE, box(9, 10, 11, 13))],
    [(BLACK, polygon((5, 1), (14, 1), (12, 7), (3, 7))), (WHITE, polygon((5.7, 2), (12.7, 2), (11.2, 6), (4.4, 6))),
     (BLACK, box(1, 6, 15, 14)), (FACE, box(2, 7, 14, 13)), (GREY, box(3, 10, 13, 13)), (YELLOW, box(11, 8, 13, 9))],
    [(BLACK, box(1, 1, 10, 11)), (WHITE, box(2, 2, 9, 10)), (NAVY, box(5, 5, 15, 15)), (WHITE, box(6, 6, 14, 14)),
     (RED, ellipse(8.8, 10, 2, 2)), (BLUE, line((7, 13), (13, 8)))],
    [(RED, line((3, 3), (12.5, 12.5), width=2.2)), (RED, line((12.5, 3), (3, 12.5), width=2.2))],
    [(NAVY, arc(8, 9, 4.5, -45, 150, 1.8)), (NAVY, polygon((1, 5), (7.5, 6), (2, 11)))],
    [(NAVY, arc(8, 9, 4.5, 30, 225, 1.8)), (NAVY, polygon((15, 5), (8.5, 6), (14, 11)))],
    [(BLACK, polygon((3, 1), (13, 9), (8.5, 9.5), (11, 14.5), (9, 15), (6.7, 10.5), (3, 13.5))),
     (WHITE, polygon((4, 3), (10.5, 8.3), (7.3, 8.5), (6, 9), (4, 11)))],
    [(NAVY, line((2, 13), (13.5, 2.5), width=1.5))],
    [(NAVY, box(2, 3, 14, 13)), (FACE, box(3.3, 4.3, 12.7, 11.7))],
    [(NAVY, ellipse(8, 8, 6.5, 5.2)), (FACE, ellipse(8, 8, 5.3, 4))],
    [(NAVY, line((1.5, 12), (3, 6), (5, 4.5), (7, 8), (8.5, 11.5), (10.5, 10), (12, 4.5), (14.5, 3), width=1.5))],
    [(NAVY, polygon((1.5, 14), (7, 2), (9, 2), (14.5, 14), (12, 14), (10.6, 10.8), (5.4, 10.8), (4, 14))),
     (FACE, polygon((6.3, 9), (9.8, 9), (8, 4.8)))],
    [(NAVY, box(2, 3, 14, 13)), (YELLOW, box(3.3, 4.3, 12.7, 11.7))],
    LENS + [(GREEN, box(6, 4, 7, 9)), (GREEN, box(4, 6, 9, 7))],
    LENS + [(RED, box(4, 6, 9, 7))],
    [(BLACK, box(2, 4, 14, 12)), (WHITE, box(3, 5, 13, 11)), (GREEN, polygon((1, 1), (5, 1), (1, 5))),
     (GREEN, polygon((15, 15), (11, 15), (15, 11)))],
]
ICON = [(BLACK, polygon((1, 2), (13, 2), (13, 15), (1, 15))), (WHITE, polygon((1.6, 2.6), (12.4, 2.6), (12.4, 14.4), (1.6, 14.4))),
        (TEAL, ellipse(5.5, 10.5, 3, 3)), (YELLOW, ellipse(5.5, 10.5, 2.4, 2.4)),
        (BLACK, polygon((6, 11), (7, 7.4), (13.5, 0.6), (15.8, 2.8), (9.4, 9.6))),
        (RED, polygon((7.8, 7.6), (13.4, 1.6), (14.8, 3), (9, 9))), (OLIVE, polygon((6.7, 10.3), (7.4, 8.2), (8.6, 9.4)))]


def colour_at(shapes, x, y, ground):
    for colour, shape in shapes:
        if shape(x, y):
            ground = colour
    return ground


def rows_of(shapes, width, height, unit, ground=FACE):
    return [[colour_at(shapes, (x + 0.5) / unit, (y + 0.5) / unit, ground) for x in range(width)]
            for y in range(height)]


def packed(rows):
    """Four bits a pixel, the lower row first, rows of whole double words."""
    data = b''
    for row in reversed(rows):
        row = row + [0] * (-len(row) % 8)
        data += bytes(row[i] << 4 | row[i + 1] for i in range(0, len(row), 2))
    return data


TABLE = b''.join(bytes((b, g, r, 0)) for r, g, b in COLOURS)


def header(width, height):
    return struct.pack('<IiiHHIIiiII', 40, width, height, 1, 4, 0, 0, 0, 0, 0, 0)


def bitmap(rows):
    pixels, start = packed(rows), 14 + 40 + len(TABLE)
    return b'BM' + struct.pack('<IHHI', start + len(pixels), 0, 0, start) + header(len(rows[0]), len(rows)) + TABLE + pixels


def tools(width, height):
    pictures = [rows_of(shapes, width, height, width / 16) for shapes in PICTURES]
    return bitmap([sum((picture[y] for picture in pictures), []) for y in range(height)])


def icon(sizes):
    entries, images = b'', b''
    start = 6 + 16 * len(sizes)
    for size in sizes:
        rows = rows_of(ICON, size, size, size / 16, ground=None)
        outside = [[pixel is None for pixel in row] for row in rows]
        mask = b''
        for row in reversed(outside):
            bits = ''.join('1' if pixel else '0' for pixel in row) + '0' * (-size % 32)
            mask += int(bits, 2).to_bytes(len(bits) // 8, 'big')
        image = header(size, 2 * size) + TABLE + packed([[pixel or 0 for pixel in row] for row in rows]) + mask
        entries += struct.pack('<BBBBHHII', size, size, 16, 0, 1, 4, len(image), start + len(images))
        images += image
    return struct.pack('<HHH', 0, 1, len(sizes)) + entries + images


if __name__ == '__main__':
    (FOLDER / 'tools.bmp').write_bytes(tools(16, 15))
    (FOLDER / 'tools_large.bmp').write_bytes(tools(24, 22))
    (FOLDER / 'sketch.ico').write_bytes(icon((16, 32, 48)))
