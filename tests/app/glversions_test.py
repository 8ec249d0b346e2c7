#!/usr/bin/env python3
"""PNG and TGA files are shown as ImageMagick reads them, and old versions of OpenGL show the same
pictures as new ones, with mipmaps by the driver or by GLU."""
import struct
import unittest

from viewerdriver import Viewer, ViewerTest, part, run, wait_for

WIDTH, HEIGHT = 300, 270  # four tiles; three of them fill only a part of their textures
PLACE = (801 - WIDTH) // 2, (600 - HEIGHT) // 2, WIDTH, HEIGHT  # in the window, at scale 1
SHAPES = ("-fill", "white", "-draw", "line 0,0 299,269", "-fill", "blue",
          "-draw", "rectangle 280,0 299,30", "-depth", 8, "-alpha", "off")


def png(colour_type, depth, *options):
    if depth == 16:  # samples whose two bytes differ
        options = ("-depth", 16, "-evaluate", "multiply", 0.7, *options)
    return *options, "-define", f"png:color-type={colour_type}", "-define", f"png:bit-depth={depth}"


TRANSPARENT = "-alpha", "set", "-channel", "A", "-evaluate", "set", "60%", "+channel"
GRAY = "-colorspace", "Gray"
INTERLACED = "-interlace", "PNG"
# ImageMagick's options for the pictures that all versions show, and for those of the newest one.
PICTURES = {"rgb.png": png(2, 8), "gray.png": png(0, 8, *GRAY),
            "palette.png": png(3, 8, "-colors", 60), "rgb16.png": png(2, 16),
            "rgba.png": png(6, 8, *TRANSPARENT)}
FURTHER = {"gray1.png": png(0, 1, *GRAY, "-monochrome"), "gray2.png": png(0, 2, *GRAY, *INTERLACED),
           "gray4.png": png(0, 4, *GRAY), "gray16.png": png(0, 16, *GRAY, *INTERLACED),
           "palette1.png": png(3, 1, "-colors", 2, *INTERLACED),
           "palette2.png": png(3, 2, "-colors", 4), "palette4.png": png(3, 4, "-colors", 16),
           "gray-alpha.png": png(4, 16, *GRAY, *TRANSPARENT),
           "rgba16.png": png(6, 16, *TRANSPARENT, *INTERLACED)}
WITHOUT_SGIS = {"MESA_EXTENSION_OVERRIDE": "-GL_SGIS_generate_mipmap"}
CONTEXTS = (("2.1", {}), ("1.4", {}), ("1.2", {}), ("1.2", WITHOUT_SGIS))
# The key, the scale, and by how much a channel may differ if GLU builds the mipmaps: GLU and the
# driver round differently, by at most 1 in each level.
VIEWS = (("0", 1, 0), ("Prior", 2 ** 0.25, 0), ("4", 1 / 4, 2))


def difference(expected, shown, width, slack, ignored=lambda x, y: False):
    """Returns the first pixel that differs by more than `slack` and isn't ignored, or ""."""
    for at, (a, b) in enumerate(zip(expected, shown)) if expected != shown else ():
        if abs(a - b) > slack:
            y, x = divmod(at // 3, width)
            if not ignored(x, y):
                return f"{b} instead of {a} at {x}, {y}, channel {at % 3}"
    return ""


def is_mixed_edge(scale):
    """Returns a function that is true for the right column and the top row of a scaled picture.
    They are mixed with texels that OpenGL leaves undefined."""
    right, top = 400 + WIDTH / 2 * scale, 300 - HEIGHT / 2 * scale
    return lambda x, y: scale != 1 and not abs(x + 0.5 - right) > 1 < abs(y + 0.5 - top)


class Versions(ViewerTest):
    def views(self, names, version, extensions=None):
        """Runs the viewer, and shows each picture in each view in turn."""
        paths = [self.path(name) for name in names]
        with Viewer("-resetview-", "-frametype", "0", *paths, MESA_GL_VERSION_OVERRIDE=version,
                    **extensions or {}) as viewer:
            viewer.await_box(250, 165, 549, 434)
            for name in names:
                viewer.await_title(name)
                for view in VIEWS if name in PICTURES else VIEWS[:1]:
                    viewer.key(view[0])
                    yield viewer, name, view
                viewer.key("space")

    def await_pixels(self, what, expected, shown, *how):
        try:
            wait_for(what, lambda: not difference(expected, shown(), *how))
        except AssertionError:
            self.fail(f"{what}: {difference(expected, shown(), *how)}")

    def make_pictures(self):
        plasma = "convert", "-seed", 7, "-size", f"{WIDTH}x{HEIGHT}", "plasma:red-yellow"
        for name, options in {**PICTURES, **FURTHER}.items():
            run(*plasma, *SHAPES, *options, self.path(name))
        # Its pixels are of 16 bits in little endian, after the PNG files in big endian.
        pixels = (struct.pack("<H", 0x8000 | n * 37 % 0x8000) for n in range(WIDTH * HEIGHT))
        with open(self.path("packed.tga"), "wb") as out:
            out.write(struct.pack("<3B2HB4H2B", 0, 0, 2, 0, 0, 0, 0, 0, WIDTH, HEIGHT, 16, 1))
            out.write(b"".join(pixels))

    def test_versions_agree(self):
        self.make_pictures()
        expected, last = {}, None
        for viewer, name, view in self.views([*PICTURES, *FURTHER, "packed.tga"], "4.5"):
            if view[1] == 1:
                # The viewer doesn't draw transparency.
                file = run("convert", self.path(name), "-auto-orient", "-alpha", "off", "-depth", 8,
                           "rgb:-")
                self.await_pixels(name, file, lambda: part(viewer.look(), *PLACE), WIDTH, 1)

            def settled(former=last):
                look = viewer.look()[2]
                return look != former and look == viewer.look()[2] and look
            last = expected[name, view] = wait_for(f"{name} after {view[0]}", settled)
        for version, extensions in CONTEXTS:
            for viewer, name, view in self.views(PICTURES, version, extensions):
                key, scale, slack = view
                by_glu = extensions or name in ("gray.png", "rgb16.png")
                self.await_pixels(f"{name} after {key} by {version} {extensions}",
                                  expected[name, view], lambda: viewer.look()[2], 800,
                                  slack if by_glu else 0, is_mixed_edge(scale))


if __name__ == "__main__":
    unittest.main(verbosity=2)
