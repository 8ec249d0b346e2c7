// SPDX-License-Identifier: MIT
// The image of a rectangle texture and its upload.
#pragma once

#include "gl/texture.h"
#include "image/image.h"

namespace libgr {

/// The image of a GL_TEXTURE_RECTANGLE, without mipmaps, border or compression. The texture
/// coordinates are in pixels, and row 0 begins at t = 0.
///
/// OpenGL reads the pixels with its initial unpack parameters: from the first byte on, each row
/// padded to a multiple of 4 bytes. The `window` and `store` of the image have no effect. The
/// unpack parameters are restored after the upload. gl/texture.h lists the failures.
class grTextureRectangle : public grTexturableImageGL {
  public:
    void setImage(image2d_t const& image) { m_image = image; }
    /// Sets the parameters that `Load` and `Reload` set for the texture bound to GL_TEXTURE_2D, not
    /// for the rectangle. They aren't owned. Null sets none.
    void setTextureParameter(texparameter2d_t const* parameter) { m_texparameter = parameter; }
    /// Removes the image. The GL texture doesn't change.
    void clear() { m_image.clear(); }

    /// Returns GL_INVALID_VALUE if there is no image or its description is rejected.
    unsigned int GetInternalFormat() const override;
    /// Returns 2, so a grTextureObject binds GL_TEXTURE_2D, although `Load` uploads to
    /// GL_TEXTURE_RECTANGLE. This is kept because callers depend on it. Don't use a
    /// grTextureObject: bind a texture name to GL_TEXTURE_RECTANGLE and call `Load`.
    unsigned long Dimension() const override { return 2; }
    /// Allocates the texture that is bound to GL_TEXTURE_RECTANGLE and uploads the pixels. Does
    /// nothing for an image without bytes. Needs a current context.
    void Load() const override;
    /// Uploads the pixels again into the allocated texture, which must have the size of the image.
    /// Needs a current context.
    void Reload() const override;

  private:
    void send(bool reload) const;

    image2d_t m_image;
    texparameter2d_t const* m_texparameter = nullptr;
};

}  // namespace libgr
