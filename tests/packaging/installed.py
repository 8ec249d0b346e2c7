"""Helpers of the tests of the installation."""
import os
import pathlib
import subprocess
import tempfile

from viewerdriver import PROGRAM, Viewer, ViewerTest, wait_for, write_bmp

BUILD = pathlib.Path(os.environ["BUILD"])
SOURCE = pathlib.Path(os.environ["SOURCE"])
VERSION = os.environ["VERSION"]


def run(*words, **how):
    """Returns the standard output. A failure is an error that shows all output."""
    ended = subprocess.run(tuple(map(str, words)), capture_output=True, text=True, **how)
    if ended.returncode:
        raise AssertionError(f"{words} ended with {ended.returncode}:\n{ended.stdout}{ended.stderr}")
    return ended.stdout


class PackagingTest(ViewerTest):
    """Tests have the temporary directories `folder`, and `shared` for all tests of a class."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.shared = pathlib.Path(folder.name)

    def setUp(self):
        super().setUp()
        self.folder = pathlib.Path(self.folder.name)

    def look(self, *command, frame="4", expected=None, **start):
        """Starts the viewer and waits for the expected look or for one that stays. Returns the look."""
        with Viewer("-frametype", frame, "-framewidth", "48", "a.bmp", command=command,
                    cwd=self.pictures, **start) as viewer:
            viewer.await_title("a.bmp (1/1) - zanoview3")
            # The desktop entry names this class, by which a desktop finds the icon.
            self.assertIn('"zanoview3", "zanoview3"', run("xprop", "-id", viewer.window, "WM_CLASS"))
            if not expected:
                return wait_for("a look that stays", lambda: viewer.stays())
            return wait_for(f"the usual look from {command}", lambda: viewer.look() == expected)

    def check_start(self, command):
        """Compares the look of `command` with a start from the build folder, with both frames that need
        data files. Returns the look with the second one."""
        self.new_screen()
        self.pictures = self.folder / "pictures"
        self.pictures.mkdir()
        write_bmp(self.pictures / "a.bmp", 300, 200, 24, lambda x, y: (x % 256, y, 128))
        for frame in "2", "4":
            usual = self.look(PROGRAM, frame=frame)
            self.assertGreater(len(set(zip(*[iter(usual[2])] * 3))), 3000, "the frame has no texture")
            self.look(command, frame=frame, expected=usual)
        return usual
