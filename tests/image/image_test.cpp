// SPDX-License-Identifier: MIT
// Tests of the image records: sizes of pixels and rows, sharing, and windows.
#include "image/image.h"

#include <sstream>

#include "tests/image/testimages.h"

namespace {

using namespace libgr;

TEST(ImageDesc, PixelBitsFollowFormatAndBits) {
    using sizes_t = std::initializer_list<unsigned int>;
    unsigned int format = 0, bits = 0;
    for (auto const expected : sizes_t{1, 2, 1, 1, 1, 1, 1, 2, 3, 4, 3, 4, 1, 2, 3, 4, 2, 1, 0}) {
        image_desc_t const desc = {static_cast<e_image_format_t>(format++), {}, IMAGE_BITS_1};
        EXPECT_EQ(desc.getPixelBits(), expected) << desc.format;
    }
    for (auto const expected :
         sizes_t{1, 2, 4, 8, 12, 16, 24, 32, 64, 8, 16, 16, 32, 8, 16, 0, 0}) {
        image_desc_t const desc = {IMAGE_FORMAT_RED, {}, static_cast<e_image_bits_t>(bits++)};
        EXPECT_EQ(desc.getPixelBits(), expected) << desc.bits;
    }
    std::ostringstream names;
    names << IMAGE_BITS_MAX << static_cast<e_image_format_t>(19) << IMAGE_TYPE_FLOAT;
    EXPECT_EQ(names.str(), "IMAGE_BITS_MAXunknown: IMAGE_TYPE_FLOAT");
}

TEST(Image2d, RowsArePaddedToTheAlignment) {
    constexpr image_store_t align0 = {false, 0}, align1 = {false, 1}, align8 = {false, 8};
    EXPECT_EQ(row_stride(33, 1, &align0), 8U);
    EXPECT_EQ(row_stride(3, 24, &align8), 16U);
    image2d_t image = picture(rgb8, 11, {{}, {}});
    EXPECT_EQ(image.rowsize(), 36U);
    image.store = &align1;
    image.window = {100, 2, 3};
    ASSERT_TRUE(image.allocate());
    EXPECT_EQ(image.size(), 1500U);
    image.desc = {IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_64};
    image.window = {1U << 31, 0, (1U << 28) - 2};
    EXPECT_FALSE(image.allocate()) << "2^64 bytes";
    image.desc.bits = IMAGE_BITS_D24S8;
    EXPECT_TRUE(image.allocate()) << "no bytes";
}

TEST(Image2d, CopiesShareBytesAndPalettes) {
    image2d_t first = picture(bytes_desc(IMAGE_FORMAT_INDEX), 2, {{1, 2}});
    ASSERT_TRUE(first.palette.resize(2));
    image2d_t second(first);
    second[0] = 7;
    second.palette.red[1] = 8;
    EXPECT_EQ(first[0], 7);
    EXPECT_EQ(first.palette.red[1], 8);
    EXPECT_FALSE(second.palette.resize(0));
    second.clear();
    EXPECT_EQ(first.refcount(), 1UL);
    EXPECT_EQ(second.m_width, 0U);
}

struct {
    char const* name;
    unsigned long bytes, bits;
    image_window3d_t window;  ///< row length, image height, skipped pixels, rows and images
    unsigned int width, height, depth;
    bool is_within;
} constexpr volumes[] = {
    {"padded rows", 47, 24, {}, 5, 3, 1, true},
    {"skipped pixels and rows", 94, 8, {10, 0, 5, 3}, 5, 5, 1, true},
    {"skipped pixels and rows, cut", 93, 8, {10, 0, 5, 3}, 5, 5, 1, false},
    {"8 bits", 1, 1, {0, 0, 7}, 1, 1, 1, true},
    {"9 bits", 1, 1, {0, 0, 8}, 1, 1, 1, false},
    {"2^32 + 1 columns", 100, 8, {0, 0, ~0U}, 2, 1, 1, false},
    {"2^32 rows", 100, 8, {0, 0, 0, ~0U}, 1, 1, 1, false},
    {"2^32 + 1 images", 100, 8, {0, 0, 0, 0, ~0U}, 4, 5, 2, false},
    {"the largest pixel", 8192, 65536, {}, 1, 1, 1, true},
    {"too large a pixel", 9000, 65537, {}, 1, 1, 1, false},
    {"no columns", 4, 8, {5, 5, 5}, 0, 1, 1, true},
    {"no rows", 0, 8, {5, 5, 5, 5}, 9, 0, 1, true},
    {"images", 100, 8, {}, 4, 5, 5, true},
    {"a skipped image", 80, 8, {8, 5, 4, 4, 1}, 4, 1, 1, true},
    {"a skipped image, cut", 79, 8, {8, 5, 4, 4, 1}, 4, 1, 1, false},
    {"one image of a large height", 100, 8, {0, ~0U}, 4, 5, 1, true},
    {"images of 2^64 bytes", 100, 64, {1U << 31, 1U << 30}, 4, 1, 2, false},
};

TEST(PixelsWithin, RejectsWindowsThatLeaveTheBytes) {
    for (auto const& [name, bytes, bits, window, width, height, depth, is_within] : volumes) {
        SCOPED_TRACE(name);
        image1d_t line;
        image2d_t image;
        image3d_t volume;
        ASSERT_TRUE(volume.resize(bytes, 0));
        static_cast<image_bytes_t&>(line) = static_cast<image_bytes_t&>(image) = volume;
        line.window.skippixels = window.skippixels;
        image.window = {window.rowlength, window.skippixels, window.skiprows};
        volume.window = window;
        line.m_width = image.m_width = volume.m_width = width;
        image.m_height = volume.m_height = height;
        volume.m_depth = depth;
        EXPECT_EQ(pixels_within(volume, bits), is_within);
        if (depth == 1 && window.skipimages == 0) {
            EXPECT_EQ(pixels_within(image, bits), is_within);
        }
        if (depth == 1 && height == 1 && window.skiprows + window.skipimages == 0) {
            EXPECT_EQ(pixels_within(line, bits), is_within);
            EXPECT_EQ(line[1U], line.begin() + 1 + window.skippixels);
        }
        line.compressed = volume.compressed = true;
        EXPECT_FALSE(pixels_within(line, bits));
        EXPECT_FALSE(pixels_within(volume, bits));
    }
}

}  // namespace
