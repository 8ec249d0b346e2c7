// SPDX-License-Identifier: MIT
// Tests of the tiles that pictures are cut into.
#include "scene/squaretiles.h"

#include <gtest/gtest.h>

#include "tests/support/files/testfiles.h"

namespace {

using zanolib::multi_square_image_t;
using zanolib::rectangle_to_squares;

libgr::image2d_t gray_picture(unsigned int width, unsigned int height) {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    EXPECT_TRUE(image.allocate());
    return image;
}

/// Columns x rows and the size in tiles, then the position and size of each tile.
std::string described(multi_square_image_t const& tiles) {
    std::ostringstream text;
    text << tiles.m_cols << "x" << tiles.m_rows << " " << tiles.m_size.x << "," << tiles.m_size.y;
    for (libgr::image2d_t const& tile : tiles.m_squares) {
        text << " [" << tile.window.skippixels << " " << tile.window.skiprows << " " << tile.m_width
             << " " << tile.m_height << "]";
    }
    return text.str();
}

TEST(SquareTiles, BeginAtTheBottomLeft) {
    struct {
        unsigned int width, height, maxsize;
        char const* tiles;
    } const rows[] = {
        {1, 1, 256, "1x1 1,1 [0 0 1 1]"},
        {256, 3, 256, "1x1 1,0.0117188 [0 0 256 3]"},
        {257, 3, 256, "2x1 1.00391,0.0117188 [0 0 256 3] [256 0 1 3]"},
        {512, 300, 256,
         "2x2 2,1.17188 [0 0 256 256] [256 0 256 256] [0 256 256 44] [256 256 256 44]"},
        {100, 256, 128, "1x2 0.78125,2 [0 0 100 128] [0 128 100 128]"}};
    for (auto const& row : rows) {
        libgr::image2d_t image = gray_picture(row.width, row.height);
        unsigned char& corner = libgr::pixel_row(image, row.height - 1)[row.width - 1];
        corner = 77;
        multi_square_image_t windows, copies, swapped;
        ASSERT_TRUE(rectangle_to_squares(windows, image, row.maxsize, true));
        ASSERT_TRUE(rectangle_to_squares(copies, image, row.maxsize, false));
        EXPECT_EQ(described(windows), row.tiles);
        // With bytes to swap, the tiles begin at the same pixels without skips.
        libgr::image_store_t const swapping = {true, 4};
        image.store = &swapping;
        image.count = image.size();
        ASSERT_TRUE(rectangle_to_squares(swapped, image, row.maxsize, true));
        for (std::size_t i = 0; i < swapped.m_squares.size(); ++i) {
            EXPECT_EQ(swapped.m_squares[i].begin(), libgr::pixel_row(windows.m_squares[i], 0));
            EXPECT_EQ(swapped.m_squares[i].window.skiprows, 0U);
            EXPECT_EQ(swapped.m_squares[i].end(), image.end());
        }
        corner = 99;
        auto const last_pixel = [](libgr::image2d_t const& tile) {
            return libgr::pixel_row(tile, tile.m_height - 1)[tile.m_width - 1];
        };
        EXPECT_EQ(last_pixel(windows.m_squares.back()), 99) << row.tiles;
        EXPECT_EQ(last_pixel(copies.m_squares.back()), 77) << row.tiles;
    }
}

TEST(SquareTiles, RejectPicturesThatExceedTheLimits) {
    capture_t streams;
    struct {
        unsigned int width, height, maxsize;
        bool compressed;
    } const rows[] = {{4, 4, 256, true},
                      {4, 4, 0, false},
                      {0x7fffffff, 0x7fffffff, 256, false},
                      {6 << 20, 1, 256, false}};
    for (auto const& row : rows) {
        libgr::image2d_t image = gray_picture(4, 4);
        image.m_width = row.width;
        image.m_height = row.height;
        image.compressed = row.compressed;
        multi_square_image_t tiles;
        EXPECT_FALSE(rectangle_to_squares(tiles, image, row.maxsize, true)) << row.width;
        EXPECT_EQ(tiles.m_cols + tiles.m_rows + tiles.m_squares.size(), 0U) << row.width;
    }
    EXPECT_EQ(streams.err(),
              "rectangle_to_squares(): compressed format not supported.\n"
              "rectangle_to_squares(): outimg allocate failed.\n"
              "exceeds limit tiles (262144 tiles).\n"
              "rectangle_to_squares(): outimg allocate failed.\n"
              "exceeds limit texel-ratio (8 texels for each pixel).\n"
              "rectangle_to_squares(): outimg allocate failed.\n");
}

}  // namespace
