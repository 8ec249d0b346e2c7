// SPDX-License-Identifier: MIT
// The images of a 3-D texture and the ways of getting them into it.
#pragma once

#include <vector>

#include "gl/texturelevels.h"

namespace libgr {

/// The images of a GL_TEXTURE_3D, one record a level, with the rules of grTexture2D for records and
/// sizes.
class grTexture3D : public grTexturableLevels<image3d_t, texparameter3d_t> {
  public:
    /// Makes `image` the picture of mipmap level `level` and drops the levels above it. `size` 0
    /// gives textures of the image's size, else the smallest power of two that holds `size` and the
    /// image's sides in pixels.
    void setImage(image3d_t const& image, unsigned int size, unsigned long level);
    /// Makes `images` the pictures of the levels from `level` on; other levels stay.
    void setImages(std::vector<image3d_t> const& images, unsigned int size, unsigned long level);

    unsigned long Dimension() const override { return 3; }
    /// Creates storage and pixels in the texture bound to GL_TEXTURE_3D. Mipmaps come from
    /// SGIS_generate_mipmap or from GLU; without them levels get no texels of their own. The border
    /// colour is set with and without a border, and for GL_TEXTURE_CUBE_MAP.
    /// Needs a current context.
    void Load() const override;

  private:
    void load_given_level(unsigned long i) const;
    void load_base_level() const;
};

}  // namespace libgr
