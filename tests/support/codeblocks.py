"""Reads the C++ examples in documents and in the comments of headers."""
import re


def code_blocks(text):
    """Returns the ```cpp blocks of a document as pairs of the last heading before a block and its
    code."""
    heading, blocks = "", []
    for found in re.finditer(r"^## ([^\n]*)|^```cpp\n(.*?)^```", text, re.M | re.S):
        heading = found[1] or heading
        if found[2]:
            blocks.append((heading, found[2]))
    return blocks


def comments(text):
    """Returns the text of the // and /// comments that have lines of their own."""
    return "".join(line + "\n" for line in re.findall(r"^ *///? ?(.*)$", text, re.M))
