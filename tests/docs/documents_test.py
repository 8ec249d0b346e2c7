#!/usr/bin/env python3
"""Fails if a document names a file, a folder, a test or a link that does not exist."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
FOLDERS = "|".join(re.escape(path.name) for path in ROOT.iterdir()
                   if path.is_dir() and path.name != ".git" and not path.name.startswith("build"))
# In a path, capital letters are a placeholder: fuzz/fuzz_NAME.cpp.
PATH = re.compile(rf"(?<![\w./$*-])(?:{FOLDERS})/[\w./*-]*")
TEST = re.compile(r"`([A-Z]\w+)\.(test_\w+|[A-Z]\w+)`")

sources = "".join(path.read_text() for pattern in ("*.cpp", "*.py")
                  for path in (ROOT / "tests").rglob(pattern))
faults = []
for document in [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")]:
    text = document.read_text()
    for span in re.findall(r"`[^`\n]+`", re.sub(r"```.*?```", "", text, flags=re.S)):
        for name in PATH.findall(span):
            if not list(ROOT.glob(re.sub(r"\b[A-Z]+\b|(?<=_)[A-Z]+", "*", name.rstrip("./")))):
                faults.append(f"{document.name}: there is no {name}")
    for link in re.findall(r"\]\(([^)#:]+)\)", text):
        if not (document.parent / link).exists():
            faults.append(f"{document.name}: there is no {link}")
    for suite, case in TEST.findall(text):
        if not re.search(rf"\({suite}, {case}\)|^class {suite}\b(?:(?!^class ).)*?^    def {case}\(",
                         sources, re.M | re.S):
            faults.append(f"{document.name}: there is no test {suite}.{case}")
libraries = (ROOT / "packaging/libraries.cmake").read_text()
for name in re.search(r"foreach\(header (.*?)\)", libraries, re.S)[1].split():
    if not list(ROOT.glob(f"*/{name}")):
        faults.append(f"packaging/libraries.cmake: there is no header {name}")
print("\n".join(faults) or "everything that the documents name exists")
sys.exit(bool(faults))
