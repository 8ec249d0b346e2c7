// SPDX-License-Identifier: MIT
// Tests of the colour conversions with known colours.
#include "geometry/color.h"

#include <gtest/gtest.h>

#include <tuple>

#include "geometry/constants.h"

namespace libgr {

namespace {

TEST(Color, ConvertsToLumaAndChromaAndBack) {
    using row_t = std::tuple<color3ub_t, int, int, int>;
    for (auto const& [rgb, y, cb, cr] :
         {row_t{white3ub, 255, 128, 128}, row_t{black3ub, 0, 128, 128},
          row_t{{255, 0, 0}, 76, 107, 192}, row_t{{0, 255, 0}, 150, 86, 75},
          row_t{{0, 0, 255}, 29, 192, 118}, row_t{{200, 100, 50}, 124, 107, 155}}) {
        ycbcrub_t const got = ycbcrub(rgb);
        EXPECT_EQ(std::tuple(got.y, got.cb, got.cr), std::tuple(y, cb, cr));
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
