#!/usr/bin/env python3
"""The viewer keeps all good files when system calls fail. The variable FAULTS is the number of calls of
each kind that fail in a step, at most 2 at the start; 0 is all of them."""
import itertools
import os
import pathlib
import pty
import re
import signal
import subprocess
import unittest

from viewerdriver import MOST_SECONDS, PROGRAM, Viewer, ViewerTest, bmp_headers, run, wait_for, write_bmp

NAMES = "a.bmp", "a.jpg", "a.png", "a.tga"
KINDS = "open read write mmap rename fsync close malloc SIGTERM".split()
SAMPLE = int(os.environ.get("FAULTS", 6))
# The steps of a session: the keys, and how many of its calls fail in turn.
SAVES, SHOWS = "swW", "<swW   swW"
STEPS = ("", min(SAMPLE, 2)), (SAVES, SAMPLE), (SHOWS, SAMPLE)
ALL_FURTHER = 10**6
NO_MEMORY = "zanoview3: out of memory\n"
VIEW = re.compile(rb"dir2l\(\d+, \d+\)\nmtx3w\((\t([-\d.]+, ){3}[-\d.]+[,)]\n){4}")
OLD = {"a.zvw": b"dir2l(150, 200)\n", ".zanoview3": b"-verbose-\n"}


def spread(total, sample):
    """Returns the numbers from 1 to `total`, or `sample` of them with the first and the last one."""
    count = min(total, sample or total)
    return [1 + i * (total - 1) // max(count - 1, 1) for i in range(count)]


class Session:
    """The viewer with the preloaded library of tests/support/faults, which presses the keys."""

    def __init__(self, folder, fault="none 0 0", names=NAMES):
        self.process = subprocess.Popen(
            (PROGRAM, "-winsize", "200x150") + names, cwd=folder, text=True,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
            env={**os.environ, "HOME": folder, "FAULT": fault,
                 "LD_PRELOAD": os.environ["ZV_FAULTS"],
                 "ASAN_OPTIONS": "verify_asan_link_order=0:detect_leaks=0"})
        self.start_calls = self.reply()

    def reply(self):
        """Returns the number of calls in the step, or None if the program has ended."""
        line = self.process.stdout.readline()
        return int(line) if line else None

    def step(self, fault="none 0 0", keys=SHOWS):
        self.process.stdin.write(f"{fault} {keys}\n")
        self.process.stdin.flush()
        return self.reply()

    def end(self):
        """Ends the program by a key. Returns its status and its error stream."""
        errors = self.process.communicate(timeout=MOST_SECONDS)[1]
        return self.process.returncode, errors


class FaultTest(ViewerTest):
    def put(self, files):
        for name, content in files.items():
            pathlib.Path(self.path(name)).write_bytes(content)

    def files(self):
        return {path.name: path.read_bytes() for path in pathlib.Path(self.folder.name).iterdir()}


class FailingCalls(FaultTest):
    def setUp(self):
        super().setUp()
        for name in NAMES:
            run("convert", "-size", "64x48", "gradient:red-blue", self.path(name))
        self.pictures = self.files()
        self.put(OLD)
        session = Session(self.folder.name)
        session.step()
        self.assertEqual(session.end(), (0, ""))
        self.good = {**OLD, "a.zvw.jpg": self.files()["a.zvw.jpg"]}

    def is_whole(self, name, content):
        if name == "a.zvw":
            return VIEW.fullmatch(content)
        if name == ".zanoview3":
            return re.fullmatch(rb"(-\w+([+-]| .+)\n){25}", content)
        return content.startswith(b"\xff\xd8") and content.endswith(b"\xff\xd9")

    def check(self, old, fault):
        """Checks that every file is the old one or a complete new one."""
        found, expected = self.files(), {**self.pictures, **old}
        self.assertLessEqual(expected.keys(), found.keys(), fault)
        for name, content in found.items():
            self.assertTrue(content == expected.get(name) or
                            name not in self.pictures and self.is_whole(name, content),
                            f"{fault}: {name} is {content[:200]} of {len(content)} bytes")

    def check_end(self, session, kind, fault):
        status, errors = session.end()
        if status == 1 and kind == "malloc":
            self.assertEqual((errors.count(NO_MEMORY), errors[-len(NO_MEMORY):]), (1, NO_MEMORY))
        else:
            self.assertEqual(status, -15 if kind == "SIGTERM" else 0, f"{fault}: {errors}")

    def test_no_failing_call_loses_a_file(self):
        for kind in KINDS:
            session = Session(self.folder.name, kind + " 0 0")
            calls = [session.start_calls]
            calls += [session.step(kind + " 0 0", keys) for keys, _ in STEPS[1:]]
            for (keys, sample), total in zip(STEPS, calls):
                for n in spread(total, sample):
                    variants = list(itertools.product((1, ALL_FURTHER), (self.good, {})))
                    if keys != SAVES or kind in ("malloc", "SIGTERM"):
                        # Other steps are long, and most of these faults end the process.
                        variants = [variants[n % (2 if keys == SAVES else 4)]]
                    for number, old in variants:
                        fault = f"{kind} {n} {number}"
                        for name in self.files().keys() - self.pictures.keys():
                            os.remove(self.path(name))
                        self.put(old)
                        # The start is the step of another session, which then has no faults.
                        tried = session if keys else Session(self.folder.name, fault)
                        is_up = (tried.start_calls is not None and
                                 tried.step(*(fault, keys) if keys else ()) is not None)
                        if not is_up or not keys:
                            self.check_end(tried, kind, fault)
                        if not is_up and keys:
                            session = Session(self.folder.name)
                        self.check(old, f"{fault} {keys}")
            self.assertEqual(session.end()[0], 0, kind)


class Machine(FaultTest):
    """A real window and real keys, without rights, disk space or a screen."""

    def setUp(self):
        super().setUp()
        write_bmp(self.path("a.bmp"), 8, 6, 24, lambda x, y: (200, 0, 0))
        self.put({"a.zvw": b"old view", "a.zvw.jpg": b"old snapshot"})
        self.old = self.files()

    def test_prints_why_a_save_failed_and_keeps_the_old_files(self):
        no_rights = "--inh-caps=-dac_override", "--bounding-set=-dac_override"
        rows = (("File too large", 0o755, ("prlimit", "--fsize=100")),
                ("Permission denied", 0o555, ("setpriv",) + no_rights if os.geteuid() == 0 else ()))
        line = "{}: can't be saved: {}\n".format
        for reason, mode, command in rows:
            os.chmod(self.folder.name, mode)
            errors = "".join(line(self.path(name), reason) for name in ("a.zvw.jpg", "a.zvw"))
            # A pipe has no limit of the file size.
            with Viewer(self.path("a.bmp"), command=command + (PROGRAM,), errors=errors,
                        stream=subprocess.PIPE) as viewer:
                viewer.key("s", "w", "d" if mode == 0o555 else "5", "shift+w")
            os.chmod(self.folder.name, 0o755)
            self.assertEqual(self.files(), self.old, reason)
        session = Session(self.folder.name, names=("a.bmp",))
        session.step("write 1 1000000")
        errors = "".join(line(name, "No space left on device") for name in ("a.zvw.jpg", "a.zvw"))
        self.assertEqual(session.end(), (0, 2 * errors))
        self.assertEqual(self.files(), self.old)

    def test_saves_options_beside_the_program_without_home(self):
        for name in "zanoview3", "zanoview3.msg":
            os.symlink(os.path.join(os.path.dirname(PROGRAM), name), self.path(name))
        with Viewer("-frametype", "0", self.path("a.bmp"),
                    command=("env", "-u", "HOME", self.path("zanoview3"))) as viewer:
            viewer.key("shift+w")
        self.assertIn(b"-frametype 0\n", self.files()[".zanoview3"])

    def test_ends_at_once_on_a_signal_or_without_its_screen(self):
        server = self.new_screen()
        for end, status, errors in ((subprocess.Popen.terminate, -signal.SIGTERM, "$"),
                                    (lambda _: server.kill(), 1, "(?s)X.*$")):
            viewer = Viewer(self.path("a.bmp"))
            self.addCleanup(viewer.close)
            viewer.key("w")
            # files() would fail if the new file were renamed while it lists them.
            view = pathlib.Path(self.path("a.zvw"))
            wait_for("the view file", lambda: VIEW.fullmatch(view.read_bytes()))
            self.old["a.zvw"] = view.read_bytes()
            end(viewer.process)
            self.assertRegex(viewer.end()[1], errors)
            self.assertEqual(viewer.process.returncode, status)
            self.assertEqual(self.files(), self.old)

    def test_escapes_names_on_terminals(self):
        bad, shown = "\x1b[2J\nforged\u009b\x7f", "\\x1b[2J\\x0aforged\\xc2\\x9b\\x7f"
        os.mkdir(self.path(bad))
        self.put({f"{bad}/{bad}a.bmp": self.old["a.bmp"], f"{bad}/{bad}b.jpg": b"\xff\xd8",
                  f"{bad}/{bad}.txt": b"", f"{bad}/{bad}c.bmp": bmp_headers(2000, 2000, 24) + bytes(7000)})
        master, slave = pty.openpty()
        viewer = Viewer("-verbose", "-debug", "-frametype", "0", self.path(bad),
                        self.path(bad + "gone.png"), stream=slave)
        self.addCleanup(viewer.close)
        viewer.await_title(f"{shown}a.bmp (1/4)")
        viewer.key("w", "s", "space", "End", "shift+w", "q")
        os.close(slave)
        output = b""
        try:
            while part := os.read(master, 4096):
                output += part
        except OSError:  # the other side is closed
            os.close(master)
        self.assertEqual(viewer.process.wait(MOST_SECONDS), 0)
        # The report of a sanitizer on leaks of the OpenGL driver has colours.
        output = output.partition(b"\r\n====")[0]
        self.assertNotRegex(output, rb"\x1b|\x7f|\xc2|\nforged")
        for line in ("b.jpg: jpeg decompress fail, stop.", "gone.png: image file not found.",
                     "c.bmp: exceeds limit ", "a.zvw: zvwfile saved."):
            self.assertIn(shown + line, output.decode())


if __name__ == "__main__":
    unittest.main(verbosity=2)
