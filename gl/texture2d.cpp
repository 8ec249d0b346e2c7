// SPDX-License-Identifier: MIT
// The images of a 2-D texture and every way of getting them into it.
#include "gl/texture2d.h"

#include "gl/grerror.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr GLenum texture_target = GL_TEXTURE_2D;

/// The side that a level of a square texture gets when no mipmaps are built. It comes out as 0 for
/// textures without border; OpenGL's errors tell whoever uses it.
unsigned int given_level_side(unsigned int size, bool border, std::size_t level) {
    unsigned int const both = border ? 2 : 0;
    std::size_t const shifted = level < 32 ? size >> level : 0;
    return (level == shifted ? both : 0) + (level == 0 ? both : 0);
}

mipmap_route_t route_of(gl_loading_format_t const& terms) {
    return mipmap_route(terms.internalformat, is_GL_VERSION_3_0_supported != 0);
}

void upload_given_level(gl_loading_format_t const& terms, image2d_t const& image, std::size_t i,
                        unsigned int size, bool border) {
    auto const level = static_cast<GLint>(i);
    GLint const level_border = i == 0 && border ? 1 : 0;
    if (image.compressed) {
        upload_compressed(texture_target, level, terms, image, border);
    } else if (size == 0) {
        grPrintError("before-teximage2d(not-mipmap)");
        tex_image(texture_target, level, terms, extent_of(image), level_border, image.begin());
        grPrintError("after-teximage2d(not-mipmap)");
    } else {
        upload_into(square_extent(image, given_level_side(size, border, i)), texture_target, level,
                    terms, image, level_border);
    }
}

/// The pixels of a level whose storage is there.
void resend(gl_loading_format_t const& terms, image2d_t const& image, std::size_t i) {
    auto const level = static_cast<GLint>(i);
    if (!image.compressed) {
        tex_sub_image(texture_target, level, terms, extent_of(image), image.begin());
    } else if (is_GL_ARB_texture_compression_supported != 0) {
        glCompressedTexSubImage2DARB(texture_target, level, 0, 0,
                                     static_cast<GLsizei>(image.m_width),
                                     static_cast<GLsizei>(image.m_height), terms.format,
                                     static_cast<GLsizei>(image.size()), image.begin());
    } else {
        report_no_compression();
    }
}

void resend_checked(gl_loading_format_t const& terms, image2d_t const& image, unsigned int size,
                    bool border) {
    if (image.compressed || size == 0) {
        resend(terms, image, 0);
        return;
    }
    auto const extent = extent_of(image);
    check_square_storage(terms, border);
    tex_sub_image(texture_target, 0, terms, extent, image.begin());
    check_square_pixels(terms, bordered_side(size, border), extent[0], extent[1]);
}

}  // namespace

void grTexture2D::setImage(image2d_t const& image, unsigned int size, unsigned long level) {
    replace_from(level, {&image, 1}, size);
}

void grTexture2D::setImages(std::vector<image2d_t> const& images, unsigned int size,
                            unsigned long level) {
    overwrite_from(level, images, size);
}

void grTexture2D::Load() const {
    if (m_images.empty()) {
        return;
    }
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (m_buildmipmap) {
        send_base_level(false);
        upload_upper_levels<image2d_t>(texture_target, m_images, m_internalcompression, m_border,
                                       {m_size != 0, power_of_two_side(m_size), 0});
    } else {
        for (std::size_t i = 0; i < m_images.size(); ++i) {
            if (auto const terms = resolve(m_images[i], m_internalcompression)) {
                unpack(m_images[i]);
                upload_given_level(*terms, m_images[i], i, m_size, m_border);
            }
        }
    }
    apply_parameters();
}

void grTexture2D::Reload() const {
    if (m_images.empty()) {
        return;
    }
    grPalette palette;
    load_palette(palette, m_images[0]);
    if (m_buildmipmap) {
        send_base_level(true);
    }
    for (std::size_t i = m_buildmipmap ? 1 : 0; i < m_images.size(); ++i) {
        if (auto const terms = resolve(m_images[i], m_internalcompression)) {
            unpack(m_images[i]);
            resend(*terms, m_images[i], i);
        }
    }
    apply_parameters();
}

bool grTexture2D::isBuiltByGLU() const {
    if (!m_buildmipmap || m_images.empty() || m_images[0].compressed) {
        return false;
    }
    auto const terms = find_gl_format(m_images[0].desc, m_internalcompression);
    return terms && route_of(*terms) == mipmap_route_t::glu;
}

void grTexture2D::send_base_level(bool reload) const {
    image2d_t const& image = m_images[0];
    auto const terms = resolve(image, m_internalcompression);
    if (!terms) {
        return;
    }
    unpack(image);
    auto const send = [&] {
        reload ? resend(*terms, image, 0)
               : full_upload(texture_target, *terms, image, m_size, m_border);
    };
    switch (route_of(*terms)) {
        case mipmap_route_t::gl3:
            reload ? resend_checked(*terms, image, m_size, m_border) : send();
            glGenerateMipmap(texture_target);
            break;
        case mipmap_route_t::sgis:
            generate_by_sgis(texture_target, send);
            break;
        case mipmap_route_t::glu:
            if (image.compressed) {
                report_no_compressed_mipmaps();
                send();
            } else {
                upload_by_glu(texture_target, *terms, image);
            }
            break;
    }
}

void grTexture2D::apply_parameters() const {
    grTexParameter(m_texparameter);
    if (m_border) {
        grTexParameter(texture_target, m_bordercolor);
    }
}

}  // namespace libgr
