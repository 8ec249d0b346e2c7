#!/usr/bin/env python3
"""Fails if a library includes a header of a higher one, or a file a foreign header it must not use."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
BELOW = {"utils": "", "geometry": "utils", "image": "geometry", "metadata": "image",
         "codecs": "metadata", "glext": "", "gl": "image glext", "options": "geometry",
         "window": "", "scene": "gl codecs options", "app": "scene window"}
FOREIGN = {"GLFW/": r"(window|app)/\w+\.cpp", "jpeglib.h": r"codecs/\w*(jpeg|transform)\w*\.(cpp|h)",
           "jerror.h": r"codecs/\w*(jpeg|transform)\w*\.cpp", "png.h": r"codecs/png\w*\.cpp",
           "GL/glu.h": r"gl/glucalls\.cpp", "GL/gl": r"$^"}


def reachable(folder):
    found = {folder}
    for lower in BELOW[folder].split():
        found |= reachable(lower)
    return found


faults = []
for folder in BELOW:
    allowed = reachable(folder)
    for path in sorted((ROOT / folder).glob("*.[ch]*")):
        name = f"{folder}/{path.name}"
        for line in path.read_text().splitlines():
            if own := re.match(r'#include "(\w+)/', line):
                if own[1] not in allowed:
                    faults.append(f"{name} includes upward: {line}")
            elif other := re.match(r"#include <([^>]+)>", line):
                home = next((FOREIGN[f] for f in FOREIGN if other[1].startswith(f)), None)
                if home and not re.fullmatch(home, name):
                    faults.append(f"{name} includes a foreign header: {line}")
print("\n".join(faults) or "every include is allowed")
sys.exit(bool(faults))
