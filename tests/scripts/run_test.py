#!/usr/bin/env python3
"""scripts/run on machines of all kinds. Programs on PATH replace the ones that change or show anything."""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "run"
NOISE = "seq -f 'noise %g' 700\n"
STUBS = {
    "apt-get": NOISE + 'echo "apt-get $*" >>"$CALLS"; exit ${APT_STATUS:-0}',
    "cmake": NOISE + 'echo "cmake $*" >>"$CALLS"; exit ${BUILD_STATUS:-0}',
    "dpkg-query": "case $4 in ${MISSING:-none} | *-wayland) exit 1 ;; esac; echo installed",
    "id": "echo ${USER_ID:-0}",
    "identify": "echo 5",
    "import": ":",
    "sudo": 'echo sudo >>"$CALLS"; "$@"',
    "Xvfb": "echo 42 >&3; exec sleep 60",
    "xdotool": "[ $1 != search ] || sleep 0.5; [ $1 = windowfocus ] || echo a.jpg",
    "zanoview3": """[ "$DISPLAY" != :77 ] || { echo "glfwInit() failed." >&2; exit 1; }
[ "$1" != -h ] || { echo "-winsize XXXxYYY x"; exit; }
echo "viewer $DISPLAY $*" >>"$CALLS"
for last; do :; done
case $last in *.gone) ;; *.crash) exit 42 ;; *) echo; echo "display image: $last" ;; esac""",
}


class Run(unittest.TestCase):
    def setUp(self):
        self.build = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.build)
        self.bin, self.calls = self.build / "bin", self.build / "calls"
        self.bin.mkdir()
        real = "awk bash cat cut dirname env grep head mkdir mktemp rm seq sh sleep tail tee timeout tr"
        for name in real.split():
            (self.bin / name).symlink_to(shutil.which(name))
        for name, text in STUBS.items():
            (self.bin / name).write_text(f"#!/bin/sh\n{text}\n")
            (self.bin / name).chmod(0o755)
        (self.build / "zanoview3").symlink_to(self.bin / "zanoview3")

    def run_script(self, *words, **settings):
        """Returns the status, the output, and the calls of the replaced programs."""
        self.calls.write_text("")
        ended = subprocess.run((SCRIPT,) + words, capture_output=True, text=True, env={
            "PATH": str(self.bin), "BUILD_DIR": str(self.build), "CALLS": str(self.calls), **settings})
        return ended.returncode, ended.stdout + ended.stderr, self.calls.read_text()

    def test_prints_little_on_a_fresh_machine(self):
        status, output, calls = self.run_script(MISSING="*", DISPLAY=":5")
        self.assertEqual((status, output.count("\n"), output.count("==> ")), (0, 3, 3), output)
        self.assertNotRegex(calls, "libgtest-dev|libbenchmark-dev|xvfb|sudo")
        self.assertRegex(calls, f"(?s)libglfw3-dev.* -B {self.build} ")

    def check_failure(self, *texts, status=1, picture="a.jpg", DISPLAY=":5", **settings):
        ended, output, calls = self.run_script(picture, DISPLAY=DISPLAY, **settings)
        self.assertEqual(ended, status, output)
        self.assertEqual([text for text in texts if text not in output], [], output)
        self.assertLess(output.count("\n"), 30)
        self.assertEqual("apt-get install" in calls, "APT_STATUS" in settings)

    def test_reports_what_fails(self):
        build, nowhere = str(self.build), str(self.calls / "below")
        self.check_failure("noise 700", f"its output is in {build}/packages.log", "missing packages: cmake",
                           MISSING="cmake", APT_STATUS="100")
        self.check_failure("noise 700", f"its output is in {build}/build.log", BUILD_STATUS="2")
        self.check_failure(f"can't write to {nowhere}: set BUILD_DIR", BUILD_DIR=nowhere)
        self.check_failure("no answer from the screen :77; for a virtual one: env -u", DISPLAY=":77")
        for screen in ":5", "":  # an empty one starts a virtual screen
            self.check_failure("no picture was shown", picture="a.gone", DISPLAY=screen)
            self.check_failure(status=42, picture="a.crash", DISPLAY=screen)
        (self.bin / "sudo").unlink()
        self.check_failure("as root: apt-get install xvfb\n", MISSING="xvfb", USER_ID="1000", DISPLAY="")

    def test_finds_a_screen(self):
        xwayland = subprocess.Popen(("/opt/Xwayland", "-c", "input()", "-rootless", ":6", "-auth", "key"),
                                    executable=sys.executable, stdin=subprocess.PIPE)
        rows = (("x", {"DISPLAY": ":5", "WAYLAND_DISPLAY": "w"}, ":5", ""),
                ("none", {}, ":42", "==> virtual screen on :42\n"),
                ("xwayland", {"WAYLAND_DISPLAY": "w"}, ":6", "==> this GLFW needs X: using Xwayland on :6\n"),
                ("wayland", {"WAYLAND_DISPLAY": "w"}, ":42", "=w is not an X display\n==> virtual"))
        for name, settings, display, text in rows:
            if name == "wayland":
                xwayland.communicate(b"\n")
            status, output, calls = self.run_script("-winsize", "9x9", "a.jpg", **settings)
            self.assertEqual((status, text in output), (0, True), f"{name}: {output}")
            self.assertIn(f"viewer {display} -verbose -winsize 9x9 a.jpg\n", calls)
            self.assertEqual("saved a screenshot" in output, display == ":42", output)

    def test_other_systems_and_requests(self):
        self.assertIn(f"9x9 {self.build}/pictures\n", self.run_script("-winsize", "9x9", DISPLAY=":5")[2])
        self.assertIn("\n-winsize XXXxYYY x\n", self.run_script("-verbose", "-h", "a.jpg", DISPLAY=":5")[1])
        self.assertIn("\ndisplay image: a.jpg\n", self.run_script("-debug", "a.jpg", DISPLAY=":5")[1])
        (self.bin / "apt-get").unlink()
        self.assertIn("of these Debian packages: g++", self.run_script("a.jpg", DISPLAY=":5")[1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
