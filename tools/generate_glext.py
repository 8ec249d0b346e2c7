#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes glext/*.gen.h and glext/*.gen.cpp from the installed OpenGL headers and two lists of names.

Types, enumerants and prototypes are read from GL/gl.h, GL/glext.h and GL/glcorearb.h (Debian:
libgl-dev). glext/core_names.txt lists the entry points of OpenGL 1.1, glext/extension_names.txt the
extensions and core versions that gl_extloader_init loads, both in the order of loading.

    tools/generate_glext.py            writes the files
    tools/generate_glext.py --check    compares them with the committed files; exits with 1 if they
                                       differ, with 77 if the headers have another version
"""

import argparse
import filecmp
import re
import sys
import tempfile
from pathlib import Path

GLEXT = Path(__file__).resolve().parent.parent / "glext"

# Entry points of later versions that the program calls by their core names. gl_extloader_init
# resolves them after the entry points of OpenGL 1.1.
ADDITIONAL = ("glActiveTexture", "glGenerateMipmap", "glGetStringi", "glMultiTexCoord3f")

# Core versions whose entry points stay unresolved. Callers use the functions of the extensions.
UNRESOLVED_VERSIONS = {"GL_VERSION_" + v for v in
                       "1_2 1_3 1_4 1_5 2_0 2_1 3_0 3_1 3_2 3_3 4_0 4_1".split()}

# Has a flag and an init function, but gl_extloader_init doesn't load it.
UNLOADED = "GL_VERSION_1_0"

KHRONOS_TYPES = {"khronos_int8_t": "std::int8_t", "khronos_uint8_t": "std::uint8_t",
                 "khronos_int16_t": "std::int16_t", "khronos_uint16_t": "std::uint16_t",
                 "khronos_int32_t": "std::int32_t", "khronos_uint32_t": "std::uint32_t",
                 "khronos_int64_t": "std::int64_t", "khronos_uint64_t": "std::uint64_t",
                 "khronos_intptr_t": "std::intptr_t", "khronos_ssize_t": "std::ptrdiff_t",
                 "khronos_float_t": "float"}

BLOCK = re.compile(r"^#ifndef (GL_\w+)\n#define \1 1\n(.*?)^#endif /\* \1 \*/", re.M | re.S)
PROTOTYPE = re.compile(r"^GLAPI\s+(.*?)\s*(?:GL)?APIENTRY\s+(gl\w+)\s*\((.*?)\)\s*;", re.M | re.S)
TYPE = re.compile(r"#ifdef __APPLE__\ntypedef.*?#endif|"
                  r"^(?:typedef|struct) [^;]*?(\w+)(?:\)\([^;]*\))?;", re.M | re.S)
DEFINE = re.compile(r"^#define\s+(GL_\w+)\s+(-?\w+)\s*$", re.M)


def squeeze(text):
    """Returns the text with single blanks, and with stars next to the name that follows."""
    text = re.sub(r"\s+", " ", text).strip()
    return re.sub(r"(?<=\w)\*(?=\w)", " *", re.sub(r"\*\s+(?=\w)", "*", text))


class Headers:
    """The declarations of the installed headers, in their order."""

    def __init__(self, folder):
        self.glext = (folder / "glext.h").read_text()
        comments = re.compile(r"/\*.*?\*/", re.S)
        self.gl = comments.sub("", (folder / "gl.h").read_text())
        both = self.gl + self.glext
        self.version = re.search(r"#define GL_GLEXT_VERSION (\d+)", self.glext)[1]
        self.prototypes = {}
        for result, name, parameters in PROTOTYPE.findall(both):
            self.prototypes.setdefault(name, (squeeze(result), squeeze(parameters)))
        self.members = {name: [p[1] for p in PROTOTYPE.findall(body)]
                        for name, body in BLOCK.findall(self.glext)}
        core = dict(BLOCK.findall((folder / "glcorearb.h").read_text()))
        self.members[UNLOADED] = [p[1] for p in PROTOTYPE.findall(core[UNLOADED])]
        for name in UNRESOLVED_VERSIONS:
            self.members[name] = []
        self.types = self.read_types(both)
        self.enumerants = self.read_enumerants(both)

    @staticmethod
    def read_types(text):
        types = {}
        for match in TYPE.finditer(text):
            name = match[1] or match[0]
            if "APIENTRYP" in match[0]:
                continue
            line = match[0] if "\n" in match[0] else squeeze(match[0])
            line = re.sub(r"\(APIENTRY \*", "(*", line).replace(",const", ", const")
            line = re.sub(r",(?=\w)", ", ", line)
            types.setdefault(name, re.sub(r"khronos_\w+", lambda m: KHRONOS_TYPES[m[0]], line))
        return list(types.values())

    @staticmethod
    def read_enumerants(text):
        markers = set(re.findall(r"^#(?:ifndef|define) (GL_\w+)\n#define \1 1$", text, re.M))
        markers |= set(re.findall(r"^#define (GL_(?:VERSION_\d_\d|ARB_imaging))\s+1$", text, re.M))
        markers |= set(re.findall(r"^#ifndef (GL_\w+)$", text, re.M)) | {"GL_GLEXT_VERSION"}
        enumerants = {}
        for name, value in DEFINE.findall(text):
            if name in markers:
                continue
            first = enumerants.setdefault(name, value)
            if int(first.rstrip("ul"), 0) != int(value.rstrip("ul"), 0):
                sys.exit(f"{name} is {first} and {value}")
        return enumerants


def pointer_type(name):
    return f"PFN{name.upper()}PROC"


def resolve(name):
    return (f"    {name} = reinterpret_cast<{pointer_type(name)}>"
            f"(__gl_GetProcAddress(\"{name}\"));\n")


def file_text(purpose, version, body, include=None):
    head = (f"// SPDX-License-Identifier: MIT\n// {purpose}\n"
            f"// Generated by tools/generate_glext.py from OpenGL headers of {version}. Don't edit.\n"
            "// clang-format off\n\n")
    return head + (f"#include \"{include}\"\n\n" if include else "#pragma once\n\n") + body


def function(name, statements):
    return f"\nvoid {name}() {{\n{''.join(statements)}}}\n" if statements else \
        f"\nvoid {name}() {{}}\n"


def source_of(name):
    """Returns the part of the name of the source file for an extension."""
    group = name.split("_")[1]
    return {"VERSION": "core", "ARB": "arb", "EXT": "ext", "NV": "nv", "NVX": "nv"}.get(
        group, "vendor")


def generate(headers, core, names):
    """Returns a dictionary of file names and texts."""
    members = {name: headers.members[name] for name in (UNLOADED, *names)}
    owner = {f: "core" for f in (*core, *ADDITIONAL)}
    for name, functions in members.items():
        for f in functions:
            owner.setdefault(f, source_of(name))

    hidden = "#pragma GCC visibility push(hidden)\n\n", "\n#pragma GCC visibility pop\n"
    pointers = "".join(
        f"typedef {headers.prototypes[f][0]} (*{pointer_type(f)})({headers.prototypes[f][1]});\n"
        f"extern {pointer_type(f)} {f};\n" for f in owner)
    flags = "".join(f"extern std::int32_t is_{n}_supported;\n" for n in members)
    inits = "".join(f"void init_{n}();\n" for n in members)
    calls = [f"    if (isExtensionSupported(\"{n}\")) {{\n        is_{n}_supported = 1;\n"
             f"        init_{n}();\n    }}\n" for n in names]

    def text(purpose, body, include="glext/glextloader.h"):
        return file_text(purpose, headers.version, body, include)

    files = {
        "gltypes.gen.h": text("OpenGL's types.",
                              "#include <cstddef>\n#include <cstdint>\n\n" +
                              "\n".join(headers.types) + "\n", None),
        "glenums.gen.h": text("The enumerants of OpenGL and its extensions.", "".join(
            f"#define {n} {f'({v})' if v[0] == '-' else v}\n"
            for n, v in headers.enumerants.items()), None),
        "glfunctions.gen.h": text("OpenGL's entry points, null until they are resolved.",
                                  "#include \"glext/gltypes.gen.h\"\n\n" +
                                  hidden[0] + pointers + hidden[1], None),
        "glextensions.gen.h": text("The flag and the init function of each extension.",
                                   "#include <cstdint>\n\n" + hidden[0] + flags + "\n" + inits +
                                   hidden[1], None),
        "glsupported.gen.cpp": text("The search for all extensions.", function(
            "init_supported_extensions", calls).lstrip()),
    }
    for part in ("core", "arb", "ext", "nv", "vendor"):
        own = [n for n in members if source_of(n) == part]
        body = "".join(f"{pointer_type(f)} {f} = nullptr;\n" for f in owner if owner[f] == part)
        body += "\n" + "".join(f"std::int32_t is_{n}_supported = 0;\n" for n in own)
        if part == "core":
            body += function("AGL_init", map(resolve, core))
            body += function("AGL_init_additional", map(resolve, ADDITIONAL))
        body += "".join(function(f"init_{n}", [resolve(f) for f in members[n]]) for n in own)
        files[f"gl{part}.gen.cpp"] = text(
            f"The entry points, flags and init functions of one group: {part}.", body)
    return files


def write(files, folder):
    for name, text in files.items():
        (folder / name).write_text(text)


def check(files, version):
    """Compares the committed files with newly generated ones. Returns the exit status."""
    committed = {p.name for p in GLEXT.glob("*.gen.*")}
    used = re.search(r"headers of (\d+)", (GLEXT / "gltypes.gen.h").read_text())[1]
    if used != version:
        print(f"not compared: the files need headers of {used}, {version} is installed")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        write(files, Path(folder))
        same, _, _ = filecmp.cmpfiles(folder, GLEXT, files, shallow=False)
    wrong = (committed | set(files)) - set(same)
    for name in sorted(wrong):
        print(f"glext/{name} differs from the generator's output")
    return 1 if wrong else 0


def main():
    parser = argparse.ArgumentParser(description="Writes or checks the generated files in glext/.")
    parser.add_argument("--check", action="store_true", help="compare with the committed files")
    parser.add_argument("--headers", type=Path, default=Path("/usr/include/GL"),
                        help="folder of gl.h, glext.h and glcorearb.h")
    arguments = parser.parse_args()
    if not (arguments.headers / "glext.h").exists():
        print(f"no OpenGL headers in {arguments.headers}")
        return 77
    headers = Headers(arguments.headers)
    core = (GLEXT / "core_names.txt").read_text().split()
    names = (GLEXT / "extension_names.txt").read_text().split()
    files = generate(headers, core, names)
    if arguments.check:
        return check(files, headers.version)
    write(files, GLEXT)
    return 0


if __name__ == "__main__":
    sys.exit(main())
