// SPDX-License-Identifier: MIT
// Tests of the half-size reductions.
#include "image/scaledown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>

#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using reduce_t = bool (*)(image2d_t&, image2d_t const&);

/// The bytes of a cell, as row and place, whose mean each component of the result is.
struct reduction_t {
    reduce_t reduce;
    image_desc_t desc;
    unsigned int step;  // bytes from cell to cell
    std::string components;
};

std::string const box3 = "00 03 10 13|01 04 11 14|02 05 12 15", alpha = "|03 06 13 16";
image_desc_t const bgr8 = bytes_desc(IMAGE_FORMAT_BGR), bgra8 = bytes_desc(IMAGE_FORMAT_BGRA);
image_desc_t const sint16 = {IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT, IMAGE_BITS_16};
reduction_t const reductions[] = {
    {scaledown, rgb8, 6, box3},
    {scaledown, bgr8, 6, box3},
    {scaledown, sint16, 6, box3},
    {scaledown, rgba8, 8, box3 + alpha},
    {scaledown, bgra8, 8, box3 + alpha},
    {scaledown, gray8, 1, "00 01 10 11"},
    {scaledownGRBG, rgb8, 6, "03|01 14|12"},
    {scaledownGRBG, rgba8, 8, "03|01 14|12" + alpha},
    {scaledownGBRG, rgb8, 6, "10|01 14|05"},
    {scaledownGBRG, rgba8, 8, "10|01 14|05" + alpha},
    {scaledownRGGB, rgb8, 6, "00|04 11|15"},
    {scaledownRGGB, rgba8, 8, "00|04 11|15" + alpha},
    {scaledownBGGR, rgb8, 6, "13|04 11|02"},
    {scaledownBGGR, rgba8, 8, "13|04 11|02" + alpha},
    {scaledownBGGR, gray8, 1, "00 01 10 11"},
};

row_t expected_row(reduction_t const& how, image2d_t const& src, unsigned int y) {
    row_t row;
    for (unsigned int x = 0; x < src.m_width / 2; ++x) {
        std::istringstream components(how.components);
        for (std::string places; std::getline(components, places, '|');) {
            std::istringstream in(places);
            unsigned int sum = 0, count = 0;
            for (std::string at; in >> at; ++count) {
                unsigned int const row_of_cell = at[0] == '1';
                auto const place = static_cast<unsigned int>(at[1] - '0');
                sum += pixel_row(src, 2 * y + row_of_cell)[how.step * x + place];
            }
            row.push_back(static_cast<unsigned char>(sum / count));
        }
    }
    return row;
}

TEST(scaledown, samples_each_format_at_its_own_places) {
    for (reduction_t const& how : reductions) {
        image2d_t src = picture(how.desc, 8, rows_t(7));
        std::generate(src.begin(), src.end(), std::mt19937(3));
        src.window = {8, 1, 1};
        src.m_width = 7;  // an odd column and no odd row
        src.m_height = 6;
        image2d_t dst = picture(gray8, 1, {{1}});
        ASSERT_TRUE(dst.palette.resize(1));
        dst.compressed = true;
        ASSERT_TRUE(how.reduce(dst, src) && dst.desc == how.desc && !dst.compressed);
        ASSERT_TRUE(dst.m_width == 3 && dst.m_height == 3 && dst.palette.size == 0);
        for (unsigned int y = 0; y < 3; ++y) {
            row_t const row = expected_row(how, src, y);
            EXPECT_TRUE(std::equal(row.begin(), row.end(), pixel_row(dst, y)))
                << how.desc.format << ' ' << how.components << " row " << y;
        }
        EXPECT_TRUE(how.reduce(dst, picture(how.desc, 1, {{}})) && dst.m_height == 0);
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
        for (e_image_format_t const format : {IMAGE_FORMAT_INDEX, IMAGE_FORMAT_GRAYSCALE_ALPHA,
                                              IMAGE_FORMAT_INTENSITY, IMAGE_FORMAT_RED}) {
            EXPECT_FALSE(reduce(dst, picture(bytes_desc(format), 4, rows_t(4))));
        }
        dst.window = {~0U, 0, ~0U};
        EXPECT_FALSE(reduce(dst, picture(rgba8, 4, rows_t(4))));
        EXPECT_EQ(streams.err(),
                  "scaledown(): IMAGE_FORMAT_INDEX: unsupported format.\n"
                  "scaledown(): IMAGE_FORMAT_GRAYSCALE_ALPHA: unsupported format.\n"
                  "scaledown(): IMAGE_FORMAT_INTENSITY: unsupported format.\n"
                  "scaledown(): IMAGE_FORMAT_RED: unsupported format.\n"
                  "scaledown(): allocate() fail.\n");
        dst.window = {};
        EXPECT_EQ(reduce(dst, picture(bytes_desc(IMAGE_FORMAT_BGRA), 4, rows_t(4))),
                  reduce == scaledown);
    }
}

}  // namespace
