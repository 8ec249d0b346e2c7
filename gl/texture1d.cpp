// SPDX-License-Identifier: MIT
// The images of a 1-D texture and their upload.
#include "gl/texture1d.h"

#include "gl/pixelstore.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr GLenum texture_target = GL_TEXTURE_1D;

/// The parameters that OpenGL uses for a row and that set_unpack_state doesn't set for one.
constexpr pixelstore_t single_row_state[] = {{GL_UNPACK_ROW_LENGTH, 0}, {GL_UNPACK_SKIP_ROWS, 0}};

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
    grPixelStoreKeeper const state(single_row_state);
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (m_buildmipmap) {
        load_base_level();
        upload_higher_levels<image1d_t>(
            texture_target, m_images, false, m_border,
            {m_size != 0, bordered_side(m_size, m_border), m_border ? 1 : 0});
    } else {
        for (unsigned long i = 0; i < m_images.size(); ++i) {
            load_single_level(i);
        }
    }
    grTexParameter(m_texparameter);
    grTexParameter(texture_target, m_bordercolor);
}

void grTexture1D::load_single_level(unsigned long i) const {
    image1d_t const& image = m_images[i];
    auto const glformat = upload_format(image, false);
    if (!glformat) {
        return;
    }
    auto const level = static_cast<GLint>(i);
    GLint const border = m_border ? 1 : 0;
    set_unpack_state(image);
    if (image.compressed) {
        upload_compressed(texture_target, level, *glformat, image, border);
    } else if (m_size == 0) {
        tex_image(texture_target, level, *glformat, extent_of(image), i == 0 ? border : 0,
                  image.begin());
    } else {
        // Without generated mipmaps, the texture has room for border texels only: 2 on level 0,
        // and 2 on the level whose number equals the width of its image. Neither fits an image.
        // The comparison of level and width is intended: callers depend on these GL calls.
        GLsizei const width = (i == 0 ? 2 * border : 0) + (i == image.m_width ? 2 * border : 0);
        upload_into(extent_t<1>{width}, texture_target, level, *glformat, image, border);
    }
}

void grTexture1D::load_base_level() const {
    image1d_t const& image = m_images[0];
    auto const glformat = upload_format(image, m_internalcompression);
    if (!glformat) {
        return;
    }
    set_unpack_state(image);
    auto const send = [&] {
        upload_base_level(texture_target, *glformat, image, m_size, m_border);
    };
    if (mipmap_route(glformat->internalformat, false) == mipmap_route_t::sgis) {
        generate_by_sgis(texture_target, send);
    } else if (image.compressed) {
        send();
    } else {
        upload_by_glu(texture_target, *glformat, image);
    }
}

}  // namespace libgr
