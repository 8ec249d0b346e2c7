#!/usr/bin/env python3
"""What `cmake --install` puts where, and that the program starts from there by every way."""
import gzip
import os
import re
import shutil
import subprocess
import unittest

from installed import BUILD, SOURCE, VERSION, PackagingTest, main, run

PREFIX = "opt/vues d'été"


class Install(PackagingTest):
    def install(self):
        stage = self.folder / "stage"
        run("cmake", "--install", BUILD, "--prefix", f"/{PREFIX}",
            env={**os.environ, "DESTDIR": str(stage)})
        return stage / PREFIX

    def test_starts_by_every_way(self):
        prefix = self.install()
        self.assertFalse((self.folder / "stage/usr").exists())
        usual = self.check_starts(prefix / "bin")
        # Without its data the program looks and says otherwise: the comparisons can fail.
        shutil.copy(prefix / "libexec/zanoview3/zanoview3", self.folder)
        error = "/usr/site/share/zanolib/zanoview3.msg: can't load message file.\n"
        bare = self.look(self.folder / "zanoview3", title="message not loaded.", errors=error,
                         arguments=("-frametype", "4", "-framewidth", "48"))
        self.assertNotEqual(bare, usual)
        # The launcher without the program.
        program = prefix / "libexec/zanoview3/zanoview3"
        program.unlink()
        ended = subprocess.run((prefix / "bin/zanoview3", "-h"), capture_output=True, text=True)
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr),
                         (1, "", f"zanoview3: can't start {program}: No such file or directory\n"))

    def test_a_build_of_the_program_alone_is_enough(self):
        """As scripts/run makes it: whatever is installed from the build folder is made on the way
        to the program."""
        commands = run("ninja", "-C", BUILD, "-t", "commands", "zanoview3", "zv_data").split()
        made = {os.path.relpath(BUILD / word, BUILD) for word in commands}
        rules = set(re.findall(r"^(.+?): ", run("ninja", "-C", BUILD, "-t", "targets", "all"), re.M))
        scripts = "".join(path.read_text() for path in BUILD.glob("**/cmake_install.cmake"))
        installed = set(re.findall(rf'"{re.escape(str(BUILD))}/([^"]+)"', scripts)) & rules
        self.assertIn("packaging/zanoview3", installed)
        self.assertEqual(installed - made, set())

    def test_texts(self):
        prefix = self.install()
        manual = gzip.open(prefix / "share/man/man1/zanoview3.1.gz", "rt").read()
        self.assertIn(f'"zanoview3 {VERSION}"', manual)
        share = prefix / "share"
        metainfo = (share / "metainfo/org.zanoview3.zanoview3.metainfo.xml").read_text()
        release = re.search(r"^## \[(.*?)\] - (\S+)$",
                            (share / "doc/zanoview3/CHANGELOG.md").read_text(), re.M)
        self.assertEqual(release[1], VERSION)
        self.assertIn('<release version="{}" date="{}"/>'.format(*release.groups()), metainfo)
        for name in "doc/zanoview3/LICENSE", "zsh/site-functions/_zanoview3", \
                "bash-completion/completions/zanoview3", "fish/vendor_completions.d/zanoview3.fish":
            self.assertTrue((share / name).is_file(), name)

    def test_desktop_files(self):
        prefix = self.install()
        self.need("desktop-file-validate")
        run("desktop-file-validate", *prefix.glob("share/applications/*"))
        self.need("appstreamcli")
        run("appstreamcli", "validate", "--no-net", *prefix.glob("share/metainfo/*"))

    def test_icons_show_their_drawings(self):
        prefix = self.install()
        self.need("rsvg-convert")
        run(SOURCE / "packaging/make-icons", self.folder)
        for size in 16, 22, 24, 32, 48, 64, 128, 256, 512:
            icon = prefix / f"share/icons/hicolor/{size}x{size}/apps/zanoview3.png"
            drawn = self.folder / f"zanoview3-{size}.png"
            self.assertEqual(run("identify", "-format", "%wx%h", icon), f"{size}x{size}")
            # Renderers differ in the last bits.
            run("compare", "-metric", "AE", "-fuzz", "3%", icon, drawn, "null:")

    def test_builds_release_by_default(self):
        run("cmake", "-G", "Ninja", "-S", SOURCE, "-B", self.folder / "build", "-DZV_BUILD_TESTS=OFF")
        self.assertIn("CMAKE_BUILD_TYPE:STRING=Release\n",
                      (self.folder / "build/CMakeCache.txt").read_text())


if __name__ == "__main__":
    main()
