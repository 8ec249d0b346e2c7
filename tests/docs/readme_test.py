#!/usr/bin/env python3
"""Checks the viewer's commands in the README, and its table of pictures."""
import os
import pathlib
import re
import struct
import subprocess
import unittest
import zlib

from viewerdriver import PROGRAM, Viewer, ViewerTest, wait_for, xdotool

SOURCE = pathlib.Path(__file__).resolve().parents[2]
README = (SOURCE / "README.md").read_text()

# All test pictures have four quarters: top left, top right, bottom left, bottom right.
WIDTH, HEIGHT = 64, 48
COLOURS = (200, 30, 30), (30, 160, 60), (40, 60, 200), (230, 220, 180)
GRAYS = [(level,) * 3 for level in (40, 90, 160, 220)]
RGB = [bytes(colour) for colour in COLOURS]
BGR = [colour[::-1] for colour in RGB]
BGRA = [colour + b"\xff" for colour in BGR]
BITS15 = [struct.pack("<H", 0x8000 | r >> 3 << 10 | g >> 3 << 5 | b >> 3) for r, g, b in COLOURS]
INDICES = [bytes((quarter,)) for quarter in range(4)]


def rows(quarters, width=WIDTH):
    """The rows of a picture, from the top. `quarters` are the bytes of a pixel of each quarter."""
    left = width // 2
    return [quarters[q] * left + quarters[q + 1] * (width - left) for q in (0, 2) for _ in range(HEIGHT // 2)]


def magick(form, *options, colours=COLOURS):
    """A file made by ImageMagick."""
    pixels = b"".join(rows([bytes(colour) for colour in colours]))
    return subprocess.run(("convert", "ppm:-", *options, f"{form}:-"), check=True, capture_output=True,
                          input=b"P6 %d %d 255\n" % (WIDTH, HEIGHT) + pixels).stdout


def cut(data):
    return data[:len(data) * 2 // 3]


def jpeg(orientation=1):
    data = magick("jpg", "-quality", "98")
    exif = b"Exif\0\0II*\0" + struct.pack("<IHHHIII", 8, 1, 0x112, 3, 1, orientation, 0)
    return data[:2] + b"\xff\xe1" + struct.pack(">H", len(exif) + 2) + exif + data[2:]


def chunk(name, body):
    return struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))


def png(quarters=RGB, kind=2, before=b""):
    data = zlib.compress(b"".join(b"\0" + row for row in rows(quarters)), 0)
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, kind, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + before + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def bmp(quarters=BGR, bits=24, header=40, compression=0, height=HEIGHT):
    palette = b"".join(colour + b"\0" for colour in BGR).ljust(1024, b"\0") if bits == 8 else b""
    described = struct.pack("<IiiHHIIiiII", header, WIDTH, height, 1, bits, compression, 0, 0, 0, 0, 0)
    start = struct.pack("<2sIII", b"BM", 0, 0, 14 + header + len(palette)) + described.ljust(header, b"\0")
    return start + palette + b"".join(rows(quarters)[::-1])


def tga(quarters=BGR, bits=24, kind=2, descriptor=0, width=WIDTH):
    header = struct.pack("<3B2HB4H2B", 0, kind == 1, kind, 0, 4, 24, 0, 0, width, HEIGHT, bits, descriptor)
    return header + b"".join(rows(quarters, width)[::-1])


# The README's rows with files: extension, content, and the quarters as shown; None if they are wrong.
KINDS = {
    "JPEG, also gray or progressive": [
        ("jpg", magick("jpg", "-interlace", "JPEG"), COLOURS),
        ("JPEG", magick("jpg", "-colorspace", "Gray", colours=GRAYS), GRAYS)],
    "JPEG with the Exif orientation 3, 6 or 8": [
        ("jpg", jpeg(n), [COLOURS[q] for q in quarters])
        for n, quarters in ((3, (3, 2, 1, 0)), (6, (2, 0, 3, 1)), (8, (1, 3, 0, 2)))],
    "JPEG with a mirrored Exif orientation (2, 4, 5, 7)": [("jpg", jpeg(n), COLOURS) for n in (2, 4, 5, 7)],
    "JPEG that ends early": [
        ("jpg", cut(magick("jpg", "-scale", "640x480")), COLOURS[:2] + 2 * ((0, 0, 0),))],
    "JPEG in CMYK": [("jpg", magick("jpg", "-colorspace", "CMYK"), COLOURS)],
    "PNG of any kind, also interlaced": [
        ("png", magick(form, "-interlace", "PNG"), COLOURS) for form in ("png", "png8", "png48")],
    "PNG with transparent parts": [
        ("png", png([rgb + alpha for rgb, alpha in zip(RGB, INDICES)], 6), COLOURS)],
    "PNG with an animation": [("png", png(before=chunk(b"acTL", struct.pack(">2I", 1, 0))), COLOURS)],
    "PNG that ends early": [("png", cut(png()), COLOURS)],
    "Picture with a colour profile or a gamma value": [
        ("png", png(before=chunk(b"gAMA", struct.pack(">I", 100000))), COLOURS)],
    "BMP with 24 bits, or with a palette": [("bmp", bmp(), COLOURS), ("BMP", bmp(INDICES, 8), COLOURS)],
    "BMP with 32 bits and the header of 40 bytes": [("bmp", bmp(BGRA, 32), COLOURS)],
    "BMP with a palette and a longer header": [("bmp", bmp(INDICES, 8, size), None) for size in (108, 124)],
    "BMP with 16 bits, a longer header at 32 bits, compression, or top-down rows": [
        ("bmp", data, COLOURS)
        for data in (bmp(BITS15, 16), bmp(BGRA, 32, 124), bmp(BGRA, 32, 40, 3), bmp(height=-HEIGHT))],
    "TGA with 16, 24 or 32 bits": [
        ("tga", data, COLOURS) for data in (tga(), tga(BGRA, 32), tga(BITS15, 16), tga(BGRA, 32, width=63))],
    "TGA that is compressed, gray, top-down or has a palette": [
        ("tga", data, COLOURS)
        for data in (tga(kind=10), tga(INDICES, 8, 3), tga(descriptor=32), tga(INDICES, 8, 1))],
    "TGA whose rows are not a multiple of 4 bytes": [("tga", tga(width=63), COLOURS)],
    "Picture with the extension of another format": [
        ("jpg", png(), COLOURS), ("png", jpeg(), COLOURS), ("bmp", png(), COLOURS), ("tga", jpeg(), COLOURS)],
    "GIF, WebP, TIFF, HEIC, AVIF, raw and other formats": [
        (name, magick("gif"), COLOURS) for name in ("gif", "webp", "tiff", "heic", "avif", "dng", "jpe")],
}


class Readme(ViewerTest):
    def check_kinds(self, viewer, files):
        """Pages through the pictures. Returns the colours of the four quarters, by file name."""
        shown = {}
        while "zz.bmp" not in shown:
            def new_name():
                found = re.search(r"([^/]+) \(\d+/\d+\)", xdotool("getwindowname", viewer.window))
                return found and found[1] not in shown and found[1]
            name = wait_for("another picture", new_name)
            expected = files[name][2]

            def quarters():
                width, _, data = viewer.look()
                places = [3 * (y * width + x) for y in (220, 380) for x in (340, 460)]
                shown[name] = [tuple(data[at:at + 3]) for at in places]
                return all(abs(a - b) < 10 for have, want in zip(shown[name], expected or shown[name])
                           for a, b in zip(have, want))
            wait_for(f"{files[name][0]} ({name})", lambda: viewer.stays() and quarters())
            viewer.key("space")
        return shown

    def test_shows_the_kinds_of_pictures_of_the_table(self):
        table = re.search(r"\| Picture \| Shown\? \|.*?\n\n", README, re.S)[0]
        listed = dict(re.findall(r"^\| ([^|]+) \| (yes|no) \|", table, re.M))
        self.assertEqual(list(listed), list(KINDS))
        files = {"zz.bmp": ("the last one", bmp(), COLOURS)}
        for number, (kind, examples) in enumerate(KINDS.items()):
            for example, (extension, content, expected) in enumerate(examples):
                files[f"{number:02}{example}.{extension}"] = kind, content, expected
        for name, (_, content, _) in files.items():
            pathlib.Path(self.path(name)).write_bytes(content)
        with Viewer("-frametype", "0", self.folder.name, errors=re.compile(".*", re.S)) as viewer:
            shown = self.check_kinds(viewer, files)
        for name, (kind, _, expected) in list(files.items())[1:]:
            with self.subTest(kind, name=name):
                self.assertEqual("yes" if name in shown else "no", listed[kind])
                self.assertTrue(expected or shown[name] != list(COLOURS), "the colours are right")

    def test_runs_the_commands(self):
        """Other tests run the commands that build and install."""
        pathlib.Path(self.path("photo.jpg")).write_bytes(jpeg())
        os.symlink(".", self.path("Pictures"))
        settings = {"HOME": self.folder.name, "PATH": f"{os.path.dirname(PROGRAM)}:{os.environ['PATH']}"}
        commands = re.findall(r"^    (.+)$", README, re.M)
        self.assertIn("zanoview3 photo.jpg .", commands)
        for command in commands:
            with self.subTest(command):
                if command.startswith("scripts/"):
                    self.assertTrue(os.access(SOURCE / command, os.X_OK))
                elif command.startswith("zanoview3") and "-h" not in command.split():
                    with Viewer(command=("bash", "-c", command), cwd=self.folder.name,
                                stream=subprocess.DEVNULL, **settings) as viewer:
                        viewer.await_title("photo.jpg (1/")


if __name__ == "__main__":
    unittest.main(verbosity=2)
