#!/usr/bin/env python3
"""scripts/run on machines of all kinds. Programs on PATH replace the package manager, the build, the
screen and the viewer."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "run"
REAL = ("awk basename bash cat cut dirname env grep head mkdir mktemp rm seq sh sleep tail tee timeout "
        "tr").split()
NOISE = "seq -f 'noise %g' 700\n"
STUBS = {
    "apt-get": NOISE + 'echo "apt-get $*" >>"$CALLS"; exit ${APT_STATUS:-0}',
    "cmake": NOISE + 'echo "cmake $*" >>"$CALLS"; exit ${BUILD_STATUS:-0}',
    "dpkg-query": 'for last; do :; done; case $last in $MISSING | *-wayland) exit 1 ;; esac; echo installed',
    "id": "echo ${USER_ID:-0}",
    "identify": "echo 5",
    "import": ":",
    "pkg-config": "exit 1",
    "sudo": 'echo sudo >>"$CALLS"; "$@"',
    "Xvfb": "echo 42 >&3; exec sleep 60",
    "xdotool": "[ $1 != search ] || sleep 0.5; [ $1 = windowfocus ] || echo a.jpg",
}
VIEWER = """#!/bin/sh
[ "$DISPLAY" != :77 ] || { echo "glfwInit() failed." >&2; exit 1; }
[ "$1" != -h ] || { echo "-winsize XXXxYYY x"; exit; }
echo "viewer $DISPLAY $*" >>"$CALLS"
for last; do :; done
case $last in *.gone) ;; *.crash) exit 42 ;; *) echo; echo "display image: $last" ;; esac
"""


class Run(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.bin = self.folder / "bin"
        self.build = self.folder / "build"
        self.calls = self.folder / "calls"
        self.bin.mkdir()
        self.build.mkdir()
        for name in REAL:
            if path := shutil.which(name):
                (self.bin / name).symlink_to(path)
        for name, text in STUBS.items():
            self.program(self.bin / name, "#!/bin/sh\n" + text)
        self.program(self.build / "zanoview3", VIEWER)

    def program(self, path, text):
        path.write_text(text + "\n")
        path.chmod(0o755)

    def run_script(self, *words, without=(), **settings):
        """Returns the status, the output, and the calls of the replaced programs."""
        self.calls.write_text("")
        for name in without:
            (self.bin / name).unlink()
        environment = {"PATH": str(self.bin), "BUILD_DIR": str(self.build), "MISSING": "none",
                       "CALLS": str(self.calls), "HOME": str(self.folder), **settings}
        ended = subprocess.run((SCRIPT,) + words, env=environment, capture_output=True, text=True)
        return ended.returncode, ended.stdout + ended.stderr, self.calls.read_text()

    def test_prints_little_on_a_fresh_machine(self):
        status, output, calls = self.run_script(MISSING="*", DISPLAY=":5")
        lines = output.splitlines()
        self.assertEqual((status, [line[:4] for line in lines]), (0, ["==> "] * 3), output)
        self.assertIn("installing g++ cmake", lines[0])
        self.assertIn("noise 700", (self.build / "packages.log").read_text())
        self.assertIn("libglfw3-dev", calls)
        for other in "libgtest-dev", "libbenchmark-dev", "xvfb", "sudo":
            self.assertNotIn(other, calls)
        self.assertIn(f"-B {self.build} ", calls)

    def check_failure(self, texts, status=1, picture="a.jpg", without=(), **settings):
        ended, output, calls = self.run_script(picture, without=without, **settings)
        self.assertEqual(ended, status, output)
        for text in texts:
            self.assertIn(text, output)
        self.assertLess(output.count("\n"), 30)
        self.assertEqual("apt-get install" in calls, "APT_STATUS" in settings)

    def test_reports_what_fails(self):
        build, nowhere = str(self.build), str(self.folder / "calls" / "below")
        self.check_failure(("noise 700", f"its output is in {build}/packages.log", "missing packages: cmake"),
                           MISSING="cmake", APT_STATUS="100", DISPLAY=":5")
        self.check_failure(("noise 700", f"its output is in {build}/build.log"),
                           BUILD_STATUS="2", DISPLAY=":5")
        self.check_failure((f"can't write to {nowhere}: set BUILD_DIR",), BUILD_DIR=nowhere)
        self.check_failure(("glfwInit() failed.\n==> no answer from the screen :77; for a virtual one: env -u",),
                           DISPLAY=":77")
        for screen in {"DISPLAY": ":5"}, {}:  # an empty one starts a virtual screen
            self.check_failure(("no picture was shown",), picture="a.gone", **screen)
            self.check_failure((), status=42, picture="a.crash", **screen)
        self.check_failure(("missing packages, to be installed as root: apt-get install xvfb\n",),
                           without=("sudo",), MISSING="xvfb", USER_ID="1000")

    def test_finds_a_screen(self):
        xwayland = subprocess.Popen(("/opt/Xwayland", "-c", "input()", "-rootless", ":6", "-auth", "key"),
                                    executable=sys.executable, stdin=subprocess.PIPE)
        rows = (("x", {"DISPLAY": ":5", "WAYLAND_DISPLAY": "w"}, ":5", ""),
                ("none", {}, ":42", "==> virtual screen on :42\n"),
                ("xwayland", {"WAYLAND_DISPLAY": "w"}, ":6", "==> this GLFW needs X: using Xwayland on :6\n"),
                ("wayland", {"WAYLAND_DISPLAY": "w"}, ":42", "WAYLAND_DISPLAY=w is not an X display\n==> virtual"))
        for name, settings, display, text in rows:
            with self.subTest(name):
                if name == "wayland":
                    xwayland.communicate(b"\n")
                status, output, calls = self.run_script("-winsize", "9x9", "a.jpg", **settings)
                self.assertEqual((status, text in output), (0, True), output)
                self.assertIn(f"viewer {display} -verbose -winsize 9x9 a.jpg\n", calls)
                self.assertEqual("saved a screenshot" in output, display == ":42", output)

    def test_other_systems_and_requests(self):
        shown = self.run_script("-winsize", "9x9", DISPLAY=":5")[2]
        self.assertIn(f"-winsize 9x9 {self.build}/pictures\n", shown)
        self.assertIn("\n-winsize XXXxYYY x\n", self.run_script("-verbose", "-h", "a.jpg", DISPLAY=":5")[1])
        self.assertIn("\ndisplay image: a.jpg\n", self.run_script("-debug", "a.jpg", DISPLAY=":5")[1])
        status, output, _ = self.run_script("a.jpg", without=("apt-get",), DISPLAY=":5")
        self.assertEqual((status, "libraries of these Debian packages: g++" in output), (0, True))


if __name__ == "__main__":
    unittest.main(verbosity=2)
