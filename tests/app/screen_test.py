#!/usr/bin/env python3
"""The viewer on a screen: commands, memory, start and end."""
import os
import pathlib
import re
import resource
import subprocess
import time
import unittest

from viewerdriver import (GRAY, PROGRAM, Viewer, ViewerTest, bmp_headers, part, run, wait_for,
                          write_bmp, xdotool)


class Start(ViewerTest):
    def test_help_and_no_display(self):
        self.assertIn(f"usage: {PROGRAM} [option] file...\n", run(PROGRAM, "-h").decode())
        self.assertIn(b" T posix_memalign\n", run("nm", "-D", PROGRAM))  # the driver uses it
        headless = {name: text for name, text in os.environ.items() if "DISPLAY" not in name}
        ended = subprocess.run((PROGRAM, "-h"), capture_output=True, env=headless)
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr),
                         (1, b"", b"glfwInit() failed.\n"))

    def test_stays_up_without_a_picture_and_ends_on_escape(self):
        open(self.path("empty.bmp"), "w").close()
        os.mkdir(self.path("folder.bmp"))
        names = [self.path(name) for name in ("empty.bmp", "folder.bmp", "gone.bmp")]
        errors = 5 * (names[-1] + ": image file not found.\n")
        with Viewer(*names, errors=errors, last_key="Escape") as viewer:
            viewer.await_title("no picture")
            viewer.key("space", "BackSpace", "Home", "End", "Return", "w", "d", "s", "g", "r", "5")
            wait_for("the background", lambda: set(viewer.look()[2]) == set(GRAY))


class Session(ViewerTest):
    def setUp(self):
        super().setUp()
        for name, colour in ("a.bmp", (200, 0, 0)), ("b.bmp", (0, 200, 0)):
            write_bmp(self.path(name), 400, 300, 24, lambda x, y, c=colour: c)

    def drag(self, viewer, button, start, end):
        xdotool("mousemove", "--window", viewer.window, *start, "mousedown", button, "sleep", 0.05,
                "mousemove", "--window", viewer.window, *end, "sleep", 0.05, "mouseup", button)

    def test_pages_moves_and_remembers(self):
        with Viewer("-frametype", "0", self.folder.name) as viewer:
            viewer.await_box(50, 38, 749, 562, slack=1)
            viewer.await_title("/a.bmp (1/2) - zanoview3")
            viewer.key("0")
            viewer.await_box(200, 150, 599, 449)
            self.drag(viewer, 1, (400, 300), (430, 280))
            viewer.await_box(230, 130, 629, 429)
            viewer.key("w", "s")
            wait_for("the two files", lambda: {"a.zvw", "a.zvw.jpg"} <= {*os.listdir(self.folder.name)})
            shot = run("convert", self.path("a.zvw.jpg"), "-depth", "8", "rgb:-")
            self.assertEqual(len(shot), 800 * 600 * 3)
            self.assertLess(sum(abs(a - b) for a, b in zip(shot, viewer.look()[2])) / len(shot), 1)
            os.remove(self.path("a.zvw.jpg"))
            self.drag(viewer, 3, (300, 300), (660, 300))
            viewer.await_box(230, 70, 529, 469, slack=1)
            viewer.key("Return", "2")
            viewer.await_box(300, 225, 499, 374)
            xdotool("click", "--repeat", 4, "--delay", 20, 5)  # towards the user: larger
            viewer.await_box(200, 150, 599, 449, slack=1)
            viewer.key("space", "BackSpace", "d")
            viewer.await_box(230, 130, 629, 429)
            wait_for("no view state file", lambda: not os.path.exists(self.path("a.zvw")))

    def test_shows_the_rest_of_a_file_that_was_cut(self):
        expected = write_bmp(self.path("l.bmp"), 400, 1200, 24, lambda x, y: (x % 256, y % 256, 9))
        with Viewer("-frametype", "0", self.path("l.bmp"), last_key="Escape") as viewer:
            viewer.await_title("/l.bmp (1/1)")
            viewer.key("0")
            shown = lambda: part(viewer.look(), 200, 0, 400, 600)
            wait_for("the middle", lambda: shown() == expected[300 * 1200:900 * 1200])
            # The bottom row is the first one: 450 rows are left, and 150 of them are in the window.
            os.truncate(self.path("l.bmp"), 54 + 450 * 1200)
            viewer.key("F5", "0")
            rest = bytes(450 * 1200) + expected[750 * 1200:900 * 1200]
            wait_for("the rest", lambda: shown() == rest)

    def test_sleeps_when_nothing_happens(self):
        with Viewer(self.path("a.bmp")) as viewer:
            viewer.await_title("/a.bmp (1/1)")

            def spent():
                directory = f"/proc/{viewer.process.pid}/"
                text = run("cat", directory + "stat", directory + "status").decode()
                return text.split(")")[1].split()[11:13], re.findall("ctxt_switches.*", text)

            def sleeps():
                before = spent()
                time.sleep(1.5)
                return spent() == before
            wait_for("a viewer that uses no CPU time", sleeps)


@unittest.skipIf(b"__asan_init" in pathlib.Path(PROGRAM).read_bytes(), "the sanitizer keeps memory")
class Memory(ViewerTest):
    def statm(self, viewer, field):
        """Returns the bytes of address space (field 0) or of memory (field 1)."""
        with open(f"/proc/{viewer.process.pid}/statm") as pages:
            return int(pages.read().split()[field]) * resource.getpagesize()

    def test_returns_the_memory_of_large_pictures(self):
        for number, side in enumerate((8, 12000, 3000)):
            with open(self.path(f"{number}.bmp"), "wb") as out:
                out.write(bmp_headers(side, side // 4 * 3, 24))
                out.truncate(54 + 3 * side * (side // 4 * 3))
        with Viewer("-resetview-", "-frametype", "0", self.folder.name) as viewer:
            viewer.await_title("(1/3)")
            viewer.key("space", "Home")
            viewer.await_title("(1/3)")
            start = self.statm(viewer, 1)
            for place, key in (2, "space"), (3, "space"), (1, "Home"):
                viewer.key(key)
                viewer.await_title(f"({place}/3)")
            wait_for("the memory", lambda: self.statm(viewer, 1) < start + (16 << 20))

    def test_skips_a_picture_without_texture_memory(self):
        for name, colour in ("a.bmp", (200, 0, 0)), ("c.bmp", (0, 0, 200)):
            write_bmp(self.path(name), 40, 30, 24, lambda x, y, c=colour: c)
        with open(self.path("b.bmp"), "wb") as out:
            out.write(bmp_headers(8000, 8000, 24))
            out.truncate(54 + 3 * 8000 * 8000)
        report = r"(.*: Error 1285: out of memory\n([a-z_]+: .*\n)*)+"
        errors = re.compile(f"({report}{self.path('b.bmp')}: not enough texture memory\\.\n){{2}}")
        with Viewer("-resetview-", "-frametype", "0", self.folder.name, errors=errors) as viewer:
            viewer.await_box(380, 285, 419, 314)
            # Enough for the file's mapping of 192 MB, but not for its textures of 341 MB.
            size = self.statm(viewer, 0) + (300 << 20)
            resource.prlimit(viewer.process.pid, resource.RLIMIT_AS, (size, size))
            for key, title, pixel in (("space", "/c.bmp (3/3)", (0, 0, 200)),
                                      ("BackSpace", "/a.bmp (1/3)", (200, 0, 0))):
                viewer.key(key)
                viewer.await_title(title)
                wait_for("the picture",
                         lambda p=pixel: part(viewer.look(), 390, 300, 1, 1) == bytes(p))


class UnderAWindowManager(ViewerTest):
    def test_fits_into_the_late_size_and_ends_on_close(self):
        self.new_screen()
        manager = subprocess.Popen(("openbox", "--sm-disable"), stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (manager.kill(), manager.wait()))
        property_of = "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"
        wait_for("the window manager", lambda: b"0x" in run(*property_of, check=False))
        write_bmp(self.path("a.bmp"), 1200, 900, 24, lambda x, y: (0, 90, 200))
        with Viewer("-frametype", "0", self.path("a.bmp"), last_key="alt+F4") as viewer:
            viewer.await_box(50, 38, 749, 561, slack=1)
            self.assertEqual(viewer.look()[:2], (800, 600))
            xdotool("windowsize", "--sync", viewer.window, 800, 300)
            viewer.await_box(225, 19, 574, 280, slack=1)
            viewer.key("f")
            wait_for("the work area", lambda: viewer.look()[0] > 1200)
            viewer.key("f")
            wait_for("the old size", lambda: viewer.look()[:2] == (800, 300))
            for key in "r", "R":
                viewer.key(key)
                wait_for("the restored window",
                         lambda: b"IsViewable" in run("xwininfo", "-id", viewer.window))
                xdotool("windowfocus", "--sync", viewer.window)


if __name__ == "__main__":
    unittest.main(verbosity=2)
