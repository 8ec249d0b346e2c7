// SPDX-License-Identifier: MIT
// Applies the palette of an image while the image is uploaded.
#pragma once

#include "image/image.h"

namespace libgr {

/// Makes OpenGL convert colour indices to colours. The pixels that are sent to OpenGL between
/// `Load` and the destructor use the palette.
///
/// The texture classes load the palette of their first image themselves, if its format is
/// IMAGE_FORMAT_INDEX, and use it for all images. grPalette is only needed for GL calls of your
/// own, for example glDrawPixels. OpenGL rejects textures from INDEX images: see gl/glformat.h.
class grPalette {
  public:
    grPalette() = default;
    grPalette(grPalette const&) = delete;
    grPalette& operator=(grPalette const&) = delete;
    /// Sets GL_MAP_COLOR to 0 if a palette was loaded. The pixel maps keep their values. Needs a
    /// current context.
    ~grPalette();

    /// Sets GL_MAP_COLOR to 1. Then sets the pixel maps GL_PIXEL_MAP_I_TO_R, _G and _B to the red,
    /// green and blue values of `palette`. Needs a current context.
    ///
    /// Does nothing if `palette.size` is 0 or more than the `count()` of a plane. OpenGL accepts
    /// 2^n entries, at most GL_MAX_PIXEL_MAP_TABLE. For other numbers it reports GL_INVALID_VALUE
    /// and keeps the old maps. A palette has no alpha: GL_PIXEL_MAP_I_TO_A keeps its value, which
    /// makes alpha 0 if you didn't set it.
    void Load(palette_t const& palette);

  private:
    bool loaded = false;
};

}  // namespace libgr
