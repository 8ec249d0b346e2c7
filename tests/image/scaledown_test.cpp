// SPDX-License-Identifier: MIT
// Tests of the reductions to half the size.
#include "image/scaledown.h"

#include <gtest/gtest.h>

#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using reduce_t = bool (*)(image2d_t&, image2d_t const&);

struct reduction_t {
    reduce_t reduce;
    e_image_format_t format;
    row_t expected;
};

// The bytes of the lower and the upper row of the source.
row_t const lower = {3, 101, 7, 250, 31, 18, 77, 141, 200, 9, 61, 5, 90, 33, 180, 45, 251, 2};
row_t const upper = {44, 13, 129, 66, 5, 211, 98, 1, 37, 170, 23, 88, 160, 71, 6, 52, 119, 240};

reduction_t const reductions[] = {
    {scaledown, IMAGE_FORMAT_RGB, {90, 37, 91, 88, 56, 82}},
    {scaledown, IMAGE_FORMAT_RGBA, {90, 37, 91, 122, 82, 107, 47, 69}},
    {scaledown, IMAGE_FORMAT_GRAYSCALE, {40, 62}},
    {scaledownGRBG, IMAGE_FORMAT_RGBA, {250, 53, 129, 122, 5, 84, 23, 69}},
    {scaledownGBRG, IMAGE_FORMAT_RGBA, {44, 53, 18, 122, 37, 84, 33, 69}},
    {scaledownRGGB, IMAGE_FORMAT_RGBA, {3, 22, 211, 122, 200, 130, 71, 69}},
    {scaledownBGGR, IMAGE_FORMAT_RGB, {66, 22, 7, 170, 31, 200}},
    {scaledownBGGR, IMAGE_FORMAT_RGBA, {66, 22, 7, 122, 88, 130, 61, 69}},
};

TEST(Scaledown, ReadsTheBytesOfItsFormat) {
    for (reduction_t const& row : reductions) {
        SCOPED_TRACE(&row - reductions);
        image2d_t src = picture(bytes_desc(row.format), 6, rows_t(4, row_t(24)));
        src.window = {6, 1, 1};
        src.m_width = 5;  // the last column and the top row are ignored
        src.m_height = 3;
        std::ranges::copy(lower, pixel_row(src, 0));
        std::ranges::copy(upper, pixel_row(src, 1));
        image2d_t dst = picture(gray8, 1, {{1}});
        dst.compressed = true;
        ASSERT_TRUE(row.reduce(dst, src));
        EXPECT_EQ(dst.desc, src.desc);
        EXPECT_FALSE(dst.compressed);
        EXPECT_EQ(pixels(dst), rows_t{row.expected});
        EXPECT_TRUE(row.reduce(dst, picture(src.desc, 1, {{}})));
        EXPECT_EQ(dst.m_height, 0U);
    }
}

TEST(Scaledown, ReadsTheRowsOfEachPair) {
    image2d_t dst;
    ASSERT_TRUE(scaledown(dst, picture(gray8, 2, {{10, 20}, {30, 40}, {50, 60}, {70, 84}})));
    EXPECT_EQ(pixels(dst), (rows_t{{25}, {66}}));
}

TEST(Scaledown, RejectsUnsupportedFormatsAndIncompleteSources) {
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
        EXPECT_TRUE(reduce(dst, picture(gray8, 4, rows_t(4))));
        for (e_image_format_t const format : {IMAGE_FORMAT_BGR, IMAGE_FORMAT_BGRA}) {
            EXPECT_EQ(reduce(dst, picture(bytes_desc(format), 4, rows_t(4))), reduce == scaledown);
        }
    }
}

}  // namespace
