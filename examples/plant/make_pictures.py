#!/usr/bin/env python3
"""Draws the toolbar's pictures in two sizes and the program's icon: layers of (colour, region) on a 16 x 16 grid, from
the ground up, with smooth edges on a transparent ground.
"""
import math
import pathlib
import struct

FOLDER = pathlib.Path(__file__).resolve().parent
INK, PALE, SHADE, DARK = (48, 52, 60), (255, 255, 255), (176, 184, 196), (96, 104, 116)
BLUE, GREEN, RED, YELLOW, ORANGE = (40, 96, 176), (40, 148, 64), (204, 52, 44), (236, 184, 40), (224, 120, 32)
SAMPLES = 4


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def box(left, top, right, bottom):
    return lambda x, y: left <= x <= right and top <= y <= bottom


def union(*regions):
    return lambda x, y: any(region(x, y) for region in regions)


def stroke(x1, y1, x2, y2, width):
    def inside(x, y):
        dx, dy = x2 - x1, y2 - y1
        along = min(max(((x - x1) * dx + (y - y1) * dy) / ((dx * dx + dy * dy) or 1), 0), 1)
        return math.hypot(x - x1 - along * dx, y - y1 - along * dy) <= width / 2
    return inside


def polygon(*corners):
    def inside(x, y):
        odd = False
        for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
            if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
                odd = not odd
        return odd
    return inside


def gear(radius, teeth):
    """Round the middle; every second part of its edge stands out."""
    def inside(x, y):
        part = math.atan2(y - 8, x - 8) / math.pi * teeth
        return math.hypot(x - 8, y - 8) <= (radius if math.cos(part * math.pi) > 0 else radius * 0.78)
    return inside


FLAME = polygon((8, 1), (11.5, 5.5), (13, 9.5), (11.5, 13.5), (8, 15), (4.5, 13.5), (3, 9.5), (5.2, 6.5), (6.2, 8))
PICTURES = (
    [(GREEN, polygon((4, 2), (13.5, 8), (4, 14)))],
    [(RED, box(3, 3, 13, 13))],
    [(INK, union(disc(7, 9, 6), box(7, 3, 15, 7))), (BLUE, union(disc(7, 9, 4.9), box(8, 4.1, 14, 5.9))),
     (PALE, union(stroke(4, 9, 10, 9, 1.5), stroke(7, 6, 7, 12, 1.5)))],
    [(RED, FLAME), (ORANGE, polygon((8, 5), (10.8, 10), (10, 13.4), (8, 14.4), (6, 13.4), (5.2, 10))),
     (YELLOW, disc(8, 12, 1.9))],
    [(GREEN, union(stroke(2.5, 8.5, 6.5, 12.5, 2.6), stroke(6.5, 12.5, 13.5, 3.5, 2.6)))],
    [(INK, union(disc(8, 6.5, 4.6), polygon((3.4, 6.5), (12.6, 6.5), (14.4, 12.6), (1.6, 12.6)), disc(8, 13.2, 1.9))),
     (YELLOW, union(disc(8, 6.6, 3.5), polygon((4.5, 6.6), (11.5, 6.6), (12.8, 11.6), (3.2, 11.6))))],
    [(INK, disc(8, 8, 6.6)), (RED, disc(8, 8, 5.4))],
    [(INK, box(4, 1, 12, 8)), (PALE, box(5, 2, 11, 8)), (INK, box(1, 6, 15, 12)), (SHADE, box(2, 7, 14, 11)),
     (INK, box(4, 10, 12, 15)), (PALE, box(5, 11, 11, 14)), (GREEN, box(12, 7.6, 13.4, 9))],
    [(DARK, gear(7.2, 8)), (SHADE, disc(8, 8, 4.4)), (DARK, disc(8, 8, 2))],
)
ICON = [(INK, union(box(1, 6, 9, 15), disc(5, 6, 4))), (BLUE, union(box(2, 6, 8, 14), disc(5, 6, 3))),
        (SHADE, union(box(2, 6, 8, 8), disc(5, 6, 3))), (INK, disc(11, 10, 4.8)), (PALE, disc(11, 10, 3.8)),
        (RED, stroke(11, 10, 13, 8, 1.2))]


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


def rows(size, pictures):
    return [b''.join(pixel(layers, x, y, size) for layers in pictures for x in range(size)) for y in reversed(range(size))]


def header(width, height, length):
    return struct.pack('<IiiHHIIiiII', 40, width, height, 1, 32, 0, length, 0, 0, 0, 0)


def strip_bytes(size):
    pixels = b''.join(rows(size, PICTURES))
    head = header(size * len(PICTURES), size, len(pixels))
    start = 14 + len(head)
    return b'BM' + struct.pack('<IHHI', start + len(pixels), 0, 0, start) + head + pixels


def icon_bytes(sizes):
    entries, images = b'', b''
    for size in sizes:
        lines = rows(size, [ICON])
        mask = b''
        for line in lines:
            bits = ''.join('0' if opacity else '1' for opacity in line[3::4]) + '0' * (-size % 32)
            mask += int(bits, 2).to_bytes(len(bits) // 8, 'big')
        image = header(size, 2 * size, 0) + b''.join(lines) + mask
        entries += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(image), 6 + 16 * len(sizes) + len(images))
        images += image
    return struct.pack('<HHH', 0, 1, len(sizes)) + entries + images


if __name__ == '__main__':
    for size in (16, 32):
        (FOLDER / f'tools{size}.bmp').write_bytes(strip_bytes(size))
    (FOLDER / 'plant.ico').write_bytes(icon_bytes((16, 32, 48)))
