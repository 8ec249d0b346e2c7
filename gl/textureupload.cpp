// SPDX-License-Identifier: MIT
// Steps of a texture upload that the texture classes share.
#include "gl/textureupload.h"

#include <algorithm>
#include <iostream>
#include <limits>

#include "gl/grerror.h"
#include "gl/pixelstore.h"
#include "gl/unpackbounds.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"

namespace libgr {
namespace {

constexpr auto max_gl_int = static_cast<unsigned int>(std::numeric_limits<GLint>::max());

constexpr GLenum sgis_internalformats[] = {GL_RGB5, GL_RGB8, GL_RGBA8, GL_BGR,
                                           GL_BGRA, GL_RGB,  GL_RGBA};

/// `read` returns the image as OpenGL reads it.
template <typename image_t, typename read_t>
std::optional<gl_loading_format_t> upload_format_if_within(image_t const& image, bool compress,
                                                           read_t const& read) {
    gl_loading_format_t glformat{};
    if (image.size() == 0 || !grConvertImageFormatToGlFormatFULL(&glformat, image.desc, compress)) {
        return std::nullopt;
    }
    if (!is_read_within_bytes(read(image), glformat)) {
        grReportUnsupportedImage(image.desc);
        return std::nullopt;
    }
    return glformat;
}

template <typename image_t>
std::optional<gl_loading_format_t> upload_format_of(image_t const& image, bool compress) {
    return upload_format_if_within(image, compress,
                                   [](image_t const& record) { return as_unpacked(record); });
}

void print_value(char const* name, unsigned int value) {
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

std::optional<gl_loading_format_t> upload_format(image1d_t const& image, bool compress) {
    return upload_format_of(image, compress);
}
std::optional<gl_loading_format_t> upload_format(image2d_t const& image, bool compress) {
    return upload_format_of(image, compress);
}
std::optional<gl_loading_format_t> upload_format(image3d_t const& image, bool compress) {
    return upload_format_of(image, compress);
}

std::optional<gl_loading_format_t> upload_format_in_initial_state(image2d_t const& image,
                                                                  bool compress) {
    return upload_format_if_within(image, compress, as_unpacked_in_initial_state);
}

void set_unpack_state(image1d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}
void set_unpack_state(image2d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}
void set_unpack_state(image3d_t const& image) {
    grPixelStoreUnpack(image.store);
    grPixelStoreUnpack(image.window);
}

void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<1> const& extent, GLint border, void const* pixels) {
    glTexImage1D(target, level, static_cast<GLint>(glformat.internalformat), extent[0], border,
                 glformat.format, glformat.type, pixels);
}
void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<2> const& extent, GLint border, void const* pixels) {
    glTexImage2D(target, level, static_cast<GLint>(glformat.internalformat), extent[0], extent[1],
                 border, glformat.format, glformat.type, pixels);
}
void tex_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
               extent_t<3> const& extent, GLint border, void const* pixels) {
    if (glTexImage3DEXT != nullptr) {
        glTexImage3DEXT(target, level, glformat.internalformat, extent[0], extent[1], extent[2],
                        border, glformat.format, glformat.type, pixels);
    }
}

void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
                   extent_t<1> const& extent, void const* pixels) {
    glTexSubImage1D(target, level, 0, extent[0], glformat.format, glformat.type, pixels);
}
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
                   extent_t<2> const& extent, void const* pixels) {
    glTexSubImage2D(target, level, 0, 0, extent[0], extent[1], glformat.format, glformat.type,
                    pixels);
}
void tex_sub_image(GLenum target, GLint level, gl_loading_format_t const& glformat,
                   extent_t<3> const& extent, void const* pixels) {
    if (glTexSubImage3DEXT != nullptr) {
        glTexSubImage3DEXT(target, level, 0, 0, 0, extent[0], extent[1], extent[2], glformat.format,
                           glformat.type, pixels);
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

void check_square_storage(gl_loading_format_t const& glformat, bool border) {
    if (grPrintError("before-tex-sub-image2d")) {
        print_value("internalformat: ", glformat.internalformat);
        print_value("m_border: ", border ? 1 : 0);
        print_value("format: ", glformat.format);
        print_value("type: ", glformat.type);
    }
}

void check_square_pixels(gl_loading_format_t const& glformat, unsigned int side, GLsizei width,
                         GLsizei height) {
    if (grPrintError("after-tex-sub-image2d")) {
        print_value("real_max: ", side);
        print_value("m_width: ", static_cast<unsigned int>(width));
        print_value("m_height: ", static_cast<unsigned int>(height));
        print_value("format: ", glformat.format);
        print_value("type: ", glformat.type);
    }
}

}  // namespace libgr
