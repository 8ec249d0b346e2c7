// SPDX-License-Identifier: MIT
// The products, transpose, determinant and inverse of the 4x4 matrix.
#include "geometry/matrix.h"

namespace libgr {

vector3w_t operator*(vector3w_t const& v, matrix3w_t const& m) {
    vector3w_t product{};
    for (std::size_t c = 0; c < 4; ++c) {
        product[c] = v.x * m[0][c] + v.y * m[1][c] + v.z * m[2][c] + v.w * m[3][c];
    }
    return product;
}

vector3w_t operator*(matrix3w_t const& m, vector3w_t const& v) {
    vector3w_t product{};
    for (std::size_t r = 0; r < 4; ++r) {
        product[r] = m[r].x * v.x + m[r].y * v.y + m[r].z * v.z + m[r].w * v.w;
    }
    return product;
}

matrix3w_t operator*(matrix3w_t const& a, matrix3w_t const& b) {
    return matrix3w(a[0] * b, a[1] * b, a[2] * b, a[3] * b);
}

matrix3w_t Transpose(matrix3w_t const& m) {
    matrix3w_t transposed{};
    for (std::size_t r = 0; r < 4; ++r) {
        for (std::size_t c = 0; c < 4; ++c) {
            transposed[r][c] = m[c][r];
        }
    }
    return transposed;
}

float Determinant(matrix3w_t const& m) {
    return Determinant<4>(m);
}

matrix3w_t Invert(matrix3w_t const& m) {
    return matrix3w(Invert<4>(m));
}

}  // namespace libgr
