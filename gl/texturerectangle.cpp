// SPDX-License-Identifier: MIT
// The one image of a rectangle texture.
#include "gl/texturerectangle.h"

#include "gl/glformat.h"
#include "gl/textureupload.h"

namespace libgr {

unsigned int grTextureRectangle::GetInternalFormat() const {
    return m_image.empty() ? GL_INVALID_VALUE
                           : internal_format_of(m_image.desc, m_image.compressed);
}

void grTextureRectangle::Load() const {
    send(false);
}

void grTextureRectangle::Reload() const {
    send(true);
}

void grTextureRectangle::send(bool reload) const {
    if (m_image.empty()) {
        return;
    }
    grPalette palette;
    load_palette(palette, m_image);
    auto const terms = resolve_without_unpack(m_image, m_image.compressed);
    if (!terms) {
        return;
    }
    if (reload) {
        tex_sub_image(GL_TEXTURE_RECTANGLE, 0, *terms, extent_of(m_image), m_image.begin());
    } else {
        tex_image(GL_TEXTURE_RECTANGLE, 0, *terms, extent_of(m_image), 0, m_image.begin());
    }
    grTexParameter(m_texparameter);
}

}  // namespace libgr
