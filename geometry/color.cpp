// SPDX-License-Identifier: MIT
// Conversions between RGB bytes and luma and chroma bytes.
#include "geometry/color.h"

#include "geometry/constants.h"

namespace libgr {

namespace {

/// Converts a chroma value to a byte: 128 + 127 * `v`. Halves are rounded away from 128.
unsigned char chroma_byte(float v) {
    int const rounded = static_cast<int>(v < 0.0f ? v * 127.0f - 0.5f : v * 127.0f + 0.5f);
    return static_cast<unsigned char>(rounded ^ 0x80);
}

float chroma_value(unsigned char byte) {
    return static_cast<float>(static_cast<signed char>(byte ^ 0x80)) * 0.007874016f;
}

unsigned char channel_byte(float v) {
    if (v < 0.0f) {
        return 0;
    }
    return static_cast<unsigned char>(libutils::min2(v, 1.0f) * 255.0f + 0.5f);
}

}  // namespace

ycbcrub_t ycbcrub(color3ub_t c) {
    vector3w_t const rgb =
        vector3w(libutils::uc2f(c.r), libutils::uc2f(c.g), libutils::uc2f(c.b), 1.0f);
    vector3w_t const v = rgb * matrix_rgb2ycbcr;
    return {static_cast<unsigned char>(v.x * 255.0f + 0.5f), chroma_byte(v.y), chroma_byte(v.z)};
}

color3ub_t color3ub(ycbcrub_t c) {
    vector3w_t const ycbcr =
        vector3w(libutils::uc2f(c.y), chroma_value(c.cb), chroma_value(c.cr), 1.0f);
    vector3w_t const v = ycbcr * matrix_ycbcr2rgb;
    return {channel_byte(v.x), channel_byte(v.y), channel_byte(v.z)};
}

}  // namespace libgr
