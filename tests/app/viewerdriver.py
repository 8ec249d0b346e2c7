"""Drives the viewer with a real window, real keys and buttons, and reads its pixels.

Waits end as soon as their condition is true. Their limit is for machines under heavy load."""
import atexit
import os
import re
import struct
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ.get("ZANOVIEW3", "build/zanoview3")
GRAY = bytes((46, 46, 46))
MOST_SECONDS = 120
# LeakSanitizer crashes in some exits of the process, in a thread of its own that has nothing to do
# with the program. The exit status and all other reports are still checked.
LEAK_CHECK_CRASH = re.compile(r"(==\d+==)?Tracer caught signal 11.*\n"
                              r"(==\d+==(LeakSanitizer has encountered a fatal error|HINT:).*\n)*")


def wait_for(what, condition, seconds=MOST_SECONDS):
    """Returns the first true value of `condition()`."""
    end = time.monotonic() + seconds
    while not (result := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} s for {what}")
        time.sleep(0.02)
    return result


def run(*words, check=True):
    return subprocess.run(tuple(map(str, words)), check=check, capture_output=True).stdout


def xdotool(*words, check=True):
    return run("xdotool", *words, check=check).decode().strip()


def start_screen():
    """Starts a virtual screen for this process and its viewers. Returns the server, which ends with
    this process."""
    server = subprocess.Popen("Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset".split(),
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    atexit.register(lambda: (server.terminate(), server.communicate()))
    os.environ["DISPLAY"] = f":{int(server.stdout.readline())}"
    os.environ.pop("WAYLAND_DISPLAY", None)
    # Mesa's software driver makes mipmaps several times faster without worker threads.
    os.environ["LP_NUM_THREADS"] = "0"
    return server


def bmp_headers(width, height, bits):
    return struct.pack("<2s13I", b"BM", 0, 0, 54, 40, width, height, 1 | bits << 16, 0, 0, 0, 0, 0, 0)


def write_bmp(path, width, height, bits, pixel):
    """Writes a BMP of 24 or 32 bits and returns its pixels as RGB bytes, top row first.
    `pixel(x, y)`, counted from the top left corner, is (r, g, b)."""
    rows = [[bytes(pixel(x, y)) for x in range(width)] for y in range(height)]
    with open(path, "wb") as out:
        out.write(bmp_headers(width, height, bits))
        for row in reversed(rows):
            line = b"".join(bytes((*rgb[::-1], 255)[:bits // 8]) for rgb in row)
            out.write(line + bytes(-len(line) % 4))
    return b"".join(map(b"".join, rows))


class Viewer:
    """The program on the screen. At the end of its `with` block, presses `last_key` and checks that
    the program ends with status 0, without output, and with `errors`, a text or a pattern, on the
    error stream. `command` must become the program by exec. Without `with`, call close()."""

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
        try:
            self.window = wait_for("the window", self.search)
            xdotool("windowfocus", "--sync", self.window)
        except BaseException:
            self.close()
            raise

    def search(self):
        assert self.process.poll() is None, "the program ended: " + self.end()[1]
        found = xdotool("search", "--onlyvisible", "--pid", self.process.pid, check=False)
        return found.partition("\n")[0]

    def __enter__(self):
        return self

    def __exit__(self, kind, value, trace):
        try:
            self.key(self.last_key)
            ended = *self.end(), self.process.returncode
        finally:
            self.close()
        printed = ended[1]
        if isinstance(self.errors, re.Pattern):
            printed = self.errors if self.errors.fullmatch(printed) else printed
        assert kind or (ended[0], printed, ended[2]) == ("", self.errors, 0), \
            f"output, errors, status: {ended}"

    def close(self):
        """Kills the process if it still runs, and closes all files."""
        self.process.kill()
        self.process.wait()
        for file in filter(None, (self.process.stdout, self.process.stderr, self.error_file)):
            file.close()
        self.home.cleanup()

    def end(self):
        """Waits for the program's end. Returns its output and its error stream. Fails on reports of
        a sanitizer, except on leaks without a function of this project in their stacks: the GL
        driver has leaks, and it is unloaded when they are counted."""
        output, errors = self.process.communicate(timeout=MOST_SECONDS)
        self.error_file.seek(0)
        errors = LEAK_CHECK_CRASH.sub("", errors or self.error_file.read())
        # Mesa prints this although it hides the extension.
        output = re.sub("Warning: extension '.*' cannot be disabled\n", "", output or "")
        errors, _, report = errors.partition("\n====")
        fault = re.search(r"\b(libgr|zanolib|zanoview2|wenk|libutils)::|main\.cpp"
                          "|ERROR: AddressSanitizer", report)
        assert not fault and "runtime error" not in errors, errors + report
        return output, errors

    def key(self, *names):
        xdotool("key", "--delay", 20, *names)

    def await_title(self, text):
        wait_for(f"{text!r} as title", lambda: text in xdotool("getwindowname", self.window))

    def look(self):
        """Returns the width, height and RGB bytes of the window's part on the screen."""
        shot = run("import", "-silent", "-window", self.window, "-depth", 8, "ppm:-", check=False)
        head = re.match(rb"P6\s(\d+) (\d+)\s255\s", shot)
        return (int(head[1]), int(head[2]), shot[head.end():]) if head else (1, 0, b"")

    def stays(self):
        """Returns the same as look(), or None if it has just changed or has only one colour."""
        shot = self.look()
        time.sleep(0.2)
        return shot if len(set(shot[2])) > 1 and shot == self.look() else None

    def box(self):
        """Returns the first and last column and row that differ from the background, or None: left,
        top, right, bottom."""
        width, _, data = self.look()
        rows = [data[at:at + 3 * width] for at in range(0, len(data), 3 * width)]
        ys = [y for y, row in enumerate(rows) if row != GRAY * width]
        if not ys or not any(data):
            return None
        left = min((3 * width - len(rows[y].lstrip(GRAY))) // 3 for y in ys)
        right = max((len(rows[y].rstrip(GRAY)) - 1) // 3 for y in ys)
        return left, ys[0], right, ys[-1]

    def await_box(self, *bounds, slack=0):
        wait_for(f"the picture at {bounds}", lambda: (box := self.box()) and all(
            abs(a - b) <= slack for a, b in zip(box, bounds)))


def part(shot, left, top, width, height):
    """Returns the RGB bytes of a rectangle of a look()."""
    full, _, data = shot
    starts = [(y * full + left) * 3 for y in range(top, top + height)]
    return b"".join(data[start:start + width * 3] for start in starts)


class ViewerTest(unittest.TestCase):
    """A test with a folder for pictures. All tests of a process share a screen of their own, so that
    test files can run in parallel."""

    screen = None

    @classmethod
    def setUpClass(cls):
        ViewerTest.screen = ViewerTest.screen or start_screen()

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def new_screen(self):
        """Starts a screen for this test only. Returns the server."""
        display = os.environ.get("DISPLAY", "")
        self.addCleanup(os.environ.update, DISPLAY=display)
        server = start_screen()
        self.addCleanup(server.terminate)
        return server

    def path(self, name):
        return os.path.join(self.folder.name, name)
