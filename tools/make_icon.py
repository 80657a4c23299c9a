#!/usr/bin/env python3
"""Draws the program's icon: a leaf of a calendar with a blue head and a light square for today.

    make_icon.py ICON.ico [FOLDER]    writes the icon, and with FOLDER each size as FOLDER/SIZE.png to look at

Only the 256 pixel size is PNG: Windows 2000 and XP cannot read PNG icons, but never load that size.
Each size is drawn on its own pixel grid, from rectangles with round corners, smoothed by several samples in each
pixel. The script needs only Python's standard library.
"""
import os
import struct
import sys
import zlib

SIZES = (16, 20, 24, 32, 48, 256)
AS_PNG = (256,)
# Cell and gap in pixels, set by hand for the small sizes so that the grid is centred. An even gap gives four columns an
# even width, like the page's.
GRIDS = {16: (2, 2), 20: (2, 2), 24: (2, 2), 32: (3, 2)}
SAMPLES = 8  # per pixel and direction

DEEP_BLUE = (31, 8, 128)
WHITE = (255, 255, 255)
VIOLET = (192, 192, 255)
DAY = (150, 146, 200)


def inside(shape, x, y):
    """Returns whether the point lies in the round-cornered rectangle (left, top, right, bottom, radius)."""
    left, top, right, bottom, radius = shape
    if not (left <= x < right and top <= y < bottom):
        return False
    dx = max(left + radius - x, x - (right - radius), 0)
    dy = max(top + radius - y, y - (bottom - radius), 0)
    return dx * dx + dy * dy <= radius * radius


def layers(size):
    """Yields the shapes at this size with their colours, from back to front. Edges are whole pixels."""
    unit = size / 16
    line = max(1, round(unit * 0.75))  # thickness of the frame
    left, right = round(unit), size - round(unit)
    top, bottom = round(unit * 1.5), size - round(unit * 0.75)
    head = top + (round(unit * 4) if size > 20 else round(unit * 3))
    radius = unit * 1.6
    yield (left, top, right, bottom, radius), DEEP_BLUE
    yield (left + line, head, right - line, bottom - line, max(radius - line, 0)), WHITE
    # The upper corners of the page are square, because they touch the head.
    yield (left + line, head, right - line, head + round(radius) + 1, 0), WHITE

    ring = max(2, round(unit * 1.3))
    for centre in (0.31, 0.69):
        x = round(size * centre - ring / 2)
        yield (x - line, 0, x + ring + line, head - round(unit * 1.4) + line, ring), DEEP_BLUE
        yield (x, round(unit * 0.5), x + ring, head - round(unit * 1.4), ring / 2), VIOLET

    # Days: as many squares as stay distinct; today is the light one.
    width, height = right - left - 2 * line, bottom - line - head
    columns, rows, today = (3, 2, (1, 0)) if size == 16 else (4, 3, (2, 1))
    if size in GRIDS:
        cell, gap = GRIDS[size]
    else:
        gap = round(unit * 0.7)
        cell = min((width - gap * (columns + 1)) // columns, (height - gap * (rows + 1)) // rows)
    x0 = left + line + (width - columns * cell - (columns - 1) * gap) // 2
    y0 = head + (height - rows * cell - (rows - 1) * gap + 1) // 2
    for row in range(rows):
        for column in range(columns):
            x, y = x0 + column * (cell + gap), y0 + row * (cell + gap)
            if (column, row) == today:
                edge = max(1, gap // 2)
                yield (x - edge, y - edge, x + cell + edge, y + cell + edge, unit * 0.4), DEEP_BLUE
                yield (x, y, x + cell, y + cell, 0), VIOLET
            else:
                yield (x, y, x + cell, y + cell, unit * 0.2 if size > 48 else 0), DAY


def draw(size):
    """Returns rows of pixels (red, green, blue, alpha)."""
    pixels = [[(0.0, 0.0, 0.0, 0.0)] * size for _ in range(size)]
    for shape, colour in layers(size):
        left, top, right, bottom, radius = shape
        for y in range(max(0, int(top)), min(size, int(bottom + 1))):
            for x in range(max(0, int(left)), min(size, int(right + 1))):
                cover = coverage(shape, x, y)
                if cover == 0:
                    continue
                red, green, blue, alpha = pixels[y][x]
                total = cover + alpha * (1 - cover)
                mixed = [(c * cover + old * alpha * (1 - cover)) / total
                         for c, old in zip(colour, (red, green, blue))]
                pixels[y][x] = (*mixed, total)
    return [[(round(r), round(g), round(b), round(a * 255)) for r, g, b, a in row] for row in pixels]


def coverage(shape, x, y):
    """Returns the share of the pixel that the shape covers, 0 to 1."""
    left, top, right, bottom, radius = shape
    if left + radius <= x and x + 1 <= right - radius and top <= y and y + 1 <= bottom:
        return 1
    hits = sum(inside(shape, x + (i + 0.5) / SAMPLES, y + (j + 0.5) / SAMPLES)
               for i in range(SAMPLES) for j in range(SAMPLES))
    return hits / SAMPLES ** 2


def png(pixels):
    def chunk(kind, data):
        return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))

    size = len(pixels)
    rows = b''.join(b'\0' + b''.join(bytes(pixel) for pixel in row) for row in pixels)
    return (b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack('>IIBBBBB', size, size, 8, 6, 0, 0, 0)) +
            chunk(b'IDAT', zlib.compress(rows, 9)) + chunk(b'IEND', b''))


def bitmap(pixels):
    """Returns a bitmap in icon form: the rows from the bottom up, then a mask for systems without alpha.

    Such systems invert a masked pixel unless its colour is black. So the mask hides only fully transparent pixels,
    which are black, and the smoothed edge becomes solid.
    """
    size = len(pixels)
    header = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    colours = b''.join(struct.pack('BBBB', b, g, r, a) for row in reversed(pixels) for r, g, b, a in row)
    mask = b''
    for row in reversed(pixels):
        bits = ''.join('0' if pixel[3] else '1' for pixel in row)
        bits += '0' * (-len(bits) % 32)
        mask += int(bits, 2).to_bytes(len(bits) // 8, 'big')
    return header + colours + mask


def icon(pictures):
    """Returns an icon file with the given (size, bytes) pairs."""
    directory = struct.pack('<HHH', 0, 1, len(pictures))
    offset = len(directory) + 16 * len(pictures)
    for size, data in pictures:
        directory += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return directory + b''.join(data for _, data in pictures)


def main(arguments):
    if len(arguments) not in (1, 2):
        sys.exit(__doc__)
    pictures = []
    for size in SIZES:
        pixels = draw(size)
        pictures.append((size, png(pixels) if size in AS_PNG else bitmap(pixels)))
        if len(arguments) == 2:
            with open(os.path.join(arguments[1], f'{size}.png'), 'wb') as file:
                file.write(png(pixels))
    with open(arguments[0], 'wb') as file:
        file.write(icon(pictures))


if __name__ == '__main__':
    main(sys.argv[1:])
