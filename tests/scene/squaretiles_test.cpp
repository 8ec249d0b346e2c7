// SPDX-License-Identifier: MIT
// The plan of tiles as numbers, and the windows and copies that are cut by it.
#include "scene/squaretiles.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/files/testfiles.h"

namespace {

libgr::image2d_t gray_picture(unsigned int width, unsigned int height) {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    EXPECT_TRUE(image.allocate());
    for (unsigned int y = 0; y < height; ++y) {
        for (unsigned int x = 0; x < width; ++x) {
            libgr::pixel_row(image, y)[x] = static_cast<unsigned char>(x * 3 + y * 5);
        }
    }
    return image;
}

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

struct cut_row_t {
    unsigned int width, height;
    unsigned long maxsize;
    char const* tiles;
};

cut_row_t const cuts[] = {
    {1, 1, 256, "1x1 1,1 [0 0 1 1]"},
    {256, 256, 256, "1x1 1,1 [0 0 256 256]"},
    {100, 60, 256, "1x1 0.78125,0.46875 [0 0 100 60]"},
    {64, 100, 256, "1x1 0.5,0.78125 [0 0 64 100]"},
    {128, 300, 256, "1x2 0.5,1.17188 [0 0 128 256] [0 256 128 44]"},
    {257, 3, 256, "2x1 1.00391,0.0117188 [0 0 256 3] [256 0 1 3]"},
    {600, 300, 256,
     "3x2 2.34375,1.17188 [0 0 256 256] [256 0 256 256] [512 0 88 256]"
     " [0 256 256 44] [256 256 256 44] [512 256 88 44]"},
    {1000, 100, 256,
     "4x1 3.90625,0.390625 [0 0 256 100] [256 0 256 100] [512 0 256 100] [768 0 232 100]"},
    {100, 256, 128, "1x2 0.78125,2 [0 0 100 128] [0 128 100 128]"},
};

TEST(SquareTiles, EveryPictureIsCutFromItsBottomLeft) {
    for (cut_row_t const& row : cuts) {
        libgr::image2d_t image = gray_picture(row.width, row.height);
        zanolib::multi_square_image_t windows;
        ASSERT_TRUE(zanolib::rectangle_to_squares(windows, image, row.maxsize, true));
        EXPECT_EQ(described(windows), row.tiles);
        zanolib::multi_square_image_t copies;
        ASSERT_TRUE(zanolib::rectangle_to_squares(copies, image, row.maxsize, false));
        ASSERT_EQ(copies.m_squares.size(), windows.m_squares.size());
        for (std::size_t i = 0; i < windows.m_squares.size(); ++i) {
            libgr::image2d_t const& window = windows.m_squares[i];
            libgr::image2d_t const& copy = copies.m_squares[i];
            EXPECT_EQ(window.begin(), image.begin()) << "a window copies nothing";
            EXPECT_NE(copy.begin(), image.begin());
            ASSERT_EQ(copy.m_width, window.m_width);
            unsigned int const top = window.m_height - 1;
            unsigned int const right = window.m_width - 1;
            EXPECT_EQ(libgr::pixel_row(copy, top)[right],
                      static_cast<unsigned char>((window.window.skippixels + right) * 3 +
                                                 (window.window.skiprows + top) * 5));
        }
        copies.clear();
        EXPECT_EQ(copies.m_cols + copies.m_rows + copies.m_squares.size(), 0U);
        EXPECT_EQ(copies.m_size, windows.m_size) << "stays";
    }
}

TEST(SquareTiles, WhatCannotBeCutIsRefused) {
    struct {
        unsigned int width, height;
        bool compressed;
        char const* line;
    } const rows[] = {
        {8, 8, true, "rectangle_to_squares(): compressed format not supported.\n"},
        {0, 8, false, "rectangle_to_squares(): outimg allocate failed.\n"},
        {8, 0, false, "rectangle_to_squares(): outimg allocate failed.\n"},
        {INT_MAX, INT_MAX, false, "rectangle_to_squares(): outimg allocate failed.\n"},
    };
    for (auto const& row : rows) {
        libgr::image2d_t image;
        image.m_width = row.width;
        image.m_height = row.height;
        image.compressed = row.compressed;
        zanolib::multi_square_image_t tiles;
        capture_t streams;
        EXPECT_FALSE(zanolib::rectangle_to_squares(tiles, image, 256, true));
        EXPECT_EQ(streams.err(), row.line);
        EXPECT_EQ(described(tiles), "0x0 0,0");
    }
}

}  // namespace
