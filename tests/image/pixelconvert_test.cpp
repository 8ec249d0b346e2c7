// SPDX-License-Identifier: MIT
// Tests of the conversions of pictures.
#include "image/pixelconvert.h"

#include <gtest/gtest.h>

#include <cmath>

#include "image/repeatedges.h"
#include "image/samples.h"
#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using convert_t = bool (*)(image2d_t&, image2d_t const&);

template <unsigned long count>
bool rotated(image2d_t& dst, image2d_t const& src) {
    return rotate(count, dst, src);
}

struct conversion_t {
    char const* name;
    convert_t convert;
    image_desc_t from;
    unsigned int skip, width;  ///< in pixels
    rows_t source;             ///< with the skipped pixels
    image_desc_t to;
    rows_t result;
};

constexpr image_desc_t sized(e_image_format_t format, e_image_bits_t bits) {
    return {format, IMAGE_TYPE_UINT, bits};
}
constexpr auto bgr8 = bytes_desc(IMAGE_FORMAT_BGR), bgra8 = bytes_desc(IMAGE_FORMAT_BGRA),
               rg8 = bytes_desc(IMAGE_FORMAT_RG), index8 = bytes_desc(IMAGE_FORMAT_INDEX),
               index1 = sized(IMAGE_FORMAT_INDEX, IMAGE_BITS_1),
               index2 = sized(IMAGE_FORMAT_INDEX, IMAGE_BITS_2),
               index4 = sized(IMAGE_FORMAT_INDEX, IMAGE_BITS_4),
               gray1 = sized(IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1),
               gray2 = sized(IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_2),
               gray4 = sized(IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4);

rows_t const of_3 = {{0, 0, 0, 1, 2, 3, 4, 5, 6}, {0, 0, 0, 7, 8, 9, 10, 11, 12}};
rows_t const of_2 = {{0, 0, 1, 2, 3, 4, 5, 6}, {0, 0, 7, 8, 9, 10, 11, 12}};
rows_t const plain = {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}};
rows_t const swapped = {{3, 2, 1, 6, 5, 4}, {9, 8, 7, 12, 11, 10}};
rows_t const opaque = {{1, 2, 3, 255, 4, 5, 6, 255}, {7, 8, 9, 255, 10, 11, 12, 255}};
rows_t const rotated_1 = {{5, 6, 11, 12}, {3, 4, 9, 10}, {1, 2, 7, 8}};
rows_t const rotated_2 = {{11, 12, 9, 10, 7, 8}, {5, 6, 3, 4, 1, 2}};
rows_t const rotated_3 = {{7, 8, 1, 2}, {9, 10, 3, 4}, {11, 12, 5, 6}};

// Entry i of the palette is the colour (i + 1, 0, 2i + 2). There are three.
conversion_t const conversions[] = {
    {"BGR to RGB", bgr2rgb, bgr8, 1, 2, of_3, rgb8, swapped},
    {"RGB to BGR", rgb2bgr, rgb8, 1, 2, of_3, bgr8, swapped},
    {"RGB to RGBA", rgb2rgba, rgb8, 1, 2, of_3, rgba8, opaque},
    {"RGBA to RGB", rgba2rgb, rgba8, 0, 2, opaque, rgb8, plain},
    {"BGRA to RGBA", bgr2rgb, bgra8, 0, 1, {{1, 2, 3, 4}}, rgba8, {{3, 2, 1, 4}}},
    {"RGBA to BGRA", rgb2bgr, rgba8, 0, 1, {{1, 2, 3, 4}}, bgra8, {{3, 2, 1, 4}}},
    {"index of 1 bit", index2rgb, index1, 7, 2, {{0x01, 0x40}}, rgb8, {{2, 0, 4, 1, 0, 2}}},
    {"index of 4 bits", index2rgb, index4, 1, 2, {{0x12, 0x1F}}, rgb8, {{3, 0, 6, 2, 0, 4}}},
    {"index of 8 bits", index2rgb, index8, 1, 2, {{9, 0, 3}}, rgb8, {{1, 0, 2, 0, 0, 0}}},
    {"gray of 1 bit", widen_samples, gray1, 7, 3, {{0x01, 0x40}}, gray8, {{255, 0, 255}}},
    {"gray of 2 bits", widen_samples, gray2, 0, 4, {{0x1B, 0x80}}, gray8, {{0, 85, 170, 255}}},
    {"gray of 4 bits", widen_samples, gray4, 1, 3, {{0x01, 0xFA}}, gray8, {{17, 255, 170}}},
    {"index of 2 bits", widen_samples, index2, 2, 2, {{0x1B}, {0x2C}}, index8, {{2, 3}, {3, 0}}},
    {"1 quarter turn", rotated<1>, rg8, 1, 3, of_2, rg8, rotated_1},
    {"2 quarter turns", rotated<2>, rg8, 1, 3, of_2, rg8, rotated_2},
    {"3 quarter turns", rotated<3>, rg8, 1, 3, of_2, rg8, rotated_3},
    {"copy", copy, bgr8, 1, 1, of_3, bgr8, {{1, 2, 3}, {7, 8, 9}}},
};

image2d_t source_of(conversion_t const& row) {
    rows_t rows = row.source;
    rows.insert(rows.begin(), {row_t()});
    image2d_t image = picture(row.from, row.skip + row.width, rows);
    image.window = {image.m_width, row.skip, 1};
    image.m_width = row.width;
    image.m_height -= 1;
    EXPECT_TRUE(image.palette.resize(3));
    for (unsigned short i = 0; i < 3; ++i) {
        image.palette.red[i] = static_cast<unsigned short>((i + 1) * 0x100 + 0xFF);
        image.palette.blue[i] = static_cast<unsigned short>((i + 1) * 0x200);
    }
    image.palette.size = 9;  // more than the arrays have
    return image;
}

TEST(PixelConvert, ReadsTheWindowOfTheSource) {
    for (conversion_t const& row : conversions) {
        SCOPED_TRACE(row.name);
        image2d_t src = source_of(row), dst = picture(rgb8, 9, rows_t(9));
        ASSERT_TRUE(row.convert(dst, src));
        EXPECT_EQ(dst.desc, row.to);
        EXPECT_EQ(pixels(dst), row.result);
        if (row.convert == widen_samples) {
            EXPECT_EQ(dst.palette.red.begin(), src.palette.red.begin());
        }
        src.window.skiprows = ~0U - 1;
        EXPECT_FALSE(row.convert(dst, src)) << "incomplete";
        src.window.skiprows = 0;
        src.compressed = true;
        EXPECT_FALSE(row.convert(dst, src)) << "compressed";
    }
}

/// Copies with a type, bits or format that most conversions don't support.
std::vector<image2d_t> unsupported(image2d_t const& image) {
    std::vector<image2d_t> copies(3, image);
    copies[0].desc.type = IMAGE_TYPE_FLOAT;
    copies[1].desc.bits = IMAGE_BITS_16;
    copies[2].desc.format = IMAGE_FORMAT_GRAYSCALE_ALPHA;
    return copies;
}

TEST(PixelConvert, OtherSourcesAreSharedOrRejected) {
    for (conversion_t const& row : std::vector(conversions, conversions + 4)) {
        SCOPED_TRACE(row.name);
        image2d_t const source = source_of(row);
        std::vector<image2d_t> others = unsupported(source);
        others.push_back(source);
        others[3].desc = row.to;
        image2d_t dst, tight;
        for (image2d_t const& other : others) {
            EXPECT_EQ(row.convert(dst, other), &other == &others[3]);
            EXPECT_EQ(dst.begin(), other.begin());
        }
        tight.window.rowlength = 1;  // too few bytes for two pixels
        EXPECT_FALSE(row.convert(tight, source));
        EXPECT_EQ(tight.store != nullptr, row.convert != bgr2rgb);
        others[3].compressed = true;
        bool const is_swap = row.convert == bgr2rgb || row.convert == rgb2bgr;
        EXPECT_EQ(row.convert(dst, others[3]), is_swap);
    }
    image2d_t dst, src = picture(index2, 4, {{0x1B}});
    EXPECT_FALSE(index2rgb(dst, src));
    EXPECT_FALSE(rotate(4, dst, src));
    src = picture(rgb8, 1, {{1, 2, 3}});
    for (convert_t const convert : {index2rgb, widen_samples, rotated<0>}) {
        EXPECT_TRUE(convert(dst, src));
        EXPECT_EQ(dst.begin(), src.begin());
    }
    dst = picture(gray8, 8, {{}});
    ASSERT_TRUE(copy(dst, src));
    EXPECT_EQ(row_t(dst.begin(), dst.end()), (row_t{1, 2, 3, 0})) << "the padding is 0";
}

TEST(PixelConvert, ColoursAreClamped) {
    image2d_t whole = picture(rgba8, 3, {{0, 0, 0, 0, 1, 2, 3, 4, 255, 128, 0, 9}}), image;
    ASSERT_TRUE(makewindow(image, whole, 1, 0, 2, 1));
    EXPECT_TRUE(addcolor(image, color3a(0.5F, -1.0F, NAN, 1.0F)));
    EXPECT_EQ(pixels(image), (rows_t{{129, 0, 255, 4, 255, 0, 255, 9}}));
    color3a_t const colour = color3a(2.0F, -1.0F, NAN, 0.5F);
    EXPECT_TRUE(fillcolor(image, colour));
    EXPECT_EQ(pixels(whole), (rows_t{{0, 0, 0, 0, 255, 0, 255, 128, 255, 0, 255, 128}}));
    image2d_t src = picture(rgb8, 3, {{100, 0, 0, 0, 100, 0, 0, 0, 100}, {255, 0, 255, 9, 9, 9}});
    EXPECT_TRUE(monochrome(image, src));
    EXPECT_EQ(image.desc, gray8);
    EXPECT_EQ(pixels(image), (rows_t{{29, 58, 11}, {105, 9, 238}}));
    EXPECT_TRUE(addcolor(src, color3a(0.0F, 0.2F, 1.0F, 1.0F)));
    EXPECT_EQ(pixels(src)[0], (row_t{100, 51, 255, 0, 151, 255, 0, 51, 255}));
    EXPECT_TRUE(fillcolor(src, colour));
    EXPECT_EQ(pixels(src)[1], (row_t{255, 0, 255, 255, 0, 255, 255, 0, 255}));
    ASSERT_TRUE(src.load(24, "/proc/self/exe", libutils::PROTECTION_READ, 0, false, nullptr));
    EXPECT_FALSE(fillcolor(src, colour)) << "read-only";
}

TEST(PixelConvert, ColoursNeedRgbOf8Bits) {
    std::vector<image2d_t> bad = unsupported(picture(rgb8, 1, rows_t(1)));
    bad.resize(5, picture(rgb8, 1, rows_t(1)));
    bad[3].compressed = true;
    bad[4].count = 2;
    capture_t streams;
    for (image2d_t& image : bad) {
        image2d_t dst;
        EXPECT_FALSE(fillcolor(image, color3a_t()));
        EXPECT_FALSE(monochrome(dst, image));
    }
    EXPECT_EQ(streams.err(),
              "not support image type.\nIMAGE_TYPE_FLOAT: image type is not UINT.\n"
              "not support image bits.\nIMAGE_BITS_16: image bits is not 8.\n"
              "not support format.\nIMAGE_FORMAT_GRAYSCALE_ALPHA: image format is not RGB.\n");
}

TEST(RepeatEdges, FillsTheRestWithTheLastColumnAndTheTopRow) {
    image2d_t src = source_of(conversions[13]), dst;
    image_store_t constexpr store{true, 4};
    src.store = &store;
    ASSERT_TRUE(repeat_edges(dst, src, 4, 3));
    EXPECT_EQ(dst.desc, src.desc);
    EXPECT_EQ(dst.store, &store);
    EXPECT_EQ(pixels(dst), (rows_t{{1, 2, 3, 4, 5, 6, 5, 6},
                                   {7, 8, 9, 10, 11, 12, 11, 12},
                                   {7, 8, 9, 10, 11, 12, 11, 12}}));
    image2d_t half_bytes = src, incomplete = src;
    half_bytes.desc.bits = IMAGE_BITS_4;
    half_bytes.desc.format = IMAGE_FORMAT_RGB;
    incomplete.count = 2;
    EXPECT_FALSE(repeat_edges(dst, src, 2, 3));
    EXPECT_FALSE(repeat_edges(dst, src, 4, 1));
    EXPECT_FALSE(repeat_edges(dst, half_bytes, 4, 3));
    EXPECT_FALSE(repeat_edges(dst, incomplete, 4, 3));
    EXPECT_FALSE(repeat_edges(dst, image2d_t(), 4, 3));
    EXPECT_EQ(dst.m_width, 4U);
}

TEST(MakeWindow, LimitsTheSizeByTheWholeSkip) {
    struct {
        int x, y;
        unsigned int width, height, expected_width, expected_height;
        bool within;
    } const rows[] = {{8, 6, 4, 4, 2, 2, true},
                      {11, 0, 4, 8, 4, 8, false},
                      {0, 9, 10, 4, 10, 4, false},
                      {-1, 0, 4, 4, 4, 4, false}};
    image2d_t whole = picture(gray8, 10, rows_t(8)), outer, inner;
    for (auto const& row : rows) {
        ASSERT_TRUE(makewindow(outer, whole, row.x, row.y, row.width, row.height));
        EXPECT_EQ(outer.m_width, row.expected_width) << row.x << ' ' << row.y;
        EXPECT_EQ(outer.m_height, row.expected_height) << row.x << ' ' << row.y;
        EXPECT_EQ(pixels_within(outer), row.within) << row.x << ' ' << row.y;
    }
    ASSERT_TRUE(makewindow(outer, whole, 2, 1, 6, 6));
    ASSERT_TRUE(makewindow(inner, outer, 1, 1, 6, 6));
    EXPECT_EQ(inner.m_width, 3U);
    EXPECT_EQ(inner.m_height, 4U);
    EXPECT_EQ(inner.window.rowlength, 10U);
}

}  // namespace
