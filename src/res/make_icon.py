#!/usr/bin/env python3
"""Draws the icon: a gauge dial in a unit square, a list of (colour, region) from the ground up, sampled 4 x 4 times a
pixel.
"""
import math
import pathlib
import struct

from regions import disc, polygon, stroke


def sector(inner, outer, start, end):
    """Part of a ring about the dial's centre; angles in degrees, clockwise from straight up."""
    def inside(x, y):
        angle = math.degrees(math.atan2(x - 0.5, 0.5 - y))
        return inner <= math.hypot(x - 0.5, y - 0.5) <= outer and start <= angle <= end
    return inside


def on_dial(angle, radius):
    return 0.5 + radius * math.sin(math.radians(angle)), 0.5 - radius * math.cos(math.radians(angle))


def dial_layers(size):
    needle = 40
    side = [on_dial(needle + turn, 0.055) for turn in (-90, 90)]
    layers = [((60, 66, 76), disc(0.5, 0.5, 0.495)), ((196, 202, 210), disc(0.5, 0.5, 0.465)),
              ((250, 251, 252), disc(0.5, 0.5, 0.43)),
              ((46, 160, 67), sector(0.29, 0.40, -135, 0)), ((240, 190, 20), sector(0.29, 0.40, 0, 67)),
              ((210, 40, 40), sector(0.29, 0.40, 67, 135))]
    if size >= 32:
        layers += [((60, 66, 76), stroke(*on_dial(a, 0.36), *on_dial(a, 0.42), 0.022)) for a in range(-135, 136, 45)]
    layers += [((30, 34, 42), polygon(on_dial(needle, 0.36), side[0], on_dial(needle + 180, 0.1), side[1])),
               ((30, 34, 42), disc(0.5, 0.5, 0.085)), ((196, 202, 210), disc(0.5, 0.5, 0.035))]
    return layers


def icon_pixel(layers, size, column, row):
    """Blue, green, red and opacity of a pixel, from 4 x 4 samples."""
    found = []
    for sample in range(16):
        x, y = (column + (sample % 4 + 0.5) / 4) / size, (row + (sample // 4 + 0.5) / 4) / size
        colour = next((c for c, region in reversed(layers) if region(x, y)), None)
        if colour:
            found.append(colour)
    if not found:
        return bytes(4)
    red, green, blue = (sum(channel) // len(found) for channel in zip(*found))
    return bytes((blue, green, red, 255 * len(found) // 16))


def icon_pixels(size):
    layers = dial_layers(size)
    return [[icon_pixel(layers, size, x, y) for x in range(size)] for y in range(size)]


def icon_image(size):
    colours = b''.join(b''.join(row) for row in reversed(icon_pixels(size)))
    mask = bytes((size + 31) // 32 * 4 * size)  # the opacity says it all
    return struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 32, 0, len(colours + mask), 0, 0, 0, 0) + colours + mask


ICON_SIZES = (16, 32, 48)


def icon_bytes():
    images = [icon_image(size) for size in ICON_SIZES]
    offset = 6 + 16 * len(images)
    entries = b''
    for size, image in zip(ICON_SIZES, images):
        entries += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return struct.pack('<HHH', 0, 1, len(images)) + entries + b''.join(images)


if __name__ == '__main__':
    (pathlib.Path(__file__).resolve().parent / 'zop.ico').write_bytes(icon_bytes())
