// SPDX-License-Identifier: MIT
// The images of a 2-D texture and their upload.
#include "gl/texture2d.h"

#include "gl/grerror.h"
#include "gl/textureupload.h"

namespace libgr {
namespace {

constexpr GLenum texture_target = GL_TEXTURE_2D;

/// Returns the side, in texels, of a level that is uploaded into a square without generated
/// mipmaps: 0 without a border, so OpenGL reports an error for the upload. With a border it is 2 on
/// level 0 and 2 on the level whose number equals the size of that level. Callers depend on these
/// GL calls.
unsigned int single_level_side(unsigned int size, bool border, std::size_t level) {
    unsigned int const both = border ? 2 : 0;
    std::size_t const shifted = level < 32 ? size >> level : 0;
    return (level == shifted ? both : 0) + (level == 0 ? both : 0);
}

mipmap_route_t route_of(gl_loading_format_t const& glformat) {
    return mipmap_route(glformat.internalformat, is_GL_VERSION_3_0_supported != 0);
}

void upload_single_level(gl_loading_format_t const& glformat, image2d_t const& image, std::size_t i,
                         unsigned int size, bool border) {
    auto const level = static_cast<GLint>(i);
    GLint const level_border = i == 0 && border ? 1 : 0;
    if (image.compressed) {
        upload_compressed(texture_target, level, glformat, image, border);
    } else if (size == 0) {
        grPrintError("before-teximage2d(not-mipmap)");
        tex_image(texture_target, level, glformat, extent_of(image), level_border, image.begin());
        grPrintError("after-teximage2d(not-mipmap)");
    } else {
        upload_into(square_extent(image, single_level_side(size, border, i)), texture_target, level,
                    glformat, image, level_border);
    }
}

/// Uploads the pixels of a level into an allocated texture.
void reupload_level(gl_loading_format_t const& glformat, image2d_t const& image, std::size_t i) {
    auto const level = static_cast<GLint>(i);
    if (!image.compressed) {
        tex_sub_image(texture_target, level, glformat, extent_of(image), image.begin());
    } else if (is_GL_ARB_texture_compression_supported != 0) {
        glCompressedTexSubImage2DARB(texture_target, level, 0, 0,
                                     static_cast<GLsizei>(image.m_width),
                                     static_cast<GLsizei>(image.m_height), glformat.format,
                                     static_cast<GLsizei>(image.size()), image.begin());
    } else {
        report_no_compression();
    }
}

void reupload_base_level(gl_loading_format_t const& glformat, image2d_t const& image,
                         unsigned int size, bool border) {
    if (image.compressed || size == 0) {
        reupload_level(glformat, image, 0);
        return;
    }
    auto const extent = extent_of(image);
    check_square_storage(glformat, border);
    tex_sub_image(texture_target, 0, glformat, extent, image.begin());
    check_square_pixels(glformat, bordered_side(size, border), extent[0], extent[1]);
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
        upload_base_levels(false);
        upload_higher_levels<image2d_t>(texture_target, m_images, m_internalcompression, m_border,
                                        {m_size != 0, power_of_two_side(m_size), 0});
    } else {
        for (std::size_t i = 0; i < m_images.size(); ++i) {
            if (auto const glformat = upload_format(m_images[i], m_internalcompression)) {
                set_unpack_state(m_images[i]);
                upload_single_level(*glformat, m_images[i], i, m_size, m_border);
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
        upload_base_levels(true);
    }
    for (std::size_t i = m_buildmipmap ? 1 : 0; i < m_images.size(); ++i) {
        if (auto const glformat = upload_format(m_images[i], m_internalcompression)) {
            set_unpack_state(m_images[i]);
            reupload_level(*glformat, m_images[i], i);
        }
    }
    apply_parameters();
}

bool grTexture2D::isBuiltByGLU() const {
    if (!m_buildmipmap || m_images.empty() || m_images[0].compressed) {
        return false;
    }
    auto const glformat = find_gl_format(m_images[0].desc, m_internalcompression);
    return glformat && route_of(*glformat) == mipmap_route_t::glu;
}

void grTexture2D::upload_base_levels(bool reload) const {
    image2d_t const& image = m_images[0];
    auto const glformat = upload_format(image, m_internalcompression);
    if (!glformat) {
        return;
    }
    set_unpack_state(image);
    auto const send = [&] {
        reload ? reupload_level(*glformat, image, 0)
               : upload_base_level(texture_target, *glformat, image, m_size, m_border);
    };
    switch (route_of(*glformat)) {
        case mipmap_route_t::gl3:
            reload ? reupload_base_level(*glformat, image, m_size, m_border) : send();
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
                upload_by_glu(texture_target, *glformat, image);
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
