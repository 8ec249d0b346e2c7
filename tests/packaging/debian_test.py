#!/usr/bin/env python3
"""The Debian package: made, checked, installed into a root of its own, started from there."""
import gzip
import os
import pathlib
import shutil
import tempfile
import unittest

from installed import BUILD, VERSION, PackagingTest, main, run


class DebianPackage(PackagingTest):
    @classmethod
    def setUpClass(cls):
        for program in "dpkg-shlibdeps", "file":
            if not shutil.which(program):
                raise unittest.SkipTest(f"{program} is not installed")
        made = tempfile.TemporaryDirectory()
        cls.addClassCleanup(made.cleanup)
        run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", made.name)
        cls.package, = pathlib.Path(made.name).glob("*.deb")

    def test_lintian_is_silent(self):
        self.need("lintian")
        user = ("--allow-root",) if os.getuid() == 0 else ()
        self.assertEqual(run("lintian", *user, "-E", "-I", "--pedantic", self.package), "")

    def test_says_what_it_is(self):
        fields = dict(line.split(": ", 1) for line in run("dpkg-deb", "-f", self.package).split("\n")
                      if line[:1].strip())
        self.assertEqual(fields["Version"].rpartition("-")[0], VERSION)
        for name in "libgl1", "libglfw3", "libjpeg62-turbo", "libpng16-16", "libstdc++6":
            self.assertIn(name, fields["Depends"].replace(",", " ").split())

    def test_installs_and_starts(self):
        """dpkg unpacks into a root whose database has the packages of this machine, so that it checks
        the dependencies, and nothing of it remains."""
        root = self.folder / "root"
        for name in "info", "updates":
            (root / "var/lib/dpkg" / name).mkdir(parents=True)
        shutil.copy("/var/lib/dpkg/status", root / "var/lib/dpkg")
        if "\nPackage: zanoview3\n" in (root / "var/lib/dpkg/status").read_text():
            self.skipTest("zanoview3 is installed here")
        as_root = () if os.getuid() == 0 else ("unshare", "--map-root-user")
        run(*as_root, "dpkg", f"--root={root}", "--log=/dev/null", "--force-unsafe-io", "-i",
            self.package)
        self.assertEqual(run("dpkg-query", f"--admindir={root}/var/lib/dpkg", "-W", "-f",
                             "${Status}", "zanoview3"), "install ok installed")
        self.assertEqual({path.name for path in root.iterdir()}, {"usr", "var"})
        self.assertIn(VERSION, gzip.open(root / "usr/share/doc/zanoview3/changelog.Debian.gz", "rt").read())
        if shutil.which("appstreamcli"):
            run("appstreamcli", "validate-tree", "--no-net", root)
        self.check_starts(root / "usr/bin")
        run(*as_root, "dpkg", f"--root={root}", "--log=/dev/null", "-P", "zanoview3")
        self.assertEqual([path for path in root.glob("usr/**/*") if not path.is_dir()], [])


if __name__ == "__main__":
    main()
