// SPDX-License-Identifier: MIT
// The images of a cube map and the ways of getting them into it.
#pragma once

#include <vector>

#include "gl/texturelevels.h"

namespace libgr {

/// The images of a GL_TEXTURE_CUBE_MAP, six records a level in the order +x, -x, +y, -y, +z, -z,
/// with the rules of grTexture2D for records.
class grTextureCubeMap : public grTexturableLevels<image2d_t, texparametercubemap_t> {
  public:
    /// Makes `images` the faces of mipmap level `level` and drops the levels above it. `size` 0
    /// gives faces of the image's size, else the smallest power of two that holds `size` and the
    /// sides of all six in pixels.
    void setImage(image2d_t const (&images)[6], unsigned int size, unsigned long level);
    /// Makes `images` the faces of the levels from `level` on; other levels stay.
    void setImages(std::vector<image2d_t[6]> const& images, unsigned int size, unsigned long level);

    unsigned long Dimension() const override { return 6; }
    /// Creates storage and pixels in the texture bound to GL_TEXTURE_CUBE_MAP. With mipmaps, level
    /// 0 goes up and the rest comes from glGenerateMipmap (OpenGL 3.0), SGIS_generate_mipmap or
    /// GLU. Without them all pixels go to level 0, whose storage has a power of two of texels a
    /// side and none at all for size 0. The border colour is never set. Needs a current context.
    void Load() const override;

  private:
    void load_given_levels() const;
    /// Tells whether level 0 could be resolved.
    bool load_base_level() const;
};

}  // namespace libgr
