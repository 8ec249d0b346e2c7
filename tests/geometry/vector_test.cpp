// SPDX-License-Identifier: MIT
// Tests of vector arithmetic at its limits: zero lengths, equal sizes, quotients, large numbers.
#include "geometry/vector.h"

#include <gtest/gtest.h>

#include <limits>

#include "geometry/constants.h"

namespace libgr {

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

TEST(Vector, QuotientOfEqualSizesIsOne) {
    EXPECT_EQ(direction2(0, 600) / direction2(0, 300), direction2(1, 2));
    EXPECT_EQ(direction2(800, 0.1f) / direction2(400, 0.1f), direction2(2, 1));
    EXPECT_EQ(1.0f / direction2(4, 0), direction2(0.25f, infinity));
    EXPECT_EQ(position2(5, 1) - position2(2, 3), direction2(3, -2));
}

TEST(Vector, CompareTreatsCloseNumbersAsEqual) {
    EXPECT_EQ(compare(1.0f, 1.000009f), 0);
    EXPECT_EQ(compare(1.0f, 1.00002f), -1);
    EXPECT_EQ(compare(1.00002f, 1.0f), 1);
    EXPECT_NE(compare(nan, 0.0f), 0);
}

TEST(Vector, ConversionToPixelsTruncatesAndClamps) {
    constexpr std::int32_t max = 2147483647;
    EXPECT_EQ(direction2l(direction2(1.99f, -1.99f)), direction2l(1, -1));
    EXPECT_EQ(direction2l(direction2(3e9f, -3e9f)), direction2l(max, -max - 1));
    EXPECT_EQ(direction2l(direction2(nan, 2147483520.0f)), direction2l(0, 2147483520));
    EXPECT_NE(direction2l(0, 5), 0);
    EXPECT_NE(direction2l(5, 0), 0);
    EXPECT_EQ(datum2l, 0);
}

TEST(Vector, NormalizesZeroLengthsToZero) {
    EXPECT_EQ(Normalize(direction3(0, 0, 0)), direction3(0));
    EXPECT_EQ(Normalize(Ipos), Ipos);
    EXPECT_EQ(Normalize(vector3w(0, -2, 0, 7)), vector3w(0, -1, 0, 0));
    EXPECT_EQ(SpecializeToPos(vector3w(2, 4, 6, 2)), position3(1, 2, 3));
    EXPECT_EQ(SpecializeToPos(vector3w(2, 4, 6, 0)), position3(2, 4, 6));
    EXPECT_EQ(CrossProductWithNormalize(position3(1, 1, 0), position3(3, 1, 0), position3(3, 4, 0)),
              IdirZ);
}

TEST(Vector, CrossProductsAreRightHanded) {
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

}  // namespace

}  // namespace libgr
