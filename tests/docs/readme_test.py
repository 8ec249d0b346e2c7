#!/usr/bin/env python3
"""Checks the README against the program: every command runs, and every kind of picture is shown as
its table says.

The commands run in a directory of links to the source tree and to the build under test. Small scripts
replace the package manager and the build.
"""
import os
import pathlib
import re
import struct
import subprocess
import unittest
import zlib

from viewerdriver import Viewer, ViewerTest, wait_for, xdotool

SOURCE = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["ZANOVIEW3"]).parent
README = (SOURCE / "README.md").read_text()
ANY = re.compile(".*", re.S)

# All test pictures have four quarters: top left, top right, bottom left, bottom right.
WIDTH, HEIGHT = 64, 48
COLOURS = (200, 30, 30), (30, 160, 60), (40, 60, 200), (230, 220, 180)
GRAYS = tuple((level,) * 3 for level in (40, 90, 160, 220))
BLACK = ((0, 0, 0),) * 2


def rows(pixel, width=WIDTH):
    """The rows of a picture, from the top. `pixel(quarter)` returns the bytes of a pixel."""
    left, right = width // 2, width - width // 2
    return [pixel(q) * left + pixel(q + 1) * right for q in (0, 2) for _ in range(HEIGHT // 2)]


def rgb(quarter):
    return bytes(COLOURS[quarter])


def bgr(quarter):
    return bytes(COLOURS[quarter][::-1])


def bgra(quarter):
    return bgr(quarter) + b"\xff"


def bits15(quarter):
    return struct.pack("<H", 0x8000 | sum(c >> 3 << shift for c, shift in zip(COLOURS[quarter], (10, 5, 0))))


def index(quarter):
    return bytes((quarter,))


def magick(form, *options, colours=COLOURS):
    """A file made by ImageMagick."""
    pixels = b"".join(rows(lambda quarter: bytes(colours[quarter])))
    return subprocess.run(("convert", "ppm:-", *options, f"{form}:-"), check=True, capture_output=True,
                          input=b"P6 %d %d 255\n" % (WIDTH, HEIGHT) + pixels).stdout


def cut(data):
    return data[:len(data) * 2 // 3]


def jpeg(orientation=1, *options):
    data = magick("jpg", "-quality", "98", *options)
    exif = b"Exif\0\0II*\0" + struct.pack("<IHHHIII", 8, 1, 0x112, 3, 1, orientation, 0)
    return data[:2] + b"\xff\xe1" + struct.pack(">H", len(exif) + 2) + exif + data[2:]


def chunk(name, body):
    return struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))


def png(pixel=rgb, kind=2, before=b"", after=b""):
    data = zlib.compress(b"".join(b"\0" + row for row in rows(pixel)), 0)
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, kind, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + before + chunk(b"IDAT", data) + after +
            chunk(b"IEND", b""))


def frame(number):
    return chunk(b"fcTL", struct.pack(">5I2H2B", number, WIDTH, HEIGHT, 0, 0, 1, 9, 0, 0))


ANIMATION = chunk(b"acTL", struct.pack(">2I", 2, 0)) + frame(0)
SECOND = frame(1) + chunk(b"fdAT", struct.pack(">I", 2) + zlib.compress(bytes((3 * WIDTH + 1) * HEIGHT)))


def bmp(pixel=bgr, bits=24, header=40, compression=0, down=False):
    lines = rows(pixel) if down else rows(pixel)[::-1]
    palette = b"".join(bgr(quarter) + b"\0" for quarter in range(4)).ljust(1024, b"\0") if bits == 8 else b""
    described = struct.pack("<IiiHHIIiiII", header, WIDTH, -HEIGHT if down else HEIGHT, 1, bits, compression,
                            0, 0, 0, 0, 0).ljust(header, b"\0")
    at = 14 + header + len(palette)
    return struct.pack("<2sIII", b"BM", 0, 0, at) + described + palette + b"".join(lines)


def tga(pixel=bgr, bits=24, kind=2, descriptor=0, width=WIDTH, colours=b""):
    lines = rows(pixel, width) if descriptor & 32 else rows(pixel, width)[::-1]
    return struct.pack("<3B2HB4H2B", 0, bool(colours), kind, 0, len(colours) // 3, 24 if colours else 0, 0, 0,
                       width, HEIGHT, bits, descriptor) + colours + b"".join(lines)


def turned(orientation):
    """The quarters as they are shown with an orientation."""
    return [COLOURS[q] for q in {3: (3, 2, 1, 0), 6: (2, 0, 3, 1), 8: (1, 3, 0, 2)}[orientation]]


# The rows of the README's table, with files of that kind: extension, content, and the quarters as
# they are shown; None if they are wrong.
KINDS = {
    "JPEG, also gray or progressive": [
        ("jpg", jpeg(), COLOURS), ("JPEG", jpeg(1, "-interlace", "JPEG"), COLOURS),
        ("jpg", magick("jpg", "-colorspace", "Gray", colours=GRAYS), GRAYS)],
    "JPEG with the Exif orientation 3, 6 or 8": [("jpg", jpeg(n), turned(n)) for n in (3, 6, 8)],
    "JPEG with a mirrored Exif orientation (2, 4, 5, 7)": [("jpg", jpeg(n), COLOURS) for n in (2, 4, 5, 7)],
    "JPEG that ends early": [("jpg", cut(magick("jpg", "-scale", "640x480")), COLOURS[:2] + BLACK)],
    "JPEG in CMYK": [("jpg", magick("jpg", "-colorspace", "CMYK"), COLOURS)],
    "PNG of any kind, also interlaced": [
        ("png", png(), COLOURS), ("png", magick("png", "-interlace", "PNG"), COLOURS),
        ("png", magick("png8"), COLOURS), ("png", magick("png48"), COLOURS),
        ("png", magick("png", "-colorspace", "Gray", colours=GRAYS), GRAYS)],
    "PNG with transparent parts": [("png", png(lambda quarter: rgb(quarter) + index(quarter), 6), COLOURS)],
    "PNG with an animation": [("png", png(before=ANIMATION, after=SECOND), COLOURS)],
    "PNG that ends early": [("png", cut(png()), COLOURS)],
    "Picture with a colour profile or a gamma value": [
        ("png", png(before=chunk(b"gAMA", struct.pack(">I", 100000))), COLOURS)],
    "BMP with 24 bits, or with a palette": [("bmp", bmp(), COLOURS), ("BMP", bmp(index, 8), COLOURS)],
    "BMP with 32 bits and the header of 40 bytes": [("bmp", bmp(bgra, 32), COLOURS)],
    "BMP with a palette and a longer header": [("bmp", bmp(index, 8, size), None) for size in (108, 124)],
    "BMP with 16 bits, a longer header at 32 bits, compression, or top-down rows": [
        ("bmp", bmp(bits15, 16), COLOURS), ("bmp", bmp(bgra, 32, 124), COLOURS),
        ("bmp", bmp(bgra, 32, 40, 3), COLOURS), ("bmp", bmp(down=True), COLOURS),
        ("bmp", magick("bmp3", "-colors", "4", "-type", "palette", "-compress", "RLE"), COLOURS)],
    "TGA with 16, 24 or 32 bits": [
        ("tga", tga(), COLOURS), ("TGA", tga(bgra, 32), COLOURS), ("tga", tga(bits15, 16), COLOURS),
        ("tga", tga(bgra, 32, width=63), COLOURS)],
    "TGA that is compressed, gray, top-down or has a palette": [
        ("tga", magick("tga", "-compress", "RLE"), COLOURS), ("tga", tga(index, 8, 3), COLOURS),
        ("tga", tga(descriptor=32), COLOURS),
        ("tga", tga(index, 8, 1, colours=b"".join(map(bgr, range(4)))), COLOURS)],
    "TGA whose rows are not a multiple of 4 bytes": [("tga", tga(width=63), COLOURS)],
    "Picture with the extension of another format": [
        ("jpg", png(), COLOURS), ("png", jpeg(), COLOURS), ("bmp", png(), COLOURS), ("tga", jpeg(), COLOURS)],
    "GIF, WebP, TIFF, HEIC, AVIF, raw and other formats": [
        (name, magick("gif"), COLOURS) for name in ("gif", "webp", "tiff", "heic", "avif", "dng", "jpe")],
}

STAND_INS = {
    "sudo": 'exec "$@"', "apt-get": "exit 0", "dpkg-query": "echo installed", "ctest": "exit 0",
    "cpack": '[ "$1" = --config ] && [ -e "$2" ]',
    "cmake": f'[ "$1" != --install ] || exec {os.environ["CMAKE"]} "$@"',
}


class Readme(ViewerTest):
    def setUp(self):
        super().setUp()
        self.new_screen()

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
        with Viewer("-frametype", "0", self.folder.name, errors=ANY) as viewer:
            shown = self.check_kinds(viewer, files)
        for name, (kind, _, expected) in list(files.items())[1:]:
            with self.subTest(kind, name=name):
                self.assertEqual("yes" if name in shown else "no", listed[kind])
                self.assertTrue(expected or shown[name] != list(COLOURS), "the colours are right")

    def make_tree(self):
        tree, home, stand_ins = (pathlib.Path(self.path(name)) for name in ("tree", "home", "stand-ins"))
        for folder in tree / "build" / "pictures", home / "Pictures", stand_ins:
            folder.mkdir(parents=True)
        for place in SOURCE.iterdir():
            if not place.name.startswith("build"):
                (tree / place.name).symlink_to(place)
        for place in BUILD.iterdir():
            if place.name not in ("pictures", "zanoview3.png") and not place.name.endswith(".log"):
                (tree / "build" / place.name).symlink_to(place)
        for folder in tree, tree / "build" / "pictures", home / "Pictures":
            (folder / "photo.jpg").write_bytes(jpeg())
        for name, text in STAND_INS.items():
            (stand_ins / name).write_text(f"#!/bin/sh\n{text}\n")
            (stand_ins / name).chmod(0o755)
        path = f"{stand_ins}:{home}/.local/bin:{os.environ['PATH']}"
        return tree, {"HOME": str(home), "PATH": path, "ASAN_OPTIONS": "detect_leaks=0"}

    def test_runs_the_commands(self):
        tree, settings = self.make_tree()
        without_screen = {name: text for name, text in os.environ.items() if "DISPLAY" not in name}
        commands = re.findall(r"^    (.+)$", README, re.M)
        self.assertIn("zanoview3 photo.jpg .", commands)
        for command in commands:
            with self.subTest(command):
                if command.startswith("zanoview3") and "-h" not in command.split():
                    with Viewer(command=("bash", "-c", command), cwd=tree, stream=subprocess.DEVNULL,
                                **settings) as viewer:
                        viewer.await_title("photo.jpg (1/")
                    continue
                screen = without_screen if command.startswith("scripts/run") else os.environ
                ended = subprocess.run(("bash", "-c", command), cwd=tree, env={**screen, **settings},
                                       capture_output=True, text=True, timeout=300)
                self.assertEqual(ended.returncode, 0, ended.stdout + ended.stderr)


if __name__ == "__main__":
    unittest.main(verbosity=2)
