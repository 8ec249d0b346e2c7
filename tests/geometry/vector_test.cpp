// SPDX-License-Identifier: MIT
// Tests of vectors, matrices, rotations and colours: limits, order of products, inverses.
#include "geometry/vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "geometry/constants.h"
#include "geometry/textstream.h"

namespace {

using namespace libgr;

TEST(Vector, QuotientOfEqualSizesIsOne) {
    EXPECT_EQ(direction2(0, 600) / direction2(0, 300), direction2(1, 2));
    EXPECT_EQ(direction2(800, 0.1f) / direction2(400, 0.1f), direction2(2, 1));
    EXPECT_EQ(1.0f / direction2(4, 0), direction2(0.25f, INFINITY));
    EXPECT_EQ(position2(5, 1) - position2(2, 3), direction2(3, -2));
}

TEST(Vector, ComparesWithAToleranceAndTruncatesToPixels) {
    EXPECT_EQ(compare(1.0f, 1.000009f), 0);
    EXPECT_EQ(compare(1.0f, 1.00002f), -1);
    EXPECT_EQ(compare(1.00002f, 1.0f), 1);
    EXPECT_NE(compare(NAN, 0.0f), 0);
    EXPECT_EQ(direction2l(direction2(1.99f, -1.99f)), direction2l(1, -1));
    EXPECT_EQ(direction2l(direction2(3e9f, -3e9f)), direction2l(INT32_MAX, INT32_MIN));
    EXPECT_EQ(direction2l(direction2(NAN, 2147483520.0f)), direction2l(0, 2147483520));
    EXPECT_NE(direction2l(0, 5), 0);
    EXPECT_NE(direction2l(5, 0), 0);
    EXPECT_EQ(datum2l, 0);
}

TEST(Vector, NormalizesZeroLengthsToZeroAndMultipliesRightHanded) {
    EXPECT_EQ(Normalize(direction3(0, 0, 0)), direction3(0));
    EXPECT_EQ(Normalize(Ipos), Ipos);
    EXPECT_EQ(Normalize(vector3w(0, -2, 0, 7)), vector3w(0, -1, 0, 0));
    EXPECT_EQ(SpecializeToPos(vector3w(2, 4, 6, 2)), position3(1, 2, 3));
    EXPECT_EQ(SpecializeToPos(vector3w(2, 4, 6, 0)), position3(2, 4, 6));
    EXPECT_EQ(CrossProductWithNormalize(position3(1, 1, 0), position3(3, 1, 0), position3(3, 4, 0)),
              IdirZ);
    EXPECT_EQ(CrossProduct(direction3(1, 2, 3), direction3(4, 5, 6)), direction3(-3, 6, -3));
    EXPECT_EQ(ScalarTriProduct(IdirX, IdirY, IdirMZ), -1);
}

TEST(Vector, RoundsToMultiplesTowardsZeroAndUpwards) {
    position3_t const v{7.9f, -7.9f, 8};
    EXPECT_EQ(round_to_quotient(v, 2.0f), position3(6, -6, 8));
    EXPECT_EQ(roundup_to_quotient(v, 2.0f), position3(8, -6, 8));
    EXPECT_EQ(round_to_quotient(v, direction3(1, 4, 0.5f)), position3(7, -4, 8));
    EXPECT_EQ(roundup_to_quotient(v, direction3(1, 4, 3)), position3(8, -4, 9));
}

constexpr matrix3w_t mixed{{{2, -1, 0, 3}, {4, 5, -2, 1}, {-3, 2, 6, 0}, {1, 7, -4, 2}}};

void expect_near(matrix3w_t const& got, matrix3w_t const& want, float tolerance) {
    for (int i = 0; i < 16; ++i) {
        ASSERT_NEAR(got.data()[i], want.data()[i], tolerance) << "float " << i << " of " << got;
    }
}

TEST(Matrix, ProductsApplyTheLeftMatrixFirstAndInversesUndoThem) {
    matrix3w_t const move = getTranslateMatrix(direction3(10, 0, 0));
    matrix3w_t const turn = getRotateMatrix(rotation3(90, IdirZ));
    matrix3w_t const grow = getScaleMatrix(direction3(2, 3, 4));
    EXPECT_LT(Length(getTranslateVector(move * turn * grow) - position3(0, 30, 0)), 1e-5f);
    EXPECT_LT(Length(getTranslateVector(grow * turn * move) - position3(10, 0, 0)), 1e-5f);
    EXPECT_EQ(vector3w(1, 2, 3, 1) * mixed, vector3w(2, 22, 10, 7));
    EXPECT_EQ(mixed * vector3w(1, 2, 3, 1), vector3w(1, 2, 3, 1) * Transpose(mixed));
    EXPECT_FLOAT_EQ(Determinant(mixed), 630);
    expect_near(mixed * Invert(mixed), Imtx, 1e-5f);
    EXPECT_FALSE(std::isfinite(Invert(getScaleMatrix(direction3(1, 0, 1)))[0][0]));
}

TEST(Rotation, MatrixIsOrthogonalAndReturnsHalfTheAngle) {
    for (rotation3_t const& r : {rotation3(30, IdirZ), rotation3(179, direction3(-2, 3, 0.5f))}) {
        matrix3w_t const m = getRotateMatrix(r);
        expect_near(m * Transpose(m), Imtx, 1e-6f);
        rotation3_t const half = getRotation3(m);
        EXPECT_NEAR(half.angle, r.angle / 2, 1e-2f) << r;
        EXPECT_LT(Length(pos3(half.axis) - pos3(Normalize(r.axis))), 1e-4f) << r;
        expect_near(m * getRotateMatrix(Invert(r)), Imtx, 1e-6f);
    }
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

TEST(Color, ConvertsToLumaAndChromaAndBack) {
    using row_t = std::tuple<color3ub_t, int, int, int>;
    for (auto const& [rgb, y, cb, cr] :
         {row_t{{255, 0, 0}, 76, 107, 192}, row_t{{0, 255, 0}, 150, 86, 75},
          row_t{{0, 0, 255}, 29, 192, 118}, row_t{{200, 100, 50}, 124, 107, 155}}) {
        ycbcrub_t const got = ycbcrub(rgb);
        EXPECT_EQ(std::tuple(got.y, got.cb, got.cr), std::tuple(y, cb, cr));
        color3ub_t const back = color3ub(got);
        for (auto const channel : {&color3ub_t::r, &color3ub_t::g, &color3ub_t::b}) {
            EXPECT_NEAR(back.*channel, rgb.*channel, 3) << "luma " << y;
        }
    }
    EXPECT_EQ(color3ub(ycbcrub(255, 255, 255)), color3ub(255, 0, 255));
    EXPECT_EQ(color3ub(ycbcrub(0, 0, 0)), color3ub(0, 255, 0));
}

}  // namespace
