#!/usr/bin/env python3
"""The Debian package: its fields, and that it installs into a root directory and starts there."""
import gzip
import os
import shutil
import unittest

from installed import VERSION, PackagingTest, run


class DebianPackage(PackagingTest):
    package = os.environ["PACKAGE"]

    def test_has_version_and_dependencies(self):
        fields = dict(line.split(": ", 1) for line in run("dpkg-deb", "-f", self.package).split("\n")
                      if line[:1].strip())
        self.assertEqual(fields["Version"].rpartition("-")[0], VERSION)
        for name in "libgl1", "libglfw3", "libjpeg62-turbo", "libpng16-16", "libstdc++6":
            self.assertIn(name, fields["Depends"].replace(",", " ").split())

    def test_installs_starts_and_is_removed(self):
        """dpkg unpacks into a directory whose database lists the packages of this machine, so that it
        checks the dependencies."""
        root = self.folder / "root"
        for name in "info", "updates":
            (root / "var/lib/dpkg" / name).mkdir(parents=True)
        shutil.copy("/var/lib/dpkg/status", root / "var/lib/dpkg")
        if "\nPackage: zanoview3\n" in (root / "var/lib/dpkg/status").read_text():
            self.skipTest("zanoview3 is installed here")
        dpkg = (*(() if os.getuid() == 0 else ("unshare", "--map-root-user")),
                "dpkg", f"--root={root}", "--log=/dev/null", "--force-unsafe-io")
        run(*dpkg, "-i", self.package)
        self.assertEqual(run("dpkg-query", f"--admindir={root}/var/lib/dpkg", "-W", "-f",
                             "${Status}", "zanoview3"), "install ok installed")
        self.assertEqual({path.name for path in root.iterdir()}, {"usr", "var"})
        self.assertIn(VERSION, gzip.open(root / "usr/share/doc/zanoview3/changelog.Debian.gz", "rt").read())
        if shutil.which("appstreamcli"):
            run("appstreamcli", "validate-tree", "--no-net", root)
        self.check_start(root / "usr/bin/zanoview3")
        run(*dpkg, "-P", "zanoview3")
        self.assertEqual([path for path in root.glob("usr/**/*") if not path.is_dir()], [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
