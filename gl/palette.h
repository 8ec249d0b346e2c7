// SPDX-License-Identifier: MIT
// Applies the palette of an image while the image is uploaded.
#pragma once

#include "image/image.h"

namespace libgr {

/// Makes OpenGL convert the indices of uploaded images to colours. Uploads between `Load` and the
/// destructor use the palette.
class grPalette {
  public:
    grPalette() = default;
    grPalette(grPalette const&) = delete;
    grPalette& operator=(grPalette const&) = delete;
    /// Sets GL_MAP_COLOR to 0 if a palette was loaded. The pixel maps keep their values. Needs a
    /// current context.
    ~grPalette();

    /// Sets GL_MAP_COLOR to 1 and the pixel maps GL_PIXEL_MAP_I_TO_R, _G and _B to the planes of
    /// `palette`, `palette.size` values from 0 to 65535 each. Does nothing if the palette is empty
    /// or a plane has fewer values. Needs a current context.
    void Load(palette_t const& palette);

  private:
    bool loaded = false;
};

}  // namespace libgr
