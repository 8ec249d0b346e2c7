// SPDX-License-Identifier: MIT
// The steps of a texture upload that all texture targets share.
#include "gl/textureupload.h"

#include <algorithm>
#include <iostream>
#include <limits>

#include "gl/grerror.h"
#include "gl/pixelstore.h"
#include "gl/unpackreach.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"

namespace libgr {
namespace {

constexpr auto max_gl_int = static_cast<unsigned int>(std::numeric_limits<GLint>::max());

constexpr GLenum sgis_internalformats[] = {GL_RGB5, GL_RGB8, GL_RGBA8, GL_BGR,
                                           GL_BGRA, GL_RGB,  GL_RGBA};

/// `read` is the record as OpenGL reads it.
template <typename image_t, typename read_t>
std::optional<gl_loading_format_t> resolve_if_read_within(image_t const& image, bool compress,
                                                          read_t const& read) {
    gl_loading_format_t terms{};
    if (image.size() == 0 || !grConvertImageFormatToGlFormatFULL(&terms, image.desc, compress)) {
        return std::nullopt;
    }
    if (!reads_within(read(image), terms)) {
        grReportUnsupportedImage(image.desc);
        return std::nullopt;
    }
    return terms;
}

template <typename image_t>
std::optional<gl_loading_format_t> resolve_image(image_t const& image, bool compress) {
    return resolve_if_read_within(image, compress,
                                  [](image_t const& record) { return as_read(record); });
}

void log_line(char const* name, unsigned int value) {
    std::cerr << name << value << std::endl;
}

}  // namespace

unsigned int power_of_two_side(unsigned int side) {
    unsigned int const low = side & max_gl_int;
    return low == 0 || libutils::Is_2nSize(low) ? low : 1U << libutils::Get_TopBitPos(low);
}

unsigned int bordered_side(unsigned int size, bool border) {
    unsigned int const both = border ? 2 : 0;
    return power_of_two_side(size - both) + both;
}

mipmap_route_t mipmap_route(GLenum internalformat, bool has_gl3) {
    if (has_gl3) {
        return mipmap_route_t::gl3;
    }
    bool const listed =
        std::ranges::find(sgis_internalformats, internalformat) != std::end(sgis_internalformats);
    return is_GL_SGIS_generate_mipmap_supported != 0 && listed ? mipmap_route_t::sgis
                                                               : mipmap_route_t::glu;
}

std::optional<gl_loading_format_t> resolve(image1d_t const& image, bool compress) {
    return resolve_image(image, compress);
}
std::optional<gl_loading_format_t> resolve(image2d_t const& image, bool compress) {
    return resolve_image(image, compress);
}
std::optional<gl_loading_format_t> resolve(image3d_t const& image, bool compress) {
    return resolve_image(image, compress);
}

std::optional<gl_loading_format_t> resolve_in_initial_state(image2d_t const& image, bool compress) {
    return resolve_if_read_within(image, compress, as_read_in_initial_state);
}

void unpack(image1d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}
void unpack(image2d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}
void unpack(image3d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}

void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<1> const& extent, GLint border, void const* pixels) {
    glTexImage1D(target, level, static_cast<GLint>(terms.internalformat), extent[0], border,
                 terms.format, terms.type, pixels);
}
void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<2> const& extent, GLint border, void const* pixels) {
    glTexImage2D(target, level, static_cast<GLint>(terms.internalformat), extent[0], extent[1],
                 border, terms.format, terms.type, pixels);
}
void tex_image(GLenum target, GLint level, gl_loading_format_t const& terms,
               extent_t<3> const& extent, GLint border, void const* pixels) {
    // Null in a context without EXT_texture3D, like the next one.
    if (glTexImage3DEXT != nullptr) {
        glTexImage3DEXT(target, level, terms.internalformat, extent[0], extent[1], extent[2],
                        border, terms.format, terms.type, pixels);
    }
}

void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<1> const& extent, void const* pixels) {
    glTexSubImage1D(target, level, 0, extent[0], terms.format, terms.type, pixels);
}
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<2> const& extent, void const* pixels) {
    glTexSubImage2D(target, level, 0, 0, extent[0], extent[1], terms.format, terms.type, pixels);
}
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& terms,
                   extent_t<3> const& extent, void const* pixels) {
    if (glTexSubImage3DEXT != nullptr) {
        glTexSubImage3DEXT(target, level, 0, 0, 0, extent[0], extent[1], extent[2], terms.format,
                           terms.type, pixels);
    }
}

void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<1> const& extent, GLint border,
                          std::span<unsigned char const> bytes) {
    glCompressedTexImage1DARB(target, level, internalformat, extent[0], border,
                              static_cast<GLsizei>(bytes.size()), bytes.data());
}
void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<2> const& extent, GLint border,
                          std::span<unsigned char const> bytes) {
    glCompressedTexImage2DARB(target, level, internalformat, extent[0], extent[1], border,
                              static_cast<GLsizei>(bytes.size()), bytes.data());
}
void compressed_tex_image(GLenum target, GLint level, GLenum internalformat,
                          extent_t<3> const& extent, GLint border,
                          std::span<unsigned char const> bytes) {
    glCompressedTexImage3DARB(target, level, internalformat, extent[0], extent[1], extent[2],
                              border, static_cast<GLsizei>(bytes.size()), bytes.data());
}

void report_no_compression() {
    libutils::error();
    std::cerr << "error, ARB_texture_compression unsupported when compressed image loading, skip."
              << std::endl;
}

void report_no_compressed_mipmaps() {
    libutils::error();
    std::cerr << "Compressed 'special format' image is ablen't to build mipmaps, fallback."
              << std::endl;
}

void check_square_storage(gl_loading_format_t const& terms, bool border) {
    if (grPrintError("before-tex-sub-image2d")) {
        log_line("internalformat: ", terms.internalformat);
        log_line("m_border: ", border ? 1 : 0);
        log_line("format: ", terms.format);
        log_line("type: ", terms.type);
    }
}

void check_square_pixels(gl_loading_format_t const& terms, unsigned int side, GLsizei width,
                         GLsizei height) {
    if (grPrintError("after-tex-sub-image2d")) {
        log_line("real_max: ", side);
        log_line("m_width: ", static_cast<unsigned int>(width));
        log_line("m_height: ", static_cast<unsigned int>(height));
        log_line("format: ", terms.format);
        log_line("type: ", terms.type);
    }
}

}  // namespace libgr
