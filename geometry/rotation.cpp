// SPDX-License-Identifier: MIT
// Conversions between rotations and matrices.
#include "geometry/rotation.h"

#include <cmath>

#include "geometry/constants.h"

namespace libgr {

namespace {

// The factors are doubles so that a product is rounded to float only once.
constexpr double radians_per_degree = 0.017453292519943122;
constexpr double degrees_per_radian = 57.29577951308232;

float degrees(float radians) {
    return static_cast<float>(static_cast<double>(radians) * degrees_per_radian);
}

}  // namespace

matrix3w_t getRotateMatrix(rotation3_t const& r) {
    float const radians = static_cast<float>(static_cast<double>(r.angle) * radians_per_degree);
    float s = 0.0f;
    float c = 0.0f;
    sincosf(radians, &s, &c);
    direction3_t const n = Normalize(r.axis);
    vector3w_t const axis = vector3w(n.x, n.y, n.z, 0.0f);

    matrix3w_t m = Imtx;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            float const outer = axis[i] * axis[j];
            m[i][j] = (Imtx[i][j] - outer) * c + outer;
        }
    }
    m[0][1] += n.z * s;
    m[0][2] -= n.y * s;
    m[1][0] -= n.z * s;
    m[1][2] += n.x * s;
    m[2][0] += n.y * s;
    m[2][1] -= n.x * s;
    return m;
}

rotation3_t getRotation3(matrix3w_t const& m) {
    float const cosine = (m[0][0] + m[1][1] + m[2][2] - 1.0f) * 0.5f;
    float const angle = degrees(std::acos(cosine)) * 0.5f;
    if (!std::isfinite(angle)) {
        return Irot;
    }
    return {angle, Normalize(direction3(m[1][2] - m[2][1], m[2][0] - m[0][2], m[0][1] - m[1][0]))};
}

rotation3_t calcRotation3(direction3_t const& a, direction3_t const& b) {
    direction3_t const c = CrossProduct(a, b);
    float const n = Length(c);
    if (n == 0.0f) {
        return Irot;
    }
    return {degrees(std::acos(ScalarProduct(a, b))), c * (1.0f / n)};
}

}  // namespace libgr
