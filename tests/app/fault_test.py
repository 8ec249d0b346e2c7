#!/usr/bin/env python3
"""Failing system calls, full disks and lost screens: the program goes on or ends in order, and every
file that was good stays good. The variable FAULTS=all tries each failing call instead of a sample."""
import itertools
import os
import pty
import re
import signal
import subprocess
import unittest

from viewerdriver import PROGRAM, Viewer, ViewerTest, run, wait_for, write_bmp

NAMES = "a.bmp", "a.jpg", "a.png", "a.tga"
KINDS = "open", "read", "write", "mmap", "ftruncate", "rename", "fsync", "close", "malloc", "SIGTERM"
SAMPLE = None if os.environ.get("FAULTS") == "all" else 6
# The steps of a session: the keys, and how many of the calls that a step makes are made to fail.
SAVES, SHOWS = "swW", "<swW   swW"
STEPS = ("", SAMPLE), (SAVES, None), (SHOWS, SAMPLE)
ALL_FURTHER = 10**6
NO_MEMORY = "zanoview3: out of memory\n"
VIEW = re.compile(rb"dir2l\(\d+, \d+\)\nmtx3w\((\t([-\d.]+, ){3}[-\d.]+[,)]\n){4}")
OLD = {"a.zvw": b"dir2l(150, 200)\nmtx3w(\t1.0, 0.0, 0.0, 0.0,\n\t0.0, 1.0, 0.0, 0.0,\n"
                b"\t0.0, 0.0, 1.0, 0.0,\n\t0.0, 0.0, 0.0, 1.0)\n",
       ".zanoview3": b"-verbose-\n"}


def spread(total, sample):
    """Numbers from 1 to `total`, both included, evenly spread if there are more than `sample`."""
    if sample is None or total <= sample:
        return list(range(1, total + 1))
    return [1 + i * (total - 1) // (sample - 1) for i in range(sample)]


def read(path):
    with open(path, "rb") as file:
        return file.read()


class Session:
    """The program with the preloaded library of tests/support/faults, which presses the keys."""

    def __init__(self, folder, fault="none 0 0", names=NAMES):
        self.process = subprocess.Popen(
            (PROGRAM, "-winsize", "200x150") + names, cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE, text=True,
            env={**os.environ, "HOME": folder, "FAULT": fault,
                 "LD_PRELOAD": os.environ["ZV_FAULTS"],
                 "ASAN_OPTIONS": "verify_asan_link_order=0:detect_leaks=0"})
        self.start_calls = self.reply()

    def reply(self):
        """The number of calls that the step made, or None if the program has ended."""
        line = self.process.stdout.readline()
        return int(line) if line else None

    def step(self, fault="none 0 0", keys=SHOWS):
        self.process.stdin.write(f"{fault} {keys}\n")
        self.process.stdin.flush()
        return self.reply()

    def end(self):
        """Lets the program end by a key. Its status and what it wrote on the error stream."""
        errors = self.process.communicate(timeout=60)[1]
        return self.process.returncode, errors


class FailingCalls(ViewerTest):
    def setUp(self):
        super().setUp()
        for name in NAMES:
            run("convert", "-size", "64x48", "gradient:red-blue", self.path(name))
        self.pictures = {name: read(self.path(name)) for name in os.listdir(self.folder.name)}
        self.snapshots = set()
        self.ends = 0
        self.put(OLD)
        session = Session(self.folder.name)
        session.step()
        self.assertEqual(session.end(), (0, ""))
        self.good = {**OLD, "a.zvw.jpg": read(self.path("a.zvw.jpg"))}

    def put(self, files):
        for name in {".zanoview3", "a.zvw", "a.zvw.jpg"} - files.keys():
            if os.path.exists(self.path(name)):
                os.remove(self.path(name))
        for name, content in files.items():
            with open(self.path(name), "wb") as out:
                out.write(content)

    def is_whole(self, name, content):
        if name == "a.zvw":
            return VIEW.fullmatch(content)
        if name == ".zanoview3":
            return content.startswith(b"-") and content.endswith(b"\n") and content.count(b"\n-") > 20
        if content not in self.snapshots:
            subprocess.run(("convert", "-regard-warnings", "jpg:-", "null:"), input=content, check=True)
            self.snapshots.add(content)
        return content.endswith(b"\xff\xd9")

    def check(self, old, fault):
        """Compares the directory with the files that were there before."""
        found = {name: read(self.path(name)) for name in os.listdir(self.folder.name)}
        expected = {**self.pictures, **old}
        self.assertLessEqual(expected.keys(), found.keys(), fault)
        for name, content in found.items():
            self.assertTrue(content == expected.get(name) or
                            name not in self.pictures and self.is_whole(name, content),
                            f"{fault}: {name} is {content[:200]} of {len(content)} bytes")

    def check_end(self, session, kind, fault):
        status, errors = session.end()
        self.ends += status != 0
        if status == 1 and kind == "malloc":
            self.assertEqual((errors.count(NO_MEMORY), errors[-len(NO_MEMORY):]), (1, NO_MEMORY))
        else:
            self.assertEqual(status, -15 if kind == "SIGTERM" else 0, f"{fault}: {errors}")

    def try_start(self, kind, fault):
        """The fault comes before the window waits for its first event."""
        session = Session(self.folder.name, fault)
        if session.start_calls is not None:
            session.step()
        self.check_end(session, kind, fault)

    def try_step(self, session, kind, fault, keys):
        """Returns the session, or a new one if the fault ended it."""
        if session.step(fault, keys) is not None:
            return session
        self.check_end(session, kind, fault)
        return Session(self.folder.name)

    def test_no_failing_call_loses_a_file(self):
        for kind in KINDS:
            session = Session(self.folder.name, kind + " 0 0")
            calls = [session.start_calls] + [session.step(kind + " 0 0", keys) for keys, _ in STEPS[1:]]
            tried = 0
            for (keys, sample), total in zip(STEPS, calls):
                for n in spread(total, sample):
                    variants = list(itertools.product((1, ALL_FURTHER), (self.good, {})))
                    if SAMPLE and (not keys or kind in ("malloc", "SIGTERM")):
                        # Most of these need a new process.
                        variants = [variants[n % (2 if keys == SAVES else 4)]]
                    for number, old in variants:
                        fault = f"{kind} {n} {number}"
                        self.put(old)
                        if keys:
                            session = self.try_step(session, kind, fault, keys)
                        else:
                            self.try_start(kind, fault)
                        self.check(old, fault + " " + keys)
                        tried += 1
            self.assertEqual(session.end()[0], 0, kind)
            print(f"{kind}: {tried} faults in {calls} calls, {self.ends} ends", flush=True)


class Machine(ViewerTest):
    """A real window and real keys on a machine that lacks something."""

    def setUp(self):
        super().setUp()
        write_bmp(self.path("a.bmp"), 8, 6, 24, lambda x, y: (200, 0, 0))
        self.old = {"a.zvw": b"old view", "a.zvw.jpg": b"old snapshot", "a.bmp": read(self.path("a.bmp"))}
        for name, content in self.old.items():
            with open(self.path(name), "wb") as out:
                out.write(content)
        self.picture = self.path("a.bmp")

    def files(self):
        return {name: read(self.path(name)) for name in os.listdir(self.folder.name)}

    def unsaved(self, reason, *paths):
        return "".join(f"{path}: can't be saved: {reason}\n" for path in paths)

    def test_a_failed_save_tells_why_and_keeps_the_old_file(self):
        no_rights = "--inh-caps=-dac_override", "--bounding-set=-dac_override"
        rows = (("File too large", 0o755, ("prlimit", "--fsize=100", PROGRAM)),
                ("Permission denied", 0o555,
                 (("setpriv",) + no_rights if os.geteuid() == 0 else ()) + (PROGRAM,)))
        for reason, mode, command in rows:
            os.chmod(self.folder.name, mode)
            errors = self.unsaved(reason, self.path("a.zvw.jpg"), self.path("a.zvw"))
            # A pipe has no limit of the file size.
            with Viewer(self.picture, command=command, errors=errors,
                        stream=subprocess.PIPE) as viewer:
                viewer.key("s", "w", "d" if mode == 0o555 else "5", "shift+w")
            os.chmod(self.folder.name, 0o755)
            self.assertEqual(self.files(), self.old, reason)

    def test_a_full_disk_keeps_the_old_files(self):
        session = Session(self.folder.name, names=("a.bmp",))
        session.step("write 1 1000000")
        reason = "No space left on device"
        self.assertEqual(session.end(), (0, 2 * self.unsaved(reason, "a.zvw.jpg", "a.zvw")))
        self.assertEqual(self.files(), self.old)

    def test_names_that_no_file_can_have_and_links(self):
        longest = self.path("n" * 251 + ".bmp")
        os.rename(self.picture, longest)
        errors = self.unsaved("File name too long", longest[:-4] + ".zvw.jpg")
        with Viewer(longest, errors=errors) as viewer:
            viewer.key("s", "w")
        self.assertRegex(read(longest[:-4] + ".zvw"), VIEW)
        os.rename(longest, self.picture)
        os.remove(self.path("a.zvw"))
        os.remove(self.path("a.zvw.jpg"))
        os.symlink("victim", self.path("a.zvw"))
        os.mkdir(self.path("a.zvw.jpg"))
        with open(self.path("victim"), "wb") as victim:
            victim.write(b"good")
        with Viewer(self.picture, errors=self.unsaved("Is a directory", self.path("a.zvw.jpg"))) as viewer:
            viewer.key("s", "w")
        self.assertEqual(read(self.path("victim")), b"good")
        self.assertFalse(os.path.islink(self.path("a.zvw")))
        self.assertRegex(read(self.path("a.zvw")), VIEW)

    def test_without_home_the_options_stand_beside_the_program(self):
        for name in "zanoview3", "zanoview3.msg":
            os.symlink(os.path.join(os.path.dirname(PROGRAM), name), self.path(name))
        with Viewer("-frametype", "0", self.picture,
                    command=("env", "-u", "HOME", self.path("zanoview3"))) as viewer:
            viewer.key("shift+w")
        self.assertIn(b"-frametype 0\n", read(self.path(".zanoview3")))

    def test_a_signal_and_a_lost_screen_end_the_program_at_once(self):
        server = self.new_screen()
        for end, status, errors in ((lambda viewer: viewer.process.terminate(), -signal.SIGTERM, "$"),
                                    (lambda viewer: server.kill(), 1, "(?s)X.*$")):
            viewer = Viewer(self.picture)
            self.addCleanup(viewer.home.cleanup)
            viewer.key("Right", "w")
            wait_for("the view file", lambda: VIEW.fullmatch(read(self.path("a.zvw"))))
            self.old["a.zvw"] = read(self.path("a.zvw"))
            end(viewer)
            ended = viewer.end()
            self.assertEqual(viewer.process.returncode, status, ended)
            self.assertRegex(ended[1], errors)
            self.assertEqual(self.files(), self.old)

    def test_names_reach_no_terminal_raw(self):
        bad, shown = "\x1b[2J\nforged\u009b\x7f", "\\x1b[2J\\x0aforged\\xc2\\x9b\\x7f"
        os.mkdir(self.path(bad))
        for name, content in (bad + "a.bmp", self.old["a.bmp"]), (bad + "b.jpg", b"\xff\xd8"), ("c\n.txt", b""):
            with open(self.path(bad + "/" + name), "wb") as out:
                out.write(content)
        master, slave = pty.openpty()
        words = "-verbose", "-debug", "-frametype", "0", self.path(bad), self.path(bad + "gone.png")
        viewer = Viewer(*words, stream=slave)
        self.addCleanup(viewer.home.cleanup)
        viewer.await_title(f"{shown}a.bmp (1/3)")
        viewer.key("w", "s", "space", "End", "shift+w", "q")
        output = b""
        try:
            os.close(slave)
            while part := os.read(master, 4096):
                output += part
        except OSError:  # the other side is closed
            os.close(master)
        self.assertEqual(viewer.process.wait(30), 0)
        # A sanitizer colours its report on leaks of the OpenGL driver.
        output = output.partition(b"\r\n====")[0]
        self.assertNotRegex(output, rb"\x1b|\x7f|\xc2|\n(forged|\.txt)")
        for line in f"{shown}b.jpg: jpeg decompress fail, stop.", f"{shown}gone.png: image file not found.", f"{shown}a.zvw: zvwfile saved.":
            self.assertIn(line, output.decode())


if __name__ == "__main__":
    unittest.main(verbosity=2)
