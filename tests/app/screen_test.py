#!/usr/bin/env python3
"""The viewer on a real screen: exact pixels, start and end."""
import os
import shutil
import struct
import subprocess
import time
import unittest

from viewerdriver import GRAY, PROGRAM, Viewer, ViewerTest, part, wait_for, write_bmp, xdotool

PLAIN = ("-resetview-", "-frametype", "0")


def pattern(bits):
    if bits <= 8:
        return lambda x, y: (x * 7 + y * 13 + x * y // 5) % (1 << bits)
    return lambda x, y: (x % 256, y % 256, (x * y) % 256)


class Start(ViewerTest):
    def test_help_and_no_display(self):
        run = subprocess.run((PROGRAM, "-h"), capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        lines = run.stdout.splitlines()
        self.assertEqual(lines[:4], [f"usage: {PROGRAM} [option] file...", "",
                                     "option                 format  comment.", "-" * 39])
        self.assertEqual(len(lines), 29)
        for words in (), ("-h",), ("x.bmp",):
            run = subprocess.run((PROGRAM,) + words, capture_output=True, text=True,
                                 env={k: v for k, v in os.environ.items() if "DISPLAY" not in k})
            self.assertEqual((run.returncode, run.stdout, run.stderr), (1, "", "glfwInit() failed.\n"))

    def test_ends_on_q_and_escape(self):
        write_bmp(self.path("a.bmp"), 8, 8, 24, pattern(24))
        for end in "q", "Escape":
            with Viewer(self.path("a.bmp")) as viewer:
                viewer.await_title("a.bmp (1/1)")
                viewer.key(end)
                viewer.process.wait(20)
            self.assertEqual((viewer.output, viewer.errors), ("", ""))

    def test_stays_up_with_nothing_to_show(self):
        open(self.path("empty.bmp"), "w").close()
        os.mkdir(self.path("folder.bmp"))
        with Viewer(self.path("empty.bmp"), self.path("folder.bmp"), self.path("gone.bmp")) as viewer:
            viewer.await_title("no picture")
            viewer.key("space", "BackSpace", "Home", "End", "Return", "w", "d", "s", "g", "r", "5", "minus")
            wait_for("the background", lambda: set(viewer.look()[2]) == {46})


class Pixels(ViewerTest):
    def check_middle(self, name, size, expected):
        with Viewer(*PLAIN, self.path(name)) as viewer:
            left, top = (800 - size[0]) // 2, (600 - size[1]) // 2
            if size[1] % 2:
                top = (600 - size[1] - 1) // 2
            if size[0] % 2:
                left = (800 - size[0] + 1) // 2
            viewer.await_box(left, top, left + size[0] - 1, top + size[1] - 1)
            self.assertEqual(part(viewer.look(), left, top, *size), expected, name)
        self.assertEqual((viewer.output, viewer.errors), ("", ""), name)

    def test_file_equals_screen(self):
        for bits in 24, 32, 8, 4, 1:
            for size in (301, 201), (302, 202):
                expected = write_bmp(self.path(f"{bits}.bmp"), *size, bits, pattern(bits))
                self.check_middle(f"{bits}.bmp", size, expected)

    def test_huge_picture_shows_its_middle(self):
        width, height = 12000, 9000
        stride = width * 3
        with open(self.path("huge.bmp"), "wb") as out:
            out.write(struct.pack("<2sIHHI", b"BM", 0, 0, 0, 54))
            out.write(struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, 0, 0, 0, 0, 0))
            out.truncate(54 + stride * height)
            for y in range(4200, 4800):
                out.seek(54 + stride * y + 3 * 5600)
                out.write(b"".join(bytes((x % 256, y % 256, (x + y) % 256)) for x in range(800)))
        expected = b"".join(bytes(((x + y) % 256, y % 256, x % 256))
                            for y in range(4799, 4199, -1) for x in range(800))
        with Viewer(*PLAIN, self.path("huge.bmp")) as viewer:
            wait_for("the picture", lambda: viewer.look()[2] == expected, 120)
        self.assertEqual((viewer.output, viewer.errors), ("", ""))


class Session(ViewerTest):
    """What a person does with a directory of pictures."""

    def setUp(self):
        super().setUp()
        for name, colour in ("a.bmp", (200, 0, 0)), ("b.bmp", (0, 200, 0)), ("c.BMP", (0, 0, 200)):
            write_bmp(self.path(name), 400, 300, 24, lambda x, y, c=colour: c)
        open(self.path("bb.bmp"), "w").close()

    def drag(self, viewer, button, start, end):
        xdotool("mousemove", "--window", viewer.window, *start, "mousedown", button)
        time.sleep(0.05)
        xdotool("mousemove", "--window", viewer.window, *end)
        time.sleep(0.05)
        xdotool("mouseup", button)

    def test_pages_moves_and_remembers(self):
        with Viewer("-frametype", "0", self.folder.name) as viewer:
            viewer.await_title("/a.bmp (1/4) - zanoview3")
            viewer.await_box(50, 38, 749, 562, slack=1)
            viewer.key("space")
            viewer.await_title("/b.bmp (2/4)")
            viewer.key("space")
            viewer.await_title("/c.BMP (4/4)")
            viewer.key("Home", "0")
            viewer.await_title("/a.bmp (1/4)")
            viewer.await_box(200, 150, 599, 449)
            self.drag(viewer, 1, (400, 300), (430, 280))
            viewer.await_box(230, 130, 629, 429)
            viewer.key("Right", "Up")
            viewer.await_box(220, 140, 619, 439)
            viewer.key("w", "s")
            wait_for("the view state file", lambda: os.path.exists(self.path("a.zvw")))
            shot = subprocess.run(("convert", self.path("a.zvw.jpg"), "-depth", "8", "rgb:-"),
                                  capture_output=True).stdout
            self.assertEqual(len(shot), 800 * 600 * 3)
            self.assertLess(sum(abs(a - b) for a, b in zip(shot, viewer.look()[2])) / len(shot), 1)
            os.remove(self.path("a.zvw.jpg"))
            self.drag(viewer, 3, (300, 300), (660, 300))
            viewer.await_box(240, 80, 539, 479, slack=1)
            viewer.key("Return", "2")
            viewer.await_box(300, 225, 499, 374)
            xdotool("click", "--repeat", 4, "--delay", 20, 5)  # towards the user: larger
            viewer.await_box(200, 150, 599, 449, slack=1)
            viewer.key("space", "BackSpace")
            viewer.await_title("/a.bmp (1/4)")
            viewer.key("d")
            wait_for("the end of it", lambda: not os.path.exists(self.path("a.zvw")))
        self.assertEqual((viewer.output, viewer.errors), ("", ""))

    def test_sleeps_when_nothing_happens(self):
        with Viewer(self.path("a.bmp"), env={"LANG": "ja_JP.UTF-8"}) as viewer:
            viewer.await_title("/a.bmp (1/1)")
            time.sleep(1)

            def spent():
                with open(f"/proc/{viewer.process.pid}/stat") as stat:
                    ticks = stat.read().rsplit(")", 1)[1].split()[11:13]
                with open(f"/proc/{viewer.process.pid}/status") as status:
                    return ticks + [line for line in status if "ctxt_switches" in line]
            before = spent()
            time.sleep(3)
            self.assertEqual(spent(), before)


class UnderAWindowManager(ViewerTest):
    """Sizes arrive late there, and the window has a close button."""

    def setUp(self):
        super().setUp()
        self.new_screen()
        self.start("openbox", "--sm-disable")
        wait_for("the window manager", lambda: b"0x" in subprocess.run(
            ("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), capture_output=True).stdout)

    def test_fits_into_the_late_size_and_ends_on_close(self):
        write_bmp(self.path("a.bmp"), 1200, 900, 24, lambda x, y: (0, 90, 200))
        with Viewer("-frametype", "0", self.path("a.bmp")) as viewer:
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
                wait_for("the window to be up again", lambda: "IsViewable" in subprocess.run(
                    ("xwininfo", "-id", viewer.window), capture_output=True, text=True).stdout)
                xdotool("windowfocus", "--sync", viewer.window)
            viewer.key("alt+F4")
            viewer.process.wait(20)
        self.assertEqual((viewer.output, viewer.errors), ("", ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
