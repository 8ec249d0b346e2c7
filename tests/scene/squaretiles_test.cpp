// SPDX-License-Identifier: MIT
// The windows and copies that pictures are cut into, as numbers.
#include "scene/squaretiles.h"

#include <gtest/gtest.h>

#include "tests/support/files/testfiles.h"

namespace {

/// Columns, rows and size in tile sides, then the window of each tile.
std::string described(zanolib::multi_square_image_t const& tiles) {
    std::ostringstream text;
    text << tiles.m_cols << "x" << tiles.m_rows << " " << tiles.m_size.x << "," << tiles.m_size.y;
    for (libgr::image2d_t const& tile : tiles.m_squares) {
        text << " [" << tile.window.skippixels << " " << tile.window.skiprows << " " << tile.m_width
             << " " << tile.m_height << "]";
    }
    return text.str();
}

TEST(SquareTiles, EveryPictureIsCutFromItsBottomLeft) {
    struct {
        unsigned int width, height, maxsize;
        char const* tiles;
    } const rows[] = {{1, 1, 256, "1x1 1,1 [0 0 1 1]"},
                      {256, 256, 256, "1x1 1,1 [0 0 256 256]"},
                      {64, 100, 256, "1x1 0.5,0.78125 [0 0 64 100]"},
                      {128, 300, 256, "1x2 0.5,1.17188 [0 0 128 256] [0 256 128 44]"},
                      {257, 3, 256, "2x1 1.00391,0.0117188 [0 0 256 3] [256 0 1 3]"},
                      {600, 300, 256,
                       "3x2 2.34375,1.17188 [0 0 256 256] [256 0 256 256] [512 0 88 256]"
                       " [0 256 256 44] [256 256 256 44] [512 256 88 44]"},
                      {100, 256, 128, "1x2 0.78125,2 [0 0 100 128] [0 128 100 128]"}};
    for (auto const& row : rows) {
        libgr::image2d_t image;
        image.desc = {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
        image.m_width = row.width;
        image.m_height = row.height;
        ASSERT_TRUE(image.allocate());
        unsigned char& corner = libgr::pixel_row(image, row.height - 1)[row.width - 1];
        corner = 77;
        zanolib::multi_square_image_t windows, copies;
        ASSERT_TRUE(zanolib::rectangle_to_squares(windows, image, row.maxsize, true));
        ASSERT_TRUE(zanolib::rectangle_to_squares(copies, image, row.maxsize, false));
        EXPECT_EQ(described(windows), row.tiles);
        // With bytes to swap, the tiles begin at the same pixels without skipping any.
        libgr::image_store_t const swapping = {true, 4};
        image.store = &swapping;
        zanolib::multi_square_image_t skipped;
        ASSERT_TRUE(zanolib::rectangle_to_squares(skipped, image, row.maxsize, true));
        for (std::size_t i = 0; i < skipped.m_squares.size(); ++i) {
            EXPECT_EQ(skipped.m_squares[i].begin(), libgr::pixel_row(windows.m_squares[i], 0));
            EXPECT_EQ(libgr::pixel_row(skipped.m_squares[i], 0), skipped.m_squares[i].begin());
        }
        image.store = nullptr;
        corner = 99;
        for (auto const& [tiles, seen] : {std::pair{&windows, 99}, std::pair{&copies, 77}}) {
            libgr::image2d_t const& last = tiles->m_squares.back();
            EXPECT_EQ(libgr::pixel_row(last, last.m_height - 1)[last.m_width - 1], seen);
        }
        image.compressed = true;
        capture_t streams;
        EXPECT_FALSE(zanolib::rectangle_to_squares(copies, image, row.maxsize, true));
        image.compressed = false;
        image.m_width = image.m_height = 0x7fffffff;
        EXPECT_FALSE(zanolib::rectangle_to_squares(copies, image, row.maxsize, true));
        image.m_width = 6 << 20;
        image.m_height = 1;
        EXPECT_FALSE(zanolib::rectangle_to_squares(copies, image, row.maxsize, true));
        EXPECT_EQ(streams.err(),
                  "rectangle_to_squares(): compressed format not supported.\n"
                  "exceeds limit tiles (262144 tiles).\n"
                  "rectangle_to_squares(): outimg allocate failed.\n"
                  "exceeds limit texel-ratio (8 texels for each pixel).\n"
                  "rectangle_to_squares(): outimg allocate failed.\n");
        EXPECT_EQ(copies.m_cols + copies.m_rows + copies.m_squares.size(), 0U);
    }
}

}  // namespace
