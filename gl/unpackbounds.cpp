// SPDX-License-Identifier: MIT
// The bytes of an image that OpenGL reads in an upload.
#include "gl/unpackbounds.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

#include "gl/pixelstore.h"
#include "glext/glextloader.h"
#include "utils/bits.h"

namespace libgr {
namespace {

constexpr auto max_gl_int = static_cast<unsigned int>(std::numeric_limits<GLint>::max());

/// The valid alignments, indexed by their logarithm.
constexpr image_store_t stores[] = {{false, 1}, {false, 2}, {false, 4}, {false, 8}};
constexpr image_store_t const& initial_store = stores[2];

bool is_alignment(unsigned int bytes) {
    return bytes <= 8 && libutils::Is_2nSize(bytes);
}

/// Returns the alignment that OpenGL uses. OpenGL keeps its alignment if the image has none or if
/// it is invalid.
image_store_t const* effective_store(image_store_t const* store) {
    if (store != nullptr && is_alignment(store->alignment)) {
        return store;
    }
    GLint value = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &value);
    auto const kept = static_cast<unsigned int>(value);
    return is_alignment(kept) ? &stores[libutils::Get_TopBitPos(kept) - 1] : &initial_store;
}

image3d_t make_read(image_bytes_t const& bytes, image_store_t const* store,
                    image_window3d_t const& window, unsigned int width, unsigned int height,
                    unsigned int depth) {
    image3d_t read;
    static_cast<image_bytes_t&>(read) = bytes;
    read.store = effective_store(store);
    read.window = window;
    read.m_width = width;
    read.m_height = height;
    read.m_depth = depth;
    return read;
}

/// OpenGL rejects larger values and keeps the values of an earlier upload.
bool fits_parameters(image3d_t const& read) {
    auto const& window = read.window;
    return std::ranges::all_of(
        std::initializer_list<unsigned int>{window.rowlength, window.imageheight, window.skippixels,
                                            window.skiprows, window.skipimages, read.m_width,
                                            read.m_height, read.m_depth},
        [](unsigned int value) { return value <= max_gl_int; });
}

}  // namespace

image3d_t as_unpacked(image1d_t const& image) {
    image3d_t read =
        make_read(image, image.store, {0, 0, image.window.skippixels, 0, 0}, image.m_width, 1, 1);
    read.compressed = image.compressed;
    return read;
}

image3d_t as_unpacked(image2d_t const& image) {
    auto const& window = image.window;
    image3d_t read =
        make_read(image, image.store, {window.rowlength, 0, window.skippixels, window.skiprows, 0},
                  image.m_width, image.m_height, 1);
    read.compressed = image.compressed;
    return read;
}

image3d_t as_unpacked(image3d_t const& image) {
    image3d_t read = image;
    read.store = effective_store(image.store);
    return read;
}

image3d_t as_unpacked_in_initial_state(image2d_t const& image) {
    return make_read(image, &initial_store, {}, image.m_width, image.m_height, 1);
}

unsigned long long unpacked_pixel_bits(gl_loading_format_t const& glformat) {
    // GL_INTENSITY is no valid pixel format, but a driver may read it as one component.
    unsigned long long const components =
        glformat.format == GL_INTENSITY ? 1 : grFormatToComponents(glformat.format);
    switch (glformat.type) {
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
            return components * grTypeToSize(glformat.type) * 8;
    }
}

bool is_read_within_bytes(image3d_t const& read, gl_loading_format_t const& glformat) {
    if (read.compressed) {
        return read.size() <= max_gl_int;
    }
    unsigned long long const bits = unpacked_pixel_bits(glformat);
    return bits == 0 || (fits_parameters(read) && pixels_within(read, bits));
}

byte_range_t byte_range_of(image3d_t const& read, unsigned long long bits) {
    auto const& window = read.window;
    auto const length = [](unsigned int own, unsigned int wider) {
        return wider != 0 ? wider : own;
    };
    unsigned long const stride =
        row_stride(length(read.m_width, window.rowlength), bits, read.store);
    unsigned long const rows = length(read.m_height, window.imageheight);
    unsigned long const row = rows * window.skipimages + window.skiprows;
    unsigned long const last = row + rows * (read.m_depth - 1UL) + read.m_height - 1;
    unsigned long const tail = (bits * (0UL + window.skippixels + read.m_width) + 7) / 8;
    return {row * stride, last * stride + tail, stride};
}

}  // namespace libgr
