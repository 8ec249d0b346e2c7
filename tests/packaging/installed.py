"""What the tests of the installation share."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from viewerdriver import PROGRAM, Viewer, wait_for, write_bmp

BUILD = pathlib.Path(os.environ["BUILD"])
SOURCE = pathlib.Path(os.environ["SOURCE"])
VERSION = os.environ["VERSION"]


def run(*words, **how):
    """Returns the standard output. A failure is an error that shows all output."""
    ended = subprocess.run(tuple(map(str, words)), capture_output=True, text=True, **how)
    if ended.returncode:
        raise AssertionError(f"{words} ended with {ended.returncode}:\n{ended.stdout}{ended.stderr}")
    return ended.stdout


def main():
    """Runs the file's tests. Exit status 77 tells ctest that some were skipped."""
    result = unittest.main(verbosity=2, exit=False).result
    sys.exit(77 if result.wasSuccessful() and result.skipped else not result.wasSuccessful())


class PackagingTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def need(self, program):
        if not shutil.which(program):
            self.skipTest(f"{program} is not installed")

    def look(self, *command, title="a.bmp (1/1) - zanoview3", expected=None, arguments=(), **start):
        """Starts the viewer in the folder of a picture, waits for the title, and for the expected
        look or one that stays. Returns what the window shows."""
        with Viewer(*arguments, "a.bmp", command=command, cwd=self.pictures, **start) as viewer:
            viewer.await_title(title)
            # The desktop entry names this class, by which a desktop finds the icon.
            self.assertIn('"zanoview3", "zanoview3"', run("xprop", "-id", viewer.window, "WM_CLASS"))
            if expected:
                wait_for(f"the usual look from {command}", lambda: viewer.look() == expected)
            return wait_for("a look that stays", lambda: viewer.stays())

    def check_starts(self, commands, frames=("2", "4")):
        """Starts the viewer by each way to it in a directory, and compares the title, the frame and
        the error stream with those of a start from the build folder."""
        self.pictures = self.folder / "pictures"
        self.pictures.mkdir()
        write_bmp(self.pictures / "a.bmp", 300, 200, 24, lambda x, y: (x % 256, y, 128))
        links = self.folder / "links"
        links.mkdir()
        command = commands / "zanoview3"
        (links / "photos").symlink_to(command)
        path = os.environ["PATH"]
        ways = ((command,), (os.path.relpath(command, self.pictures),),
                ("env", f"PATH={commands}:{path}", "zanoview3"),
                (links / "photos",), ("env", f"PATH={links}:{path}", "photos"),
                ("bash", "-c", 'exec -a viewer "$0" "$@"', command))
        for frame in frames:
            arguments = ("-frametype", frame, "-framewidth", "48")
            usual = self.look(PROGRAM, arguments=arguments)
            self.assertGreater(len(set(zip(*[iter(usual[2])] * 3))), 3000, "the frame has no texture")
            for way in ways:
                with self.subTest(way=way, frame=frame):
                    self.look(*map(str, way), arguments=arguments, expected=usual)
        self.look(command, lang="ja_JP.UTF-8")
        return usual
