#!/usr/bin/env python3
"""The Debian package: its fields, and that it installs into a root directory and starts there."""
import gzip
import os
import re
import shutil
import unittest

from installed import VERSION, PackagingTest, run

PACKAGE = os.environ["PACKAGE"]


class DebianPackage(PackagingTest):
    def test_installs_starts_and_is_removed(self):
        """dpkg checks the dependencies: the directory's database lists the packages of this machine."""
        fields = run("dpkg-deb", "-f", PACKAGE, "Version", "Depends")
        self.assertIn(f"Version: {VERSION}-", fields)
        for name in "libgl1", "libglfw3", "libjpeg62-turbo", "libpng16-16", "libstdc++6":
            self.assertRegex(fields, rf"\b{re.escape(name)}\W")
        root = self.folder / "root"
        for name in "info", "updates":
            (root / "var/lib/dpkg" / name).mkdir(parents=True)
        shutil.copy("/var/lib/dpkg/status", root / "var/lib/dpkg")
        if "\nPackage: zanoview3\n" in (root / "var/lib/dpkg/status").read_text():
            self.skipTest("zanoview3 is installed here")
        dpkg = (*(() if os.getuid() == 0 else ("unshare", "--map-root-user")),
                "dpkg", f"--root={root}", "--log=/dev/null", "--force-unsafe-io")
        run(*dpkg, "-i", PACKAGE)
        self.assertIn(VERSION, gzip.open(root / "usr/share/doc/zanoview3/changelog.Debian.gz", "rt").read())
        self.check_start(root / "usr/bin/zanoview3")
        run(*dpkg, "-P", "zanoview3")
        self.assertEqual([path for path in root.glob("usr/**/*") if not path.is_dir()], [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
