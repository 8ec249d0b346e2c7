#!/usr/bin/env python3
"""Compiles the examples in the comments of the headers."""
import concurrent.futures
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
    """Returns a source file with the example, which is the body of a function unless it defines
    functions."""
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
        folders = {header.parts[0] for header, _ in programs}
        self.assertLessEqual({"codecs", "geometry", "gl", "glext", "image", "metadata", "options", "scene", "utils",
                              "window"}, folders)
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            results = pool.map(lambda source: subprocess.run(COMPILE, input=source[1], text=True,
                                                             capture_output=True), programs)
        for (header, text), result in zip(programs, results):
            with self.subTest(header=str(header)):
                self.assertEqual(result.returncode, 0, f"{text}\n{result.stderr}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
