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


def run(*words, check=True):
    """Standard output, as bytes."""
    return subprocess.run(tuple(map(str, words)), check=check, capture_output=True).stdout


def xdotool(*words, check=True):
    return run("xdotool", *words, check=check).decode().strip()


def bmp_headers(width, height, bits, colours=0):
    return struct.pack("<2s13I", b"BM", 0, 0, 54 + 4 * colours, 40, width, height, 1 | bits << 16,
                       0, 0, 0, 0, 0, 0)


def write_bmp(path, width, height, bits, pixel):
    """Writes a BMP and returns its pixels as RGB bytes, top row first. `pixel(x, y)`, counted from
    the top left corner, is a palette index below 2**bits for up to 8 bits, else (r, g, b)."""
    colours = 1 << bits if bits <= 8 else 0
    palette = [(i * 67 % 256, i * 131 % 256, (255 - i) * 29 % 256) for i in range(colours)]
    stride = (width * bits + 31) // 32 * 4
    shown, rows = [], []
    for y in range(height):
        values = [pixel(x, y) for x in range(width)]
        shown += [bytes(palette[v] if palette else v) for v in values]
        if not palette:
            values = [int.from_bytes((*v[::-1], 255)[:bits // 8], "big") for v in values]
        digits = "".join(format(v, f"0{bits}b") for v in values).ljust(8 * stride, "0")
        rows.append(int(digits, 2).to_bytes(stride, "big"))
    with open(path, "wb") as out:
        out.write(bmp_headers(width, height, bits, colours))
        out.write(b"".join(bytes((b, g, r, 0)) for r, g, b in palette))
        out.write(b"".join(reversed(rows)))
    return b"".join(shown)


class Viewer:
    """The program on the screen. `with` ends it by a key and looks at how it ended, and that
    it printed `errors`, a text or a pattern, onto the error stream. A `command` must become the
    program by exec. The program prints to `stream`; by default,
    to a pipe and to a file, which takes any number of lines."""

    def __init__(self, *arguments, lang="C.UTF-8", last_key="q", errors="", command=(PROGRAM,),
                 executable=None, cwd=None, stream=None, **environment):
        self.last_key, self.errors = last_key, errors
        self.home = tempfile.TemporaryDirectory()
        self.error_file = tempfile.TemporaryFile("w+", errors="replace")
        self.process = subprocess.Popen(
            tuple(command) + arguments, executable=executable, cwd=cwd, text=True,
            stdout=stream or subprocess.PIPE, stderr=stream or self.error_file,
            env={**os.environ, "LANG": lang, "HOME": self.home.name,
                 "ASAN_OPTIONS": "detect_leaks=1:exitcode=0", **environment})
        self.window = wait_for("the window", self.search)
        xdotool("windowfocus", "--sync", self.window)

    def search(self):
        assert self.process.poll() is None, "the program ended: " + self.end()[1]
        found = xdotool("search", "--onlyvisible", "--pid", self.process.pid, check=False)
        return found.partition("\n")[0]

    def __enter__(self):
        return self

    def __exit__(self, kind, value, trace):
        self.key(self.last_key)
        try:
            ended = *self.end(), self.process.returncode
        finally:
            self.process.kill()
            self.home.cleanup()
        printed = ended[1]
        if isinstance(self.errors, re.Pattern):
            printed = self.errors if self.errors.fullmatch(printed) else printed
        assert kind or (ended[0], printed, ended[2]) == ("", self.errors, 0), f"output, errors, status: {ended}"

    def end(self):
        """Standard output and error stream. What a sanitizer says is a fault, but for leaks in
        which nothing of ours takes part: the GL driver has some, and is unloaded when they are
        counted."""
        output, errors = self.process.communicate(timeout=30)
        with self.error_file as file:
            file.seek(0)
            errors = errors or file.read()
        # Mesa prints this although it hides the extension.
        output = re.sub("Warning: extension '.*' cannot be disabled\n", "", output or "")
        errors, _, report = errors.partition("\n====")
        fault = re.search(r"\b(libgr|zanolib|zanoview2|wenk|libutils)::|main\.cpp"
                          "|ERROR: AddressSanitizer", report)
        assert not fault and "runtime error" not in errors, errors + report
        return output, errors

    def key(self, *names):
        for name in names:
            xdotool("key", name)
            time.sleep(0.03)

    def await_title(self, text):
        wait_for(f"{text!r} as title", lambda: text in xdotool("getwindowname", self.window))

    def look(self):
        """What stands in the window: width, height, RGB bytes."""
        data = run("import", "-window", self.window, "-depth", "8", "ppm:-")
        head = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
        return int(head[1]), int(head[2]), data[head.end():]

    def stays(self):
        """What stands in the window, or None if it has just changed or is of one colour."""
        shot = self.look()
        time.sleep(0.2)
        return shot if len(set(shot[2])) > 1 and shot == self.look() else None

    def box(self):
        """The bounds of all that isn't background: left, top, right, bottom, inclusive; or None."""
        width, _, data = self.look()
        rows = [data[at:at + 3 * width] for at in range(0, len(data), 3 * width)]
        ys = [y for y, row in enumerate(rows) if row != GRAY * width]
        xs = [x for x in range(width) if any(rows[y][3 * x:3 * x + 3] != GRAY for y in ys)]
        return (xs[0], ys[0], xs[-1], ys[-1]) if ys and any(data) else None

    def await_box(self, *bounds, slack=0):
        end = time.monotonic() + 10
        while not (box := self.box()) or any(abs(a - b) > slack for a, b in zip(box, bounds)):
            assert time.monotonic() < end, f"the picture stands at {box}, not at {bounds}"
            time.sleep(0.02)


def part(shot, left, top, width, height):
    """A rectangle of a look."""
    full, _, data = shot
    starts = [(y * full + left) * 3 for y in range(top, top + height)]
    return b"".join(data[start:start + width * 3] for start in starts)


class ViewerTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def start(self, *words):
        """Starts a program that runs until the test ends, and returns the process."""
        process = subprocess.Popen(words, text=True, stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.communicate)
        self.addCleanup(process.terminate)
        return process

    def new_screen(self):
        """A virtual screen of the test's own: a window manager leaves traces where it was. Returns
        the server."""
        server = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-noreset")
        self.addCleanup(os.environ.update, DISPLAY=os.environ["DISPLAY"])
        os.environ["DISPLAY"] = ":" + server.stdout.readline().strip()
        return server

    def path(self, name):
        return os.path.join(self.folder.name, name)
