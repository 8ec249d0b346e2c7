// SPDX-License-Identifier: MIT
// Colours of floats and of bytes, and the conversions between them.
#pragma once

#include "geometry/matrix.h"
#include "utils/bits.h"

namespace libgr {

// Only `color3ub(ycbcrub_t)` clamps channels. No function converts between linear and sRGB values,
// or multiplies by alpha: the caller defines the meaning of the numbers. No function converts
// float channels to bytes. For a channel `v`, cast `std::clamp(v, 0.0f, 1.0f) * 255.0f + 0.5f` to
// unsigned char.

/// Red, green and blue, each from 0 to 1.
struct color3_t {
    float r, g, b;
    bool operator==(color3_t const&) const = default;
};

/// Red, green, blue and alpha, each from 0 to 1. OpenGL takes its address as an array of floats.
struct color3a_t {
    float r, g, b, a;
    bool operator==(color3a_t const&) const = default;
};

/// Red, green and blue, each from 0 to 255.
struct color3ub_t {
    unsigned char r, g, b;
    bool operator==(color3ub_t const&) const = default;
};

/// Red, green, blue and alpha, each from 0 to 255.
struct color3aub_t {
    unsigned char r, g, b, a;
    bool operator==(color3aub_t const&) const = default;
};

/// A gray value from 0 to 255.
struct color1ub_t {
    unsigned char gray;
};

/// A gray value and alpha, each from 0 to 255.
struct color1aub_t {
    unsigned char gray, a;
};

/// Red, green and blue, each from -128 to 127.
struct color3b_t {
    signed char r, g, b;
};

/// Luma and two chroma values, each from 0 to 255. See `ycbcrub` for their scale.
struct ycbcrub_t {
    unsigned char y, cb, cr;
};

static_assert(sizeof(color3a_t) == 16 && sizeof(color3ub_t) == 3 && sizeof(color3aub_t) == 4);

constexpr color3_t color3(float r, float g, float b) {
    return {r, g, b};
}
constexpr color3a_t color3a(float r, float g, float b, float a) {
    return {r, g, b, a};
}
constexpr color3a_t color3a(color3_t const& c, float a) {
    return {c.r, c.g, c.b, a};
}
constexpr color3ub_t color3ub(unsigned char r, unsigned char g, unsigned char b) {
    return {r, g, b};
}
constexpr color3aub_t color3aub(unsigned char r, unsigned char g, unsigned char b,
                                unsigned char a) {
    return {r, g, b, a};
}
constexpr color1ub_t color1ub(unsigned char gray) {
    return {gray};
}
constexpr color1aub_t color1aub(unsigned char gray, unsigned char a) {
    return {gray, a};
}
constexpr color3b_t color3b(signed char r, signed char g, signed char b) {
    return {r, g, b};
}
constexpr ycbcrub_t ycbcrub(unsigned char y, unsigned char cb, unsigned char cr) {
    return {y, cb, cr};
}

/// Converts all four channels from bytes of 0 to 255 to floats of 0 to 1.
constexpr color3a_t color3a(color3aub_t c) {
    return {libutils::uc2f(c.r), libutils::uc2f(c.g), libutils::uc2f(c.b), libutils::uc2f(c.a)};
}

/// Multiplies all four channels, including alpha.
constexpr color3a_t operator*(color3a_t const& c, float f) {
    return {c.r * f, c.g * f, c.b * f, c.a * f};
}

/// Converts with `matrix_rgb2ycbcr` (geometry/constants.h), and rounds to the nearest byte:
///
///   y         255 * luma              0 to 255
///   cb, cr    128 + 127 * chroma      64 to 192, because chroma is -0.5 to 0.5
///
/// The scale is 127 because a signed byte has the symmetric range -127 to 127. JFIF uses the scale
/// 255, so these bytes aren't those of a JPEG file.
ycbcrub_t ycbcrub(color3ub_t c);
/// Converts with `matrix_ycbcr2rgb`, the inverse of the above. Accepts all bytes, rounds to the
/// nearest byte, and clamps channels to 0 to 255. Each channel of `color3ub(ycbcrub(c))` differs
/// from `c` by at most 2.
color3ub_t color3ub(ycbcrub_t c);

}  // namespace libgr
