#!/usr/bin/env python3
"""PNG files of every colour type and depth on a real screen, compared with ImageMagick."""
import struct
import time
import unittest
import zlib

from viewerdriver import Viewer, ViewerTest, part, run

WIDTH, HEIGHT = 270, 37  # two tiles, and rows that end within a byte
CHANNELS = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}
DEPTHS = {0: (1, 2, 4, 8, 16), 2: (8, 16), 3: (1, 2, 4, 8), 4: (8, 16), 6: (8, 16)}
PASSES = {"plain": ((0, 0, 1, 1),),
          "interlaced": ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4),
                         (1, 0, 2, 2), (0, 1, 1, 2))}
TOLERANCE = 1  # ImageMagick and OpenGL may round a sample of 16 bits differently


def sample(x, y, channel, depth):
    """The value of a sample: its bytes differ if it has 16 bits, and all values occur otherwise."""
    return (x * 2677 + y * 7919 + channel * 21001) % 65536 >> (16 - depth)


def chunk(name, body):
    return struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))


def png(colour, depth, look):
    rows = []
    for left, top, dx, dy in PASSES.get(look, PASSES["plain"]):
        for y in range(top, HEIGHT, dy):
            digits = "".join(format(sample(x, y, channel, depth), f"0{depth}b")
                             for x in range(left, WIDTH, dx) for channel in range(CHANNELS[colour]))
            digits += "0" * (-len(digits) % 8)
            rows.append(b"\0" + int(digits, 2).to_bytes(len(digits) // 8, "big"))
    header = WIDTH, HEIGHT, depth, colour, 0, 0, look == "interlaced"
    palette = bytes((i * step + 40) % 256 for i in range(1 << min(depth, 8))
                    for step in (67, 131, 29))
    clear = bytes((0, 128)) if colour == 3 else b"".join(
        struct.pack(">H", sample(5, 5, channel, depth)) for channel in range(CHANNELS[colour]))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", *header)) +
            (chunk(b"PLTE", palette) if colour == 3 else b"") +
            (chunk(b"tRNS", clear) if look == "transparent" else b"") +
            chunk(b"IDAT", zlib.compress(b"".join(rows))) + chunk(b"IEND", b""))


def tga():
    """Packed pixels of 16 bits, little-endian, which the byte order of a PNG must not change."""
    pixels = (sample(x, y, 0, 15) | 0x8000 for y in range(HEIGHT) for x in range(WIDTH))
    return (struct.pack("<3B2HB4H2B", 0, 0, 2, 0, 0, 0, 0, 0, WIDTH, HEIGHT, 16, 1) +
            b"".join(struct.pack("<H", pixel) for pixel in pixels))


def difference(shown, expected):
    """The first pixel that differs by more than the tolerance, or None."""
    for at in range(0, len(expected), 3):
        colours = tuple(shown[at:at + 3]), tuple(expected[at:at + 3])
        if any(abs(a - b) > TOLERANCE for a, b in zip(*colours)):
            y, x = divmod(at // 3, WIDTH)
            return f"pixel {x}, {y} is {colours[0]}, expected {colours[1]}"


class Png(ViewerTest):
    def test_shows_what_imagemagick_shows(self):
        files = {"type 2, 16 bits.tga": tga()}
        for colour, depths in DEPTHS.items():
            for look in "plain", "interlaced", *(("transparent",) if colour < 4 else ()):
                for depth in depths:
                    files[f"type {colour}, {depth:02} bits, {look}.png"] = png(colour, depth, look)
        for name, content in files.items():
            with open(self.path(name), "wb") as out:
                out.write(content)
        names = sorted(files)
        # Transparency is not drawn: each pixel has its own colour, however transparent it is.
        reference = run("convert", *map(self.path, names), "-auto-orient", "-alpha", "off",
                        "-depth", "8", "rgb:-")
        size = WIDTH * HEIGHT * 3
        self.assertEqual(len(reference), size * len(names))
        place = (801 - WIDTH) // 2, (600 - HEIGHT) // 2, WIDTH, HEIGHT
        with Viewer("-resetview-", "-frametype", "0", self.folder.name) as viewer:
            for number, name in enumerate(names):
                viewer.await_title(f"{name} ({number + 1}/{len(names)})")
                expected = reference[number * size:][:size]
                end = time.monotonic() + 5
                while ((found := difference(part(viewer.look(), *place), expected)) and
                       time.monotonic() < end):
                    time.sleep(0.02)
                with self.subTest(name):
                    self.assertIsNone(found)
                viewer.key("space")


if __name__ == "__main__":
    unittest.main(verbosity=2)
