#!/usr/bin/env python3
"""Draws the library's pointer shapes.

    make_pointers.py [--sheet FILE.ppm]

A shape is a list of painted regions on a 32 x 32 grid, black and white on transparent ground; every shape gets a white
halo, so that it shows on any ground. --sheet also writes a picture of all shapes, enlarged on light and dark ground, to
look at.
"""
import pathlib
import struct
import sys

from regions import arrow, box, disc, polygon, ring, stroke, transposed, union

SIZE = 32
BLACK, WHITE = 0, 1


def mirrored(region):
    return lambda x, y: region(SIZE - x, y)


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


# The contact sheet.

def shape_pixel(shape, x, y, ground):
    if (x, y) == shape.hot:
        return (230, 0, 0)
    colour = shape.cells.get((x, y))
    return ground if colour is None else (255 * colour,) * 3


def write_sheet(path, all_shapes, zoom=4, columns=6):
    lines = -(-len(all_shapes) // columns)
    cell, height = SIZE + 4, 2 * lines * (SIZE + 4)
    picture = [[(120, 160, 200)] * (columns * cell) for _ in range(height)]
    for copy, ground in enumerate(((236, 233, 216), (40, 44, 52))):
        for index, shape in enumerate(all_shapes):
            left, top = index % columns * cell + 2, (index // columns + copy * lines) * cell + 2
            for y in range(SIZE):
                for x in range(SIZE):
                    picture[top + y][left + x] = shape_pixel(shape, x, y, ground)
    rows = [bytes(part for pixel in row for _ in range(zoom) for part in pixel) for row in picture for _ in range(zoom)]
    path.write_bytes(b'P6 %d %d 255\n' % (columns * cell * zoom, height * zoom) + b''.join(rows))


def main(arguments):
    folder = pathlib.Path(__file__).resolve().parent
    all_shapes = shapes()
    for shape in all_shapes:
        (folder / f'{shape.name.lower()}.cur').write_bytes(shape.file_bytes())
    if arguments[:1] == ['--sheet']:
        write_sheet(pathlib.Path(arguments[1]), all_shapes)


if __name__ == '__main__':
    main(sys.argv[1:])
