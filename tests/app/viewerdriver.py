"""Drives the viewer as a user does: a real window, real keys and buttons, looks at the screen."""
import os
import re
import struct
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ.get("ZANOVIEW3", "build/zanoview3")
GRAY = bytes((46, 46, 46))


def wait_for(what, condition, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if result := condition():
            return result
        time.sleep(0.02)
    raise AssertionError(f"waited {seconds} s for {what}")


def xdotool(*words):
    return subprocess.run(("xdotool",) + tuple(map(str, words)), check=True, text=True,
                          capture_output=True).stdout.strip()


def write_bmp(path, width, height, bits, pixel, lead=0):
    """Writes a BMP and returns its pixels as RGB bytes, top row first. `pixel(x, y)`, counted from
    the top left corner, is a palette index below 2**bits for up to 8 bits, else (r, g, b)."""
    palette = [(i * 67 % 256, i * 131 % 256, (255 - i) * 29 % 256) for i in range(1 << bits)] if bits <= 8 else []
    stride = (width * bits + 31) // 32 * 4
    offset = 54 + 4 * len(palette) + lead
    shown, rows = [], []
    for y in range(height):
        values = [pixel(x, y) for x in range(width)]
        shown.append(b"".join(bytes(palette[v] if bits <= 8 else v) for v in values))
        if bits > 8:
            row = b"".join(bytes((b, g, r)) + b"\xff" * (bits == 32) for r, g, b in values)
        else:
            packed = int("".join(format(v, f"0{bits}b") for v in values), 2) << (-width * bits % 8)
            row = packed.to_bytes((width * bits + 7) // 8, "big")
        rows.append(row.ljust(stride, b"\0"))
    with open(path, "wb") as out:
        out.write(struct.pack("<2sIHHI", b"BM", offset + stride * height, 0, 0, offset))
        out.write(struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, 0, 0, 0, 0, 0))
        out.write(b"".join(bytes((b, g, r, 0)) for r, g, b in palette) + b"\0" * lead)
        out.write(b"".join(reversed(rows)))
    return b"".join(shown)


class Viewer:
    """The program on the screen; `with` closes it and looks at how it ended."""

    def __init__(self, *arguments, env=None, cwd=None, expect=0):
        self.expect = expect
        self.home = tempfile.TemporaryDirectory()
        self.process = subprocess.Popen(
            (PROGRAM,) + arguments, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
            env={**os.environ, "LANG": "C.UTF-8", "HOME": self.home.name,
                 "ASAN_OPTIONS": "detect_leaks=1:exitcode=0", **(env or {})})
        search = ("search", "--onlyvisible", "--pid", self.process.pid)
        self.window = wait_for("the window", lambda: self.search(search))
        xdotool("windowfocus", "--sync", self.window)

    def search(self, words):
        assert self.process.poll() is None, "the program ended: " + self.end()[1]
        found = subprocess.run(("xdotool",) + tuple(map(str, words)), text=True, capture_output=True)
        return found.stdout.split()[0] if found.stdout.split() else None

    def __enter__(self):
        return self

    def __exit__(self, kind, value, trace):
        if self.process.poll() is None:
            self.key("q")
        try:
            self.output, self.errors = self.end()
        finally:
            self.process.kill()
            self.home.cleanup()
        if kind is None:
            assert self.process.returncode == self.expect, f"ended with {self.process.returncode}: {self.errors}"
            assert "Error " not in self.errors, "an OpenGL error: " + self.errors

    def end(self):
        """Standard output and error stream. What a sanitizer says is a fault, but for leaks in which
        nothing of ours takes part: the GL driver has some, and is unloaded when they are counted."""
        output, errors = (text.decode() for text in self.process.communicate(timeout=30))
        errors, _, report = errors.partition("\n====")
        ours = [name for name in ("libgr::", "zanolib::", "zanoview2::", "wenk::", "libutils::", "main.cpp")
                if name in report]
        assert not ours and "ERROR: AddressSanitizer" not in report and "runtime error" not in errors, errors + report
        return output, errors

    def key(self, *names):
        for name in names:
            xdotool("key", name)
            time.sleep(0.03)

    def title(self):
        return xdotool("getwindowname", self.window)

    def await_title(self, text):
        wait_for(f"{text!r} in the title, which is {self.title()!r}", lambda: text in self.title())

    def look(self):
        """What stands in the window: width, height, RGB bytes."""
        data = subprocess.run(("import", "-window", self.window, "-depth", "8", "ppm:-"), check=True,
                              capture_output=True).stdout
        head = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
        return int(head[1]), int(head[2]), data[head.end():]

    def box(self):
        """The bounds of all that is not background: left, top, right, bottom, inclusive; or None."""
        width, height, data = self.look()
        blank = GRAY * width
        rows = [y for y in range(height) if data[y * width * 3:(y + 1) * width * 3] != blank]
        if not rows or data == bytes(len(data)):
            return None
        left, right = width, -1
        for y in rows:
            row = data[y * width * 3:(y + 1) * width * 3]
            columns = [x for x in range(width) if row[3 * x:3 * x + 3] != GRAY]
            left, right = min(left, columns[0]), max(right, columns[-1])
        return left, rows[0], right, rows[-1]

    def await_box(self, *bounds, slack=0):
        last = []

        def fits():
            last[:] = [self.box()]
            return last[0] and all(abs(a - b) <= slack for a, b in zip(last[0], bounds))
        try:
            wait_for("bounds", fits, 10)
        except AssertionError:
            raise AssertionError(f"the picture stands at {last[0]}, not at {bounds}") from None


def part(shot, left, top, width, height):
    """A rectangle of a look."""
    full, _, data = shot
    return b"".join(data[((top + y) * full + left) * 3:((top + y) * full + left + width) * 3]
                    for y in range(height))


class ViewerTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def start(self, *words, **options):
        """A program that runs until the test ends."""
        process = subprocess.Popen(words, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)

    def new_screen(self):
        """A virtual screen of the test's own: a window manager leaves traces on the one it was on."""
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-noreset",
                   pass_fds=(writing,))
        former = os.environ["DISPLAY"]
        self.addCleanup(os.environ.update, DISPLAY=former)
        os.close(writing)
        with open(reading) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()

    def path(self, name):
        return os.path.join(self.folder.name, name)
