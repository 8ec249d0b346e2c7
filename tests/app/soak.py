#!/usr/bin/env python3
"""Changes the picture many times, with random keys, drags, wheel turns and sizes in between. Fails if
the viewer crashes, hangs, reports an OpenGL error, or leaks memory, descriptors or OpenGL names.

soak.py CHANGES [DIRECTORY]    DIRECTORY has further pictures; only copies of them are opened."""
import os
import pathlib
import random
import re
import shutil
import struct
import sys
import tempfile
import time

from viewerdriver import Viewer, run, start_screen, write_bmp, xdotool

SEED = 20
COUNTED = os.environ["ZANOVIEW3_COUNTED"]
NAMES = "textures", "programs", "lists"
KINDS = ".jpg", ".jpeg", ".png", ".bmp", ".tga"
CHANGES = ("space",) * 24 + ("shift+space",) * 6 + ("BackSpace", "shift+BackSpace") * 2 + ("End",)
KEYS = ("Left Right Up Down Prior Next 0 1 2 3 9 asterisk slash minus Return g f w d s r F5 W "
        "Insert Delete R x").split()
WINDOW = object()  # replaced by the window's number in words for xdotool
MEGABYTE = 1 << 20
MOST_GROWTH = 16 * MEGABYTE
MOST_CPU_SECONDS = 60  # for a step: the CPU time doesn't depend on the load of the machine


def make_pictures(folder, dice, directory):
    """Fills the folder with good pictures and three damaged copies of each."""
    for path in sorted(directory.rglob("*")) if directory else ():
        if path.suffix.lower() in KINDS:
            shutil.copy(path, folder / f"{len(os.listdir(folder)):03}{path.suffix}")
    for bits in 24, 32:
        write_bmp(folder / f"bmp{bits}.bmp", 130, 90, bits, lambda x, y: (x * y % 256, x, y))
    for name, *options in (("large.jpg", "-resize", "2000x1500!"), ("small.png", "-resize", "9x7"),
                           ("steps.jpg", "-interlace", "Plane"), ("gray.jpg", "-colorspace", "Gray"),
                           ("deep.png", "-depth", "16"), ("cmyk.jpg", "-colorspace", "CMYK"),
                           ("colours.png", "-colors", "9"), ("colours.bmp", "-colors", "9"),
                           ("padded.tga", "-resize", "32x32!")):
        run("convert", "rose:", *options, folder / name)
    for path in sorted(folder.iterdir()):
        good = path.read_bytes()
        head, body = bytearray(good), bytearray(good)
        for _ in range(20):
            head[dice.randrange(min(len(good), 300))] = dice.randrange(256)
            body[dice.randrange(len(good))] = dice.randrange(256)
        for kind, data in ("cut", good[:dice.randrange(len(good))]), ("head", head), ("body", body):
            path.with_stem(f"{path.stem}-{kind}").write_bytes(data)
            if dice.random() < 0.1:
                path.with_stem(f"{path.stem}-{kind}").with_suffix(".zvw").write_bytes(head)
    write_bmp(folder / "!first.bmp", 300, 200, 24, lambda x, y: (x % 256, y, 0))


def interaction(dice):
    """Returns words for xdotool."""
    kind = dice.randrange(8)
    if kind < 4:
        return "key", dice.choice(KEYS)
    if kind == 4:
        return "click", "--repeat", dice.randrange(1, 6), "--delay", 1, dice.choice((4, 5))
    if kind == 5:
        return "windowsize", WINDOW, dice.randrange(1, 1300), dice.randrange(1, 1000)
    places = [(dice.randrange(1200), dice.randrange(900)) for _ in range(3)]
    button = dice.choice((1, 2, 3))
    moves = [("mousemove", "--window", WINDOW, *place) for place in places]
    return (*moves[0], "mousedown", button, *moves[1], *moves[2], "mouseup", button)


class Soak:
    def __init__(self, viewer, names):
        self.viewer, self.names = viewer, names
        self.proc = pathlib.Path(f"/proc/{viewer.process.pid}")
        self.titles = []

    def do(self, *words):
        """Runs xdotool commands and waits until the viewer sleeps in its event loop."""
        window = self.viewer.window
        words = [window if word == WINDOW else word for word in words]
        self.titles.append(xdotool("windowfocus", window, *words, "getwindowname", window,
                                   check=False))
        asleep, start = 0, self.state_and_seconds()[1]
        while asleep < 3:
            time.sleep(0.004)
            code = self.viewer.process.poll()
            assert code is None, f"ended with status {code}: {self.viewer.end()[1][-2000:]}"
            state, seconds = self.state_and_seconds()
            assert seconds - start < MOST_CPU_SECONDS, f"hangs after {self.titles[-1]}"
            asleep = asleep + 1 if state == "S" else 0

    def state_and_seconds(self):
        """Returns the state of the viewer's process, like "S", and its CPU time."""
        state, *numbers = (self.proc / "stat").read_text().rpartition(")")[2].split()
        return state, (int(numbers[10]) + int(numbers[11])) / os.sysconf("SC_CLK_TCK")

    def measure(self):
        """Goes to the first picture. Returns the resident set in bytes, the descriptors, and the
        OpenGL names by kind."""
        self.do("windowsize", WINDOW, 800, 600, "key", "Home", "key", "minus")
        self.viewer.await_title("!first.bmp")
        self.do("sleep", 0.3)
        pages = int((self.proc / "statm").read_text().split()[1])
        files = sorted(os.readlink(entry) for entry in (self.proc / "fd").iterdir())
        names = struct.unpack("3q", self.names.read_bytes())
        return pages * os.sysconf("SC_PAGESIZE"), files, dict(zip(NAMES, names))


def soak(changes, directory):
    dice = random.Random(SEED)
    with tempfile.TemporaryDirectory() as name:
        folder, names = pathlib.Path(name, "pictures"), pathlib.Path(name, "names")
        folder.mkdir()
        make_pictures(folder, dice, directory)
        os.environ["ZANOVIEW3_GL_NAMES"] = str(names)
        print(f"{len(os.listdir(folder))} files, seed {SEED}\n"
              f"changes  resident MB  descriptors  {'  '.join(NAMES)}")
        # This photo frame has the most OpenGL names.
        viewer = Viewer("-frametype", "2", str(folder), executable=COUNTED)
        try:
            run_changes(Soak(viewer, names), changes, dice, len(os.listdir(folder)))
            viewer.key("q")
            output, errors = viewer.end()
            assert viewer.process.returncode == 0 and output == "", (viewer.process.returncode, output)
            found = re.findall(r".*Error \d+: .*", errors)
            assert not found, f"{len(found)} OpenGL errors, the first: {found[0]}"
        finally:
            viewer.close()


def run_changes(user, changes, dice, files):
    step = max(20, changes // 20)
    samples, change = [], 0
    while change < changes:
        words = []
        for _ in range(dice.randrange(3)):
            words += interaction(dice)
        user.do(*words, "key", dice.choice(CHANGES))
        change += 1
        if change >= step * (len(samples) + 1):
            resident, *kept = user.measure()
            samples.append((change, resident))
            print(f"{change:7}  {resident / MEGABYTE:11.1f}  {len(kept[0]):11}  "
                  + "  ".join(f"{kept[1][kind]:{len(kind)}}" for kind in NAMES), flush=True)
            first = first if len(samples) > 1 else kept
            assert kept == first, f"descriptors and OpenGL names: first {first}, now {kept}"
            jumps = 1 + dice.randrange(min(files // 15, step // 2))  # to another part of the list
            user.do("key", "--repeat", jumps, "--delay", 1, "shift+space")
            change += jumps
    later = [resident for change, resident in samples if change > 100]
    third = len(later) // 3
    if third:  # the minimum of several, since memory returns to the system late
        growth = min(later[-third:]) - min(later[:third])
        print(f"growth of the resident set after 100 changes: {growth / MEGABYTE:.1f} MB")
        assert growth < MOST_GROWTH
    assert len(set(user.titles)) > len(user.titles) / 10, "the keys don't reach the viewer"


if __name__ == "__main__":
    start_screen()
    soak(int(sys.argv[1]), pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None)
