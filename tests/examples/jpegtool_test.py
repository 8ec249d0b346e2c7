#!/usr/bin/env python3
"""The example program as its user meets it."""
import os
import re
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["JPEGTOOL"]
TIFF = "4d4d002a00000008 0002 010f0002000000050000 0026 011200030000000100{:02x}0000 00000000 41021b4300"


class JpegTool(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)

    def make(self, name, size="64x48", orientation=1):
        """A picture whose Exif block is its first segment."""
        made = subprocess.run(("convert", "-size", size, "gradient:red-blue", "-sampling-factor", "2x2", "jpg:-"),
                              check=True, capture_output=True).stdout
        exif = b"Exif\0\0" + bytes.fromhex(TIFF.format(orientation))
        with open(name, "wb") as out:
            out.write(made[:2] + b"\xff\xe1" + (len(exif) + 2).to_bytes(2, "big") + exif + made[2:])

    def run_tool(self, *words):
        run = subprocess.run((PROGRAM,) + words, capture_output=True, text=True)
        return run.returncode, run.stdout, run.stderr

    def test_lists_segments_and_exif(self):
        self.make("a.jpg", orientation=6)
        code, listed, errors = self.run_tool("list", "a.jpg")
        self.assertEqual((code, errors), (0, ""))
        self.assertTrue(listed.startswith("        0  SOI        0 bytes\n        2  APP1      49 bytes\n"
                                          "make: A??C\norientation: 6\n"), listed)
        names = re.findall(r"^ +\d+  (\w+)", listed, re.M)
        self.assertEqual((names[-2:], "lines: 48, samples: 64" in listed), (["SOS", "EOI"], True))

    def test_turns_in_place_and_stands_pictures_upright(self):
        for orientation in 1, 2, 5, 6:
            self.make("a.jpg", orientation=orientation)
            self.assertEqual(self.run_tool("upright", "a.jpg", "up.jpg"), (0, "", ""))
            shown = [subprocess.run(("convert", name, "-auto-orient", "-strip", "rgb:-"), check=True,
                                    capture_output=True).stdout for name in ("a.jpg", "up.jpg")]
            self.assertLess(max(abs(a - b) for a, b in zip(*shown)), 3, orientation)
        self.assertEqual(self.run_tool("turn", "0", "a.jpg", "a.jpg"), (0, "", ""))
        with open("a.jpg", "rb") as before:
            bytes_before = before.read()
        for turns in "1", "3":
            self.assertEqual(self.run_tool("turn", turns, "a.jpg", "a.jpg"), (0, "", ""))
        with open("a.jpg", "rb") as after:
            self.assertEqual(after.read(), bytes_before)

    def test_says_what_is_wrong_and_keeps_files(self):
        self.make("a.jpg")
        with open("a.jpg", "rb") as whole, open("cut.jpg", "wb") as cut:
            cut.write(whole.read()[:-40])
        os.mkdir("folder")
        for words, error in ((("list", "no.jpg"), "no.jpg: can't be read\n"),
                             (("list", "cut.jpg"), "cut.jpg: not a whole JPEG file\n"),
                             (("turn", "1", "cut.jpg", "out.jpg"), "cut.jpg: not a whole JPEG file, nothing is written\n"),
                             (("turn", "1", "a.jpg", "folder"), "folder: is there already, and isn't a file that can be replaced\n"),
                             (("turn", "1", "a.jpg", "no/out.jpg"), "no/out.jpg: can't be written\n")):
            code, _, errors = self.run_tool(*words)
            self.assertEqual((code, errors[-len(error):]), (1, error))
        self.assertEqual(self.run_tool("turn", "4", "a.jpg", "out.jpg")[0], 2)
        self.assertEqual(sorted(os.listdir()), ["a.jpg", "cut.jpg", "folder"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
