// SPDX-License-Identifier: MIT
// Tests of matrices and rotations: order of products, memory order, inverses, the half angle.
#include "geometry/matrix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "geometry/constants.h"
#include "geometry/textstream.h"

namespace libgr {

namespace {

constexpr matrix3w_t mixed{{{2, -1, 0, 3}, {4, 5, -2, 1}, {-3, 2, 6, 0}, {1, 7, -4, 2}}};

void expect_near(matrix3w_t const& got, matrix3w_t const& want, float tolerance) {
    for (int i = 0; i < 16; ++i) {
        ASSERT_NEAR(got.data()[i], want.data()[i], tolerance) << "float " << i << " of " << got;
    }
}

TEST(Matrix, ProductsApplyTheLeftMatrixFirst) {
    matrix3w_t const move = getTranslateMatrix(direction3(10, 0, 0));
    matrix3w_t const turn = getRotateMatrix(rotation3(90, IdirZ));
    matrix3w_t const grow = getScaleMatrix(direction3(2, 3, 4));
    EXPECT_LT(Length(getTranslateVector(move * turn * grow) - position3(0, 30, 0)), 1e-5f);
    EXPECT_LT(Length(getTranslateVector(grow * turn * move) - position3(10, 0, 0)), 1e-5f);
    EXPECT_EQ(move.data()[12], 10);
    EXPECT_EQ(vector3w(1, 2, 3, 1) * mixed, vector3w(2, 22, 10, 7));
    EXPECT_EQ(mixed * vector3w(1, 2, 3, 1), vector3w(1, 2, 3, 1) * Transpose(mixed));
}

TEST(Matrix, InverseOfASingularMatrixIsNotFinite) {
    EXPECT_FLOAT_EQ(Determinant(mixed), 630);
    expect_near(mixed * Invert(mixed), Imtx, 1e-5f);
    EXPECT_FALSE(std::isfinite(Invert(getScaleMatrix(direction3(1, 0, 1)))[0][0]));
}

/// Rotates `v` with Rodrigues' formula.
direction3_t rotated(direction3_t const& v, rotation3_t const& r) {
    float const a = r.angle * std::numbers::pi_v<float> / 180;
    direction3_t const k = Normalize(r.axis);
    direction3_t sum = v * std::cos(a);
    sum += CrossProduct(k, v) * std::sin(a);
    return sum += k * (ScalarProduct(k, v) * (1 - std::cos(a)));
}

TEST(Rotation, MatrixRotatesRowVectorsAndReturnsHalfTheAngle) {
    for (rotation3_t const& r : {rotation3(90, IdirZ), rotation3(30, direction3(0, 0, 5)),
                                 rotation3(179, direction3(-2, 3, 0.5f))}) {
        matrix3w_t const m = getRotateMatrix(r);
        direction3_t const v{3, -1, 2};
        position3_t const got = SpecializeToPos(vector3w(v.x, v.y, v.z, 1) * m);
        EXPECT_LT(Length(got - pos3(rotated(v, r))), 1e-5f) << r;
        rotation3_t const half = getRotation3(m);
        EXPECT_NEAR(half.angle, r.angle / 2, 1e-2f) << r;
        EXPECT_LT(Length(pos3(half.axis) - pos3(Normalize(r.axis))), 1e-4f) << r;
        expect_near(m * getRotateMatrix(Invert(r)), Imtx, 1e-6f);
    }
}

TEST(Rotation, AcceptsNullAxesAndInvalidTraces) {
    EXPECT_EQ(getRotation3(Imtx), rotation3(0, direction3(0)));
    expect_near(getRotateMatrix(rotation3(60, direction3(0))), getScaleMatrix(direction3(0.5f)),
                1e-6f);
    EXPECT_EQ(getRotation3(getScaleMatrix(direction3(-1, -1, 1))), rotation3(90, direction3(0)));
    EXPECT_EQ(getRotation3(getScaleMatrix(direction3(1.001f))), Irot);
}

TEST(Rotation, RotatesOneDirectionToAnother) {
    direction3_t const a = Normalize(direction3(1, 2, 3));
    direction3_t const b = Normalize(direction3(-2, 0.5f, 1));
    vector3w_t const got = vector3w(a.x, a.y, a.z, 0) * getRotateMatrix(calcRotation3(a, b));
    EXPECT_LT(Length(direction3(got.x - b.x, got.y - b.y, got.z - b.z)), 1e-5f);
    EXPECT_EQ(calcRotation3(IdirX, IdirX), Irot);
    EXPECT_EQ(calcRotation3(IdirX, IdirMX), Irot);
}

}  // namespace

}  // namespace libgr
