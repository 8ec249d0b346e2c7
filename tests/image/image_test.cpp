// SPDX-License-Identifier: MIT
// Tests of the image records: sizes of pixels and rows, sharing, and windows.
#include "image/image.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <sstream>

#include "tests/image/testimages.h"

namespace {

using namespace libgr;

TEST(ImageDesc, PixelBitsFollowFormatAndBits) {
    constexpr std::array components = {1, 2, 1, 1, 1, 1, 1, 2, 3, 4, 3, 4, 1, 2, 3, 4, 2, 1, 0};
    constexpr std::array bits = {1, 2, 4, 8, 12, 16, 24, 32, 64, 8, 16, 16, 32, 8, 16, 0, 0};
    std::ostringstream names;
    for (unsigned int i = 0; i < components.size(); ++i) {
        image_desc_t const desc = {static_cast<e_image_format_t>(i), IMAGE_TYPE_UINT, IMAGE_BITS_1};
        EXPECT_EQ(desc.getPixelBits(), components.at(i)) << desc.format;
    }
    for (unsigned int i = 0; i < bits.size(); ++i) {
        image_desc_t const desc = {IMAGE_FORMAT_RED, IMAGE_TYPE_UINT,
                                   static_cast<e_image_bits_t>(i)};
        EXPECT_EQ(desc.getPixelBits(), bits.at(i)) << desc.bits;
    }
    names << IMAGE_BITS_MAX << static_cast<e_image_format_t>(19) << IMAGE_TYPE_FLOAT;
    EXPECT_EQ(names.str(), "IMAGE_BITS_MAXunknown: IMAGE_TYPE_FLOAT");
}

TEST(Image2d, RowsArePaddedToTheAlignment) {
    constexpr image_store_t align0 = {false, 0}, align1 = {false, 1}, align8 = {false, 8};
    EXPECT_EQ(row_stride(5, 24, nullptr), 16U);
    EXPECT_EQ(row_stride(33, 1, &align0), 8U);
    EXPECT_EQ(row_stride(33, 1, &align1), 5U);
    EXPECT_EQ(row_stride(3, 24, &align8), 16U);
    image2d_t image = picture(rgb8, 11, {{}, {}});
    EXPECT_EQ(image.rowsize(), 36U);
    image.store = &align1;
    EXPECT_EQ(image.rowsize(), 33U);
    image.window = {100, 2, 3};
    EXPECT_EQ(image.rowsize(), 300U);
    EXPECT_EQ(image.rowbyte(), 33U);
    ASSERT_TRUE(image.allocate());
    EXPECT_EQ(image.size(), 1500U);
    image.desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_64};
    image.window = {1U << 31, 0, (1U << 28) - 2};
    EXPECT_FALSE(image.allocate()) << "2^64 bytes";
    EXPECT_EQ(image.size(), 1500U);
    image.desc.bits = IMAGE_BITS_D24S8;
    EXPECT_TRUE(image.allocate()) << "no bytes";
}

TEST(Image2d, CopiesShareBytesAndPalettes) {
    image2d_t first = picture(bytes_desc(IMAGE_FORMAT_INDEX), 2, {{1, 2}});
    ASSERT_TRUE(first.palette.resize(2));
    image2d_t second(first);
    EXPECT_EQ(first.refcount(), 2UL);
    second[0] = 7;
    second.palette.red[1] = 8;
    EXPECT_EQ(first[0], 7);
    EXPECT_EQ(first.palette.red[1], 8);
    EXPECT_FALSE(second.palette.resize(0));
    second.clear();
    EXPECT_EQ(first.refcount(), 1UL);
    EXPECT_TRUE(second.empty());
    EXPECT_EQ(second.m_width, 0U);
    EXPECT_EQ(second.desc, first.desc);
}

TEST(PixelsWithin, RejectsWindowsThatLeaveTheBytes) {
    std::ifstream in(WINDOWS);
    std::string line;
    std::getline(in, line);  // the names of the columns
    int rows = 0;
    for (; std::getline(in, line); ++rows) {
        std::istringstream columns(line);
        unsigned long bytes = 0, bits = 0;
        image3d_t volume;
        auto& [rowlength, imageheight, skippixels, skiprows, skipimages] = volume.window;
        bool expected = false;
        columns >> bytes >> bits >> rowlength >> imageheight >> skippixels >> skiprows >>
            skipimages >> volume.m_width >> volume.m_height >> volume.m_depth >> expected;
        ASSERT_TRUE(volume.resize(bytes, 0)) << line;
        EXPECT_EQ(pixels_within(volume, bits), expected) << line;
        image2d_t image;
        static_cast<image_bytes_t&>(image) = volume;
        image.window = {rowlength, skippixels, skiprows};
        image.m_width = volume.m_width;
        image.m_height = volume.m_height;
        if (volume.m_depth + skipimages == 1) {
            EXPECT_EQ(pixels_within(image, bits), expected) << line;
        }
        image.compressed = true;
        EXPECT_FALSE(pixels_within(image, bits)) << line;
    }
    EXPECT_EQ(rows, 21);
    image1d_t pixels;
    pixels.window.skippixels = 3;
    pixels.m_width = 4;
    ASSERT_TRUE(pixels.resize(7, 0));
    EXPECT_EQ(pixels[1U], pixels.begin() + 4);
    EXPECT_TRUE(pixels_within(pixels, 8));
    EXPECT_FALSE(pixels_within(pixels, 9));
}

}  // namespace
