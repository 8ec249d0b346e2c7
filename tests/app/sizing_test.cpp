// SPDX-License-Identifier: MIT
// Window sizes and picture scales.
#include "app/sizing.h"

#include <gtest/gtest.h>

namespace {

using namespace zanoview2;
using libgr::direction2l;

TEST(Sizing, LimitsWidthAndHeightIndependently) {
    struct row_t {
        bool magnify, shrink;
        unsigned sizelimit;
        int wanted_x, wanted_y, x, y;
    };
    // The margin is 10 by 32, and the largest size 1280 by 960.
    row_t const rows[] = {
        {true, true, 0, 4800, 360, 4800, 360},  {true, false, 0, 4800, 360, 4800, 600},
        {false, true, 0, 4800, 360, 800, 360},  {false, false, 0, 4800, 360, 800, 600},
        {true, true, 1, 4800, 360, 790, 360},   {true, true, 2, 4800, 1000, 1280, 960},
        {true, true, 3, 4800, 1000, 4800, 1000}};
    for (row_t const& row : rows) {
        zanolib::option_t options;
        options.resize_magnify = row.magnify;
        options.resize_shrink = row.shrink;
        options.sizelimit = row.sizelimit;
        auto const size =
            limited_window_size(direction2l(row.wanted_x, row.wanted_y), direction2l(800, 600),
                                direction2l(800, 600), options);
        EXPECT_FALSE(size != direction2l(row.x, row.y)) << size.x << " by " << size.y;
    }
}

TEST(Sizing, FitsPicturesAndWindows) {
    EXPECT_FLOAT_EQ(*fitting_scale(direction2l(100, 100), direction2l(800, 600), 0.875f), 5.25f);
    EXPECT_FALSE(fitting_scale(direction2l(0, 0), direction2l(800, 600), 0.875f));
    EXPECT_FALSE(fitting_scale(direction2l(10, 10), direction2l(0, 0), 0.875f));
    EXPECT_EQ(reshaping_scale(0, 600), 1.0f);
    EXPECT_EQ(reshaping_scale(600, 0), 1.0f);
    EXPECT_FALSE(wanted_window_size(direction2l(301, 201), 1.2f) != direction2l(361, 241));
    EXPECT_EQ(wanted_window_size(direction2l(2000000000, 1), 1e30f).x, 2147483647);
}

}  // namespace
