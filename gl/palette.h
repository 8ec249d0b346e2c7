// SPDX-License-Identifier: MIT
// The guard that keeps an image's palette in OpenGL's pixel maps while the image goes up.
#pragma once

#include "image/image.h"

namespace libgr {

/// Switches GL_MAP_COLOR on for the uploads within its lifetime. Needs a current context.
class grPalette {
  public:
    grPalette() = default;
    grPalette(grPalette const&) = delete;
    grPalette& operator=(grPalette const&) = delete;
    /// Switches GL_MAP_COLOR off if a palette was loaded; the maps keep their values.
    ~grPalette();

    /// Sets the maps GL_PIXEL_MAP_I_TO_R, _G and _B to the planes of `palette` (`palette.size`
    /// entries of 0 to 65535 each) and GL_MAP_COLOR to 1. An empty palette does nothing, and so
    /// does one with planes shorter than its size.
    void Load(palette_t const& palette);

  private:
    bool loaded = false;
};

}  // namespace libgr
