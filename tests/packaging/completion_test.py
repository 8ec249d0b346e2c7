#!/usr/bin/env python3
"""The completions in interactive shells: a text, the Tab key, and the arguments of the command."""
import os
import pty
import select
import sys
import time
import unittest

from installed import SOURCE, PackagingTest

FOLDER = SOURCE / "packaging/completions"
# A function in place of the program prints its arguments between brackets. The definition has the
# brackets in parts, so that the shell's echo of it is not taken for the output.
SHELLS = {
    "bash": (("bash", "--norc", "--noprofile", "-i"),
             f". /usr/share/bash-completion/bash_completion; . {FOLDER}/zanoview3.bash; "
             "zanoview3() { printf '<''%s>' \"$@\"; echo '!''!'; }"),
    "zsh": (("zsh", "-f", "-i"),
            f"fpath=({FOLDER} $fpath); autoload -U compinit; compinit -u -D; "
            "zanoview3() { printf '<''%s>' \"$@\"; echo '!''!'; }"),
    "fish": (("fish", "--no-config", "-i"),
             f"source {FOLDER}/zanoview3.fish; "
             "function zanoview3; printf '<''%s>' $argv; echo '!''!'; end"),
}
# What is typed before the Tab key, and the command's last argument.
ROWS = (("-wins", "-winsize"), ("-winsize ", "800x600"), ("-framec", "-framecolor"),
        ("-framecolor 2", "255,255,255,255"), ("-menu- -deb", "-debug"),
        ("-frametype 4 ph", "photo.JPG"), ("My", "My pics"), ("My\\ pics/", "My pics/x y.tga"),
        ("photo.JPG My\\ pics/", "My pics/x y.tga"), ("photo.JPG -wins", "-wins"))


class Completion(PackagingTest):
    def setUp(self):
        super().setUp()
        (self.folder / "My pics").mkdir()
        for name in "photo.JPG", "photo.txt", "My pics/x y.tga":
            (self.folder / name).touch()

    def read(self, end):
        deadline = time.monotonic() + 20
        text = b""
        while end not in text:
            self.assertTrue(select.select([self.terminal], [], [], deadline - time.monotonic())[0],
                            f"the shell printed {text}")
            text += os.read(self.terminal, 4096)
        return text.decode().replace("\r", "").replace("\n", "")

    def settle(self):
        """Waits until the shell has printed something, and until it prints nothing more."""
        wait = 20
        while select.select([self.terminal], [], [], wait)[0]:
            os.read(self.terminal, 4096)
            wait = 0.4

    def test_completes(self):
        words, setup = SHELLS[SHELL]
        child, self.terminal = pty.fork()
        if child == 0:
            os.chdir(self.folder)
            os.environ.update(HOME=str(self.folder), TERM="dumb", LC_ALL="C.UTF-8")
            os.execvp(words[0], words)
        self.addCleanup(os.waitpid, child, 0)
        self.addCleanup(os.close, self.terminal)
        self.settle()
        os.write(self.terminal, (setup + "\r").encode())
        self.settle()
        for typed, expected in ROWS:
            with self.subTest(typed=typed):
                os.write(self.terminal, f"zanoview3 {typed}\t\r".encode())
                shown = self.read(b"!!")
                words = shown[shown.index("<") + 1:shown.rindex(">")].split("><")
                self.assertEqual([word.rstrip("/") for word in words if word][-1], expected)


if __name__ == "__main__":
    SHELL = sys.argv.pop()
    unittest.main(verbosity=2)
