// SPDX-License-Identifier: MIT
// Tests of the image records: sizes of rows and pixels, sharing, windows against their bytes.
#include "image/image.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <sstream>
#include <tuple>

#include "tests/image/testimages.h"

namespace {

using namespace libgr;

constexpr unsigned int most = ~0U;
constexpr image_store_t bytewise = {false, 1}, no_align = {false, 0}, align8 = {false, 8};

TEST(image2d, row_and_block_sizes) {
    constexpr image_desc_t bit = {IMAGE_FORMAT_GRAYSCALE, IMAGE_TYPE_UINT, IMAGE_BITS_1};
    constexpr image_desc_t wide = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_64};
    constexpr image_desc_t r5g6b5 = {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_R5G6B5};
    constexpr image_desc_t none = {IMAGE_FORMAT_DEPTH_STENCIL, IMAGE_TYPE_UINT, IMAGE_BITS_D24S8};
    using row = std::tuple<image_desc_t, image_store_t const*, image_window2d_t, unsigned int,
                           unsigned int, unsigned long, unsigned long, unsigned long>;
    constexpr unsigned long refused = ~0UL;
    for (auto const& [desc, store, window, width, height, rowsize, rowbyte, size] :
         {row{rgb8, nullptr, {0, 2, 3}, 5, 10, 16, 15, 208},
          row{rgb8, nullptr, {100, 0, 0}, 10, 2, 300, 30, 600},
          row{bit, &bytewise, {}, 33, 2, 5, 4, 10}, row{bit, &no_align, {}, 33, 2, 8, 4, 16},
          row{rgb8, &align8, {}, 3, 2, 16, 9, 32}, row{none, nullptr, {}, 7, 7, 0, 0, 0},
          row{rgb8, nullptr, {}, 0, 9, 0, 0, 0}, row{r5g6b5, nullptr, {}, 3, 2, 8, 6, 16},
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
    EXPECT_TRUE(first[0] == 7 && first.palette.red[1] == 8 && !second.palette.resize(0));
    second.clear();
    EXPECT_TRUE(first.refcount() == 1 && second.empty() && second.m_width == 0 &&
                second.desc == first.desc);
    std::ostringstream out;
    out << IMAGE_BITS_MAX << static_cast<e_image_format_t>(19) << IMAGE_TYPE_FLOAT;
    EXPECT_EQ(out.str(), "IMAGE_BITS_MAXunknown: IMAGE_TYPE_FLOAT") << "a name table ends";
}

TEST(pixels_within, tells_windows_that_leave_their_bytes) {
    // The last row needs no padding; a reader may take wider pixels; sums may pass 32 bits.
    std::ifstream in(WINDOWS);
    std::string heading;
    std::getline(std::getline(in, heading), heading);
    int rows = 0;
    image_window3d_t window;
    std::array<unsigned, 3> sizes;
    bool within;
    for (unsigned long bytes, pixelbits;
         in >> bytes >> pixelbits >> window.rowlength >> window.imageheight >> window.skippixels >>
         window.skiprows >> window.skipimages >> sizes[0] >> sizes[1] >> sizes[2] >> within;
         ++rows) {
        image3d_t volume;
        ASSERT_TRUE(volume.resize(bytes, 0));
        volume.window = window;
        std::tie(volume.m_width, volume.m_height, volume.m_depth) = std::tuple_cat(sizes);
        EXPECT_EQ(pixels_within(volume, pixelbits), within) << sizes[0] << ' ' << sizes[1];
        image2d_t image;
        static_cast<image_bytes_t&>(image) = volume;
        image.window = {window.rowlength, window.skippixels, window.skiprows};
        std::tie(image.m_width, image.m_height, std::ignore) = std::tuple_cat(sizes);
        EXPECT_TRUE(sizes[2] + window.skipimages != 1 || pixels_within(image, pixelbits) == within);
        image.compressed = true;
        EXPECT_FALSE(pixels_within(image, pixelbits));
    }
    EXPECT_EQ(rows, 21);
    image1d_t line;
    line.window.skippixels = 3;
    line.m_width = 4;
    EXPECT_TRUE(line.resize(7, 0) && line[1U] == line.begin() + 4);
    EXPECT_TRUE(pixels_within(line, 8) && !pixels_within(line, 9));
}

}  // namespace
