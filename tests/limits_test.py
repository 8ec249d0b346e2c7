#!/usr/bin/env python3
"""Fails when the table in docs/limits.md differs from the limits in utils/limits.h."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
header = (ROOT / "utils/limits.h").read_text()
rows = re.findall(r'constexpr limit_t \w+\{"([^"]+)",\s+(\d+),\s+"([^"]+)"\};', header)
coded = [f"`{name}` | {value} {unit}" for name, value, unit in rows]
listed = re.findall(r"^\| (`[^|]+\| [^|]+) \|", (ROOT / "docs/limits.md").read_text(), re.M)
differing = [f"{side}: {row}" for row, side in
             [(row, "only in utils/limits.h") for row in coded if row not in listed] +
             [(row, "only in docs/limits.md") for row in listed if row not in coded]]
print("\n".join(differing) or f"{len(coded)} limits are documented")
sys.exit(bool(differing) or len(rows) != header.count("constexpr limit_t"))
