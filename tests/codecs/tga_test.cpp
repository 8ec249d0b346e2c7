// SPDX-License-Identifier: MIT
// TGA files made field by field, read and written.
#include "codecs/tga.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "tests/codecs/filemakers.h"

namespace {

using namespace libgr;

using Tga = picture_test_t;

TEST_F(Tga, TakesPaddedBottomUpFiles) {
    std::vector<std::pair<tga_t, std::string>> const rows = {
        {{2, 3, 2, 8, ramp(8)}, "3x2 GRAYSCALE 8 0: 8"},
        {{2, 3, 1, 16, ramp(8)}, "3x1 BGRA R5G5B5A1 0: 8"},
        {{2, 3, 2, 24, ramp(24)}, "3x2 BGR 8 0: 24"},
        {{2, 3, 2, 24, ramp(18)}, "-"},  // unpadded
        {{2, 1, 1, 32, ramp(4)}, "1x1 BGRA 8 0: 4"},
        {{2, 2, 1, 15, ramp(4)}, "-"},
        // A map's entries count in bytes, and the ones before the first are there.
        {{1, 4, 1, 8, ramp(4), 0, "id", 1, 2, 3, ramp(9)}, "4x1 GRAYSCALE 8 0: 4"},
        {{1, 4, 1, 8, ramp(4), 0, "", 0, 2, 24, ramp(6)}, "-"},
        // Run lengths, no picture, top to bottom, no pixels, the largest claim.
        {{10, 4, 1, 24, ramp(12)}, "-"},
        {{0, 4, 1, 24, ramp(12)}, "-"},
        {{2, 4, 1, 24, ramp(12), 0x20}, "-"},
        {{2, 0, 1, 24, ""}, "-"},
        {{2, 65535, 65535, 255, ramp(64)}, "-"},
    };
    for (auto const& [fields, expected] : rows) {
        std::string const bytes = fields.bytes();
        write_file(file, bytes);
        image = {};
        EXPECT_EQ(outcome(image_tga_t().load(image, path)), expected);
        EXPECT_TRUE(image.empty() || pixels() == fields.pixels);
        tgaimage_t tga;  // which leads to the same header, id and map
        EXPECT_FALSE(tga.load(path, nullptr) && !tga.save(path, nullptr));
        EXPECT_EQ(read_file(file), bytes);
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            write_file(file, bytes.substr(0, size));
            EXPECT_FALSE(image_tga_t().load(image, path)) << "cut to " << size;
        }
    }
    EXPECT_FALSE(image_tga_t().load(image, dir.path().c_str()));
}

TEST_F(Tga, SavesRedFirstPicturesAlone) {
    // With the depth in the file, 0 where it is refused, and the bytes of two pixels.
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, unsigned, std::string>> const rows = {
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_8, 32, "\3\2\1\4\7\6\5\10"},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 24, {"\3\2\1\6\5\4\0\0", 8}},
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_R5G5B5A1, 16, ramp(8)},
        {IMAGE_FORMAT_BGR, IMAGE_BITS_8, 0, ""},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, 0, ""},
    };
    for (auto const& [format, bits, depth, bytes] : rows) {
        image = image_of(2, 1, format, bits, ramp(8));
        write_file(file, "old");
        EXPECT_EQ(image_tga_t().save(image, path), depth != 0);
        std::string const written = tga_t{2, 2, 1, depth, bytes}.bytes();
        EXPECT_EQ(read_file(file), depth != 0 ? written : "old");
        EXPECT_FALSE(image_tga_t().save(image, "/dev/full"));
        image.m_width = 65538;
        EXPECT_FALSE(image_tga_t().save(image, path));
    }
}

TEST_F(Tga, ConvertKeepsIdAndColourMap) {
    write_file(file, tga_t{1, 4, 1, 8, ramp(4), 0, "id", 1, 2, 3, ramp(9)}.bytes());
    tgaimage_t tga;
    ASSERT_TRUE(tga.load(path, nullptr));
    ASSERT_TRUE(convert(tga, image_of(2, 1, IMAGE_FORMAT_RGB, IMAGE_BITS_8, ramp(8))));
    EXPECT_EQ(std::tuple(tga.image_id.size(), tga.colormap.size()), std::tuple(2u, 9u));
    ASSERT_TRUE(tga.save(path, nullptr));
    std::string written =
        tga_t{2, 2, 1, 24, {"\3\2\1\6\5\4\0\0", 8}, 0, "id", 0, 0, 0, ramp(9)}.bytes();
    written[1] = 1;  // a colour map of no entries
    EXPECT_EQ(read_file(file), written);
}

/// A reader that waited for a writer would never come back.
TEST_F(picture_test_t, no_codec_reads_from_a_pipe) {
    ASSERT_EQ(mkfifo(path, 0600), 0);
    capture_t captured;
    EXPECT_FALSE(image_bmp_t().load(image, path) || image_bmp2_t().load(image, path));
    EXPECT_FALSE(BmpLoad(image, path, IMAGE_FORMAT_BGR) || image_tga_t().load(image, path));
    EXPECT_FALSE(image_png_t().load(image, path) || image_jpeg1_t().load(image, path));
    EXPECT_TRUE(captured.err().starts_with(file + ": file open error, Invalid argument\n"));
}

}  // namespace
