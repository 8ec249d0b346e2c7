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


def program(header, code):
    """Returns a source file. An example without functions is the body of one."""
    includes = re.findall(r"^#include .*\n", code, re.M)
    code = re.sub(r"^#include .*\n", "", code, flags=re.M)
    if not FUNCTION.search(code):
        code = f"void example() {{\n{code}}}\n"
    return f'#include "{header}"\n{"".join(includes)}namespace example {{\n{code}}}\n'


class Examples(unittest.TestCase):
    def test_examples_compile(self):
        programs = [(header, program(header, code))
                    for header in sorted(path.relative_to(SOURCE) for path in SOURCE.glob("*/*.h"))
                    for _, code in code_blocks(comments((SOURCE / header).read_text()))]
        self.assertGreater(len(programs), 25)
        for header, text in programs:
            with self.subTest(header=str(header)):
                result = subprocess.run(COMPILE, input=text, text=True, capture_output=True)
                self.assertEqual(result.returncode, 0, f"{text}\n{result.stderr}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
