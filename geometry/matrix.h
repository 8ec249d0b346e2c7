// SPDX-License-Identifier: MIT
// The 4x4 transformation matrix in OpenGL's memory order, and matrices of any size.
#pragma once

/// Scales a point, rotates it by 90 degrees about the z axis, and moves it:
///
/// ```cpp
/// #include "geometry/matrix.h"
/// #include "geometry/rotation.h"
///
/// libgr::position3_t transformed(libgr::position3_t const& p) {
///     libgr::matrix3w_t const m = libgr::getScaleMatrix(libgr::direction3(2)) *
///                                 libgr::getRotateMatrix({90, {0, 0, 1}}) *
///                                 libgr::getTranslateMatrix(libgr::position3(5, 0, 0));
///     return libgr::SpecializeToPos(libgr::Generalize(p) * m);
/// }
/// ```
///
/// Transforms a direction and the normal of a surface. Both have w = 0, so they aren't translated:
///
/// ```cpp
/// #include "geometry/matrix.h"
///
/// void transform(libgr::direction3_t& d, libgr::direction3_t& n, libgr::matrix3w_t const& m) {
///     libgr::vector3w_t const v = libgr::vector3w(d.x, d.y, d.z, 0) * m;
///     d = {v.x, v.y, v.z};  // SpecializeToDir(v) would scale it to length 1
///     n = libgr::SpecializeToDir(libgr::Invert(m) * libgr::vector3w(n.x, n.y, n.z, 0));
/// }
/// ```

#include <bit>
#include <cstddef>

#include "geometry/vector.h"

namespace libgr {

/// A matrix of R rows and C columns, for minors and cofactors.
template <std::size_t R, std::size_t C>
struct tmatrix_t {
    float m[R][C];

    constexpr float (&operator[](std::size_t r))[C] { return m[r]; }
    constexpr float const (&operator[](std::size_t r) const)[C] { return m[r]; }
};

/// A 4x4 matrix. Element m[r][c] is the float at index 4r + c. Vectors are row vectors: the
/// translation is in m[3][0] to m[3][2], and A * B applies A first. This is OpenGL's memory order,
/// so glMultMatrixf, glLoadMatrixf and glGetFloatv take `data()` without a transpose.
struct matrix3w_t {
    vector3w_t rows[4];

    constexpr vector3w_t& operator[](std::size_t r) { return rows[r]; }
    constexpr vector3w_t const& operator[](std::size_t r) const { return rows[r]; }

    /// Returns the address of the 16 floats, m[0][0] first. They belong to the matrix, and the
    /// address is valid until the matrix is destroyed.
    float* data() { return &rows[0].x; }
    float const* data() const { return &rows[0].x; }

    constexpr operator tmatrix_t<4, 4>() const { return std::bit_cast<tmatrix_t<4, 4>>(*this); }
    bool operator==(matrix3w_t const&) const = default;
};
static_assert(sizeof(matrix3w_t) == 16 * sizeof(float));

constexpr matrix3w_t matrix3w(vector3w_t const& row0, vector3w_t const& row1,
                              vector3w_t const& row2, vector3w_t const& row3) {
    return {{row0, row1, row2, row3}};
}
constexpr matrix3w_t matrix3w(tmatrix_t<4, 4> const& m) {
    return std::bit_cast<matrix3w_t>(m);
}

/// Transforms the row vector `v`: element c is the sum of v[r] * m[r][c] over r.
vector3w_t operator*(vector3w_t const& v, matrix3w_t const& m);
/// Multiplies by the column vector `v`: element r is the sum of m[r][c] * v[c] over c.
vector3w_t operator*(matrix3w_t const& m, vector3w_t const& v);
/// Returns the transformation that applies `a` first and `b` second.
matrix3w_t operator*(matrix3w_t const& a, matrix3w_t const& b);

matrix3w_t Transpose(matrix3w_t const& m);

/// Returns `m` without row `row` and column `col`.
template <std::size_t N>
constexpr tmatrix_t<N - 1, N - 1> shrink(tmatrix_t<N, N> const& m, std::size_t row,
                                         std::size_t col) {
    tmatrix_t<N - 1, N - 1> minor{};
    for (std::size_t r = 0; r + 1 < N; ++r) {
        for (std::size_t c = 0; c + 1 < N; ++c) {
            minor[r][c] = m[r + (r >= row)][c + (c >= col)];
        }
    }
    return minor;
}

/// Returns the determinant, by cofactor expansion along the last row.
template <std::size_t N>
constexpr float Determinant(tmatrix_t<N, N> const& m) {
    if constexpr (N == 1) {
        return m[0][0];
    } else {
        float sum = 0.0f;
        for (std::size_t c = 0; c < N; ++c) {
            float const term = m[N - 1][c] * Determinant<N - 1>(shrink<N>(m, N - 1, c));
            sum += (N - 1 + c) % 2 == 0 ? term : -term;
        }
        return sum;
    }
}

/// Returns the inverse: the adjugate divided by the determinant. N must be at least 2.
///
/// A singular matrix isn't detected. If the determinant is 0, every element of the result is an
/// infinity or NaN, so it is enough to test one element with std::isfinite. Rounding can make the
/// determinant of a singular matrix nonzero. The result is then finite but meaningless.
template <std::size_t N>
constexpr tmatrix_t<N, N> Invert(tmatrix_t<N, N> const& m) {
    float const factor = 1.0f / Determinant<N>(m);
    tmatrix_t<N, N> inverse{};
    for (std::size_t r = 0; r < N; ++r) {
        for (std::size_t c = 0; c < N; ++c) {
            float const cofactor = Determinant<N - 1>(shrink<N>(m, c, r)) * factor;
            inverse[r][c] = (r + c) % 2 == 0 ? cofactor : -cofactor;
        }
    }
    return inverse;
}

/// Returns the determinant of the 4x4 matrix. The determinant of a product of rotations,
/// translations and one scale that is equal on all axes is the cube of that scale.
float Determinant(matrix3w_t const& m);
/// Returns the inverse. See the template `Invert` for singular matrices.
matrix3w_t Invert(matrix3w_t const& m);

/// Returns a translation by `p`: the identity with `p` in row 3.
constexpr matrix3w_t getTranslateMatrix(position3_t const& p) {
    return {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {p.x, p.y, p.z, 1}}};
}
constexpr matrix3w_t getTranslateMatrix(direction3_t const& d) {
    return getTranslateMatrix(pos3(d));
}
/// Returns the translation in `m`: the first three elements of row 3.
constexpr position3_t getTranslateVector(matrix3w_t const& m) {
    return {m[3].x, m[3].y, m[3].z};
}
/// Returns a scale along the axes: the diagonal (d.x, d.y, d.z, 1).
constexpr matrix3w_t getScaleMatrix(direction3_t const& d) {
    return {{{d.x, 0, 0, 0}, {0, d.y, 0, 0}, {0, 0, d.z, 0}, {0, 0, 0, 1}}};
}

}  // namespace libgr
