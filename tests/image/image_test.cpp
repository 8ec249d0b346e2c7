// SPDX-License-Identifier: MIT
// Tests of the image records: sizes of rows and pixels, sharing, windows against their bytes.
#include "image/image.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "tests/image/testimages.h"

namespace {

using namespace libgr;

constexpr unsigned int most = ~0U;
constexpr image_store_t bytewise = {false, 1}, no_align = {false, 0}, align8 = {false, 8};

TEST(image_desc, pixel_bits_and_names) {
    using row = std::tuple<unsigned int, unsigned int, unsigned long long, char const*>;
    for (auto const& [format, bits, pixelbits, names] :
         {row{8, 10, 16, "IMAGE_FORMAT_RGB IMAGE_BITS_R5G6B5"},
          row{11, 8, 256, "IMAGE_FORMAT_BGRA IMAGE_BITS_64"},
          row{17, 0, 1, "IMAGE_FORMAT_INDEX IMAGE_BITS_1"},
          row{13, 15, 0, "IMAGE_FORMAT_DEPTH_STENCIL IMAGE_BITS_D24S8"},
          row{18, 16, 0, "IMAGE_FORMAT_MAX IMAGE_BITS_MAX"},
          row{19, most, 0, "unknown:  unknown: "}}) {
        image_desc_t const desc = {static_cast<e_image_format_t>(format), IMAGE_TYPE_UINT,
                                   static_cast<e_image_bits_t>(bits)};
        std::ostringstream out;
        out << desc.format << ' ' << desc.bits;
        EXPECT_EQ(out.str(), names);
        EXPECT_EQ(desc.getPixelBits(), pixelbits) << names;
    }
}

TEST(image2d, row_and_block_sizes) {
    constexpr image_desc_t bit = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_1};
    constexpr image_desc_t wide = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_64};
    constexpr image_desc_t none = {IMAGE_FORMAT_DEPTH_STENCIL, IMAGE_TYPE_UINT, IMAGE_BITS_D24S8};
    using row = std::tuple<image_desc_t, image_store_t const*, image_window2d_t, unsigned int,
                           unsigned int, unsigned long, unsigned long, unsigned long>;
    constexpr unsigned long refused = ~0UL;
    for (auto const& [desc, store, window, width, height, rowsize, rowbyte, size] :
         {row{rgb8, nullptr, {0, 2, 3}, 5, 10, 16, 15, 208},
          row{rgb8, nullptr, {100, 0, 0}, 10, 2, 300, 30, 600},
          row{bit, &bytewise, {}, 33, 2, 5, 4, 10}, row{bit, &no_align, {}, 33, 2, 8, 4, 16},
          row{rgb8, &align8, {}, 3, 2, 16, 9, 32}, row{none, nullptr, {}, 7, 7, 0, 0, 0},
          row{rgb8, nullptr, {}, 0, 9, 0, 0, 0},
          row{wide, nullptr, {0, 0, most}, most, most, 32UL * most, 32UL * most, refused},
          row{wide, &bytewise, {1U << 31, 0, (1U << 28) - 1}, 2, 1, 1UL << 36, 64, refused}}) {
        image2d_t image = picture(gray8, 4, {{1, 2, 3, 4}});
        image.desc = desc;
        image.store = store;
        image.window = window;
        image.m_width = width;
        image.m_height = height;
        EXPECT_TRUE(image.rowsize() == rowsize && image.rowbyte() == rowbyte) << width;
        EXPECT_EQ(image.allocate(), size != refused) << width;
        EXPECT_EQ(image.size(), size != refused ? size : 4) << width;
    }
}

TEST(image2d, copies_share_and_clear_keeps_the_description) {
    image2d_t first = picture(bytes_desc(IMAGE_FORMAT_INDEX), 2, {{1, 2}});
    ASSERT_TRUE(first.palette.resize(2));
    image2d_t second(first);
    second = first;
    image2d_t& self = second;
    second = self;
    EXPECT_EQ(first.refcount(), 2UL);
    second[0] = 7;
    second.palette.red[1] = 8;
    EXPECT_EQ(first[0] * 10 + first.palette.red[1], 78);
    EXPECT_TRUE(!second.palette.resize(0) && second.palette.red.empty());
    second.clear();
    EXPECT_TRUE(first.refcount() == 1 && second.empty() && second.m_width == 0 &&
                second.desc == first.desc);
}

TEST(pixels_within, tells_windows_that_leave_their_bytes) {
    using row = std::tuple<unsigned long, unsigned long long, image_window3d_t, unsigned int,
                           unsigned int, unsigned int, image_store_t const*, bool>;
    for (auto const& [bytes, pixelbits, window, width, height, depth, store, within] :
         {row{47, 24, {}, 5, 3, 1, nullptr, true},  // the last row needs no padding
          row{46, 24, {}, 5, 3, 1, nullptr, false},
          row{45, 24, {}, 5, 3, 1, &bytewise, true},
          row{47, 32, {}, 5, 3, 1, nullptr, false},  // a reader of wider pixels
          row{100, 8, {10, 0, 5}, 5, 8, 1, nullptr, true},
          row{100, 8, {10, 0, 5, 8}, 6, 1, 1, nullptr, false},
          row{100, 1, {0, 0, 7}, 1, 25, 1, nullptr, true},
          row{100, 1, {0, 0, 0, 25}, 1, 1, 1, nullptr, false},
          row{100, 8, {0, 0, most}, 2, 1, 1, nullptr, false},  // the sum is past 32 bits
          row{100, 8, {0, 0, 0, most}, 1, 1, 1, nullptr, false},
          row{100, 1 << 16, {most, most, most, most}, most, most, 1, nullptr, false},
          row{100, ~0ULL, {}, 1, 1, 1, nullptr, false},
          row{0, 8, {}, 1, 1, 1, nullptr, false},
          row{0, 8, {5, 5, 5, 5}, 0, 9, 1, nullptr, true},
          row{100, 8, {}, 4, 5, 6, nullptr, false},
          row{100, 8, {}, 4, 5, 5, nullptr, true},
          row{100, 8, {0, 10}, 4, 5, 3, nullptr, true},
          row{100, 8, {8, 5, 4, 4, 1}, 4, 1, 1, nullptr, true},
          row{100, 8, {8, 5, 4, 4, 1}, 4, 1, 2, nullptr, false},
          row{100, 8, {0, most}, 4, 5, 1, nullptr, true},
          row{100, 8, {0, most}, 4, 5, 2, nullptr, false},
          row{100, 8, {most, most, most, most, most}, most, most, most, nullptr, false}}) {
        image3d_t volume;
        ASSERT_TRUE(volume.resize(bytes, 0));
        volume.store = store;
        volume.window = window;
        volume.m_width = width;
        volume.m_height = height;
        volume.m_depth = depth;
        EXPECT_EQ(pixels_within(volume, pixelbits), within) << width << ' ' << window.skiprows;
        image2d_t image;
        static_cast<image_bytes_t&>(image) = volume;
        image.store = store;
        image.window = {window.rowlength, window.skippixels, window.skiprows};
        image.m_width = width;
        image.m_height = height;
        if (depth == 1 && window.skipimages == 0) {
            EXPECT_EQ(pixels_within(image, pixelbits), within) << width << ' ' << window.skiprows;
        }
        image.compressed = true;
        EXPECT_FALSE(pixels_within(image, pixelbits));
    }
    image1d_t line;
    line.window.skippixels = 3;
    line.m_width = 4;
    EXPECT_TRUE(line.resize(7, 0) && line[1U] == line.begin() + 4);
    EXPECT_TRUE(pixels_within(line, 8) && !pixels_within(line, 9));
}

}  // namespace
