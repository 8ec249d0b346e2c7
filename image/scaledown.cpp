// SPDX-License-Identifier: MIT
// Reduces pictures to half their size.
#include "image/scaledown.h"

#include <cstddef>

#include "utils/diagnostics.h"

namespace libgr {

namespace {

using byte_t = unsigned char;

/// The position of a sample in a cell of 2 by 2 pixels.
struct sample_t {
    unsigned int row;     ///< 0 or 1
    unsigned int offset;  ///< in bytes from the start of the cell in that row
};

/// The positions of the samples of a mosaic.
struct mosaic_t {
    sample_t red;
    sample_t green[2];
    sample_t blue;
};

constexpr mosaic_t grbg = {{0, 3}, {{0, 1}, {1, 4}}, {1, 2}};
constexpr mosaic_t gbrg = {{1, 0}, {{0, 1}, {1, 4}}, {0, 5}};
constexpr mosaic_t rggb = {{0, 0}, {{0, 4}, {1, 1}}, {1, 5}};
constexpr mosaic_t bggr = {{1, 3}, {{0, 4}, {1, 1}}, {0, 2}};

/// Returns the mean of the first byte of each row and the byte `step` after it.
byte_t box(byte_t const* r0, byte_t const* r1, unsigned int step) {
    return static_cast<byte_t>((r0[0] + r0[step] + r1[0] + r1[step]) >> 2);
}

void gray_row(byte_t* to, byte_t const* r0, byte_t const* r1, unsigned int width) {
    for (unsigned int x = 0; x < width; ++x) {
        to[x] = box(r0 + x, r1 + x, 1);
    }
}

void box_row(byte_t* to, byte_t const* r0, byte_t const* r1, unsigned int width,
             unsigned int components) {
    std::size_t const pair = std::size_t{2} * components;
    for (unsigned int x = 0; x < width; ++x, r0 += pair, r1 += pair) {
        for (unsigned int c = 0; c < components; ++c) {
            *to++ = box(r0 + c, r1 + c, 3);  // 3 for pixels of four bytes, too: see the header
        }
    }
}

void mosaic_row(byte_t* to, byte_t const* r0, byte_t const* r1, unsigned int width,
                unsigned int components, mosaic_t const& mosaic) {
    std::size_t const pair = std::size_t{2} * components;
    for (unsigned int x = 0; x < width; ++x, r0 += pair, r1 += pair) {
        auto const at = [&](sample_t const& sample) {
            return (sample.row == 0 ? r0 : r1)[sample.offset];
        };
        *to++ = at(mosaic.red);
        *to++ = static_cast<byte_t>((at(mosaic.green[0]) + at(mosaic.green[1])) >> 1);
        *to++ = at(mosaic.blue);
        if (components == 4) {
            *to++ = box(r0 + 3, r1 + 3, 3);
        }
    }
}

bool is_supported(e_image_format_t format, bool is_mosaic) {
    switch (format) {
        case IMAGE_FORMAT_GRAYSCALE:
        case IMAGE_FORMAT_RGB:
        case IMAGE_FORMAT_RGBA:
            return true;
        case IMAGE_FORMAT_BGR:
        case IMAGE_FORMAT_BGRA:
            return !is_mosaic;
        default:
            return false;
    }
}

/// Reduces a mosaic, or, if `mosaic` is null, computes the mean of the pixels.
bool reduce(image2d_t& dst, image2d_t const& src, mosaic_t const* mosaic) {
    if (src.compressed) {
        return false;
    }
    dst.clear();
    dst.desc = src.desc;
    dst.compressed = false;
    dst.m_width = src.m_width / 2;
    dst.m_height = src.m_height / 2;
    if (!dst.allocate()) {
        return libutils::report_error("scaledown(): allocate() fail.");
    }
    if (!is_supported(src.desc.format, mosaic != nullptr)) {
        return libutils::report_error("scaledown(): ", src.desc.format, ": unsupported format.");
    }
    if (dst.m_height == 0) {
        return true;
    }
    unsigned int const components = s_image_format_components_list[src.desc.format].components;
    if (src.getPixelBits() < 8ULL * components || !pixels_within(src) || !pixels_within(dst)) {
        return false;
    }
    for (unsigned int y = 0; y < dst.m_height; ++y) {
        byte_t* const to = pixel_row(dst, y);
        byte_t const* const r0 = pixel_row(src, 2 * y);
        byte_t const* const r1 = pixel_row(src, 2 * y + 1);
        if (components == 1) {
            gray_row(to, r0, r1, dst.m_width);
        } else if (mosaic == nullptr) {
            box_row(to, r0, r1, dst.m_width, components);
        } else {
            mosaic_row(to, r0, r1, dst.m_width, components, *mosaic);
        }
    }
    return true;
}

}  // namespace

bool scaledown(image2d_t& dst, image2d_t const& src) {
    return reduce(dst, src, nullptr);
}

bool scaledownGRBG(image2d_t& dst, image2d_t const& src) {
    return reduce(dst, src, &grbg);
}

bool scaledownGBRG(image2d_t& dst, image2d_t const& src) {
    return reduce(dst, src, &gbrg);
}

bool scaledownRGGB(image2d_t& dst, image2d_t const& src) {
    return reduce(dst, src, &rggb);
}

bool scaledownBGGR(image2d_t& dst, image2d_t const& src) {
    return reduce(dst, src, &bggr);
}

}  // namespace libgr
