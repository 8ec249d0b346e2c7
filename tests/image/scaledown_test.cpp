// SPDX-License-Identifier: MIT
// Tests of the half-size reductions.
#include "image/scaledown.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using reduce_t = bool (*)(image2d_t&, image2d_t const&);

TEST(scaledown, samples_each_format_at_its_own_places) {
    rows_t const rgb = {
        {1, 10, 20, 2, 11, 25, 99, 99, 99}, {3, 14, 30, 4, 255, 35, 99, 99, 99}, row_t(9, 99)};
    rows_t const rgba = {{1, 10, 20, 40, 5, 6, 7, 8}, {3, 14, 30, 44, 9, 12, 13, 16}};
    rows_t const gray = {{1, 3, 5, 7, 9}, {1, 3, 5, 7, 9}};
    using row = std::tuple<reduce_t, image_desc_t, unsigned int, rows_t, row_t>;
    for (auto const& [reduce, desc, width, in, out] :
         {row{scaledown, rgb8, 3, rgb, {2, 72, 27}},
          row{scaledown, bytes_desc(IMAGE_FORMAT_BGR), 3, rgb, {2, 72, 27}},
          row{scaledown, rgba8, 2, rgba, {22, 9, 17, 26}}, row{scaledown, gray8, 5, gray, {2, 4}},
          row{scaledownGRBG, rgb8, 3, rgb, {2, 132, 30}},
          row{scaledownGBRG, rgb8, 3, rgb, {3, 132, 25}},
          row{scaledownRGGB, rgb8, 3, rgb, {1, 12, 35}},
          row{scaledownBGGR, rgb8, 3, rgb, {4, 12, 20}},
          row{scaledownGRBG, rgba8, 2, rgba, {40, 9, 30, 26}},
          row{scaledownRGGB, rgba8, 2, rgba, {1, 9, 12, 26}},
          row{scaledownBGGR, gray8, 5, gray, {2, 4}}}) {
        image2d_t dst;
        ASSERT_TRUE(reduce(dst, picture(desc, width, in)) && dst.desc == desc);
        EXPECT_EQ(pixels(dst), rows_t{out}) << desc.format;
    }
}

TEST(scaledown, refuses_formats_and_what_is_outside_the_source) {
    std::vector<image2d_t> bad(4, picture(rgba8, 4, rows_t(4)));
    bad[0].desc.bits = IMAGE_BITS_4;
    bad[1].count = 63;
    bad[2].compressed = true;
    bad[3].window = {0, 1, 1};
    for (reduce_t const reduce :
         {scaledown, scaledownGRBG, scaledownGBRG, scaledownRGGB, scaledownBGGR}) {
        capture_t streams;
        image2d_t dst;
        for (image2d_t const& each : bad) {
            EXPECT_FALSE(reduce(dst, each));
        }
        EXPECT_FALSE(reduce(dst, picture(bytes_desc(IMAGE_FORMAT_INDEX), 4, rows_t(4))));
        dst.window = {~0U, 0, ~0U};
        EXPECT_FALSE(reduce(dst, picture(rgba8, 4, rows_t(4))));
        EXPECT_EQ(streams.err(),
                  "scaledown(): IMAGE_FORMAT_INDEX: unsupported format.\n"
                  "scaledown(): allocate() fail.\n");
        dst.window = {};
        EXPECT_EQ(reduce(dst, picture(bytes_desc(IMAGE_FORMAT_BGRA), 4, rows_t(4))),
                  reduce == scaledown);
    }
}

}  // namespace
