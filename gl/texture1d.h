// SPDX-License-Identifier: MIT
// The images of a 1-D texture and the ways of getting them into it.
#pragma once

#include <vector>

#include "gl/texturelevels.h"

namespace libgr {

/// The images of a GL_TEXTURE_1D, one record a level, with the rules of grTexture2D for records and
/// sizes. The row length and the skipped rows of earlier pictures have no effect.
class grTexture1D : public grTexturableLevels<image1d_t, texparameter1d_t> {
  public:
    /// Makes `image` the picture of mipmap level `level` and drops the levels above it. `size` 0
    /// gives textures of the image's size, else the smallest power of two that holds `size` and the
    /// image's width in pixels.
    void setImage(image1d_t const& image, unsigned int size, unsigned long level);
    /// Makes `images` the pictures of the levels from `level` on; other levels stay.
    void setImages(std::vector<image1d_t> const& images, unsigned int size, unsigned long level);

    unsigned long Dimension() const override { return 1; }
    /// Creates storage and pixels in the texture bound to GL_TEXTURE_1D. Mipmaps come from
    /// SGIS_generate_mipmap or from GLU. The border colour is set with and without a border.
    /// Needs a current context.
    void Load() const override;

  private:
    void load_given_level(unsigned long i) const;
    void load_base_level() const;
};

}  // namespace libgr
