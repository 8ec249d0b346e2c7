// SPDX-License-Identifier: MIT
// The images of a 3-D texture and their upload.
#include "gl/texture3d.h"

#include <iostream>

#include "gl/textureupload.h"
#include "utils/diagnostics.h"

namespace libgr {
namespace {

constexpr GLenum texture_target = GL_TEXTURE_3D;

void report_fallback() {
    if (is_GL_SGIS_generate_mipmap_supported != 0) {
        report_no_compressed_mipmaps();
        return;
    }
    libutils::error();
    std::cerr << "Compressed image are can't build mipmaps in this environment." << std::endl;
}

}  // namespace

void grTexture3D::setImage(image3d_t const& image, unsigned int size, unsigned long level) {
    replace_from(level, {&image, 1}, size);
}

void grTexture3D::setImages(std::vector<image3d_t> const& images, unsigned int size,
                            unsigned long level) {
    overwrite_from(level, images, size);
}

void grTexture3D::Load() const {
    if (m_images.empty()) {
        return;
    }
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (m_buildmipmap) {
        load_base_level();
        upload_higher_levels<image3d_t>(texture_target, m_images, m_internalcompression, m_border,
                                        {m_size != 0, bordered_side(m_size, m_border), 0});
    } else {
        for (unsigned long i = 0; i < m_images.size(); ++i) {
            load_single_level(i);
        }
    }
    grTexParameter(m_texparameter);
    grTexParameter(GL_TEXTURE_CUBE_MAP, m_bordercolor);
}

void grTexture3D::load_single_level(unsigned long i) const {
    image3d_t const& image = m_images[i];
    auto const glformat = upload_format(image, m_internalcompression);
    if (!glformat) {
        return;
    }
    auto const level = static_cast<GLint>(i);
    set_unpack_state(image);
    if (image.compressed) {
        upload_compressed(texture_target, level, *glformat, image, m_border);
        return;
    }
    // Without generated mipmaps, a level has 0 texels a side, or 2 if the texture consists of its
    // border only. Callers depend on these GL calls.
    unsigned int const inner = power_of_two_side(m_size - (m_border ? 2 : 0));
    unsigned int const side = m_border && inner + i == 0 ? 2 : 0;
    upload_into(square_extent(image, side), texture_target, level, *glformat, image,
                i == 0 && m_border ? 1 : 0);
}

void grTexture3D::load_base_level() const {
    image3d_t const& image = m_images[0];
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
        report_fallback();
        send();
    } else {
        upload_by_glu(texture_target, *glformat, image);
    }
}

}  // namespace libgr
