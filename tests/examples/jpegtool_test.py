#!/usr/bin/env python3
"""The example program on real files."""
import os
import re
import subprocess
import tempfile
import unittest

TIFF = "4d4d002a00000008 0002 010f0002000000050000 0026 011200030000000100{:02x}0000 00000000 41021b4300"


def make_jpeg(name, orientation=1):
    """Writes a picture whose Exif block is its first segment."""
    made = subprocess.run("convert -size 64x48 gradient:red-blue -sampling-factor 2x2 jpg:-".split(), check=True,
                          capture_output=True).stdout
    exif = b"Exif\0\0" + bytes.fromhex(TIFF.format(orientation))
    with open(name, "wb") as out:
        out.write(made[:2] + b"\xff\xe1" + (len(exif) + 2).to_bytes(2, "big") + exif + made[2:])


def read(name):
    with open(name, "rb") as file:
        return file.read()


class JpegTool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)

    def run_tool(self, words, code=0, error=""):
        run = subprocess.run([os.environ["JPEGTOOL"]] + words.split(), capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr[-len(error):] if error else run.stderr), (code, error), words)
        return run.stdout

    def test_lists_segments_and_exif(self):
        make_jpeg("a.jpg", orientation=6)
        listed = self.run_tool("list a.jpg")
        self.assertTrue(listed.startswith("        0  SOI        0 bytes\n        2  APP1      49 bytes\n"
                                          "make: A??C\norientation: 6\n"), listed)
        self.assertEqual(re.findall(r"^ +\d+  (\w+)", listed, re.M)[-2:], ["SOS", "EOI"])
        self.assertIn("lines: 48, samples: 64", listed)

    def test_rotates_in_place_and_makes_pictures_upright(self):
        for orientation in 1, 2, 5, 6:
            make_jpeg("a.jpg", orientation)
            self.run_tool("upright a.jpg up.jpg")
            shown = [subprocess.run(f"convert {name} -auto-orient -strip rgb:-".split(), check=True,
                                    capture_output=True).stdout for name in ("a.jpg", "up.jpg")]
            self.assertLess(max(abs(a - b) for a, b in zip(*shown)), 3, orientation)
        self.run_tool("turn 0 a.jpg a.jpg")
        before = read("a.jpg")
        for turns in 1, 3:
            self.run_tool(f"turn {turns} a.jpg a.jpg")
        self.assertEqual(read("a.jpg"), before)

    def test_reports_failures_and_keeps_files(self):
        make_jpeg("a.jpg")
        with open("cut.jpg", "wb") as cut:
            cut.write(read("a.jpg")[:-40])
        os.mkdir("folder")
        self.run_tool("list no.jpg", 1, "no.jpg: cannot be read\n")
        self.run_tool("list cut.jpg", 1, "cut.jpg: not a complete JPEG file\n")
        self.run_tool("turn 1 cut.jpg out.jpg", 1, "cut.jpg: not a complete JPEG file, nothing is written\n")
        self.run_tool("turn 1 a.jpg folder", 1, "folder: exists and is not a regular file\n")
        self.run_tool("turn 1 a.jpg no/out.jpg", 1, "no/out.jpg: cannot be written\n")
        self.run_tool("turn 4 a.jpg out.jpg", 2, "comments are not.\n")
        self.assertEqual(sorted(os.listdir()), ["a.jpg", "cut.jpg", "folder"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
