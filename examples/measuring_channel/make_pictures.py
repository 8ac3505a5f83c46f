#!/usr/bin/env python3
"""Draws the program's icon, a dial, and the animation that runs while it measures: eight dots of which one is lit in
turn, as an uncompressed film of 256 colours.
"""
import math
import pathlib
import struct

FOLDER = pathlib.Path(__file__).resolve().parent
GROUND = (255, 0, 255)  # seen through, being the first pixel's
DARK, FACE, RED, GREEN, WHITE, STEEL = (40, 44, 52), (170, 178, 190), (204, 40, 40), (30, 140, 60), (250, 250, 250), (70, 110, 160)


def icon_pixel(x, y):
    """On a square of 1 unit; None outside."""
    across, up = x - 0.5, 0.58 - y
    distance, angle = math.hypot(across, up), math.degrees(math.atan2(up, across))
    if distance > 0.48:
        return None
    if distance > 0.43:
        return DARK
    if distance < 0.06:
        return DARK
    needle = math.radians(55)
    along, aside = across * math.cos(needle) + up * math.sin(needle), up * math.cos(needle) - across * math.sin(needle)
    if 0 < along < 0.3 and abs(aside) < 0.035:
        return RED
    if 0.33 < distance < 0.41 and -30 < angle < 210 or 0.33 < distance < 0.41 and angle < -150:
        return GREEN if angle > 60 or angle < -150 else RED
    return WHITE


def icon(sizes):
    entries, images = b'', b''
    start = 6 + 16 * len(sizes)
    for size in sizes:
        pixels, mask = b'', b''
        for y in reversed(range(size)):
            row = [sampled(x, y, size) for x in range(size)]
            pixels += b''.join(row)
            bits = ''.join('1' if pixel[3] == 0 else '0' for pixel in row) + '0' * (-size % 32)
            mask += int(bits, 2).to_bytes(len(bits) // 8, 'big')
        image = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0) + pixels + mask
        entries += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(image), start + len(images))
        images += image
    return struct.pack('<HHH', 0, 1, len(sizes)) + entries + images


def sampled(x, y, size):
    """Sixteen samples a pixel, as blue, green, red, opacity."""
    found = [icon_pixel((x + (i % 4 + 0.5) / 4) / size, (y + (i // 4 + 0.5) / 4) / size) for i in range(16)]
    seen = [colour for colour in found if colour]
    if not seen:
        return bytes(4)
    red, green, blue = (sum(colour[i] for colour in seen) // len(seen) for i in range(3))
    return bytes((blue, green, red, 255 * len(seen) // 16))


SIZE, FRAMES = 24, 8
TABLE = [GROUND, FACE, STEEL] + [(0, 0, 0)] * 253


def frame(lit):
    rows = b''
    for y in reversed(range(SIZE)):
        for x in range(SIZE):
            pixel = 0
            for dot in range(FRAMES):
                angle = 2 * math.pi * dot / FRAMES
                cx, cy = SIZE / 2 + 8 * math.sin(angle), SIZE / 2 - 8 * math.cos(angle)
                if math.hypot(x + 0.5 - cx, y + 0.5 - cy) <= (3.0 if dot == lit else 2.2):
                    pixel = 2 if dot == lit else 1
            rows += bytes((pixel,))
    return rows


def chunk(name, data):
    return name + struct.pack('<I', len(data)) + data + b'\0' * (len(data) % 2)


def group(name, *chunks):
    return chunk(b'LIST', name + b''.join(chunks))


def film():
    frames = [frame(i) for i in range(FRAMES)]
    length, rate = len(frames[0]), 8
    head = struct.pack('<14I', 1000000 // rate, length * rate, 0, 0x10, FRAMES, 0, 1, length, SIZE, SIZE, 0, 0, 0, 0)
    stream = b'vidsDIB ' + struct.pack('<IHHIIIIIIIIHHHH', 0, 0, 0, 0, 1, rate, 0, FRAMES, length, 0, length, 0, 0, SIZE, SIZE)
    table = b''.join(bytes((b, g, r, 0)) for r, g, b in TABLE)
    form = struct.pack('<IiiHHIIiiII', 40, SIZE, SIZE, 1, 8, 0, length, 0, 0, 256, 0) + table
    header = group(b'hdrl', chunk(b'avih', head), group(b'strl', chunk(b'strh', stream), chunk(b'strf', form)))
    movie = group(b'movi', *(chunk(b'00db', pixels) for pixels in frames))
    index = b''.join(b'00db' + struct.pack('<III', 0x10, 4 + i * (8 + length), length) for i in range(FRAMES))
    return chunk(b'RIFF', b'AVI ' + header + movie + chunk(b'idx1', index))


if __name__ == '__main__':
    (FOLDER / 'channel.ico').write_bytes(icon((16, 32, 48)))
    (FOLDER / 'running.avi').write_bytes(film())
