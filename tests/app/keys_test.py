#!/usr/bin/env python3
"""The README and the manual page list the keys of the key table in app/viewwindow_input.cpp.

keys_test.py SOURCE_TREE"""
import csv
import pathlib
import re
import sys
import unittest

SOURCE = pathlib.Path(sys.argv.pop())


def keys(names):
    """Splits names like "Home, End" and "w or Insert"."""
    return sorted(key for name in names for key in re.split(", | and | or ", name.strip()))


class Keys(unittest.TestCase):
    def setUp(self):
        table = (SOURCE / "app/viewwindow_input.cpp").read_text()
        rows = re.findall(r'^    \{"(.*?)", ', table, re.M)
        self.assertEqual(len(rows), int(re.search(r"array<.*key_row_t, (\d+)>", table)[1]))
        self.table = sorted(row.replace("\\\\", "\\") for row in rows if row)

    def test_documents_list_the_keys(self):
        section = (SOURCE / "README.md").read_text().partition("| Key |")[2].partition("\n\n")[0]
        cells = re.findall(r"^\| (.*?) \|", section, re.M)
        self.assertEqual(keys(cell.replace("\\\\", "\\") for cell in cells), self.table, "README.md")
        page = (SOURCE / "packaging/zanoview3.1").read_text()
        section = page.partition("\n.SH KEYS\n")[2].partition("\n.PP\n")[0]
        # The macro BR joins its arguments without blanks. Arguments with blanks are in quotes.
        headings = [words if fonts == "B" else "".join(next(csv.reader([words], delimiter=" ")))
                    for fonts, words in re.findall(r"\.TP\n\.(BR?) (.*)", section)]
        shown = {"Arrow keys": "arrows", "\\-": "-", "\\(rs": "\\"}
        self.assertEqual(sorted(shown.get(key, key) for key in keys(headings)), self.table, "manual")


if __name__ == "__main__":
    unittest.main(verbosity=2)
