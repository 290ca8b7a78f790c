#!/usr/bin/env python3
"""Makes the files whose opening memory-of-open.sh measures: make-big-files.py FOLDER"""

import gzip
import os
import random
import struct
import sys
import zlib

LARGEST = (8192, 6144)  # 48 Mi pixels, as large as a bitmap can be
CAMERA = (8000, 6000)  # 48 million


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def png(size, channels, row_of, level):
    """row_of(y) gives the bytes of a row; 3 channels are RGB, 4 RGBA."""
    width, height = size
    packer = zlib.compressobj(level)
    parts = [packer.compress(b"\0" + row_of(y)) for y in range(height)] + [packer.flush()]
    header = struct.pack(">IIBBBBB", width, height, 8, 2 if channels == 3 else 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
            chunk(b"IDAT", b"".join(parts)) + chunk(b"IEND", b""))


def noise_rows(size, channels):
    """Rows that no packer shortens."""
    several = [random.randbytes(size[0] * channels) for _ in range(64)]
    return lambda y: several[y % 64]


def speckled_rows(size):
    """Every second pixel is transparent."""
    row = b"\x10\x20\x30\xff\0\0\0\0" * (size[0] // 2)
    return [row, row[4:] + row[:4]]


def noise(size, level=0):
    return png(size, 4, noise_rows(size, 4), level)


def interlaced(size):
    """Sixteen bits a channel, the rows in seven passes."""
    width, height = size
    packer = zlib.compressobj(9)
    parts = []
    for x, y, across, down in ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4),
                               (1, 0, 2, 2), (0, 1, 1, 2)):
        row = bytes(1 + 8 * -(-(width - x) // across))
        parts += [packer.compress(row) for _ in range(y, height, down)]
    header = struct.pack(">IIBBBBB", width, height, 16, 6, 0, 0, 1)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
            chunk(b"IDAT", b"".join(parts) + packer.flush()) + chunk(b"IEND", b""))


def speckles(size):
    rows = speckled_rows(size)
    return png(size, 4, lambda y: rows[y % 2], 1)


def blank(size):
    row = bytes(size[0] * 4)
    return png(size, 4, lambda y: row, 9)


def photo_rows(size):
    """Slopes with a little noise: what packers meet in practice."""
    width, height = size
    slope = bytes(x * 200 // width for x in range(width) for _ in range(3))
    grain = [bytes(random.choices(range(8), k=width * 3)) for _ in range(16)]
    slopes = [int.from_bytes(slope, "little") + int.from_bytes(g, "little") for g in grain]
    rows = [s.to_bytes(width * 3, "little") for s in slopes]
    return lambda y: rows[y % 16]


def bmp(size):
    width, height = size
    head = b"BM" + struct.pack("<IIIIiiHHIIiiII", 0, 0, 54, 40, width, height, 1, 32, 0, 0, 0, 0, 0, 0)
    row = noise_rows(size, 4)
    return head + b"".join(row(y) for y in range(height))


def ico(size):
    width, height = size
    head = struct.pack("<HHH", 0, 1, 1) + struct.pack("<BBBBHHII", 0, 0, 0, 0, 1, 32, 0, 22)
    info = struct.pack("<IiiHH", 40, width, 2 * height, 1, 32) + bytes(24)
    row = noise_rows(size, 4)
    return head + info + b"".join(row(y) for y in range(height))


def volf(page, layers, are_plates=0):
    """Layers: (picture, width and height of the picture, box on the page)."""
    parts = [b"volf " + struct.pack("<H", 1) + b"OrbelleWork" +
             struct.pack("<iiIi", page[0], page[1], 0, len(layers))]
    for picture, (width, height), box in layers:
        parts.append(struct.pack("<iiii", 0, 50, 50, 40) + struct.pack("<if", height, 1) +
                     struct.pack("<ffff", *box) + struct.pack("<i", width) +
                     struct.pack("<ffff", *box) + struct.pack("<ihhii", 0, -1, are_plates, 0, len(picture)))
        parts += [picture, b"\0"]
    return b"".join(parts)


def many_ico(count):
    """All entries share one picture."""
    place = 6 + 16 * count
    head = struct.pack("<HHH", 0, 1, count)
    entry = struct.pack("<BBBBHHII", 0, 0, 0, 0, 1, 32, 0, place)
    return head + entry * count + struct.pack("<IiiHH", 40, 27, 54, 1, 32) + bytes(24) + random.randbytes(2916)


def svg(contents):
    return ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            'width="512" height="512">' + contents + "</svg>").encode()


def nested_uses(levels):
    """Each level draws the one below it ten times."""
    parts = ['<defs><rect id="a0" width="9" height="9"/>']
    for level in range(1, levels):
        use = f'<use xlink:href="#a{level - 1}"/>'
        parts.append(f'<g id="a{level}">' + use * 10 + "</g>")
    return svg("".join(parts) + f'</defs><use xlink:href="#a{levels - 1}"/>')


def filtered(steps):
    """Filters that look far around each pixel."""
    step = '<feTurbulence numOctaves="20"/><feMorphology operator="dilate" radius="200"/>'
    return svg('<filter id="f" x="0" y="0" width="1" height="1">' + step * steps +
               '</filter><rect width="512" height="512" filter="url(#f)"/>')


def long_path(points):
    return svg('<path stroke="red" d="M0 0' +
               "".join(f"L{random.randrange(512)} {random.randrange(512)}" for _ in range(points)) + '"/>')


def filling(picture, size):
    return (picture, size, (0, 0, *size))


def main(folder):
    random.seed(1)

    def write(name, content):
        with open(os.path.join(folder, name), "wb") as file:
            file.write(content)

    write("camera.png", png(CAMERA, 3, photo_rows(CAMERA), 6))
    write("noise.png", noise(LARGEST))
    write("packed-noise.png", noise(LARGEST, 1))
    write("speckles.png", speckles(LARGEST))
    write("blank.png", blank(LARGEST))
    write("interlaced.png", interlaced(LARGEST))
    write("noise.bmp", bmp(LARGEST))
    write("noise.ico", ico(LARGEST))

    write("uses.svg", nested_uses(12))
    write("filters.svg", filtered(100))
    write("path.svg", long_path(900000))
    write("packed.svg", gzip.compress(svg(" " * (200 << 20)), 9))

    write("many.ico", many_ico(65535))
    write("markers.jpg", b"\xff\xd8" + (b"\xff\xe1\xff\xff" + bytes(65533)) * 7800)

    write("page-and-layer.volf", volf(LARGEST, [filling(noise(LARGEST), LARGEST)]))
    write("speckled.volf", volf(LARGEST, [filling(speckles(LARGEST), LARGEST)]))
    side = (5600, 6000)
    write("two-large.volf", volf(side, [filling(noise(side), side)] * 2))
    side = (6000, 6000)
    write("three-larger.volf", volf(side, [filling(noise(side), side)] * 3))
    side = (1000, 1000)
    write("hundred.volf", volf(side, [filling(noise(side), side)] * 101))
    write("small-page.volf", volf((1, 1), [filling(noise(LARGEST), LARGEST)] * 2))
    side = (512, 512)
    write("many.volf", volf(side, [filling(blank(side), side)] * 5001))
    write("dots.volf", volf((1, 1), [filling(blank((1, 1)), (1, 1))] * 5001))
    # What does not fit into its record, covers the page again and again, or is only promised.
    write("hidden-size.volf", volf((9, 9), [(blank(LARGEST), (1, 1), (0, 0, 1, 1))] * 1000))
    write("covering.volf", volf(LARGEST, [(blank((1, 1)), (1, 1), (0, 0, *LARGEST))] * 5001))
    dot = blank((1, 1))
    write("plates.volf", volf((100, 100), [(dot, (1, 1), (-2e6, -1e6, 4e6, 4e6))] * 5001, -1))
    write("tall-plates.volf", volf((1, 16384), [(dot, (1, 1), (0, 0, 1, 16384))] * 5001, -1))
    short = blank(LARGEST)[:-1000]
    write("damaged.volf", volf((9, 9), [(short, LARGEST, (0, 0, 9, 9))] * 1000))


main(sys.argv[1])
