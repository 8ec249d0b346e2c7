#!/usr/bin/env python3
"""The example program on real files."""
import os
import pathlib
import subprocess
import tempfile
import unittest

PICTURE = pathlib.Path("a.jpg")
TIFF = "4d4d002a00000008 0002 010f0002000000050000 0026 011200030000000100{:02x}0000 00000000 41021b4300"


def convert(words):
    return subprocess.run(["convert", *words.split()], check=True, capture_output=True).stdout


class JpegTool(unittest.TestCase):
    def setUp(self):
        os.chdir(self.enterContext(tempfile.TemporaryDirectory()))
        self.make_jpeg(6)

    def make_jpeg(self, orientation):
        made = convert("-size 64x48 gradient:red-blue -sampling-factor 2x2 jpg:-")
        exif = b"Exif\0\0" + bytes.fromhex(TIFF.format(orientation))
        PICTURE.write_bytes(made[:2] + b"\xff\xe1" + (len(exif) + 2).to_bytes(2, "big") + exif + made[2:])

    def run_tool(self, words, code=0, error=""):
        run = subprocess.run([os.environ["JPEGTOOL"]] + words.split(), capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr[-len(error):]), (code, error), words)
        return run.stdout

    def test_lists_segments_and_exif(self):
        words = " ".join(self.run_tool("list a.jpg").split())
        self.assertTrue(words.startswith("0 SOI 0 bytes 2 APP1 49 bytes make: A??C orientation: 6 "), words)
        self.assertTrue(words.endswith(f" {PICTURE.stat().st_size - 2} EOI 0 bytes"), words)

    def test_rotates_and_makes_pictures_upright(self):
        for orientation in 1, 2, 5, 6:
            self.make_jpeg(orientation)
            self.run_tool("upright a.jpg up.jpg")
            shown = [convert(f"{name} -auto-orient -strip rgb:-") for name in ("a.jpg", "up.jpg")]
            self.assertLess(max(abs(a - b) for a, b in zip(*shown)), 3, orientation)
        for words in "0 up.jpg a.jpg", "1 a.jpg a.jpg", "3 a.jpg a.jpg":
            self.run_tool("turn " + words)
        self.assertEqual(PICTURE.read_bytes(), pathlib.Path("up.jpg").read_bytes())

    def test_reports_failures(self):
        pathlib.Path("cut.jpg").write_bytes(PICTURE.read_bytes()[:-40])
        self.run_tool("list no.jpg", 1, "no.jpg: cannot be read\n")
        self.run_tool("list cut.jpg", 1, "cut.jpg: not a complete JPEG file\n")
        self.run_tool("turn 1 cut.jpg a.jpg", 1, "cut.jpg: not a complete JPEG file, nothing is written\n")
        self.run_tool("turn 1 a.jpg .", 1, ".: exists and is not a regular file\n")
        self.run_tool("turn 4 a.jpg a.jpg", 2, "comments are not.\n")


if __name__ == "__main__":
    unittest.main(verbosity=2)
