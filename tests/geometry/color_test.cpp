// SPDX-License-Identifier: MIT
// Colour conversions: known colours there, and all of a grid back again.
#include "geometry/color.h"

#include <gtest/gtest.h>

#include "geometry/constants.h"

namespace libgr {

namespace {

TEST(Color, KnownColoursAsLumaAndChroma) {
    struct {
        color3ub_t rgb;
        int y, cb, cr;
    } const rows[] = {
        {white3ub, 255, 128, 128},       {black3ub, 0, 128, 128},    {gray3ub, 127, 128, 128},
        {{255, 0, 0}, 76, 107, 192},     {{0, 255, 0}, 150, 86, 75}, {{0, 0, 255}, 29, 192, 118},
        {{200, 100, 50}, 124, 107, 155},
    };
    for (auto const& row : rows) {
        ycbcrub_t const got = ycbcrub(row.rgb);
        EXPECT_EQ(got.y, row.y);
        EXPECT_EQ(got.cb, row.cb) << row.y;
        EXPECT_EQ(got.cr, row.cr) << row.y;
    }
    EXPECT_EQ(color3ub(ycbcrub(255, 255, 255)), color3ub(255, 0, 255));
    EXPECT_EQ(color3ub(ycbcrub(0, 0, 0)), color3ub(0, 255, 0));
}

TEST(Color, ColoursComeBackFromLumaAndChroma) {
    for (int n = 0; n < 18 * 18 * 18; ++n) {
        auto const byte = [](int step) { return static_cast<unsigned char>(step % 18 * 15); };
        color3ub_t const c = color3ub(byte(n), byte(n / 18), byte(n / 324));
        color3ub_t const back = color3ub(ycbcrub(c));
        // Half a step of chroma is 1/254, times 1.772 of a blue of 255.
        ASSERT_NEAR(back.r, c.r, 3) << n;
        ASSERT_NEAR(back.g, c.g, 3) << n;
        ASSERT_NEAR(back.b, c.b, 3) << n;
    }
}

TEST(Color, FloatsScaleWithAlpha) {
    EXPECT_EQ(white * 0.5f, color3a(0.5f, 0.5f, 0.5f, 0.5f));
    color3a_t const half = color3a(color3aub(0, 255, 51, 128));
    EXPECT_NEAR(half.b, 0.2f, 1e-6f);
    EXPECT_NEAR(half.a, 0.501961f, 1e-6f);
}

}  // namespace

}  // namespace libgr
