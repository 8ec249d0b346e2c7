// SPDX-License-Identifier: MIT
// Tests of the colour conversions with known colours.
#include "geometry/color.h"

#include <gtest/gtest.h>

#include <tuple>

#include "geometry/constants.h"

namespace libgr {

namespace {

TEST(Color, ConvertsToLumaAndChromaAndBack) {
    std::tuple<color3ub_t, int, int, int> const rows[] = {
        {white3ub, 255, 128, 128},       {black3ub, 0, 128, 128},    {gray3ub, 127, 128, 128},
        {{255, 0, 0}, 76, 107, 192},     {{0, 255, 0}, 150, 86, 75}, {{0, 0, 255}, 29, 192, 118},
        {{200, 100, 50}, 124, 107, 155},
    };
    for (auto const& [rgb, y, cb, cr] : rows) {
        ycbcrub_t const got = ycbcrub(rgb);
        EXPECT_EQ(got.y, y) << "luma " << y;
        EXPECT_EQ(got.cb, cb) << "luma " << y;
        EXPECT_EQ(got.cr, cr) << "luma " << y;
        color3ub_t const back = color3ub(got);
        for (auto const channel : {&color3ub_t::r, &color3ub_t::g, &color3ub_t::b}) {
            EXPECT_NEAR(back.*channel, rgb.*channel, 3) << "luma " << y;
        }
    }
}

TEST(Color, ClampsChannelsOutsideTheRange) {
    EXPECT_EQ(color3ub(ycbcrub(255, 255, 255)), color3ub(255, 0, 255));
    EXPECT_EQ(color3ub(ycbcrub(0, 0, 0)), color3ub(0, 255, 0));
}

}  // namespace

}  // namespace libgr
