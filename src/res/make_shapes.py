#!/usr/bin/env python3
"""Draws the library's pointer shapes, its icon, the pictures of its lists and the gallery's splash.

    make_shapes.py [--sheet FILE.png]

A pointer shape is a list of painted regions on a 32 x 32 grid, black and white on transparent ground; every shape gets
a white halo, so that it shows on any ground. The icon is sampled 4 x 4 times a pixel. --sheet also writes a picture
of all shapes, enlarged on light and dark ground, to look at. Pictures of lists stand side by side, 16 pixels wide, on a
ground that the lists leave out.
"""
import math
import pathlib
import struct
import sys
import zlib

SIZE = 32
BLACK, WHITE = 0, 1


# Regions: functions of a point that tell whether it lies inside. x grows to the right, y downwards.

def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def ring(cx, cy, radius, width):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - radius) <= width / 2


def stroke(x1, y1, x2, y2, width):
    def inside(x, y):
        dx, dy = x2 - x1, y2 - y1
        along = ((x - x1) * dx + (y - y1) * dy) / ((dx * dx + dy * dy) or 1)
        along = min(max(along, 0), 1)
        return math.hypot(x - x1 - along * dx, y - y1 - along * dy) <= width / 2
    return inside


def box(left, top, right, bottom):
    return lambda x, y: left <= x <= right and top <= y <= bottom


def polygon(*corners):
    def inside(x, y):
        odd = False
        for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
            if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
                odd = not odd
        return odd
    return inside


def union(*regions):
    return lambda x, y: any(region(x, y) for region in regions)


def transposed(region):
    return lambda x, y: region(y, x)


def mirrored(region):
    return lambda x, y: region(SIZE - x, y)


def arrow(x, y, dx, dy, length=7, half=5):
    """A solid arrow head with its tip at (x, y), pointing along the unit vector (dx, dy)."""
    bx, by = x - dx * length, y - dy * length
    return polygon((x, y), (bx - dy * half, by + dx * half), (bx + dy * half, by - dx * half))


class Shape:
    def __init__(self, name, hot_x, hot_y, *layers):
        self.name, self.hot = name, (hot_x, hot_y)
        self.cells = {}
        for colour, region in layers:
            for y in range(SIZE):
                for x in range(SIZE):
                    if region(x + 0.5, y + 0.5):
                        self.cells[x, y] = colour
        self.add_halo()

    def add_halo(self):
        for x, y in [cell for cell, colour in self.cells.items() if colour == BLACK]:
            for nx, ny in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
                if 0 <= nx < SIZE and 0 <= ny < SIZE:
                    self.cells.setdefault((nx, ny), WHITE)

    def file_bytes(self):
        """A cursor file with one 1-bit image: the white pixels, then the mask of the transparent ones."""
        rows = range(SIZE - 1, -1, -1)
        xor_mask = b''.join(self.row_bits(y, lambda colour: colour == WHITE) for y in rows)
        and_mask = b''.join(self.row_bits(y, lambda colour: colour is None) for y in rows)
        header = struct.pack('<IiiHHIIiiII', 40, SIZE, 2 * SIZE, 1, 1, 0, len(xor_mask + and_mask), 0, 0, 2, 2)
        image = header + struct.pack('<II', 0x000000, 0xFFFFFF) + xor_mask + and_mask
        entry = struct.pack('<BBBBHHII', SIZE, SIZE, 2, 0, *self.hot, len(image), 6 + 16)
        return struct.pack('<HHH', 0, 2, 1) + entry + image

    def row_bits(self, y, test):
        bits = 0
        for x in range(SIZE):
            bits = bits << 1 | test(self.cells.get((x, y)))
        return bits.to_bytes(SIZE // 8, 'big')


def illegal():
    return Shape('ILLEGAL', 16, 16, (BLACK, ring(16, 16, 11, 4)), (BLACK, stroke(8.5, 8.5, 23.5, 23.5, 4)))


def sash_region():
    """Two bars one above the other, and arrows away from them."""
    return union(box(3, 13, 29, 15), box(3, 17, 29, 19),
                 box(15, 6, 17, 13), arrow(16, 1, 0, -1), box(15, 19, 17, 26), arrow(16, 31, 0, 1))


def comm():
    bolt = polygon((19, 1), (6, 18), (14, 18), (9, 31), (26, 12), (17, 12), (24, 1))
    return Shape('COMM', 9, 30, (BLACK, bolt))


def move_nodes():
    arrows = [union(stroke(16 + 5 * dx, 16 + 5 * dy, 16 + 10 * dx, 16 + 10 * dy, 2),
                    arrow(16 + 15 * dx, 16 + 15 * dy, dx, dy, 5, 4)) for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1))]
    return Shape('MOVENODES', 16, 16, (BLACK, union(*arrows, box(11, 11, 21, 21))), (WHITE, box(13, 13, 19, 19)))


def pen():
    shaft = polygon((6, 20), (22, 4), (28, 10), (12, 26))
    return Shape('PEN', 2, 29, (BLACK, union(shaft, polygon((6, 20), (12, 26), (2, 30)))),
                 (WHITE, polygon((8.5, 20), (18.5, 10), (22, 13.5), (12, 23.5))),
                 (WHITE, polygon((7, 22.5), (9.5, 25), (5.5, 26.5))))


def fill_colour():
    pail = polygon((7, 17), (18, 6), (29, 17), (18, 28))
    inner = polygon((10.5, 16), (18, 8.5), (25.5, 16))
    drop = union(disc(4.5, 26.5, 3), polygon((4.5, 18), (1.7, 25.5), (7.3, 25.5)))
    return Shape('FCK', 4, 29, (BLACK, pail), (WHITE, inner), (BLACK, union(ring(15, 7, 5, 2), drop)))


def connect_region():
    """A box at the right and a line from its side to an end point at the left."""
    return union(box(17, 8, 30, 24), box(5, 15, 17, 17), disc(5, 16, 4))


def connect(name, hot_x, turn):
    return Shape(name, hot_x, 16, (BLACK, turn(connect_region())), (WHITE, turn(box(19, 10, 28, 22))))


def sheet(left, top):
    """A document sheet of 14 x 18 pixels with a folded corner and lines of text."""
    right, bottom, fold = left + 14, top + 18, 5
    outline = polygon((left, top), (right - fold, top), (right, top + fold), (right, bottom), (left, bottom))
    inside = polygon((left + 1, top + 1), (right - fold, top + 1), (right - 1, top + fold), (right - 1, bottom - 1),
                     (left + 1, bottom - 1))
    inner = right - fold
    corner = union(box(inner, top, inner + 1, top + fold), box(inner, top + fold, right, top + fold + 1))
    text = union(*(box(left + 3, y, right - 3, y + 1) for y in range(top + 8, bottom - 2, 3)))
    return [(BLACK, outline), (WHITE, inside), (BLACK, union(corner, text))]


POINTER = polygon((1, 1), (1, 14), (4, 11), (7, 17), (10, 15.5), (7, 10), (11, 10))


def drop_file(name, *layers):
    ground = polygon((0, 0), (0, 17), (4, 14), (6.5, 19), (12, 16), (9, 11), (14, 11))
    return Shape(name, 1, 1, *layers, (WHITE, ground), (BLACK, POINTER))


def drop_files():
    plus = [(WHITE, disc(25.5, 25.5, 6)), (BLACK, union(box(24, 20, 27, 31), box(20, 24, 31, 27)))]
    stop = [(WHITE, disc(25, 25, 6)), (BLACK, union(ring(25, 25, 5, 2.2), stroke(21.5, 21.5, 28.5, 28.5, 2)))]
    target = [(WHITE, disc(24, 24, 7)), (BLACK, union(ring(24, 24, 5, 1.6), disc(24, 24, 1.6))),
              (BLACK, union(box(23.4, 16, 24.6, 20), box(23.4, 28, 24.6, 32), box(16, 23.4, 20, 24.6),
                            box(28, 23.4, 32, 24.6)))]
    return [drop_file('DRPFIL_SINGLE', *sheet(12, 10)),
            drop_file('DRPFIL_MULTI', *sheet(16, 3), *sheet(11, 11), *plus),
            drop_file('DRPFIL_NOTALLOWED', *sheet(12, 8), *stop),
            drop_file('DRPFIL_WTARGET', *sheet(12, 5), *target)]


def axis_region():
    """A horizontal scale along the lower edge."""
    return union(box(2, 24, 30, 26), *(box(x, 26, x + 2, 30 if x in (2, 28) else 29) for x in (2, 8.5, 15, 21.5, 28)))


def axis_move_region():
    return union(axis_region(), box(8, 12, 24, 15), arrow(1, 13.5, -1, 0, 8, 6), arrow(31, 13.5, 1, 0, 8, 6))


def magnifier(turn):
    handle = turn(stroke(20, 16, 25.5, 20, 3.5))
    return [(BLACK, turn(axis_region())), (BLACK, handle), (BLACK, disc(*turned(turn, 14, 10), 9)),
            (WHITE, disc(*turned(turn, 14, 10), 7)),
            (BLACK, turn(union(box(9.5, 9, 18.5, 11), box(13, 5.5, 15, 14.5))))]


def turned(turn, x, y):
    return (y, x) if turn is transposed else (x, y)


def unturned(region):
    return region


def shapes():
    return [illegal(), Shape('H_SASH', 16, 16, (BLACK, sash_region())),
            Shape('V_SASH', 16, 16, (BLACK, transposed(sash_region()))), comm(), move_nodes(), pen(), fill_colour(),
            connect('OBJCONNECTLEFT', 5, unturned), connect('OBJCONNECTRIGHT', 26, mirrored), *drop_files(),
            Shape('IDC_AXIS_X_MOVE', 16, 13, (BLACK, axis_move_region())),
            Shape('IDC_AXIS_Y_MOVE', 13, 16, (BLACK, transposed(axis_move_region()))),
            Shape('IDC_AXIS_X_ENLARGE', 14, 10, *magnifier(unturned)),
            Shape('IDC_AXIS_Y_ENLARGE', 10, 14, *magnifier(transposed))]


# The icon: a gauge dial in a unit square, as a list of (colour, region) from the ground up.

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


# Pictures of lists: layers of (colour, region) on a 16 x 16 grid, from the ground up.

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


# The gallery's splash: the dial and the name on a ground that grows lighter, in a table of 256 colours.

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


# The contact sheet.

def write_png(path, rows):
    def chunk(kind, data):
        return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))
    raw = b''.join(b'\0' + b''.join(bytes(pixel) for pixel in row) for row in rows)
    header = struct.pack('>IIBBBBB', len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    path.write_bytes(b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', header) + chunk(b'IDAT', zlib.compress(raw)) +
                     chunk(b'IEND', b''))


def shape_pixel(shape, x, y, ground):
    if (x, y) == shape.hot:
        return (230, 0, 0)
    colour = shape.cells.get((x, y))
    return ground if colour is None else (255 * colour,) * 3


def blended(pixel, ground):
    blue, green, red, opacity = pixel
    return tuple((over * opacity + under * (255 - opacity)) // 255 for over, under in zip((red, green, blue), ground))


def write_sheet(path, all_shapes, zoom=4, columns=6):
    lines = -(-len(all_shapes) // columns)
    cell, height = SIZE + 4, (2 * lines + 2) * (SIZE + 4)
    picture = [[(120, 160, 200)] * (columns * cell) for _ in range(height)]
    for copy, ground in enumerate(((236, 233, 216), (40, 44, 52))):
        for index, shape in enumerate(all_shapes):
            left, top = index % columns * cell + 2, (index // columns + copy * lines) * cell + 2
            for y in range(SIZE):
                for x in range(SIZE):
                    picture[top + y][left + x] = shape_pixel(shape, x, y, ground)
    left = 2
    for size in ICON_SIZES:
        for line, row in zip(picture[2 * lines * cell + 2:], icon_pixels(size)):
            line[left:left + size] = map(blended, row, line[left:left + size])
        left += size + 4
    write_png(path, [[pixel for pixel in row for _ in range(zoom)] for row in picture for _ in range(zoom)])


def main(arguments):
    folder = pathlib.Path(__file__).resolve().parent
    all_shapes = shapes()
    for shape in all_shapes:
        (folder / f'{shape.name.lower()}.cur').write_bytes(shape.file_bytes())
    (folder / 'zop.ico').write_bytes(icon_bytes())
    (folder.parent.parent / 'gallery' / 'splash.bmp').write_bytes(splash_bytes())
    for name, pictures in LIST_PICTURES.items():
        (folder / f'{name}.bmp').write_bytes(strip_bytes(pictures))
    if arguments[:1] == ['--sheet']:
        write_sheet(pathlib.Path(arguments[1]), all_shapes)


if __name__ == '__main__':
    main(sys.argv[1:])
