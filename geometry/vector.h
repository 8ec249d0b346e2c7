// SPDX-License-Identifier: MIT
// Points, directions, sizes and texture coordinates, and their arithmetic.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "utils/bits.h"

namespace libgr {

// The types of this library are plain records. For most types, the function of the same name
// without `_t` returns a record: `direction3(x, y, z)` returns a `direction3_t`. The suffixes are:
//
//   2, 3     number of dimensions               l, ul    32-bit integers, signed or unsigned
//   w, q     with a homogeneous coordinate      s        16-bit integers
//   a        with alpha                         b, ub    bytes, signed or unsigned
//
// Types without l, ul, s, b or ub contain floats. The exceptions are `dim2_t` and `dim3_t`
// (unsigned long) and `projection_t` (double).
//
// All functions may be called from any thread. None needs an OpenGL context or keeps the address of
// an argument. None allocates memory, throws or fails, except those in `geometry/textstream.h`.

using libutils::max2;
using libutils::min2;

/// A point in two dimensions.
struct position2_t {
    float x, y;
    bool operator==(position2_t const&) const = default;
};

/// A vector or a size in two dimensions.
struct direction2_t {
    float x, y;
    bool operator==(direction2_t const&) const = default;
};

/// A point in pixels or in screen coordinates. The record defines no origin and no direction of y:
/// see the function that takes or returns the point.
struct position2l_t {
    std::int32_t x, y;
    bool operator==(position2l_t const&) const = default;
};

/// A size or an offset in pixels or in screen coordinates.
struct direction2l_t {
    std::int32_t x, y;
    bool operator==(direction2l_t const&) const = default;
};

/// A size or an offset of 16-bit components.
struct direction2s_t {
    std::int16_t x, y;
    bool operator==(direction2s_t const&) const = default;
};

/// A size of unsigned components.
struct direction2ul_t {
    std::uint32_t x, y;
    bool operator==(direction2ul_t const&) const = default;
};

/// A point in three dimensions. The axes are right-handed, as in OpenGL.
struct position3_t {
    float x, y, z;
    bool operator==(position3_t const&) const = default;
};

/// A vector in three dimensions, or one value for each axis, for example a scale.
struct direction3_t {
    float x, y, z;
    bool operator==(direction3_t const&) const = default;
};

/// A vector of homogeneous coordinates.
struct vector3w_t {
    float x, y, z, w;

    /// Returns the component with index `i`: x, y, z or w. An index above 3 returns w.
    constexpr float& operator[](std::size_t i) { return i == 0 ? x : i == 1 ? y : i == 2 ? z : w; }
    constexpr float const& operator[](std::size_t i) const {
        return i == 0 ? x : i == 1 ? y : i == 2 ? z : w;
    }
    bool operator==(vector3w_t const&) const = default;
};

// Texture coordinates, with the names that OpenGL gives to the components.
struct texcoord1_t {
    float s;
};
struct texcoord2_t {
    float s, t;
};
struct texcoord2q_t {
    float s, t, q;
};
struct texcoord3_t {
    float s, t, r;
};
struct texcoord3q_t {
    float s, t, r, q;
};

// OpenGL reads arrays of these as vertex arrays, so they must have no padding.
static_assert(sizeof(position2_t) == 8 && std::is_trivially_copyable_v<position2_t>);
static_assert(sizeof(position3_t) == 12 && std::is_trivially_copyable_v<position3_t>);
static_assert(sizeof(vector3w_t) == 16 && std::is_trivially_copyable_v<vector3w_t>);
static_assert(sizeof(texcoord2_t) == 8 && std::is_trivially_copyable_v<texcoord2_t>);

constexpr position2_t position2(float x, float y) {
    return {x, y};
}
constexpr direction2_t direction2(float x, float y) {
    return {x, y};
}
constexpr position2l_t position2l(std::int32_t x, std::int32_t y) {
    return {x, y};
}
constexpr direction2l_t direction2l(std::int32_t x, std::int32_t y) {
    return {x, y};
}
constexpr position3_t position3(float x, float y, float z) {
    return {x, y, z};
}
constexpr direction3_t direction3(float x, float y, float z) {
    return {x, y, z};
}
/// Returns a vector with the same value on all three axes.
constexpr direction3_t direction3(float v) {
    return {v, v, v};
}
constexpr vector3w_t vector3w(float x, float y, float z, float w) {
    return {x, y, z, w};
}
constexpr texcoord1_t texcoord1(float s) {
    return {s};
}
constexpr texcoord2_t texcoord2(float s, float t) {
    return {s, t};
}
constexpr texcoord2q_t texcoord2q(float s, float t, float q) {
    return {s, t, q};
}
constexpr texcoord3_t texcoord3(float s, float t, float r) {
    return {s, t, r};
}
constexpr texcoord3q_t texcoord3q(float s, float t, float r, float q) {
    return {s, t, r, q};
}

// Conversions between points and directions.
constexpr position2_t pos2(direction2_t v) {
    return {v.x, v.y};
}
constexpr direction2_t dir2(position2_t v) {
    return {v.x, v.y};
}
constexpr position2l_t pos2l(direction2l_t v) {
    return {v.x, v.y};
}
constexpr direction2l_t dir2l(position2l_t v) {
    return {v.x, v.y};
}
constexpr position3_t pos3(direction3_t const& v) {
    return {v.x, v.y, v.z};
}
constexpr direction3_t dir3(position3_t const& v) {
    return {v.x, v.y, v.z};
}

constexpr direction2_t direction2(direction2l_t v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y)};
}

/// Returns `v` truncated towards zero. A value outside the range of the result is clamped to it.
/// The result for NaN is 0.
constexpr std::int32_t truncate_to_int32(float v) {
    constexpr float limit = 2147483648.0f;
    if (v >= limit) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (v <= -limit) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return v == v ? static_cast<std::int32_t>(v) : 0;
}

/// Converts both components with `truncate_to_int32`.
constexpr direction2l_t direction2l(direction2_t v) {
    return {truncate_to_int32(v.x), truncate_to_int32(v.y)};
}

/// The largest difference between two floats that `compare` treats as equal.
inline constexpr float COMPARE_THRESHOLD = 1e-05f;

/// Returns 0 if `a` and `b` differ by at most `COMPARE_THRESHOLD`. Otherwise returns -1 if `a` is
/// less than `b`, else 1. Returns 1 if `a` or `b` is NaN, and for two equal infinities.
inline int compare(float a, float b) {
    float const difference = a - b;
    if (std::fabs(difference) <= COMPARE_THRESHOLD) {
        return 0;
    }
    return difference < 0.0f ? -1 : 1;
}

constexpr direction2_t operator-(position2_t a, position2_t b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr direction2_t operator*(direction2_t a, direction2_t b) {
    return {a.x * b.x, a.y * b.y};
}
constexpr direction2_t operator*(direction2_t v, float f) {
    return {v.x * f, v.y * f};
}
constexpr direction2_t operator/(float f, direction2_t v) {
    return {f / v.x, f / v.y};
}

/// Divides component by component. The quotient of equal components is 1, even for 0 / 0, so that
/// the scale of an empty picture in an empty window is 1.
constexpr direction2_t operator/(direction2_t a, direction2_t b) {
    return {a.x == b.x ? 1.0f : a.x / b.x, a.y == b.y ? 1.0f : a.y / b.y};
}

/// Returns true if both components are equal to `n`. `v != n` is true if at least one differs.
constexpr bool operator==(direction2l_t v, int n) {
    return v.x == n && v.y == n;
}

/// Returns the smaller component.
constexpr float min1(direction2_t v) {
    return libutils::min2(v.x, v.y);
}
/// Returns the larger component.
constexpr float max1(direction2_t v) {
    return libutils::max2(v.x, v.y);
}

constexpr direction3_t operator-(position3_t const& a, position3_t const& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr position3_t operator-(position3_t const& v) {
    return {-v.x, -v.y, -v.z};
}
constexpr direction3_t operator-(direction3_t const& v) {
    return {-v.x, -v.y, -v.z};
}
constexpr direction3_t operator*(direction3_t const& v, float f) {
    return {v.x * f, v.y * f, v.z * f};
}
constexpr direction3_t& operator*=(direction3_t& v, float f) {
    return v = v * f;
}
constexpr direction3_t& operator+=(direction3_t& a, direction3_t const& b) {
    return a = {a.x + b.x, a.y + b.y, a.z + b.z};
}

/// Raises each component of `base` to the power of the same component of `exponent`.
inline direction3_t pow(direction3_t const& base, direction3_t const& exponent) {
    return {std::pow(base.x, exponent.x), std::pow(base.y, exponent.y),
            std::pow(base.z, exponent.z)};
}

/// Returns the dot product.
constexpr float ScalarProduct(direction3_t const& a, direction3_t const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Returns the Euclidean length.
inline float Length(direction3_t const& v) {
    return std::sqrt(ScalarProduct(v, v));
}

/// Returns `v` scaled to length 1, or (0, 0, 0) if the length of `v` is 0.
inline direction3_t Normalize(direction3_t const& v) {
    float const length = Length(v);
    return length == 0.0f ? direction3_t{} : v * (1.0f / length);
}
inline position3_t Normalize(position3_t const& v) {
    return pos3(Normalize(dir3(v)));
}
/// Scales (x, y, z) to length 1 and sets w to 0.
inline vector3w_t Normalize(vector3w_t const& v) {
    direction3_t const n = Normalize(direction3(v.x, v.y, v.z));
    return {n.x, n.y, n.z, 0.0f};
}

/// Returns the cross product a x b.
constexpr direction3_t CrossProduct(direction3_t const& a, direction3_t const& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// Returns (p1 - p0) x (p2 - p1), a normal of the triangle. It points to the side from which the
/// corners are counter-clockwise.
constexpr direction3_t CrossProduct(position3_t const& p0, position3_t const& p1,
                                    position3_t const& p2) {
    return CrossProduct(p1 - p0, p2 - p1);
}
/// Returns the normal scaled to length 1, or (0, 0, 0) if the triangle has no area.
inline direction3_t CrossProductWithNormalize(position3_t const& p0, position3_t const& p1,
                                              position3_t const& p2) {
    return Normalize(CrossProduct(p0, p1, p2));
}

/// Returns a . (b x c), the signed volume of the parallelepiped with the edges a, b, c.
constexpr float ScalarTriProduct(direction3_t const& a, direction3_t const& b,
                                 direction3_t const& c) {
    return ScalarProduct(a, CrossProduct(b, c));
}
/// Returns the triple product of the edges from p0 to p1, p2 and p3.
constexpr float ScalarTriProduct(position3_t const& p0, position3_t const& p1,
                                 position3_t const& p2, position3_t const& p3) {
    return ScalarTriProduct(p1 - p0, p2 - p0, p3 - p0);
}

/// Returns the homogeneous coordinates of a point, with w = 1.
constexpr vector3w_t Generalize(position3_t const& p) {
    return {p.x, p.y, p.z, 1.0f};
}
/// Returns (x, y, z) divided by w. If w is 0, (x, y, z) is returned unchanged.
constexpr position3_t SpecializeToPos(vector3w_t const& v) {
    return v.w == 0.0f ? position3(v.x, v.y, v.z) : position3(v.x / v.w, v.y / v.w, v.z / v.w);
}
/// Returns (x, y, z) scaled to length 1. Ignores w.
inline direction3_t SpecializeToDir(vector3w_t const& v) {
    return Normalize(direction3(v.x, v.y, v.z));
}

/// Returns `c` rounded towards zero to a multiple of `q`, or NaN if `q` is 0. The factor 1 / `q` is
/// a rounded float, so a multiple of `q` can become the one before it: (41, 41) returns 0.
inline float round_to_quotient(float c, float q) {
    return std::trunc(c * (1.0f / q)) * q;
}
/// Returns `c` rounded towards positive infinity to a multiple of `q`, which must be positive.
inline float roundup_to_quotient(float c, float q) {
    float const r = round_to_quotient(c, q);
    return r < c ? r + q : r;
}

inline direction3_t round_to_quotient(direction3_t const& v, direction3_t const& q) {
    return {round_to_quotient(v.x, q.x), round_to_quotient(v.y, q.y), round_to_quotient(v.z, q.z)};
}
inline direction3_t round_to_quotient(direction3_t const& v, float q) {
    return round_to_quotient(v, direction3(q));
}
inline position3_t round_to_quotient(position3_t const& v, direction3_t const& q) {
    return pos3(round_to_quotient(dir3(v), q));
}
inline position3_t round_to_quotient(position3_t const& v, float q) {
    return round_to_quotient(v, direction3(q));
}

inline direction3_t roundup_to_quotient(direction3_t const& v, direction3_t const& q) {
    return {roundup_to_quotient(v.x, q.x), roundup_to_quotient(v.y, q.y),
            roundup_to_quotient(v.z, q.z)};
}
inline direction3_t roundup_to_quotient(direction3_t const& v, float q) {
    return roundup_to_quotient(v, direction3(q));
}
inline position3_t roundup_to_quotient(position3_t const& v, direction3_t const& q) {
    return pos3(roundup_to_quotient(dir3(v), q));
}
inline position3_t roundup_to_quotient(position3_t const& v, float q) {
    return roundup_to_quotient(v, direction3(q));
}

}  // namespace libgr
