// SPDX-License-Identifier: MIT
// Samples of other than 8 bits, in the form that OpenGL reads.
#include "image/samples.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace libgr {

namespace {

struct widening_row_t {
    image_desc_t desc;
    unsigned char scale;  ///< a sample of 8 bits for each unit of the source's sample
};
constexpr widening_row_t widening_rows[] = {
    {{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_1}, 255},
    {{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_2}, 255 / 3},
    {{IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4}, 255 / 15},
    {{IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_2}, 1},
};

}  // namespace

bool to_machine_order(image2d_t& image, std::endian order) {
    if (order == std::endian::native || image.desc.bits >= IMAGE_BITS_MAX) {
        return true;
    }
    image_bits_t const& sizes = s_image_bits_list[image.desc.bits];
    if (std::max(sizes.component, sizes.packed) != 16) {
        return true;
    }
    if (!pixels_within(image)) {
        return false;
    }
    unsigned long long const length = image.rowbyte();
    for (unsigned int y = 0; y < image.m_height; ++y) {
        unsigned char* const row = pixel_row(image, y);
        for (unsigned long long x = 0; x + 1 < length; x += 2) {
            std::uint16_t value;
            std::memcpy(&value, row + x, sizeof value);
            value = static_cast<std::uint16_t>(value << 8 | value >> 8);
            std::memcpy(row + x, &value, sizeof value);
        }
    }
    return true;
}

bool widen_samples(image2d_t& dst, image2d_t const& src) {
    auto const* const row =
        std::ranges::find_if(widening_rows, [&](auto const& r) { return r.desc == src.desc; });
    if (row == std::end(widening_rows)) {
        dst = src;
        return true;
    }
    dst.clear();
    dst.desc = {src.desc.format, src.desc.type, IMAGE_BITS_8};
    dst.m_width = src.m_width;
    dst.m_height = src.m_height;
    dst.compressed = false;
    if (!pixels_within(src) || !dst.allocate() || !pixels_within(dst)) {
        return false;
    }
    dst.palette = src.palette;
    unsigned long long const bits = src.getPixelBits();
    for (unsigned int y = 0; y < src.m_height; ++y) {
        unsigned char const* const from = whole_row(src, y);
        unsigned char* const to = pixel_row(dst, y);
        for (unsigned int x = 0; x < src.m_width; ++x) {
            to[x] = static_cast<unsigned char>(
                packed_sample(from, bits, 0ULL + src.window.skippixels + x) * row->scale);
        }
    }
    return true;
}

}  // namespace libgr
