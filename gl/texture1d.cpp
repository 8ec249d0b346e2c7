// SPDX-License-Identifier: MIT
// The images of a 1-D texture and the ways of getting them into it.
#include "gl/texture1d.h"

#include "gl/pixelstore.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr GLenum texture_target = GL_TEXTURE_1D;

/// The parameters that OpenGL reads a row by and that `unpack` doesn't set.
constexpr pixelstore_t one_row_store[] = {{GL_UNPACK_ROW_LENGTH, 0}, {GL_UNPACK_SKIP_ROWS, 0}};

}  // namespace

void grTexture1D::setImage(image1d_t const& image, unsigned int size, unsigned long level) {
    replace_from(level, {&image, 1}, size);
}

void grTexture1D::setImages(std::vector<image1d_t> const& images, unsigned int size,
                            unsigned long level) {
    overwrite_from(level, images, size);
}

void grTexture1D::Load() const {
    if (m_images.empty()) {
        return;
    }
    grPixelStoreKeeper const state(one_row_store);
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (m_buildmipmap) {
        load_base_level();
        upload_upper_levels<image1d_t>(
            texture_target, m_images, false, m_border,
            {m_size != 0, bordered_side(m_size, m_border), m_border ? 1 : 0});
    } else {
        for (unsigned long i = 0; i < m_images.size(); ++i) {
            load_given_level(i);
        }
    }
    grTexParameter(m_texparameter);
    grTexParameter(texture_target, m_bordercolor);
}

void grTexture1D::load_given_level(unsigned long i) const {
    image1d_t const& image = m_images[i];
    auto const terms = resolve(image, false);
    if (!terms) {
        return;
    }
    auto const level = static_cast<GLint>(i);
    GLint const border = m_border ? 1 : 0;
    unpack(image);
    if (image.compressed) {
        upload_compressed(texture_target, level, *terms, image, border);
    } else if (m_size == 0) {
        tex_image(texture_target, level, *terms, extent_of(image), i == 0 ? border : 0,
                  image.begin());
    } else {
        // The two border texels are all the storage there is, as in the 2-D texture.
        GLsizei const width = (i == 0 ? 2 * border : 0) + (i == image.m_width ? 2 * border : 0);
        upload_into(extent_t<1>{width}, texture_target, level, *terms, image, border);
    }
}

void grTexture1D::load_base_level() const {
    image1d_t const& image = m_images[0];
    auto const terms = resolve(image, m_internalcompression);
    if (!terms) {
        return;
    }
    unpack(image);
    auto const send = [&] { full_upload(texture_target, *terms, image, m_size, m_border); };
    if (mipmap_route(terms->internalformat, false) == mipmap_route_t::sgis) {
        generate_by_sgis(texture_target, send);
    } else if (image.compressed) {
        send();
    } else {
        upload_by_glu(texture_target, *terms, image);
    }
}

}  // namespace libgr
