#!/usr/bin/env python3
"""Old versions of OpenGL show the same pictures as new ones, with mipmaps by the driver or by GLU, and
new ones show PNG files as ImageMagick reads them."""
import unittest

from viewerdriver import Viewer, ViewerTest, part, run, wait_for

WIDTH, HEIGHT = 300, 270  # four tiles; three of them fill only a part of their textures
WINDOW = 400, 300
PLACE = (WINDOW[0] - WIDTH) // 2, (WINDOW[1] - HEIGHT) // 2, WIDTH, HEIGHT  # at scale 1
# ImageMagick's options. The two bytes of a sample of 16 bits differ.
PICTURES = {"rgb.png": (), "palette.png": ("-colors", 60), "gray.png": ("-colorspace", "Gray"),
            "rgb16.png": ("-depth", 16, "-evaluate", "multiply", 0.7),
            "rgba.png": ("-alpha", "set", "-channel", "A", "-evaluate", "set", "60%", "+channel")}
NEW = "4.5", {}
OLD = (("2.1", {}), ("1.4", {}), ("1.2", {}),
       ("1.2", {"MESA_EXTENSION_OVERRIDE": "-GL_SGIS_generate_mipmap"}))
# The key, the scale, and by how much a channel may differ if GLU builds the mipmaps: GLU and the
# driver round differently, by at most 1 in each level. At scale 1 a little of level 1 is mixed in.
VIEWS = (("0", 1, 1), ("Prior", 2 ** 0.25, 1), ("4", 1 / 4, 2))


def agree(expected, shown, slack, scale=1, width=WINDOW[0]):
    """Returns true if no pixel differs by more than `slack`. Ignores the right column and the top row of
    a scaled picture: they are mixed with texels that OpenGL leaves undefined."""
    right, top = (WINDOW[0] + WIDTH * scale) / 2, (WINDOW[1] - HEIGHT * scale) / 2
    for at, (a, b) in enumerate(zip(expected, shown)) if expected != shown else ():
        y, x = divmod(at // 3, width)
        if abs(a - b) > slack and (scale == 1 or abs(x + 0.5 - right) > 1 < abs(y + 0.5 - top)):
            return False
    return True


class Versions(ViewerTest):
    def views(self, version, extensions):
        """Runs the viewer, and shows each picture in each view in turn."""
        with Viewer("-resetview-", "-frametype", "0", "-winsize", "{}x{}".format(*WINDOW),
                    *map(self.path, PICTURES), MESA_GL_VERSION_OVERRIDE=version, **extensions) as viewer:
            viewer.await_box(50, 15, 349, 284)
            for name in PICTURES:
                viewer.await_title(name)
                for view in VIEWS:
                    viewer.key(view[0])
                    yield viewer, name, view
                viewer.key("space")

    def test_versions_agree(self):
        for name, options in PICTURES.items():
            run("convert", "-seed", 7, "-size", f"{WIDTH}x{HEIGHT}", "plasma:red-yellow", "-depth", 8,
                "-alpha", "off", *options, self.path(name))
        expected, last = {}, None
        for viewer, name, view in self.views(*NEW):
            if view[1] == 1:
                # The viewer doesn't draw transparency.
                file = run("convert", self.path(name), "-alpha", "off", "-depth", 8, "rgb:-")
                wait_for(name, lambda: agree(file, part(viewer.look(), *PLACE), 1, 1, WIDTH))

            def settled(former=last):
                look = viewer.look()[2]
                return look != former and look == viewer.look()[2] and look
            last = expected[name, view] = wait_for(f"{name} after {view[0]}", settled)
        for context in OLD:
            for viewer, name, view in self.views(*context):
                key, scale, slack = view
                by_glu = context is OLD[-1] or name in ("gray.png", "rgb16.png")
                wait_for(f"{name} after {key} by {context}", lambda: agree(
                    expected[name, view], viewer.look()[2], slack if by_glu else 0, scale))


if __name__ == "__main__":
    unittest.main(verbosity=2)
