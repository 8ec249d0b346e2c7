// SPDX-License-Identifier: MIT
// The images of a 2-D texture and every way of getting them into it.
#pragma once

#include <vector>

#include "gl/palette.h"
#include "gl/texturelevels.h"

namespace libgr {

/// The images of a GL_TEXTURE_2D, one record a level, row 0 at the bottom.
///
/// The pixels are not copied, but for GLU, which may look past their end: a record's window goes to
/// OpenGL as unpack parameters, which stay as the last level set them. A record without bytes is
/// passed over in silence; one that OpenGL has no terms for, or whose bytes end before what OpenGL
/// would read, is reported and left out.
class grTexture2D : public grTexturableLevels<image2d_t, texparameter2d_t> {
  public:
    /// Makes `image` the picture of mipmap level `level` and drops the levels above it.
    ///
    /// With `size` 0 the texture gets the size of its image. Otherwise it is the smallest
    /// power-of-two square that holds `size` and the image's sides, in pixels; the image lies in
    /// its lower left corner and the rest is undefined.
    void setImage(image2d_t const& image, unsigned int size, unsigned long level);
    /// Makes `images` the pictures of the levels from `level` on; other levels stay. `size` is as
    /// for setImage, over all the images given.
    void setImages(std::vector<image2d_t> const& images, unsigned int size, unsigned long level);

    unsigned long Dimension() const override { return 2; }
    /// Creates storage and pixels in the texture bound to GL_TEXTURE_2D. Without images nothing is
    /// touched. Mipmaps come from glGenerateMipmap (OpenGL 3.0), from SGIS_generate_mipmap or from
    /// GLU, the first that the context and the format allow. Needs a current context.
    void Load() const override;
    /// Sends the pixels again into the storage that a Load created for records of the same size.
    /// Needs a current context.
    void Reload() const override;

    /// Returns true if Load has GLU build the levels. GLU scales the image to sides that are powers
    /// of two, so that it covers the whole texture: the `size` of setImage has no effect then.
    /// Makes no GL call, but the extension flags must be set.
    bool isBuiltByGLU() const;

  private:
    /// Level 0 and the levels generated from it; on `reload` into the storage that is there.
    void send_base_level(bool reload) const;
    void apply_parameters() const;
};

}  // namespace libgr
