// SPDX-License-Identifier: MIT
// Conversions of pictures: channel order, alpha, palettes, colour, rotation and windows.
#include "image/pixelconvert.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <iostream>

#include "image/samples.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

using row_function_t = void (*)(unsigned char* to, unsigned char const* from, std::size_t pixels);

/// The function that converts rows from one format to another.
struct row_conversion_t {
    e_image_format_t from;
    e_image_format_t to;
    row_function_t convert;
};

template <std::size_t from_step, std::size_t to_step, bool swap>
void convert_row(unsigned char* to, unsigned char const* from, std::size_t pixels) {
    for (std::size_t x = 0; x < pixels; ++x, to += to_step, from += from_step) {
        to[0] = from[swap ? 2 : 0];
        to[1] = from[1];
        to[2] = from[swap ? 0 : 2];
        if constexpr (to_step == 4) {
            to[3] = from_step == 4 ? from[3] : 255;
        }
    }
}

constexpr row_conversion_t bgr_to_rgb[] = {
    {IMAGE_FORMAT_BGRA, IMAGE_FORMAT_RGBA, convert_row<4, 4, true>},
    {IMAGE_FORMAT_BGR, IMAGE_FORMAT_RGB, convert_row<3, 3, true>},
};
constexpr row_conversion_t rgb_to_bgr[] = {
    {IMAGE_FORMAT_RGBA, IMAGE_FORMAT_BGRA, convert_row<4, 4, true>},
    {IMAGE_FORMAT_RGB, IMAGE_FORMAT_BGR, convert_row<3, 3, true>},
};
constexpr row_conversion_t rgb_to_rgba = {IMAGE_FORMAT_RGB, IMAGE_FORMAT_RGBA,
                                          convert_row<3, 4, false>};
constexpr row_conversion_t rgba_to_rgb = {IMAGE_FORMAT_RGBA, IMAGE_FORMAT_RGB,
                                          convert_row<4, 3, false>};

bool is_byte_image(image2d_t const& image) {
    return image.desc.type <= IMAGE_TYPE_UINT && image.desc.bits == IMAGE_BITS_8 &&
           !image.compressed;
}

bool share(image2d_t& dst, image2d_t const& src, bool result) {
    dst = src;
    return result;
}

/// Sets the description and allocates a picture of the size of `src`.
bool allocate_like(image2d_t& dst, image2d_t const& src, image_desc_t const& desc) {
    dst.desc = desc;
    dst.m_width = src.m_width;
    dst.m_height = src.m_height;
    dst.compressed = false;
    return dst.allocate();
}

/// Converts to rows that are padded to 4 bytes, and ignores the window and store of `dst`.
bool swap_rows(image2d_t& dst, image2d_t const& src, row_conversion_t const& conversion) {
    if (!allocate_like(dst, src, {conversion.to, src.desc.type, IMAGE_BITS_8})) {
        return false;
    }
    unsigned long long const stride = libutils::UpAlignBits(src.rowbyte(), 2);
    if (!rows_fit(stride, src.m_height, src.rowbyte(), dst.size())) {
        return false;
    }
    for (unsigned int y = 0; y < src.m_height; ++y) {
        conversion.convert(dst.begin() + stride * y, pixel_row(src, y), src.m_width);
    }
    return true;
}

template <std::size_t N>
bool swap_channels(image2d_t& dst, image2d_t const& src, row_conversion_t const (&conversions)[N],
                   image_store_t const* store_of_three) {
    for (row_conversion_t const& conversion : conversions) {
        if (src.desc.format == conversion.to) {
            return share(dst, src, true);
        }
        if (src.desc.format == conversion.from) {
            if (!is_byte_image(src) || !pixels_within(src)) {
                return share(dst, src, false);
            }
            if (store_of_three != nullptr && src.getPixelBits() == 24) {
                dst.store = store_of_three;
            }
            return swap_rows(dst, src, conversion);
        }
    }
    return share(dst, src, false);
}

bool change_alpha(image2d_t& dst, image2d_t const& src, row_conversion_t const& conversion,
                  image_store_t const& store) {
    bool const is_converted = src.desc.format == conversion.to;
    if (is_converted || src.desc.format != conversion.from || !is_byte_image(src) ||
        !pixels_within(src)) {
        return share(dst, src, is_converted && is_byte_image(src));
    }
    dst.store = &store;
    if (!allocate_like(dst, src, {conversion.to, src.desc.type, IMAGE_BITS_8}) ||
        !pixels_within(dst)) {
        return false;
    }
    for (unsigned int y = 0; y < src.m_height; ++y) {
        conversion.convert(pixel_row(dst, y), pixel_row(src, y), src.m_width);
    }
    return true;
}

using colour_bytes_t = std::array<unsigned char, 3>;

/// Returns the colours of the palette in bytes, and black for the other indices.
std::array<colour_bytes_t, 256> colour_table(palette_t const& palette) {
    std::array<colour_bytes_t, 256> table{};
    palette_t::plane_t const* const planes[] = {&palette.red, &palette.green, &palette.blue};
    for (std::size_t c = 0; c < 3; ++c) {
        unsigned long const entries = min2(min2(palette.size, planes[c]->count()), table.size());
        for (std::size_t i = 0; i < entries; ++i) {
            table[i][c] = static_cast<unsigned char>((*planes[c])[i] >> 8);
        }
    }
    return table;
}

using libutils::report_error;

/// Returns true if the pixels can be set. Prints a line if the description isn't supported.
bool is_paintable(image2d_t const& img) {
    if (img.compressed) {
        return false;
    }
    if (img.desc.type != IMAGE_TYPE_UINT) {
        return report_error("not support image type.");
    }
    if (img.desc.bits != IMAGE_BITS_8) {
        return report_error("not support image bits.");
    }
    if (img.desc.format != IMAGE_FORMAT_RGB && img.desc.format != IMAGE_FORMAT_RGBA) {
        return report_error("not support format.");
    }
    return img.m_width == 0 || img.m_height == 0 || (pixels_within(img) && img.is_writable());
}

/// Calls `paint` with the address of each pixel.
template <typename F>
void for_each_pixel(image2d_t& img, std::size_t components, F paint) {
    for (unsigned int y = 0; y < img.m_height; ++y) {
        unsigned char* pixel = pixel_row(img, y);
        for (unsigned int x = 0; x < img.m_width; ++x, pixel += components) {
            paint(pixel);
        }
    }
}

struct position_t {
    unsigned int x, y;
};

/// Returns the position in `dst` of the pixel (x, y) after `count` quarter turns clockwise.
position_t rotated(unsigned long count, image2d_t const& dst, unsigned int x, unsigned int y) {
    switch (count) {
        case 1:
            return {y, dst.m_height - 1 - x};
        case 2:
            return {dst.m_width - 1 - x, dst.m_height - 1 - y};
        default:
            return {dst.m_width - 1 - y, x};
    }
}

}  // namespace

bool bgr2rgb(image2d_t& dst, image2d_t const& src) {
    return swap_channels(dst, src, bgr_to_rgb, nullptr);
}

bool rgb2bgr(image2d_t& dst, image2d_t const& src) {
    static image_store_t const imgstore = {false, 4};
    return swap_channels(dst, src, rgb_to_bgr, &imgstore);
}

bool rgb2rgba(image2d_t& dst, image2d_t const& src) {
    static image_store_t const imgstore = {false, 4};
    return change_alpha(dst, src, rgb_to_rgba, imgstore);
}

bool rgba2rgb(image2d_t& dst, image2d_t const& src) {
    static image_store_t const imgstore = {false, 4};
    return change_alpha(dst, src, rgba_to_rgb, imgstore);
}

bool index2rgb(image2d_t& dst, image2d_t const& src) {
    if (src.desc.format != IMAGE_FORMAT_INDEX) {
        return share(dst, src, true);
    }
    dst.clear();
    if (!allocate_like(dst, src, {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8})) {
        return false;
    }
    e_image_bits_t const bits = src.desc.bits;
    if ((bits != IMAGE_BITS_1 && bits != IMAGE_BITS_4 && bits != IMAGE_BITS_8) ||
        !pixels_within(src) || !pixels_within(dst)) {
        return false;
    }
    std::array<colour_bytes_t, 256> const colours = colour_table(src.palette);
    unsigned long long const pixelbits = src.getPixelBits();
    for (unsigned int y = 0; y < src.m_height; ++y) {
        unsigned char const* const row = whole_row(src, y);
        unsigned char* to = pixel_row(dst, y);
        for (unsigned int x = 0; x < src.m_width; ++x, to += 3) {
            unsigned int const index =
                packed_sample(row, pixelbits, 0ULL + src.window.skippixels + x);
            std::memcpy(to, colours[index].data(), 3);
        }
    }
    return true;
}

bool copy(image2d_t& dst, image2d_t const& src) {
    if (!pixels_within(src)) {
        return false;
    }
    dst.store = src.store;
    dst.window = {};
    if (!allocate_like(dst, src, src.desc)) {
        return false;
    }
    unsigned long long const bytes = src.rowbyte();
    unsigned long long const padding = dst.rowsize() - bytes;
    for (unsigned int y = 0; y < src.m_height && dst.rowsize() != 0; ++y) {
        unsigned char* const to = pixel_row(dst, y);
        std::memcpy(to, pixel_row(src, y), bytes);
        std::memset(to + bytes, 0, padding);
    }
    return true;
}

unsigned char channel_byte(float value) {
    if (std::isnan(value)) {
        return 255;
    }
    return value < 0 ? 0 : static_cast<unsigned char>(min2(value, 1.0F) * 255.0F + 0.5F);
}

bool fillcolor(image2d_t& img, color3a_t const& color) {
    if (!is_paintable(img)) {
        return false;
    }
    unsigned char const bytes[] = {channel_byte(color.r), channel_byte(color.g),
                                   channel_byte(color.b), channel_byte(color.a)};
    std::size_t const components = img.desc.format == IMAGE_FORMAT_RGBA ? 4 : 3;
    for_each_pixel(img, components,
                   [&](unsigned char* pixel) { std::memcpy(pixel, bytes, components); });
    return true;
}

bool addcolor(image2d_t& img, color3a_t const& color) {
    if (!is_paintable(img)) {
        return false;
    }
    float const added[] = {color.r, color.g, color.b};
    std::size_t const components = img.desc.format == IMAGE_FORMAT_RGBA ? 4 : 3;
    for_each_pixel(img, components, [&](unsigned char* pixel) {
        for (std::size_t c = 0; c < 3; ++c) {
            pixel[c] = channel_byte(libutils::uc2f(pixel[c]) + added[c]);
        }
    });
    return true;
}

bool monochrome(image2d_t& dst, image2d_t const& src) {
    if (src.desc.format != IMAGE_FORMAT_RGB) {
        return report_error(src.desc.format, ": image format is not RGB.");
    }
    if (src.desc.type != IMAGE_TYPE_UINT) {
        return report_error(src.desc.type, ": image type is not UINT.");
    }
    if (src.desc.bits != IMAGE_BITS_8) {
        return report_error(src.desc.bits, ": image bits is not 8.");
    }
    image2d_reader_t<unsigned char> reader;
    if (!reader.setimage(src) || !reader.has_all_rows() ||
        !allocate_like(dst, src, {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_8}) ||
        !pixels_within(dst)) {
        return false;
    }
    for (unsigned int y = 0; y < src.m_height; ++y) {
        unsigned char const* from = reader.row(y);
        unsigned char* to = pixel_row(dst, y);
        for (unsigned int x = 0; x < src.m_width; ++x, from += 3) {
            float const gray = 0.299F * static_cast<float>(from[0]) +
                               0.587F * static_cast<float>(from[1]) +
                               0.114F * static_cast<float>(from[2]);
            *to++ = static_cast<unsigned char>(gray);
        }
    }
    return true;
}

bool rotate(unsigned long count, image2d_t& dst, image2d_t const& src) {
    if (count == 0) {
        return share(dst, src, true);
    }
    if (count > 3 || !pixels_within(src)) {
        return false;
    }
    dst.clear();
    dst.desc = src.desc;
    dst.compressed = false;
    dst.m_width = count == 2 ? src.m_width : src.m_height;
    dst.m_height = count == 2 ? src.m_height : src.m_width;
    if (!dst.allocate() || !pixels_within(dst)) {
        return false;
    }
    unsigned long long const bits = src.getPixelBits();
    for (unsigned int y = 0; y < src.m_height && bits >= 8; ++y) {
        unsigned char const* const from = whole_row(src, y);
        for (unsigned int x = 0; x < src.m_width; ++x) {
            position_t const place = rotated(count, dst, x, y);
            std::memcpy(
                whole_row(dst, place.y) + bits * (0ULL + dst.window.skippixels + place.x) / 8,
                from + bits * (0ULL + src.window.skippixels + x) / 8, bits / 8);
        }
    }
    return true;
}

bool makewindow(image2d_t& dst, image2d_t& src, int x, int y, unsigned int width,
                unsigned int height) {
    if (src.compressed) {
        return false;
    }
    image_window2d_t window;
    window.rowlength = static_cast<unsigned int>(src.rowlength());
    window.skippixels = static_cast<unsigned int>(x) + src.window.skippixels;
    window.skiprows = static_cast<unsigned int>(y) + src.window.skiprows;
    unsigned int const shown_width = min2(width, src.m_width - window.skippixels);
    unsigned int const shown_height = min2(height, src.m_height - window.skiprows);
    dst = src;
    dst.window = window;
    dst.m_width = shown_width;
    dst.m_height = shown_height;
    return true;
}

bool image2d_reader_t<unsigned char>::setimage(image2d_t const& img) {
    if (img.compressed) {
        *this = {};
        return false;
    }
    bytes = static_cast<image_bytes_t const&>(img);
    width = img.m_width;
    height = img.m_height;
    desc = img.desc;
    return true;
}

unsigned long long image2d_reader_t<unsigned char>::rowsize() const {
    return row_stride(width, desc.getPixelBits(), nullptr);
}

bool image2d_reader_t<unsigned char>::has_all_rows() const {
    return rows_fit(rowsize(), height, (desc.getPixelBits() * width + 7) / 8, bytes.size());
}

unsigned char const* image2d_reader_t<unsigned char>::row(unsigned long y) const {
    return bytes.begin() + rowsize() * y;
}

}  // namespace libgr
