// SPDX-License-Identifier: MIT
// The three BMP readers on the same files, and the writer.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "tests/codecs/picturebytes.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

struct reader_row_t {
    char const* name;
    std::string bytes;
    char const* mapped;    // by image_bmp2_t
    char const* streamed;  // by image_bmp_t
    char const* known;     // by BmpLoad as RGB
};

std::vector<reader_row_t> const& reader_rows() {
    std::string const quads = ramp(64);
    static std::vector<reader_row_t> const rows = {
        {"24 bits", bmp_fields_t{4, 2, 24, ramp(24)}.bytes(), "4x2 BGR 8 0", "4x2 BGR 8 0",
         "4x2 RGB 8 0"},
        {"24 bits and a palette", bmp_fields_t{1, 1, 24, ramp(4), quads}.bytes(), "1x1 BGR 8 0",
         "1x1 BGR 8 0", "1x1 RGB 8 0"},
        {"32 bits", bmp_fields_t{2, 1, 32, ramp(8)}.bytes(), "2x1 BGRA 8 0", "refused",
         "2x1 RGB 64 0"},
        {"32 bits and a palette", bmp_fields_t{2, 1, 32, ramp(8), quads}.bytes(), "refused",
         "refused", "2x1 RGB 64 0"},
        {"8 bits, palette area of 1024 bytes counted as entries",
         bmp_fields_t{64, 64, 8, std::string(4096, 5), std::string(1024, 9)}.bytes(),
         "64x64 INDEX 8 1024", "64x64 GRAYSCALE 8 0", "64x64 RGB 8 0"},
        {"4 bits, palette as far as the file goes", bmp_fields_t{3, 1, 4, ramp(4), quads}.bytes(),
         "3x1 INDEX 4 16", "3x1 GRAYSCALE 4 0", "3x1 RGB 4 0"},
        {"1 bit without a palette", bmp_fields_t{33, 1, 1, ramp(8)}.bytes(), "33x1 GRAYSCALE 1 0",
         "33x1 GRAYSCALE 1 0", "33x1 RGB 1 0"},
        {"pixels at the file's start", bmp_fields_t{2, 2, 8, quads, "", 0, 0}.bytes(),
         "2x2 INDEX 8 15", "2x2 GRAYSCALE 8 0", "2x2 RGB 8 0"},
        {"not BM", bmp_fields_t{4, 1, 8, ramp(4), "", 0, -1, "XY"}.bytes(), "4x1 GRAYSCALE 8 0",
         "refused", "refused"},
        {"run lengths", bmp_fields_t{4, 1, 8, ramp(4), "", 1}.bytes(), "refused", "refused",
         "refused"},
        {"16 bits", bmp_fields_t{2, 1, 16, ramp(4)}.bytes(), "refused", "refused", "refused"},
        {"2 bits", bmp_fields_t{16, 1, 2, ramp(4)}.bytes(), "refused", "refused", "16x1 RGB 64 0"},
        {"pixels past the end", bmp_fields_t{4, 1, 8, ramp(4), "", 0, 59}.bytes(), "refused",
         "refused", "refused"},
        {"top down", bmp_fields_t{4, 0U - 4, 24, ramp(48)}.bytes(), "refused", "refused",
         "refused"},
        {"width of 0", bmp_fields_t{0, 4, 24, ramp(48)}.bytes(), "refused", "0x4 BGR 8 0",
         "0x4 RGB 8 0"},
        {"largest sides", bmp_fields_t{~0U, ~0U, 24, ramp(48)}.bytes(), "refused", "refused",
         "refused"},
        {"bits beyond 64 bits", bmp_fields_t{~0U, ~0U, 65535, ramp(48)}.bytes(), "refused",
         "refused", "refused"},
        {"few bytes for a wide row", bmp_fields_t{1U << 28, 1, 8, ramp(48)}.bytes(), "refused",
         "refused", "refused"},
    };
    return rows;
}

TEST(BmpReaders, TakeOrRefuseTheSameFiles) {
    temp_dir_t const dir;
    long const files = open_files();
    for (reader_row_t const& row : reader_rows()) {
        SCOPED_TRACE(row.name);
        std::string const path = write_file(dir.file("x.bmp"), row.bytes);
        image2d_t mapped;
        image2d_t streamed;
        image2d_t known;
        known.desc.bits = IMAGE_BITS_64;
        EXPECT_EQ(outcome(image_bmp2_t().load(mapped, path.c_str()), mapped), row.mapped);
        EXPECT_EQ(outcome(image_bmp_t().load(streamed, path.c_str()), streamed), row.streamed);
        EXPECT_EQ(outcome(BmpLoad(known, path.c_str(), IMAGE_FORMAT_RGB), known), row.known);
    }
    for (std::string const& path :
         {dir.file("none.bmp"), dir.path(), write_file(dir.file("0"), "")}) {
        image2d_t image;
        EXPECT_FALSE(image_bmp2_t().load(image, path.c_str())) << path;
        EXPECT_FALSE(image_bmp_t().load(image, path.c_str())) << path;
        EXPECT_FALSE(BmpLoad(image, path.c_str(), IMAGE_FORMAT_RGB)) << path;
    }
    EXPECT_EQ(open_files(), files);
}

// Cut at each byte, a file shows what is left of its rows over zeros, or is refused.
TEST(BmpReaders, ShowACutFileAsFarAsItGoes) {
    temp_dir_t const dir;
    std::string const pixels = ramp(12);
    std::string const whole = bmp_fields_t{3, 3, 8, pixels, ramp(8)}.bytes();
    constexpr std::size_t k_offset = 62;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        std::string const path = write_file(dir.file("x.bmp"), whole.substr(0, size));
        std::string shown = whole.substr(0, size).substr(std::min(size, k_offset));
        shown.resize(pixels.size());
        image2d_t image;
        if (size < k_offset + 3) {
            EXPECT_FALSE(image_bmp2_t().load(image, path.c_str()));
        } else {
            ASSERT_TRUE(image_bmp2_t().load(image, path.c_str()));
            EXPECT_EQ(pixels_of(image), shown);
            EXPECT_EQ(image.is_writable(), size < whole.size()) << "pixels stay in the mapping";
            EXPECT_EQ(image.palette.red[1], 7 * 257);
            EXPECT_EQ(image.palette.green[1], 6 * 257);
            EXPECT_EQ(image.palette.blue[1], 5 * 257);
        }
        ASSERT_EQ(image_bmp_t().load(image, path.c_str()), size >= k_offset);
        if (size >= k_offset) {
            EXPECT_EQ(pixels_of(image), shown);
        }
    }
}

TEST(BmpReaders, KeepTheirOwnRowRules) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.bmp");
    image2d_t image;

    // Row bytes are cut before they are padded: 33 pixels of 1 bit are 4 bytes, 7 of them none.
    write_file(path, bmp_fields_t{33, 2, 1, ramp(16)}.bytes());
    ASSERT_TRUE(image_bmp_t().load(image, path.c_str()));
    EXPECT_EQ(pixels_of(image), ramp(8));
    ASSERT_TRUE(image_bmp2_t().load(image, path.c_str()));
    EXPECT_EQ(pixels_of(image), ramp(16));
    write_file(path, bmp_fields_t{7, 2, 1, ramp(8)}.bytes());
    ASSERT_TRUE(image_bmp_t().load(image, path.c_str()));
    EXPECT_TRUE(image.empty());

    // Unpadded sizes with padded steps: the last row's swap ends with the block.
    write_file(path, bmp_fields_t{3, 3, 24, ramp(36)}.bytes());
    ASSERT_TRUE(BmpLoad(image, path.c_str(), IMAGE_FORMAT_RGB));
    EXPECT_EQ(pixels_of(image), bytes_of({3,  2,  1,  6,  5,  4,  9,  8,  7,  10, 11, 12, 15, 14,
                                          13, 18, 17, 16, 21, 20, 19, 22, 23, 24, 27, 26, 25}));

    // A palette behind a header of 108 bytes that names its colour space.
    std::string const header = "BGRs" + std::string(64, 'h');
    write_file(path, bmp_fields_t{4, 1, 8, ramp(4), header + bytes_of({1, 2, 3, 0})}.bytes());
    ASSERT_TRUE(image_bmp2_t().load(image, path.c_str()));
    EXPECT_EQ(outcome(true, image), "4x1 INDEX 8 1");
    EXPECT_EQ(image.palette.red[0], 3 * 257);
}

TEST(BmpWriter, WritesGrayAndBgrAsTheyLie) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.bmp");
    struct {
        e_image_format_t format;
        e_image_bits_t bits;
        unsigned int depth;  // 0 where it is refused
    } const rows[] = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, 1},  {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, 4},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, 8},  {IMAGE_FORMAT_BGR, IMAGE_BITS_8, 24},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, 0}, {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 0},
        {IMAGE_FORMAT_BGRA, IMAGE_BITS_8, 0},
    };
    for (auto const& row : rows) {
        image2d_t image = image_of(4, 2, row.format, row.bits, ramp(24));
        write_file(path, "old");
        capture_t capture;
        bool const saved = row.depth != 0;
        std::string const written = bmp_fields_t{4, 2, row.depth, ramp(24)}.bytes();
        EXPECT_EQ(image_bmp_t().save(image, path.c_str()), saved);
        EXPECT_EQ(read_file(path), saved ? written : "old");
        EXPECT_EQ(capture.err(), saved ? "" : "convert(to bmp): not supported format.\n");
        image.compressed = true;
        EXPECT_FALSE(image_bmp_t().save(image, path.c_str()));
        EXPECT_EQ(capture.err(), "");
        image.compressed = false;
        image.desc.type = IMAGE_TYPE_FLOAT;
        EXPECT_FALSE(image_bmp_t().save(image, path.c_str()));
    }
    image2d_t const image = image_of(4, 2, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, ramp(8));
    EXPECT_FALSE(image_bmp_t().save(image, dir.file("none/x.bmp").c_str()));
    EXPECT_FALSE(image_bmp_t().save(image, "/dev/full"));
    EXPECT_FALSE(image_bmp2_t().save(image, path.c_str()));
}

}  // namespace
