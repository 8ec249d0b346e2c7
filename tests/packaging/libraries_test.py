#!/usr/bin/env python3
"""The installed libraries, as a program outside the source tree uses them."""
import os
import pathlib
import subprocess
import unittest

from codeblocks import code_blocks
from installed import BUILD, SOURCE, VERSION, PackagingTest, run

LIBRARIES = "utils geometry image metadata codecs glext gl options window scene".split()
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(outside CXX)
find_package(glfw3 REQUIRED)
find_package(zanoview3 3.0 REQUIRED COMPONENTS {})
"""
TARGET = "add_executable({0} {1})\ntarget_link_libraries({0} PRIVATE {2})\n"


def snippets():
    """The programs of docs/libraries.md by their headings."""
    return {heading.split()[0].lower(): code
            for heading, code in code_blocks((SOURCE / "docs/libraries.md").read_text())}


class Libraries(PackagingTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.prefix = cls.shared / "prefix"
        run("cmake", "--install", BUILD, "--prefix", cls.prefix, "--component", "dev")

    def configure(self, targets="", components=LIBRARIES, **environment):
        """Configures a project with these targets in the test's folder."""
        (self.folder / "CMakeLists.txt").write_text(PROJECT.format(" ".join(components)) + targets)
        return subprocess.run(
            ("cmake", "-G", "Ninja", "-S", self.folder, "-B", self.folder / "out",
             f"-DCMAKE_PREFIX_PATH={self.prefix}", "-DCMAKE_BUILD_TYPE=Debug",
             "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror"),
            env={**os.environ, **environment}, capture_output=True, text=True)

    def test_programs_outside_the_tree(self):
        """jpegtool, the programs of the document, and a program that includes all headers."""
        targets = TARGET.format("jpegtool", SOURCE / "examples/jpegtool.cpp", "zanoview3::codecs")
        programs = snippets() | {"headers": "int main() {}\n"}
        for library in LIBRARIES:
            for header in sorted(self.prefix.glob(f"include/zanoview3/{library}/*.h")):
                programs["headers"] = f'#include "{library}/{header.name}"\n' + programs["headers"]
        for name, code in programs.items():
            links = " ".join(f"zanoview3::{library}" for library in LIBRARIES
                             if f'#include "{library}/' in code) + " glfw" * ("GLFW/" in code)
            (self.folder / f"{name}.cpp").write_text(code)
            targets += TARGET.format(name, f"{name}.cpp", links)
        configured = self.configure(targets)
        self.assertEqual(configured.returncode, 0, configured.stderr)
        run("cmake", "--build", self.folder / "out")
        folder, picture, turned = self.folder / "out", self.folder / "a.jpg", self.folder / "turned.jpg"
        run("convert", "-size", "64x32", "gradient:red-blue", "jpg:" + str(picture))
        plain = picture.read_bytes()
        block = b"Exif\0\0" + bytes.fromhex("4d4d002a00000008 0002 010f0002000000050000 0026"
                                           "011200030000000100060000 00000000 41434d4500")
        picture.write_bytes(plain[:2] + b"\xff\xe1" + (len(block) + 2).to_bytes(2, "big") + block + plain[2:])
        self.assertEqual(run(folder / "load", picture),
                         "64 x 32 pixels of IMAGE_FORMAT_RGB, 1 quarter turns from upright\n")
        self.assertEqual(run(folder / "read", picture), "taken with ACME\n")
        self.assertIn("ACME", run(folder / "jpegtool", "list", picture))
        run(folder / "rotate", picture, turned)
        self.assertEqual(run("identify", "-format", "%wx%h", turned), "32x64")
        self.new_screen()
        self.assertEqual(run(folder / "upload", picture), "a texture of width 64\n")

    def test_components_need_no_more_than_they_use(self):
        """Without the pkg-config files of GLFW and GLU."""
        some = self.folder / "pc"
        some.mkdir()
        found = pathlib.Path(run("pkg-config", "--variable=pcfiledir", "libpng").strip())
        for name in "libpng.pc", "zlib.pc":
            (some / name).symlink_to(found / name)
        for components, error in (("codecs",), None), (("codecs", "window"), "window needs glfw3"), \
                (("gl",), "gl needs glu"), (("paint",), "There is no component paint"):
            ended = self.configure("", components, PKG_CONFIG_LIBDIR=str(some))
            self.assertEqual(ended.returncode != 0, bool(error), ended.stderr)
            self.assertIn(error or "", " ".join(ended.stderr.split()))

    def test_pkg_config(self):
        places = os.environ | {"PKG_CONFIG_PATH": str(next(self.prefix.rglob("zanoview3.pc")).parent)}
        (self.folder / "load.cpp").write_text(snippets()["load"])
        for package in "zanoview3-codecs", "zanoview3":
            words = run("pkg-config", "--cflags", "--libs", package, env=places).split()
            run("g++", "-std=c++20", self.folder / "load.cpp", *words, "-o", self.folder / "load")
            self.assertEqual(package == "zanoview3", "-lglfw" in words)
        self.assertEqual(run("pkg-config", "--modversion", "zanoview3", env=places), VERSION + "\n")


if __name__ == "__main__":
    unittest.main(verbosity=2)
