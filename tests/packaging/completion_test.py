#!/usr/bin/env python3
"""The completions in interactive shells: a text, the Tab key, and the arguments of the command."""
import os
import pty
import select
import sys
import unittest

from installed import SOURCE, PackagingTest

FOLDER = SOURCE / "packaging/completions"
# Prints its arguments between brackets. The brackets are in parts, so that the echo of it doesn't match.
FUNCTION = "zanoview3() { printf '<''%s>' \"$@\"; echo '!''!'; }"
SHELLS = {
    "bash": ("bash --norc --noprofile -i",
             f". /usr/share/bash-completion/bash_completion; . {FOLDER}/zanoview3.bash; {FUNCTION}"),
    "zsh": ("zsh -f -i", f"fpath=({FOLDER} $fpath); autoload -U compinit; compinit -u -D; {FUNCTION}"),
    "fish": ("fish --no-config -i", f"source {FOLDER}/zanoview3.fish; "
             "function zanoview3; printf '<''%s>' $argv; echo '!''!'; end"),
}
# What is typed before the Tab key, and the command's last argument.
ROWS = (("-wins", "-winsize"), ("-winsize ", "800x600"), ("-framecolor 2", "255,255,255,255"),
        ("-frametype 4 ph", "photo.JPG"), ("My", "My pics"),
        ("photo.JPG My\\ pics/", "My pics/x y.tga"), ("photo.JPG -wins", "-wins"))


class Completion(PackagingTest):
    def settle(self):
        """Waits until the shell has printed something, and until it prints nothing more."""
        wait = 20
        while select.select([self.terminal], [], [], wait)[0]:
            os.read(self.terminal, 4096)
            wait = 0.4

    def test_completes(self):
        (self.folder / "My pics").mkdir()
        for name in "photo.JPG", "photo.txt", "My pics/x y.tga":
            (self.folder / name).touch()
        words, setup = SHELLS[SHELL]
        child, self.terminal = pty.fork()
        if child == 0:
            os.chdir(self.folder)
            os.environ.update(HOME=str(self.folder), TERM="dumb", LC_ALL="C.UTF-8")
            os.execvp(words.split()[0], words.split())
        self.addCleanup(os.waitpid, child, 0)
        self.addCleanup(os.close, self.terminal)
        self.settle()
        os.write(self.terminal, (setup + "\r").encode())
        self.settle()
        for typed, expected in ROWS:
            with self.subTest(typed=typed):
                os.write(self.terminal, f"zanoview3 {typed}\t\r".encode())
                shown = ""
                while "!!" not in shown:
                    self.assertTrue(select.select([self.terminal], [], [], 20)[0], f"printed {shown}")
                    shown += os.read(self.terminal, 4096).decode().replace("\r", "").replace("\n", "")
                words = shown[shown.index("<") + 1:shown.rindex(">")].split("><")
                self.assertEqual([word.rstrip("/") for word in words if word][-1], expected)


if __name__ == "__main__":
    SHELL = sys.argv.pop()
    unittest.main(verbosity=2)
