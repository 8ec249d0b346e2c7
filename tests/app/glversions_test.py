#!/usr/bin/env python3
"""Old versions of OpenGL show the same pictures as new ones, whatever builds the mipmaps."""
import time
import unittest

from viewerdriver import Viewer, ViewerTest, run, wait_for

WIDTH, HEIGHT = 300, 270  # four tiles; three of them fill only a part of their textures
SHAPES = ("-fill", "white", "-draw", "line 0,0 299,269", "-fill", "blue",
          "-draw", "rectangle 280,0 299,30", "-depth", 8, "-alpha", "off")
PICTURES = {  # how each one is written
    "rgb.png": (), "gray.png": ("-colorspace", "Gray"), "palette.png": ("-colors", 60),
    "rgb16.png": ("-depth", 16, "-evaluate", "multiply", 0.7, "-define", "png:bit-depth=16"),
    "rgba.png": ("-alpha", "set", "-channel", "A", "-evaluate", "set", "60%"),
}
WITHOUT_SGIS = {"MESA_EXTENSION_OVERRIDE": "-GL_SGIS_generate_mipmap"}
CONTEXTS = (("2.1", {}), ("1.4", {}), ("1.2", {}), ("1.2", WITHOUT_SGIS))
# The key, the scale, and by how much a channel may differ where GLU builds the mipmaps: GLU and the
# driver round differently, by at most 1 in each level.
VIEWS = (("0", 1, 0), ("Prior", 2 ** 0.25, 0), ("4", 1 / 4, 2))


def difference(expected, shown, scale, slack):
    """The first pixel that differs by more than `slack`. The right column and the top row of scaled
    pictures don't count: they are mixed with texels that OpenGL leaves undefined."""
    width, height, pixels = expected
    right, top = width / 2 + WIDTH / 2 * scale, height / 2 - HEIGHT / 2 * scale
    for at, (a, b) in enumerate(zip(pixels, shown[2])):
        if abs(a - b) > slack:
            y, x = divmod(at // 3, width)
            if scale == 1 or abs(x + 0.5 - right) > 1 < abs(y + 0.5 - top):
                return f"{b} in place of {a} at {x},{y}, channel {at % 3}"
    return ""


class Versions(ViewerTest):
    def views(self, version, extensions):
        """Runs the viewer, and shows each picture in each view in turn."""
        paths = [self.path(name) for name in PICTURES]
        with Viewer("-resetview-", "-frametype", "0", *paths, MESA_GL_VERSION_OVERRIDE=version,
                    **extensions) as viewer:
            viewer.await_box(250, 165, 549, 434)
            for name in PICTURES:
                viewer.await_title(name)
                for view in VIEWS:
                    viewer.key(view[0])
                    yield viewer, name, view
                viewer.key("space")

    def test_versions_agree(self):
        for name, words in PICTURES.items():
            run("convert", "-seed", 7, "-size", f"{WIDTH}x{HEIGHT}", "plasma:red-yellow", *SHAPES,
                *words, self.path(name))
        expected, last = {}, None
        for viewer, name, view in self.views("4.5", {}):
            def settled(former=last):
                look = viewer.look()
                return look != former and look == viewer.look() and look
            last = expected[name, view] = wait_for(f"{name} after {view[0]}", settled)
        for version, extensions in CONTEXTS:
            for viewer, name, (key, scale, slack) in self.views(version, extensions):
                by_glu = extensions or name in ("gray.png", "rgb16.png")
                end = time.monotonic() + 10
                while fault := difference(expected[name, (key, scale, slack)], viewer.look(), scale,
                                          slack if by_glu else 0):
                    self.assertLess(time.monotonic(), end,
                                    f"{name} after {key} by {version} {extensions}: {fault}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
