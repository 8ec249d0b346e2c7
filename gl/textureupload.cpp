// SPDX-License-Identifier: MIT
// The steps of a texture upload that all texture targets share.
#include "gl/textureupload.h"

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <limits>

#include "gl/glucalls.h"
#include "gl/grerror.h"
#include "gl/pixelstore.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"

namespace libgr {
namespace {

constexpr auto s_largest = static_cast<unsigned int>(std::numeric_limits<GLint>::max());

constexpr GLenum s_sgis_internalformats[] = {GL_RGB5, GL_RGB8, GL_RGBA8, GL_BGR,
                                             GL_BGRA, GL_RGB,  GL_RGBA};

/// Bits that OpenGL reads for a pixel; 0 for a type that it turns down unread.
unsigned long long read_bits(gl_loading_format_t const& terms) {
    // GL_INTENSITY is no pixel format of OpenGL's, but some driver may read it as one component.
    unsigned long long const components =
        terms.format == GL_INTENSITY ? 1 : grFormatToComponents(terms.format);
    switch (terms.type) {
        case GL_UNSIGNED_BYTE_2_3_3_REV:
            return 8;
        case GL_UNSIGNED_SHORT_5_6_5_REV:
        case GL_UNSIGNED_SHORT_4_4_4_4_REV:
        case GL_UNSIGNED_SHORT_1_5_5_5_REV:
            return 16;
        case GL_UNSIGNED_INT_2_10_10_10_REV:
        case GL_UNSIGNED_INT_24_8:
            return 32;
        case GL_BITMAP:
            return components;
        case GL_HALF_FLOAT:
            return components * 16;
        default:
            return components * grTypeToSize(terms.type) * 8;
    }
}

unsigned int unpack_parameter(GLenum name) {
    GLint value = 0;
    glGetIntegerv(name, &value);
    return static_cast<unsigned int>(value);
}

/// OpenGL keeps its alignment where a store names none of those it knows.
bool sets_alignment(image_store_t const* store) {
    return store != nullptr && store->alignment <= 8 && libutils::Is_2nSize(store->alignment);
}

/// Values above a GLint's are turned down by OpenGL, which then reads by older ones.
bool fit(std::initializer_list<unsigned int> values) {
    return std::ranges::all_of(values, [](unsigned int value) { return value <= s_largest; });
}

bool in_reach(image1d_t const& image, unsigned long long bits) {
    // One row is read as a picture's: row length and skipped rows of earlier pictures hold.
    image2d_t row;
    static_cast<image_bytes_t&>(row) = image;
    row.window = {unpack_parameter(GL_UNPACK_ROW_LENGTH), image.window.skippixels,
                  unpack_parameter(GL_UNPACK_SKIP_ROWS)};
    image_store_t const store{false, sets_alignment(image.store)
                                         ? image.store->alignment
                                         : unpack_parameter(GL_UNPACK_ALIGNMENT)};
    row.store = &store;
    row.m_width = image.m_width;
    row.m_height = 1;
    return fit({image.window.skippixels, image.m_width}) && pixels_within(row, bits);
}

template <typename image_t>
bool in_reach_aligned(image_t const& image, unsigned long long bits) {
    if (sets_alignment(image.store)) {
        return pixels_within(image, bits);
    }
    image_store_t const store{false, unpack_parameter(GL_UNPACK_ALIGNMENT)};
    image_t read = image;
    read.store = &store;
    return pixels_within(read, bits);
}

bool in_reach(image2d_t const& image, unsigned long long bits) {
    auto const& window = image.window;
    return fit({window.rowlength, window.skippixels, window.skiprows, image.m_width,
                image.m_height}) &&
           in_reach_aligned(image, bits);
}

bool in_reach(image3d_t const& image, unsigned long long bits) {
    auto const& window = image.window;
    return fit({window.rowlength, window.imageheight, window.skippixels, window.skiprows,
                window.skipimages, image.m_width, image.m_height, image.m_depth}) &&
           in_reach_aligned(image, bits);
}

template <typename image_t, typename reach_t>
std::optional<gl_loading_format_t> resolve_if(image_t const& image, bool compress,
                                              reach_t reaches) {
    gl_loading_format_t terms{};
    if (image.size() == 0 || !grConvertImageFormatToGlFormatFULL(&terms, image.desc, compress)) {
        return std::nullopt;
    }
    if (!reaches(terms)) {
        grReportUnsupportedImage(image.desc);
        return std::nullopt;
    }
    return terms;
}

template <typename image_t>
std::optional<gl_loading_format_t> resolve_image(image_t const& image, bool compress) {
    return resolve_if(image, compress, [&image](gl_loading_format_t const& terms) {
        if (image.compressed) {
            return image.size() <= s_largest;
        }
        unsigned long long const bits = read_bits(terms);
        return bits == 0 || in_reach(image, bits);
    });
}

void log_line(char const* name, unsigned int value) {
    std::cerr << name << value << std::endl;
}

}  // namespace

unsigned int power_of_two_side(unsigned int side) {
    unsigned int const low = side & s_largest;
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
    bool const listed = std::ranges::find(s_sgis_internalformats, internalformat) !=
                        std::end(s_sgis_internalformats);
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

std::optional<gl_loading_format_t> resolve_without_unpack(image2d_t const& image, bool compress) {
    return resolve_if(image, compress, [&image](gl_loading_format_t const& terms) {
        unsigned long long const bits = read_bits(terms);
        image_store_t const store{false, unpack_parameter(GL_UNPACK_ALIGNMENT)};
        image2d_t read = image;
        read.compressed = false;
        read.store = &store;
        read.window = {unpack_parameter(GL_UNPACK_ROW_LENGTH),
                       unpack_parameter(GL_UNPACK_SKIP_PIXELS),
                       unpack_parameter(GL_UNPACK_SKIP_ROWS)};
        return bits == 0 || in_reach(read, bits);
    });
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

void build_mipmaps(GLenum target, gl_loading_format_t const& terms, extent_t<1> const& extent,
                   void const* pixels) {
    gluBuild1DMipmaps(target, static_cast<GLint>(terms.internalformat), extent[0], terms.format,
                      terms.type, pixels);
}
void build_mipmaps(GLenum target, gl_loading_format_t const& terms, extent_t<2> const& extent,
                   void const* pixels) {
    gluBuild2DMipmaps(target, static_cast<GLint>(terms.internalformat), extent[0], extent[1],
                      terms.format, terms.type, pixels);
}
void build_mipmaps(GLenum target, gl_loading_format_t const& terms, extent_t<3> const& extent,
                   void const* pixels) {
    gluBuild3DMipmaps(target, static_cast<GLint>(terms.internalformat), extent[0], extent[1],
                      extent[2], terms.format, terms.type, pixels);
}

bool glu_can_hold(std::span<GLsizei const> extent) {
    constexpr long most_texels = 1L << 25;  // of up to 16 bytes, each side scaled up by a third
    long texels = 1;
    for (GLsizei const side : extent) {
        if (side > most_texels / std::max(texels, 1L)) {
            return false;
        }
        texels *= side;
    }
    return true;
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
