#!/usr/bin/env python3
"""The viewer keeps all good files when system calls fail, disks are full or the screen is lost. The
variable FAULTS is the number of calls of each kind that fail in each step; 0 is all of them."""
import itertools
import os
import pty
import re
import signal
import subprocess
import unittest

from viewerdriver import MOST_SECONDS, PROGRAM, Viewer, ViewerTest, bmp_headers, run, wait_for, write_bmp

NAMES = "a.bmp", "a.jpg", "a.png", "a.tga"
KINDS = "open read write mmap ftruncate rename fsync close malloc SIGTERM".split()
SAMPLE = int(os.environ.get("FAULTS", 6))
# The steps of a session: the keys, and how many of its calls fail in turn.
SAVES, SHOWS = "swW", "<swW   swW"
STEPS = ("", SAMPLE), (SAVES, 0), (SHOWS, SAMPLE)
ALL_FURTHER = 10**6
NO_MEMORY = "zanoview3: out of memory\n"
VIEW = re.compile(rb"dir2l\(\d+, \d+\)\nmtx3w\((\t([-\d.]+, ){3}[-\d.]+[,)]\n){4}")
OLD = {"a.zvw": b"dir2l(150, 200)\nmtx3w(\t1.0, 0.0, 0.0, 0.0,\n\t0.0, 1.0, 0.0, 0.0,\n"
                b"\t0.0, 0.0, 1.0, 0.0,\n\t0.0, 0.0, 0.0, 1.0)\n",
       ".zanoview3": b"-verbose-\n"}


def spread(total, sample):
    """Returns the numbers from 1 to `total`, or `sample` of them with the first and the last one."""
    if sample == 0 or total <= sample:
        return list(range(1, total + 1))
    return [1 + i * (total - 1) // (sample - 1) for i in range(sample)]


def read(path):
    with open(path, "rb") as file:
        return file.read()


class Session:
    """The viewer with the preloaded library of tests/support/faults, which presses the keys."""

    def __init__(self, folder, fault="none 0 0", names=NAMES):
        self.process = subprocess.Popen(
            (PROGRAM, "-winsize", "200x150") + names, cwd=folder, text=True, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE,
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
            with open(self.path(name), "wb") as out:
                out.write(content)

    def files(self):
        return {name: read(self.path(name)) for name in os.listdir(self.folder.name)}


class FailingCalls(FaultTest):
    def setUp(self):
        super().setUp()
        for name in NAMES:
            run("convert", "-size", "64x48", "gradient:red-blue", self.path(name))
        self.pictures = self.files()
        self.snapshots = set()
        self.ends = 0
        self.put(OLD)
        session = Session(self.folder.name)
        session.step()
        self.assertEqual(session.end(), (0, ""))
        self.good = {**OLD, "a.zvw.jpg": read(self.path("a.zvw.jpg"))}

    def is_whole(self, name, content):
        if name == "a.zvw":
            return VIEW.fullmatch(content)
        if name == ".zanoview3":
            return re.fullmatch(rb"(-\w+([+-]| .+)\n){25}", content)
        if content not in self.snapshots:
            words = "convert", "-regard-warnings", "jpg:-", "null:"
            subprocess.run(words, input=content, check=True)
            self.snapshots.add(content)
        return content.endswith(b"\xff\xd9")

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
        self.ends += status != 0
        if status == 1 and kind == "malloc":
            self.assertEqual((errors.count(NO_MEMORY), errors[-len(NO_MEMORY):]), (1, NO_MEMORY))
        else:
            self.assertEqual(status, -15 if kind == "SIGTERM" else 0, f"{fault}: {errors}")

    def try_start(self, kind, fault):
        """Runs the program with a fault before its first wait for events."""
        session = Session(self.folder.name, fault)
        if session.start_calls is not None:
            session.step()
        self.check_end(session, kind, fault)

    def try_step(self, session, kind, fault, keys):
        """Returns the session, or a new one if the program has ended."""
        if session.step(fault, keys) is not None:
            return session
        self.check_end(session, kind, fault)
        return Session(self.folder.name)

    def test_no_failing_call_loses_a_file(self):
        for kind in KINDS:
            session = Session(self.folder.name, kind + " 0 0")
            calls = [session.start_calls]
            calls += [session.step(kind + " 0 0", keys) for keys, _ in STEPS[1:]]
            tried = 0
            for (keys, sample), total in zip(STEPS, calls):
                for n in spread(total, sample):
                    variants = list(itertools.product((1, ALL_FURTHER), (self.good, {})))
                    if not keys or kind in ("malloc", "SIGTERM"):
                        # Most of these end the process.
                        variants = [variants[n % (2 if keys == SAVES else 4)]]
                    for number, old in variants:
                        fault = f"{kind} {n} {number}"
                        for name in self.files().keys() - self.pictures.keys():
                            os.remove(self.path(name))
                        self.put(old)
                        if keys:
                            session = self.try_step(session, kind, fault, keys)
                        else:
                            self.try_start(kind, fault)
                        self.check(old, fault + " " + keys)
                        tried += 1
            self.assertEqual(session.end()[0], 0, kind)
            print(f"{kind}: {tried} faults in {calls} calls, {self.ends} ends", flush=True)


class Machine(FaultTest):
    """A real window and real keys, without rights, disk space, names or a screen."""

    def setUp(self):
        super().setUp()
        write_bmp(self.path("a.bmp"), 8, 6, 24, lambda x, y: (200, 0, 0))
        self.put({"a.zvw": b"old view", "a.zvw.jpg": b"old snapshot"})
        self.old = self.files()
        self.picture = self.path("a.bmp")

    def unsaved(self, reason, *paths):
        return "".join(f"{path}: can't be saved: {reason}\n" for path in paths)

    def test_prints_why_a_save_failed_and_keeps_the_old_file(self):
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

    def test_keeps_the_old_files_if_the_disk_is_full(self):
        session = Session(self.folder.name, names=("a.bmp",))
        session.step("write 1 1000000")
        reason = "No space left on device"
        self.assertEqual(session.end(), (0, 2 * self.unsaved(reason, "a.zvw.jpg", "a.zvw")))
        self.assertEqual(self.files(), self.old)

    def test_replaces_links_and_reports_names_that_are_too_long(self):
        longest = self.path("n" * 251)
        os.rename(self.picture, longest + ".bmp")
        errors = self.unsaved("File name too long", longest + ".zvw.jpg")
        with Viewer(longest + ".bmp", errors=errors) as viewer:
            viewer.key("s", "w")
        self.assertRegex(read(longest + ".zvw"), VIEW)
        os.rename(longest + ".bmp", self.picture)
        for name in "a.zvw", "a.zvw.jpg":
            os.remove(self.path(name))
        self.put({"victim": b"good"})
        os.symlink("victim", self.path("a.zvw"))
        os.mkdir(self.path("a.zvw.jpg"))
        errors = self.unsaved("Is a directory", self.path("a.zvw.jpg"))
        with Viewer(self.picture, errors=errors) as viewer:
            viewer.key("s", "w")
        self.assertEqual(read(self.path("victim")), b"good")
        self.assertFalse(os.path.islink(self.path("a.zvw")))
        self.assertRegex(read(self.path("a.zvw")), VIEW)

    def test_saves_options_beside_the_program_without_home(self):
        for name in "zanoview3", "zanoview3.msg":
            os.symlink(os.path.join(os.path.dirname(PROGRAM), name), self.path(name))
        with Viewer("-frametype", "0", self.picture,
                    command=("env", "-u", "HOME", self.path("zanoview3"))) as viewer:
            viewer.key("shift+w")
        self.assertIn(b"-frametype 0\n", read(self.path(".zanoview3")))

    def test_ends_at_once_on_a_signal_or_without_its_screen(self):
        server = self.new_screen()
        for end, status, errors in ((subprocess.Popen.terminate, -signal.SIGTERM, "$"),
                                    (lambda _: server.kill(), 1, "(?s)X.*$")):
            viewer = Viewer(self.picture)
            self.addCleanup(viewer.close)
            viewer.key("w")
            wait_for("the view file", lambda: VIEW.fullmatch(read(self.path("a.zvw"))))
            self.old["a.zvw"] = read(self.path("a.zvw"))
            end(viewer.process)
            self.assertRegex(viewer.end()[1], errors)
            self.assertEqual(viewer.process.returncode, status)
            self.assertEqual(self.files(), self.old)

    def test_escapes_names_on_terminals(self):
        bad, shown = "\x1b[2J\nforged\u009b\x7f", "\\x1b[2J\\x0aforged\\xc2\\x9b\\x7f"
        os.mkdir(self.path(bad))
        self.put({f"{bad}/{bad}a.bmp": self.old["a.bmp"], f"{bad}/{bad}b.jpg": b"\xff\xd8",
                  f"{bad}/{bad}c.bmp": bmp_headers(2000, 2000, 24) + bytes(7000),
                  f"{bad}/{bad}.txt": b""})
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
                     "c.bmp: exceeds limit ",
                     "a.zvw: zvwfile saved."):
            self.assertIn(shown + line, output.decode())


if __name__ == "__main__":
    unittest.main(verbosity=2)
