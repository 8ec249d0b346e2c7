// SPDX-License-Identifier: MIT
// The TGA codec.
#include "codecs/tga.h"

#include <gtest/gtest.h>

#include "tests/codecs/filemakers.h"

namespace {

using namespace libgr;

using Tga = picture_test_t;

TEST_F(Tga, LoadsOrRejectsFiles) {
    constexpr char const* rle = "run-length encoded TGA";
    std::vector<std::pair<tga_t, char const*>> const rows = {
        {{2, 3, 2, 8, ramp(8)}, "3x2 GRAYSCALE 8 0: 8"},
        {{2, 3, 1, 16, ramp(8)}, "3x1 BGRA R5G5B5A1 0: 8"},
        {{2, 3, 2, 24, ramp(24)}, "3x2 BGR 8 0: 24"},
        {{2, 1, 1, 32, ramp(4)}, "1x1 BGRA 8 0: 4"},
        // The entry size of a colour map is in bytes. Entries before the first one are in the file.
        {{1, 4, 1, 8, ramp(4), 0, "id", 1, 2, 3, ramp(9)}, "4x1 GRAYSCALE 8 0: 4"},
        {{1, 4, 1, 8, ramp(4), 0, "", 0, 2, 24, ramp(6)},
         "TGA with a colour map of 2 entries of 24 bits"},
        {{1, 4, 12, 8, ramp(48), 0, "", 0, 2, 24, ramp(6)},
         "TGA with a colour map of 2 entries of 24 bits"},
        {{2, 3, 2, 24, ramp(18)}, "TGA with rows that are not a multiple of 4 bytes"},
        {{2, 3, 2, 24, ramp(17)}, "ends within its pixels"},
        {{2, 65535, 65535, 32, ramp(64)}, "ends within its pixels"},
        {{2, 2, 1, 15, ramp(4)}, "TGA with the unsupported depth of 15 bits"},
        {{0, 4, 1, 24, ramp(12)}, "TGA of the unsupported type 0"},
        {{3, 4, 1, 8, ramp(4)}, "TGA of gray levels"},
        {{9, 4, 1, 8, ""}, rle},
        {{10, 4, 1, 24, ramp(12)}, rle},
        {{11, 4, 1, 8, ramp(4)}, rle},
        {{2, 4, 1, 24, ramp(12), 0x20}, "TGA with the top row first"},
        {{2, 0, 1, 24, ""}, "no pixels"},
    };
    for (auto const& [fields, result] : rows) {
        SCOPED_TRACE(result);
        std::string const bytes = fields.bytes();
        EXPECT_EQ(load<image_tga_t>(bytes), result);
        EXPECT_EQ(pixels(), is_loaded ? fields.pixels : "");
        EXPECT_EQ(lines, "");
        tgaimage_t tga;
        if (tga.load(file.c_str(), nullptr)) {
            EXPECT_TRUE(tga.save(file.c_str(), nullptr));
            EXPECT_EQ(read_file(file), bytes);
        }
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            std::string const reason = load<image_tga_t>(bytes.substr(0, size));
            EXPECT_FALSE(is_loaded) << "cut to " << size;
            EXPECT_EQ(reason == "empty file", size == 0);
            EXPECT_EQ(reason == "ends within its header", size > 0 && size < 18);
        }
    }
    EXPECT_EQ(load<image_tga_t>(rows[4].first.bytes().substr(0, 19)),
              "ends within its image identifier");
    load_file<image_tga_t>(dir.path());
    EXPECT_FALSE(is_loaded);
}

TEST_F(Tga, SavesOnlyPicturesInRgbOrder) {
    constexpr unsigned int rejected = 0;
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, unsigned, std::string>> const rows = {
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_8, 32, "\3\2\1\4\7\6\5\10"},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 24, {"\3\2\1\6\5\4\0\0", 8}},
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_R5G5B5A1, 16, ramp(8)},
        {IMAGE_FORMAT_BGR, IMAGE_BITS_8, rejected, ""},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, rejected, ""},
    };
    for (auto const& [format, bits, depth, bytes] : rows) {
        image = image_of(2, 1, format, bits, ramp(8));
        write_file(file, "old");
        EXPECT_EQ(image_tga_t().save(image, file.c_str()), depth != rejected);
        std::string const written = tga_t{2, 2, 1, depth, bytes}.bytes();
        EXPECT_EQ(read_file(file), depth != rejected ? written : "old");
        EXPECT_FALSE(image_tga_t().save(image, "/dev/full"));
        image.m_width = 65538;
        EXPECT_FALSE(image_tga_t().save(image, file.c_str()));
    }
}

TEST_F(Tga, ConvertKeepsIdentifierAndColourMap) {
    write_file(file, tga_t{1, 4, 1, 8, ramp(4), 0, "id", 1, 2, 3, ramp(9)}.bytes());
    tgaimage_t tga;
    ASSERT_TRUE(tga.load(file.c_str(), nullptr));
    ASSERT_TRUE(convert(tga, image_of(2, 1, IMAGE_FORMAT_RGB, IMAGE_BITS_8, ramp(8))));
    ASSERT_TRUE(tga.save(file.c_str(), nullptr));
    std::string written =
        tga_t{2, 2, 1, 24, {"\3\2\1\6\5\4\0\0", 8}, 0, "id", 0, 0, 0, ramp(9)}.bytes();
    written[1] = 1;  // there is a colour map, without entries
    EXPECT_EQ(read_file(file), written);
}

}  // namespace
