// SPDX-License-Identifier: MIT
// The tables of the enumerations, and the positions of rows and windows.
#include "image/image.h"

#include <limits>
#include <ostream>

namespace libgr {

image_format_components_t const s_image_format_components_list[IMAGE_FORMAT_MAX] = {
    {IMAGE_FORMAT_GRAYSCALE, 1}, {IMAGE_FORMAT_GRAYSCALE_ALPHA, 2},
    {IMAGE_FORMAT_INTENSITY, 1}, {IMAGE_FORMAT_RED, 1},
    {IMAGE_FORMAT_GREEN, 1},     {IMAGE_FORMAT_BLUE, 1},
    {IMAGE_FORMAT_ALPHA, 1},     {IMAGE_FORMAT_RG, 2},
    {IMAGE_FORMAT_RGB, 3},       {IMAGE_FORMAT_RGBA, 4},
    {IMAGE_FORMAT_BGR, 3},       {IMAGE_FORMAT_BGRA, 4},
    {IMAGE_FORMAT_DEPTH, 1},     {IMAGE_FORMAT_DEPTH_STENCIL, 2},
    {IMAGE_FORMAT_YCbCr, 3},     {IMAGE_FORMAT_YCbCrA, 4},
    {IMAGE_FORMAT_YCbCr422, 2},  {IMAGE_FORMAT_INDEX, 1},
};

image_bits_t const s_image_bits_list[IMAGE_BITS_MAX] = {
    {IMAGE_BITS_1, 1, 0},
    {IMAGE_BITS_2, 2, 0},
    {IMAGE_BITS_4, 4, 0},
    {IMAGE_BITS_8, 8, 0},
    {IMAGE_BITS_12, 12, 0},
    {IMAGE_BITS_16, 16, 0},
    {IMAGE_BITS_24, 24, 0},
    {IMAGE_BITS_32, 32, 0},
    {IMAGE_BITS_64, 64, 0},
    {IMAGE_BITS_R3G3B2, 0, 8},
    {IMAGE_BITS_R5G6B5, 0, 16},
    {IMAGE_BITS_R5G5B5A1, 0, 16},
    {IMAGE_BITS_R10G10B10A2, 0, 32},
    {IMAGE_BITS_L6A2, 0, 8},
    {IMAGE_BITS_L12A4, 0, 16},
    {0, 0, 0},  // IMAGE_BITS_D24S8: callers rely on the size 0
};

#define NAMED(enumerator) \
    { enumerator, #enumerator }

image_format_string_t const image_format_string[IMAGE_FORMAT_MAX + 1] = {
    NAMED(IMAGE_FORMAT_GRAYSCALE), NAMED(IMAGE_FORMAT_GRAYSCALE_ALPHA),
    NAMED(IMAGE_FORMAT_INTENSITY), NAMED(IMAGE_FORMAT_RED),
    NAMED(IMAGE_FORMAT_GREEN),     NAMED(IMAGE_FORMAT_BLUE),
    NAMED(IMAGE_FORMAT_ALPHA),     NAMED(IMAGE_FORMAT_RG),
    NAMED(IMAGE_FORMAT_RGB),       NAMED(IMAGE_FORMAT_RGBA),
    NAMED(IMAGE_FORMAT_BGR),       NAMED(IMAGE_FORMAT_BGRA),
    NAMED(IMAGE_FORMAT_DEPTH),     NAMED(IMAGE_FORMAT_DEPTH_STENCIL),
    NAMED(IMAGE_FORMAT_YCbCr),     NAMED(IMAGE_FORMAT_YCbCrA),
    NAMED(IMAGE_FORMAT_YCbCr422),  NAMED(IMAGE_FORMAT_INDEX),
    NAMED(IMAGE_FORMAT_MAX),
};

image_type_string_t const image_type_string[IMAGE_TYPE_MAX + 1] = {
    NAMED(IMAGE_TYPE_SINT),
    NAMED(IMAGE_TYPE_UINT),
    NAMED(IMAGE_TYPE_FLOAT),
    NAMED(IMAGE_TYPE_MAX),
};

image_bits_string_t const image_bits_string[IMAGE_BITS_MAX + 1] = {
    NAMED(IMAGE_BITS_1),           NAMED(IMAGE_BITS_2),      NAMED(IMAGE_BITS_4),
    NAMED(IMAGE_BITS_8),           NAMED(IMAGE_BITS_12),     NAMED(IMAGE_BITS_16),
    NAMED(IMAGE_BITS_24),          NAMED(IMAGE_BITS_32),     NAMED(IMAGE_BITS_64),
    NAMED(IMAGE_BITS_R3G3B2),      NAMED(IMAGE_BITS_R5G6B5), NAMED(IMAGE_BITS_R5G5B5A1),
    NAMED(IMAGE_BITS_R10G10B10A2), NAMED(IMAGE_BITS_L6A2),   NAMED(IMAGE_BITS_L12A4),
    NAMED(IMAGE_BITS_D24S8),       NAMED(IMAGE_BITS_MAX),
};

#undef NAMED

namespace {

constexpr unsigned long long bytes_for(unsigned long long bits) {
    return bits / 8 + (bits % 8 != 0 ? 1 : 0);
}

/// Larger than the pixels of any description. The products below don't overflow with it.
constexpr unsigned long long max_pixelbits = 1ULL << 16;

/// Returns the offset, in bytes from the start of a row, of the end of the last pixel.
unsigned long long row_end(unsigned int skip, unsigned int width, unsigned long long pixelbits) {
    return bytes_for(pixelbits * (0ULL + skip + width));
}

/// Returns the offset, in bytes from `begin()`, of row `y` of the record.
unsigned long long row_position(image2d_t const& image, unsigned int y) {
    return image.rowsize() * (0ULL + image.window.skiprows + y);
}

unsigned long long skip_bytes(image2d_t const& image) {
    return image.getPixelBits() * image.window.skippixels / 8;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, e_image_format_t value) {
    return out << (value <= IMAGE_FORMAT_MAX ? image_format_string[value].name : "unknown: ");
}

std::ostream& operator<<(std::ostream& out, e_image_type_t value) {
    return out << (value <= IMAGE_TYPE_MAX ? image_type_string[value].name : "unknown: ");
}

std::ostream& operator<<(std::ostream& out, e_image_bits_t value) {
    return out << (value <= IMAGE_BITS_MAX ? image_bits_string[value].name : "unknown: ");
}

unsigned long long image_desc_t::getPixelBits() const {
    if (bits >= IMAGE_BITS_MAX) {
        return 0;
    }
    if (bits >= IMAGE_BITS_R3G3B2) {
        return s_image_bits_list[bits].packed;
    }
    return format < IMAGE_FORMAT_MAX ? s_image_format_components_list[format].components *
                                           s_image_bits_list[bits].component
                                     : 0;
}

bool operator==(image_desc_t const& a, image_desc_t const& b) {
    return a.format == b.format && a.type == b.type && a.bits == b.bits;
}

bool palette_t::resize(unsigned long n) {
    size = n;
    red.resize(n);
    green.resize(n);
    blue.resize(n);
    return n != 0;
}

void palette_t::clear() {
    size = 0;
    red.clear();
    green.clear();
    blue.clear();
}

unsigned long long row_stride(unsigned long long pixels, unsigned long long pixelbits,
                              image_store_t const* store) {
    unsigned long long const align =
        store != nullptr && store->alignment != 0 ? store->alignment : 4;
    unsigned long long const bytes = bytes_for(pixelbits * pixels);
    unsigned long long const over = bytes % align;
    return over != 0 ? bytes + (align - over) : bytes;
}

unsigned long long image2d_t::rowsize() const {
    return row_stride(rowlength(), getPixelBits(), store);
}

bool image2d_t::allocate() {
    unsigned long long const rows = 0ULL + window.skiprows + m_height;
    unsigned long long const stride = rowsize();
    if (stride != 0 && rows > std::numeric_limits<unsigned long>::max() / stride) {
        return false;
    }
    return resize(stride * rows, 0);
}

void image2d_t::clear() {
    image_bytes_t::clear();
    palette.clear();
    m_width = 0;
    m_height = 0;
}

bool rows_fit(unsigned long long stride, unsigned long long rows, unsigned long long rowbytes,
              unsigned long long room) {
    return rows == 0 ||
           (rowbytes <= room && (stride == 0 || rows - 1 <= (room - rowbytes) / stride));
}

bool pixels_within(image1d_t const& image, unsigned long long pixelbits) {
    if (image.compressed || pixelbits > max_pixelbits) {
        return false;
    }
    return image.m_width == 0 ||
           row_end(image.window.skippixels, image.m_width, pixelbits) <= image.size();
}

bool pixels_within(image2d_t const& image, unsigned long long pixelbits) {
    if (image.compressed || pixelbits > max_pixelbits) {
        return false;
    }
    return image.m_width == 0 || image.m_height == 0 ||
           rows_fit(row_stride(image.rowlength(), pixelbits, image.store),
                    0ULL + image.window.skiprows + image.m_height,
                    row_end(image.window.skippixels, image.m_width, pixelbits), image.size());
}

bool pixels_within(image3d_t const& image, unsigned long long pixelbits) {
    if (image.compressed || pixelbits > max_pixelbits) {
        return false;
    }
    if (image.m_width == 0 || image.m_height == 0 || image.m_depth == 0) {
        return true;
    }
    image_window3d_t const& window = image.window;
    unsigned long long const room = image.size();
    unsigned long long const stride = row_stride(
        window.rowlength != 0 ? window.rowlength : image.m_width, pixelbits, image.store);
    unsigned long long const rows = 0ULL + window.skiprows + image.m_height;
    unsigned long long const rowbytes = row_end(window.skippixels, image.m_width, pixelbits);
    if (!rows_fit(stride, rows, rowbytes, room)) {
        return false;
    }
    unsigned long long const images = 0ULL + window.skipimages + image.m_depth;
    unsigned long long const height = window.imageheight != 0 ? window.imageheight : image.m_height;
    return images == 1 || stride == 0 ||
           (height <= room / stride &&
            rows_fit(stride * height, images, stride * (rows - 1) + rowbytes, room));
}

bool pixels_within(image2d_t const& image) {
    return pixels_within(image, image.getPixelBits());
}

unsigned char* pixel_row(image2d_t& image, unsigned int y) {
    unsigned char* const bytes = image.begin();
    return bytes != nullptr ? bytes + row_position(image, y) + skip_bytes(image) : nullptr;
}

unsigned char const* pixel_row(image2d_t const& image, unsigned int y) {
    unsigned char const* const bytes = image.begin();
    return bytes != nullptr ? bytes + row_position(image, y) + skip_bytes(image) : nullptr;
}

unsigned char* whole_row(image2d_t& image, unsigned int y) {
    unsigned char* const bytes = image.begin();
    return bytes != nullptr ? bytes + row_position(image, y) : nullptr;
}

unsigned char const* whole_row(image2d_t const& image, unsigned int y) {
    unsigned char const* const bytes = image.begin();
    return bytes != nullptr ? bytes + row_position(image, y) : nullptr;
}

}  // namespace libgr
