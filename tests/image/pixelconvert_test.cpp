// SPDX-License-Identifier: MIT
// Tests of the conversions, reductions and normal maps of pictures.
#include "image/pixelconvert.h"

#include <cmath>
#include <tuple>

#include "image/normalmap.h"
#include "image/repeatedges.h"
#include "image/samples.h"
#include "image/scaledown.h"
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

constexpr image_desc_t bgr8 = bytes_desc(IMAGE_FORMAT_BGR), bgra8 = bytes_desc(IMAGE_FORMAT_BGRA),
                       rg8 = bytes_desc(IMAGE_FORMAT_RG), index8 = bytes_desc(IMAGE_FORMAT_INDEX),
                       sint_rgb8 = bytes_desc(IMAGE_FORMAT_RGB, IMAGE_TYPE_SINT),
                       float_rgb8 = bytes_desc(IMAGE_FORMAT_RGB, IMAGE_TYPE_FLOAT),
                       rgb4 = {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_4},
                       rgb16 = {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_16},
                       index1 = {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_1},
                       index2 = {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_2},
                       index4 = {IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, IMAGE_BITS_4},
                       gray1 = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_1},
                       gray2 = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_2},
                       gray4 = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4};

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
        image2d_t src = source_of(row), dst = picture(rgb8, 9, rows_t(9)), tight;
        ASSERT_TRUE(row.convert(dst, src));
        EXPECT_EQ(dst.desc, row.to);
        EXPECT_EQ(pixels(dst), row.result);
        if (row.convert == widen_samples) {
            EXPECT_EQ(dst.palette.red.begin(), src.palette.red.begin());
        }
        tight.window = {1, 9, 0};  // contains less than two pixels
        EXPECT_EQ(row.convert(tight, src), row.width == 1);
        EXPECT_EQ(tight.store != nullptr, &row > conversions && &row < conversions + 4);
        src.window.skiprows = ~0U - 1;
        EXPECT_FALSE(row.convert(dst, src)) << "incomplete";
        src.window.skiprows = 0;
        src.compressed = true;
        EXPECT_FALSE(row.convert(dst, src)) << "compressed";
    }
}

bool filled(image2d_t& dst, image2d_t const& src) {
    return fillcolor(dst = src, color3a_t());
}
bool edged(image2d_t& dst, image2d_t const& src) {
    return repeat_edges(dst, src, 3, 2);
}
bool normals(image2d_t& dst, image2d_t const& src) {
    return heightmap2normalmap(dst, src, 1);
}
constexpr std::pair<char const*, convert_t> operations[] = {
    {" fill", filled},         {" monochrome", monochrome}, {" edges", edged},
    {" scaledown", scaledown}, {" GRBG", scaledownGRBG},    {" normals", normals},
    {" bgr2rgb", bgr2rgb},     {" rgb2bgr", rgb2bgr},       {" rgb2rgba", rgb2rgba},
    {" rgba2rgb", rgba2rgb},   {" index2rgb", index2rgb},   {" widen", widen_samples},
    {" rotate", rotated<0>}};

struct {
    char const* name;
    image_desc_t desc;
    unsigned int bytes;  ///< for 2 by 2 pixels
    bool compressed;
    int error_lines;
    std::string converted;  ///< the operations that make a new image
    std::string shared;     ///< the operations whose result has the bytes of the source
} const sources[] = {
    {"RGB", rgb8, 14, false, 0, " monochrome edges scaledown GRBG rgb2bgr rgb2rgba",
     " fill normals bgr2rgb rgba2rgb index2rgb widen rotate"},
    {"cut RGB", rgb8, 13, false, 0, "", " normals bgr2rgb rgba2rgb index2rgb widen rotate"},
    {"compressed RGB", rgb8, 16, true, 1, "", " bgr2rgb index2rgb widen rotate"},
    {"signed RGB", sint_rgb8, 14, false, 2, " edges scaledown GRBG rgb2bgr rgb2rgba",
     " normals bgr2rgb rgba2rgb index2rgb widen rotate"},
    {"float RGB", float_rgb8, 14, false, 3, " edges scaledown GRBG",
     " bgr2rgb index2rgb widen rotate"},
    {"RGB of 16 bits", rgb16, 24, false, 3, " edges scaledown GRBG",
     " bgr2rgb index2rgb widen rotate"},
    {"RGB of 4 bits", rgb4, 7, false, 3, "", " bgr2rgb index2rgb widen rotate"},
    {"RGBA", rgba8, 16, false, 2, " edges scaledown GRBG rgb2bgr rgba2rgb",
     " fill bgr2rgb rgb2rgba index2rgb widen rotate"},
    {"BGR", bgr8, 14, false, 4, " edges scaledown bgr2rgb", " rgb2bgr index2rgb widen rotate"},
    {"BGRA", bgra8, 16, false, 4, " edges scaledown bgr2rgb", " rgb2bgr index2rgb widen rotate"},
    {"two components", rg8, 8, false, 5, " edges", " index2rgb widen rotate"},
    {"gray", gray8, 6, false, 2, " edges scaledown GRBG normals", " index2rgb widen rotate"},
    {"cut gray", gray8, 5, false, 3, "", " index2rgb widen rotate"},
};

TEST(PixelConvert, OtherSourcesAreSharedOrRejected) {
    for (auto const& row : sources) {
        capture_t streams;
        image2d_t source = picture(row.desc, 2, rows_t(2));
        source.count = row.bytes;
        source.compressed = row.compressed;
        std::string converted, shared;
        for (auto const& [name, operation] : operations) {
            image2d_t dst;
            if (operation(dst, source)) {
                EXPECT_TRUE(dst.begin() != source.begin() || dst.desc == source.desc) << name;
                (dst.begin() == source.begin() ? shared : converted) += name;
            }
        }
        EXPECT_EQ(converted, row.converted) << row.name;
        EXPECT_EQ(shared, row.shared) << row.name;
        EXPECT_EQ(std::ranges::count(streams.err(), '\n'), row.error_lines) << row.name;
    }
    image2d_t dst, src = picture(index2, 4, {{0x1B}});
    EXPECT_FALSE(index2rgb(dst, src));
    EXPECT_FALSE(rotate(4, dst, src));
    dst = picture(gray8, 8, {{}});
    ASSERT_TRUE(copy(dst, picture(rgb8, 1, {{1, 2, 3}})));
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
    EXPECT_EQ(pixels(image), (rows_t{{29, 58, 11}, {105, 9, 238}}));
    ASSERT_TRUE(src.load(24, "/proc/self/exe", libutils::PROTECTION_READ, 0, false, nullptr));
    EXPECT_FALSE(fillcolor(src, colour)) << "read-only";
}

TEST(RepeatEdges, FillsTheRestWithTheLastColumnAndTheTopRow) {
    image2d_t src = source_of(conversions[13]), dst;
    image_store_t constexpr store{true, 4};
    src.store = &store;
    ASSERT_TRUE(repeat_edges(dst, src, 4, 3));
    EXPECT_EQ(dst.store, &store);
    EXPECT_EQ(pixels(dst), (rows_t{{1, 2, 3, 4, 5, 6, 5, 6},
                                   {7, 8, 9, 10, 11, 12, 11, 12},
                                   {7, 8, 9, 10, 11, 12, 11, 12}}));
    EXPECT_FALSE(repeat_edges(dst, src, 2, 3));
    EXPECT_FALSE(repeat_edges(dst, src, 4, 1));
}

TEST(MakeWindow, LimitsTheSizeByTheWholeSkip) {
    image2d_t whole = picture(gray8, 10, rows_t(8)), outer, inner;
    ASSERT_TRUE(makewindow(outer, whole, 2, 1, 6, 6));
    ASSERT_TRUE(makewindow(inner, outer, 1, 1, 6, 6));
    EXPECT_EQ(inner.m_width, 3U);
    EXPECT_EQ(inner.m_height, 4U);
    EXPECT_EQ(inner.window.rowlength, 10U);
    ASSERT_TRUE(makewindow(inner, outer, 7, 6, 4, 5)) << "a start after the end is not limited";
    EXPECT_EQ(inner.m_width, 4U);
    EXPECT_FALSE(pixels_within(inner));
}

TEST(ToMachineOrder, SwapsTheBytesOfWindowsWithUnitsOf16Bits) {
    rows_t const bytes = {{1, 2, 3, 4, 5, 6, 7, 8}}, ordered = {{1, 2, 4, 3, 6, 5, 7, 8}};
    for (auto const& [bits, expected] :
         {std::pair(IMAGE_BITS_16, ordered), std::pair(IMAGE_BITS_R5G5B5A1, ordered),
          std::pair(IMAGE_BITS_8, bytes), std::pair(IMAGE_BITS_MAX, bytes)}) {
        image2d_t whole = picture(gray8, 8, bytes), image = whole;
        image.window = {4, 1, 0};
        image.m_width = 2;
        image.desc.bits = bits;
        EXPECT_TRUE(to_machine_order(image, std::endian::little));
        EXPECT_EQ(pixels(whole), bytes) << bits;
        EXPECT_TRUE(to_machine_order(image, std::endian::big));
        EXPECT_EQ(pixels(whole), expected) << bits;
        image.window.skiprows = 1;
        EXPECT_EQ(to_machine_order(image, std::endian::big), expected == bytes) << bits;
    }
}

TEST(Scaledown, ReadsTheBytesOfItsFormat) {
    row_t const lower = {3, 101, 7, 250, 31, 18, 77, 141, 200, 9, 61, 5, 90, 33, 180, 45, 251, 2};
    row_t const upper = {44, 13, 129, 66, 5, 211, 98, 1, 37, 170, 23, 88, 160, 71, 6, 52, 119, 240};
    using reduction_t = std::tuple<convert_t, e_image_format_t, row_t>;
    reduction_t const reductions[] = {
        {scaledown, IMAGE_FORMAT_RGB, {90, 37, 91, 88, 56, 82}},
        {scaledown, IMAGE_FORMAT_RGBA, {90, 37, 91, 122, 82, 107, 47, 69}},
        {scaledown, IMAGE_FORMAT_GRAYSCALE, {40, 62}},
        {scaledownGRBG, IMAGE_FORMAT_RGBA, {250, 53, 129, 122, 5, 84, 23, 69}},
        {scaledownGBRG, IMAGE_FORMAT_RGBA, {44, 53, 18, 122, 37, 84, 33, 69}},
        {scaledownRGGB, IMAGE_FORMAT_RGBA, {3, 22, 211, 122, 200, 130, 71, 69}},
        {scaledownBGGR, IMAGE_FORMAT_RGB, {66, 22, 7, 170, 31, 200}},
    };
    for (auto const& [reduce, format, expected] : reductions) {
        SCOPED_TRACE(testing::PrintToString(expected));
        image2d_t src = picture(bytes_desc(format), 6, rows_t(4, row_t(24)));
        src.window = {6, 1, 1};
        src.m_width = 5;  // the last column and the top row are ignored
        src.m_height = 3;
        std::ranges::copy(lower, pixel_row(src, 0));
        std::ranges::copy(upper, pixel_row(src, 1));
        image2d_t dst = picture(gray8, 1, {{1}});
        dst.compressed = true;
        ASSERT_TRUE(reduce(dst, src));
        EXPECT_FALSE(dst.compressed);
        EXPECT_EQ(pixels(dst), rows_t{expected});
        EXPECT_TRUE(reduce(dst, picture(src.desc, 1, {{}})));
    }
    image2d_t dst;
    ASSERT_TRUE(scaledown(dst, picture(gray8, 2, {{10, 20}, {30, 40}, {50, 60}, {70, 84}})));
    EXPECT_EQ(pixels(dst), (rows_t{{25}, {66}}));
    capture_t streams;
    dst.window = {~0U, 0, ~0U};
    EXPECT_FALSE(scaledown(dst, picture(rgba8, 4, rows_t(4))));
    EXPECT_EQ(streams.err(), "scaledown(): allocate() fail.\n");
}

TEST(NormalMap, ContainsTheSlopesToTheRightAndUpward) {
    image2d_t normals;
    EXPECT_TRUE(heightmap2normalmap(normals, picture(gray8, 2, {{0, 51}, {102, 0}}), 100));
    EXPECT_EQ(normals.desc, sint_rgb8);
    EXPECT_EQ(pixels(normals),
              (rows_t{{13, 26, 124, 243, 243, 126}, {230, 230, 121, 26, 13, 124}}));
    EXPECT_TRUE(heightmap2normalmap(normals, picture(gray8, 3, {{0, 255, 255}}), 1));
    EXPECT_EQ(pixels(normals), (rows_t{{90, 0, 90, 0, 0, 127, 166, 0, 90}})) << "steps of 255";
}

TEST(NormalMap, CubeMapContainsUnitDirections) {
    image2d_t faces[6];
    ASSERT_TRUE(makenormalcubemap(faces));
    // Face, column, row, and the direction before normalization, in 127ths.
    constexpr int rows[][6] = {{0, 0, 0, 127, -127, -127},     {0, 255, 1, 127, -128, -382},
                               {1, 255, 0, -127, -127, 128},   {2, 127, 254, 0, 127, 127},
                               {3, 127, 127, 0, 127, -254},    {4, 254, 0, 127, -127, 127},
                               {5, 127, 127, -254, -254, -127}};
    for (auto const& [face, i, j, x, y, z] : rows) {
        EXPECT_EQ(faces[face].desc, sint_rgb8);
        double const length = std::sqrt(x * x + y * y + z * z);
        unsigned char const* texel = pixel_row(faces[face], static_cast<unsigned>(j)) + 3 * i;
        for (int component : {x, y, z}) {
            EXPECT_NEAR(*texel++, (component / length * 0.5 + 0.5) * 255, 0.51) << face;
        }
    }
}

}  // namespace
