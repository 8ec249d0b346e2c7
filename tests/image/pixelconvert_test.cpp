// SPDX-License-Identifier: MIT
// Tests of the pixel operations, through windows and with descriptions they refuse.
#include "image/pixelconvert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "image/repeatedges.h"
#include "image/samples.h"
#include "tests/image/testimages.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;
using convert_t = bool (*)(image2d_t&, image2d_t const&);

/// Puts a picture into a wider one, so that it has to be read through its window.
image2d_t windowed(image2d_t const& source) {
    image2d_t whole = picture(source.desc, source.m_width + 3, rows_t(source.m_height + 2)), window;
    EXPECT_TRUE(makewindow(window, whole, 2, 1, source.m_width, source.m_height));
    for (unsigned int y = 0; y < source.m_height; ++y) {
        std::copy_n(pixel_row(source, y), source.rowbyte(), pixel_row(window, y));
    }
    return window;
}

/// Records that differ from a good one in what every conversion refuses.
std::vector<image2d_t> spoilt(image2d_t const& good) {
    std::vector<image2d_t> bad(5, good);
    bad[0].desc.type = IMAGE_TYPE_FLOAT;
    bad[1].desc.bits = IMAGE_BITS_16;
    bad[2].desc.format = IMAGE_FORMAT_GRAYSCALE_ALPHA;
    bad[3].compressed = true;
    bad[4].window.skiprows = ~0U - 1;
    return bad;
}

TEST(channels, swap_and_change_alpha_by_the_source_format) {
    rows_t const three = {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}};
    rows_t const three_swapped = {{3, 2, 1, 6, 5, 4}, {9, 8, 7, 12, 11, 10}};
    rows_t const four = {{1, 2, 3, 40, 5, 6, 7, 80}}, four_swapped = {{3, 2, 1, 40, 7, 6, 5, 80}};
    rows_t const opaque = {{1, 2, 3, 255, 4, 5, 6, 255}, {7, 8, 9, 255, 10, 11, 12, 255}};
    using row = std::tuple<convert_t, e_image_format_t, e_image_format_t, rows_t, rows_t, bool>;
    for (auto const& [convert, from, to, in, out, store] :
         {row{bgr2rgb, IMAGE_FORMAT_BGR, IMAGE_FORMAT_RGB, three, three_swapped, false},
          row{bgr2rgb, IMAGE_FORMAT_BGRA, IMAGE_FORMAT_RGBA, four, four_swapped, false},
          row{rgb2bgr, IMAGE_FORMAT_RGB, IMAGE_FORMAT_BGR, three, three_swapped, true},
          row{rgb2bgr, IMAGE_FORMAT_RGBA, IMAGE_FORMAT_BGRA, four, four_swapped, false},
          row{rgb2rgba, IMAGE_FORMAT_RGB, IMAGE_FORMAT_RGBA, three, opaque, true},
          row{rgba2rgb, IMAGE_FORMAT_RGBA, IMAGE_FORMAT_RGB, four, {{1, 2, 3, 5, 6, 7}}, true}}) {
        image2d_t const src = windowed(picture(bytes_desc(from, IMAGE_TYPE_SINT), 2, in));
        image2d_t dst, shared, tight;
        EXPECT_TRUE(convert(dst, src) && dst.desc == bytes_desc(to, IMAGE_TYPE_SINT)) << from;
        EXPECT_TRUE(pixels(dst) == out && (dst.store != nullptr) == store) << from;
        EXPECT_TRUE(convert(shared, dst) && shared.begin() == dst.begin()) << from;
        for (image2d_t const& bad : spoilt(src)) {
            EXPECT_TRUE(!convert(shared, bad) && shared.begin() == bad.begin()) << from;
        }
        EXPECT_EQ(convert(shared, spoilt(dst)[3]), convert == bgr2rgb || convert == rgb2bgr);
        tight.window.rowlength = 1;  // its rows have no room for two pixels
        EXPECT_FALSE(convert(tight, src)) << from;
    }
}

TEST(index2rgb, reads_every_index_size_and_stays_in_the_palette) {
    using row = std::tuple<e_image_bits_t, unsigned int, unsigned int, row_t, std::vector<int>>;
    for (auto const& [bits, width, skip, bytes, reds] :
         {row{IMAGE_BITS_1, 10, 0, {0b10110000, 0b01000000}, {2, 1, 2, 2, 1, 1, 1, 1, 1, 2}},
          row{IMAGE_BITS_1, 3, 7, {0b00000001, 0b01000000}, {2, 1, 2}},
          row{IMAGE_BITS_4, 3, 0, {0x12, 0x3F}, {2, 3, 0}},
          row{IMAGE_BITS_4, 2, 1, {0x12, 0x0F}, {3, 1}},
          row{IMAGE_BITS_8, 4, 0, {0, 2, 3, 255}, {1, 3, 0, 0}},
          row{IMAGE_BITS_2, 4, 0, {0x1B}, {}}}) {
        image2d_t src = picture({IMAGE_FORMAT_INDEX, IMAGE_TYPE_UINT, bits}, width + skip, {bytes});
        src.window = {src.m_width, skip, 0};
        src.m_width = width;
        ASSERT_TRUE(src.palette.resize(3));
        for (unsigned int i = 0; i < 3; ++i) {
            src.palette.red[i] = static_cast<unsigned short>((i + 1) * 0x100 + 0xFF);
            src.palette.blue[i] = static_cast<unsigned short>((i + 1) * 0x200);
        }
        src.palette.size = 9;  // more than the planes hold
        image2d_t dst = picture(gray8, 1, {{1}});
        EXPECT_TRUE(index2rgb(dst, src) == !reds.empty() && dst.desc == rgb8);
        for (std::size_t x = 0; x < reds.size(); ++x) {
            EXPECT_TRUE(dst[3 * x] == reds[x] && dst[3 * x + 2] == reds[x] * 2) << x;
        }
        src.window.skiprows = 1;
        EXPECT_FALSE(index2rgb(dst, src));
    }
}

TEST(widen_samples, spreads_gray_over_the_range_and_keeps_indices) {
    using row = std::tuple<e_image_format_t, e_image_bits_t, unsigned int, row_t, row_t>;
    for (auto const& [format, bits, skip, bytes, wide] :
         {row{IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, 7, {0x01, 0x40}, {255, 0, 255}},
          row{IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_2, 0, {0x1B, 0x80}, {0, 85, 170, 255, 170}},
          row{IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, 1, {0x01, 0xFA}, {17, 255, 170}},
          row{IMAGE_FORMAT_INDEX, IMAGE_BITS_2, 2, {0x1B}, {2, 3}}}) {
        image2d_t src = picture({format, IMAGE_TYPE_UINT, bits},
                                static_cast<unsigned int>(skip + wide.size()), {{}, bytes});
        src.window = {src.m_width, skip, 1};
        src.m_width -= skip;
        src.m_height = 1;
        src.palette.resize(4);
        image2d_t dst = picture(rgb8, 9, rows_t(9)), shared;
        ASSERT_TRUE(widen_samples(dst, src) && dst.desc == bytes_desc(format)) << bits;
        EXPECT_EQ(pixels(dst), rows_t{wide}) << bits;
        EXPECT_EQ(dst.palette.red.begin(), src.palette.red.begin()) << bits;
        EXPECT_TRUE(widen_samples(shared, dst) && shared.begin() == dst.begin()) << bits;
        src.window.skiprows = 2;
        EXPECT_FALSE(widen_samples(dst, src)) << bits;
    }
}

TEST(copy, is_deep_clears_padding_and_drops_the_window) {
    image2d_t const src = windowed(picture(rgb8, 1, {{1, 2, 3}, {4, 5, 6}}));
    image2d_t dst = picture(gray8, 8, rows_t(2));  // with bytes in its padding
    ASSERT_TRUE(copy(dst, src));
    EXPECT_EQ(row_t(dst.begin(), dst.end()), (row_t{1, 2, 3, 0, 4, 5, 6, 0}));
    EXPECT_FALSE(copy(dst, spoilt(src)[3]) || copy(dst, spoilt(src)[4]) || dst.m_width != 1);
}

TEST(colour, fills_adds_and_weighs_and_tells_what_it_refuses) {
    image2d_t image = windowed(picture(rgba8, 2, {{1, 2, 3, 4, 255, 128, 0, 9}}));
    EXPECT_TRUE(addcolor(image, color3a(0.5F, -1.0F, NAN, 1.0F)));
    EXPECT_EQ(pixels(image), (rows_t{{129, 0, 255, 4, 255, 0, 255, 9}}));
    color3a_t const colour = color3a(2.0F, -1.0F, NAN, 0.5F);
    EXPECT_TRUE(fillcolor(image, colour));
    EXPECT_EQ(pixels(image), (rows_t{{255, 0, 255, 128, 255, 0, 255, 128}}));
    image2d_t const src =
        picture(rgb8, 3, {{100, 0, 0, 0, 100, 0, 0, 0, 100}, {255, 0, 255, 9, 9, 9, 1, 2, 3}});
    image2d_t gray, fixed = src;
    ASSERT_TRUE(monochrome(gray, src) && gray.desc == gray8);
    EXPECT_EQ(pixels(gray), (rows_t{{29, 58, 11}, {105, 9, 1}}));
    ASSERT_TRUE(fixed.load(24, "/proc/self/exe", libutils::PROTECTION_READ, 0, false, nullptr));
    EXPECT_FALSE(fillcolor(fixed, colour) || addcolor(fixed, colour)) << "can't be written to";
    capture_t streams;
    for (image2d_t& bad : spoilt(src)) {
        EXPECT_FALSE(fillcolor(bad, colour) || addcolor(bad, colour));
        bad.count = 20;  // of 24 bytes; the window doesn't matter to this
        EXPECT_FALSE(monochrome(gray, bad));
    }
    EXPECT_EQ(streams.err(),
              "not support image type.\nnot support image type.\n"
              "IMAGE_TYPE_FLOAT: image type is not UINT.\n"
              "not support image bits.\nnot support image bits.\n"
              "IMAGE_BITS_16: image bits is not 8.\n"
              "not support format.\nnot support format.\n"
              "IMAGE_FORMAT_GRAYSCALE_ALPHA: image format is not RGB.\n");
}

TEST(rotate, turns_clockwise_by_quarters) {
    image2d_t const src = windowed(
        picture(bytes_desc(IMAGE_FORMAT_RG), 2, {{1, 1, 2, 2}, {3, 3, 4, 4}, {5, 5, 6, 6}}));
    rows_t const turned[] = {pixels(src),
                             {{2, 2, 4, 4, 6, 6}, {1, 1, 3, 3, 5, 5}},
                             {{6, 6, 5, 5}, {4, 4, 3, 3}, {2, 2, 1, 1}},
                             {{5, 5, 3, 3, 1, 1}, {6, 6, 4, 4, 2, 2}}};
    image2d_t dst;
    for (unsigned long count = 0; count < 4; ++count) {
        EXPECT_TRUE(rotate(count, dst, src) && pixels(dst) == turned[count]) << count;
    }
    EXPECT_FALSE(rotate(4, dst, src) || rotate(1, dst, spoilt(src)[4]) || dst.m_width != 3);
}

TEST(repeat_edges, fills_the_rest_with_the_last_column_and_the_top_row) {
    constexpr image_store_t swapped{true, 4};
    image2d_t src = windowed(picture(bytes_desc(IMAGE_FORMAT_RG), 2, {{1, 2, 3, 4}, {5, 6, 7, 8}}));
    src.store = &swapped;
    image2d_t dst, bits = src;
    bits.desc = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_4};
    EXPECT_TRUE(repeat_edges(dst, src, 4, 3) && dst.desc == src.desc && dst.store == &swapped);
    EXPECT_EQ(
        pixels(dst),
        (rows_t{{1, 2, 3, 4, 3, 4, 3, 4}, {5, 6, 7, 8, 7, 8, 7, 8}, {5, 6, 7, 8, 7, 8, 7, 8}}));
    EXPECT_FALSE(repeat_edges(dst, src, 1, 3) || repeat_edges(dst, src, 4, 1) ||
                 repeat_edges(dst, bits, 4, 3) || repeat_edges(dst, image2d_t(), 4, 3) ||
                 repeat_edges(dst, spoilt(src)[3], 4, 3) ||
                 repeat_edges(dst, spoilt(src)[4], 4, 3) || dst.m_width != 4);
}

TEST(makewindow, cuts_by_the_whole_skip_and_wraps_beyond) {
    image2d_t whole = picture(gray8, 10, rows_t(8));
    using row = std::tuple<int, int, unsigned int, unsigned int, unsigned int, unsigned int, bool>;
    for (auto const& [x, y, width, height, got_width, got_height, within] :
         {row{2, 1, 4, 4, 4, 4, true}, row{8, 6, 4, 4, 2, 2, true}, row{10, 0, 4, 4, 0, 4, true},
          row{11, 0, 4, 8, 4, 8, false}, row{0, 9, 10, 4, 10, 4, false},
          row{-1, 0, 4, 4, 4, 4, false}}) {
        image2d_t window;
        ASSERT_TRUE(makewindow(window, whole, x, y, width, height));
        EXPECT_TRUE(window.m_width == got_width && window.m_height == got_height) << x << ' ' << y;
        EXPECT_EQ(pixels_within(window), within) << x << ' ' << y;
    }
    image2d_t outer, inner;
    ASSERT_TRUE(makewindow(outer, whole, 2, 1, 6, 6) && makewindow(inner, outer, 1, 1, 6, 6));
    EXPECT_TRUE(inner.m_width == 3 && inner.m_height == 4 && inner.window.rowlength == 10);
}

}  // namespace
