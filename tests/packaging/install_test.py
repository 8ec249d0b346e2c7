#!/usr/bin/env python3
"""The files that `cmake --install` writes, and every way to start the program from there."""
import gzip
import os
import re
import shutil
import subprocess
import unittest

from installed import BUILD, VERSION, PackagingTest, run

PREFIX = "opt/vues d'été"


class Install(PackagingTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        run("cmake", "--install", BUILD, "--prefix", f"/{PREFIX}",
            env={**os.environ, "DESTDIR": str(cls.shared)})
        cls.prefix = cls.shared / PREFIX
        cls.command = cls.prefix / "bin/zanoview3"

    def test_starts_by_every_way(self):
        self.assertEqual(os.listdir(self.shared), ["opt"])
        usual = self.check_start(self.command)
        link = self.folder / "photos"
        link.symlink_to(self.command)
        for way in ((os.path.relpath(self.command, self.pictures),),
                    ("env", f"PATH={self.folder}:{os.environ['PATH']}", "photos"),
                    ("bash", "-c", 'exec -a viewer "$0" "$@"', self.command)):
            with self.subTest(way=way):
                self.look(*map(str, way), expected=usual)
        self.look(self.command, lang="ja_JP.UTF-8")

    def test_launcher_reports_that_the_program_is_missing(self):
        launcher = shutil.copytree(self.command.parent, self.folder / "bin") / "zanoview3"
        program = self.folder / "libexec/zanoview3/zanoview3"
        ended = subprocess.run((launcher, "-h"), capture_output=True, text=True)
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr),
                         (1, "", f"zanoview3: can't start {program}: No such file or directory\n"))

    def test_a_build_of_the_program_alone_is_enough(self):
        """scripts/run builds the program alone. Every installed file is made on the way to it."""
        commands = run("ninja", "-C", BUILD, "-t", "commands", "zanoview3", "zv_data").split()
        made = {os.path.relpath(BUILD / word, BUILD) for word in commands}
        rules = set(re.findall(r"^(.+?): ", run("ninja", "-C", BUILD, "-t", "targets", "all"), re.M))
        scripts = "".join(path.read_text() for path in BUILD.glob("**/cmake_install.cmake"))
        installed = set(re.findall(rf'"{re.escape(str(BUILD))}/([^"]+)"', scripts)) & rules
        self.assertEqual(("packaging/zanoview3" in installed, installed - made), (True, set()))

    def test_texts_and_icons(self):
        share = self.prefix / "share"
        self.assertIn(f'"zanoview3 {VERSION}"', gzip.open(share / "man/man1/zanoview3.1.gz", "rt").read())
        metainfo = (share / "metainfo/org.zanoview3.zanoview3.metainfo.xml").read_text()
        release = re.search(r"^## \[(.*?)\] - (\S+)$",
                            (share / "doc/zanoview3/CHANGELOG.md").read_text(), re.M)
        self.assertEqual(release[1], VERSION)
        self.assertIn('<release version="{}" date="{}"/>'.format(*release.groups()), metainfo)
        for name in "doc/*/LICENSE", "zsh/*/_zanoview3", "bash-*/*/zanoview3", "fish/*/zanoview3.fish":
            self.assertTrue([*share.glob(name)], name)
        icons = sorted(share.glob("icons/hicolor/*/apps/zanoview3.png"))
        self.assertEqual(run("identify", "-format", "%wx%h ", *icons).split(),
                         [icon.parts[-3] for icon in icons])


if __name__ == "__main__":
    unittest.main(verbosity=2)
