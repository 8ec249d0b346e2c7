// SPDX-License-Identifier: MIT
// The one image of a rectangle texture.
#pragma once

#include "gl/texture.h"
#include "image/image.h"

namespace libgr {

/// The image of a GL_TEXTURE_RECTANGLE, row 0 at the bottom, without mipmaps, border or
/// compression.
///
/// The pixels are read by OpenGL's initial unpack state, with rows padded to 4 bytes, whatever the
/// record's window and store; the former state is put back. A record whose bytes end before what
/// OpenGL would read is reported and left out.
class grTextureRectangle : public grTexturableImageGL {
  public:
    void setImage(image2d_t const& image) { m_image = image; }
    /// Not owned; null leaves OpenGL's values alone. It is applied to GL_TEXTURE_2D.
    void setTextureParameter(texparameter2d_t const* parameter) { m_texparameter = parameter; }
    /// Clears the image; what is in the OpenGL texture stays.
    void clear() { m_image.clear(); }

    /// GL_INVALID_VALUE without an image and for one that OpenGL has no terms for.
    unsigned int GetInternalFormat() const override;
    /// 2, so that a grTextureObject binds GL_TEXTURE_2D although the upload addresses the
    /// rectangle.
    unsigned long Dimension() const override { return 2; }
    /// Creates storage and pixels in the texture bound to GL_TEXTURE_RECTANGLE. An image without
    /// bytes does nothing. Needs a current context.
    void Load() const override;
    /// Sends the pixels into storage of the same size. Needs a current context.
    void Reload() const override;

  private:
    void send(bool reload) const;

    image2d_t m_image;
    texparameter2d_t const* m_texparameter = nullptr;
};

}  // namespace libgr
