// SPDX-License-Identifier: MIT
// Enlarges pictures by repeating their edges.
#include "image/repeatedges.h"

#include <cstring>

namespace libgr {

bool repeat_edges(image2d_t& dst, image2d_t const& src, unsigned int width, unsigned int height) {
    unsigned long long const pixelbytes = src.getPixelBits() / 8;
    if (pixelbytes == 0 || src.getPixelBits() % 8 != 0 || src.m_width == 0 || src.m_height == 0 ||
        width < src.m_width || height < src.m_height || !pixels_within(src)) {
        return false;
    }
    image2d_t larger;
    larger.desc = src.desc;
    larger.store = src.store;
    larger.palette = src.palette;
    larger.m_width = width;
    larger.m_height = height;
    if (!larger.allocate()) {
        return false;
    }
    for (unsigned int y = 0; y < src.m_height; ++y) {
        unsigned char* const row = pixel_row(larger, y);
        std::memcpy(row, pixel_row(src, y), src.rowbyte());
        for (unsigned long long at = src.rowbyte(); at < larger.rowbyte(); at += pixelbytes) {
            std::memcpy(row + at, row + at - pixelbytes, pixelbytes);
        }
    }
    for (unsigned int y = src.m_height; y < height; ++y) {
        std::memcpy(pixel_row(larger, y), pixel_row(larger, y - 1), larger.rowbyte());
    }
    dst = larger;
    return true;
}

}  // namespace libgr
