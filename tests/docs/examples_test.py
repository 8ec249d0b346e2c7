#!/usr/bin/env python3
"""Compiles the examples in the comments of the headers."""
import os
import pathlib
import re
import subprocess
import unittest

from codeblocks import code_blocks, comments

SOURCE = pathlib.Path(__file__).resolve().parents[2]
COMPILE = (os.environ["CXX"], "-std=c++20", "-fsyntax-only", "-x", "c++", "-I", SOURCE, "-Wall", "-Wextra",
           "-Werror", "-Wno-unused-variable", "-Wno-unused-but-set-variable", "-")
FUNCTION = re.compile(r"^(?!if|for|while|switch|else|do\b)\w[\w:<>,&* ]*\([^;]*?\) \{$", re.M)


def part(header, number, code):
    """Returns a part of a source file. An example without functions is the body of one."""
    includes = re.findall(r"^#include .*\n", code, re.M)
    code = re.sub(r"^#include .*\n", "", code, flags=re.M)
    if not FUNCTION.search(code):
        code = f"void example() {{\n{code}}}\n"
    return (f'#include "{header}"\n{"".join(includes)}namespace example_{number} {{\n'
            f'#line 1 "an example of {header}"\n{code}}}\n')


class Examples(unittest.TestCase):
    def test_examples_compile(self):
        programs, number = {}, 0
        for header in sorted(path.relative_to(SOURCE) for path in SOURCE.glob("*/*.h")):
            for _, code in code_blocks(comments((SOURCE / header).read_text())):
                number += 1
                folder = header.parts[0]
                programs[folder] = programs.get(folder, "") + part(header, number, code)
        self.assertGreater(number, 25)
        self.assertGreater(len(programs), 9)
        for folder, text in programs.items():
            with self.subTest(folder=folder):
                result = subprocess.run(COMPILE, input=text, text=True, capture_output=True)
                self.assertEqual(result.returncode, 0, result.stderr)


if __name__ == "__main__":
    unittest.main(verbosity=2)
