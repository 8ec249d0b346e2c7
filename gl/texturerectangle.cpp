// SPDX-License-Identifier: MIT
// The image of a rectangle texture and its upload.
#include "gl/texturerectangle.h"

#include "gl/glformat.h"
#include "gl/pixelstore.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr pixelstore_t initial_unpack_state[] = {{GL_UNPACK_SWAP_BYTES, 0},
                                                 {GL_UNPACK_ALIGNMENT, 4},
                                                 {GL_UNPACK_ROW_LENGTH, 0},
                                                 {GL_UNPACK_SKIP_PIXELS, 0},
                                                 {GL_UNPACK_SKIP_ROWS, 0}};

}  // namespace

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
    grPixelStoreKeeper const state(initial_unpack_state);
    grPalette palette;
    load_palette(palette, m_image);
    auto const glformat = upload_format_in_initial_state(m_image, m_image.compressed);
    if (!glformat) {
        return;
    }
    if (reload) {
        tex_sub_image(GL_TEXTURE_RECTANGLE, 0, *glformat, extent_of(m_image), m_image.begin());
    } else {
        tex_image(GL_TEXTURE_RECTANGLE, 0, *glformat, extent_of(m_image), 0, m_image.begin());
    }
    grTexParameter(m_texparameter);
}

}  // namespace libgr
