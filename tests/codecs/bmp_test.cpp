// SPDX-License-Identifier: MIT
// The three BMP readers on the same files, and the writer.
#include <gtest/gtest.h>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "tests/codecs/filemakers.h"

namespace {

using namespace libgr;

std::string const palette_bytes = ramp(64);
std::string const area_bytes(1024, 'q');
std::string const far_bytes(4096, 'p');
std::string const large_bytes(300000, 'l');
std::string const srgb_header = "BGRs" + std::string(64, 'h') + "rgb0";
struct {
    bmp_t file;
    char const *mapped, *streamed, *known;  // by image_bmp2_t, image_bmp_t, and BmpLoad as RGB
    char const* limit = "";                 // that image_bmp2_t reports
} const load_rows[] = {
    {{4, 2, 24, ramp(24)}, "4x2 BGR 8 0: 24", "4x2 BGR 8 0: 24", "4x2 RGB 8 0: 24"},
    {{1, 1, 24, ramp(4), palette_bytes}, "1x1 BGR 8 0: 4", "1x1 BGR 8 0: 4", "1x1 RGB 8 0: 3"},
    {{2, 1, 32, ramp(8)}, "2x1 BGRA 8 0: 8", "-", "2x1 RGB 64 0: 8"},
    {{2, 1, 32, ramp(8), palette_bytes}, "-", "-", "2x1 RGB 64 0: 8"},
    // The palette area's bytes count as entries, as far as the file goes.
    {{4, 1, 8, far_bytes, area_bytes},
     "4x1 INDEX 8 1024: 4096",
     "4x1 GRAYSCALE 8 0: 4",
     "4x1 RGB 8 0: 4"},
    {{3, 1, 4, ramp(4), palette_bytes},
     "3x1 INDEX 4 16: 4",
     "3x1 GRAYSCALE 4 0: 4",
     "3x1 RGB 4 0: 0"},
    {{4, 1, 8, ramp(4), srgb_header}, "4x1 INDEX 8 1: 4", "4x1 GRAYSCALE 8 0: 4", "4x1 RGB 8 0: 4"},
    // The streams' row bytes are cut before they are padded.
    {{33, 1, 1, ramp(8)}, "33x1 GRAYSCALE 1 0: 8", "33x1 GRAYSCALE 1 0: 4", "33x1 RGB 1 0: 0"},
    {{7, 1, 1, ramp(4)}, "7x1 GRAYSCALE 1 0: 4", "7x1 GRAYSCALE 1 0: 0", "7x1 RGB 1 0: 0"},
    // Pixels at the file's start, and past its end.
    {{2, 2, 8, ramp(12), "", 0, 0}, "2x2 INDEX 8 2: 66", "2x2 GRAYSCALE 8 0: 8", "2x2 RGB 8 0: 4"},
    {{4, 1, 8, ramp(4), "", 0, 59}, "-", "-", "-"},
    // Not BM, run lengths, other depths.
    {{4, 1, 8, ramp(4), "", 0, -1, "XY"}, "4x1 GRAYSCALE 8 0: 4", "-", "-"},
    {{4, 1, 8, ramp(4), "", 1}, "-", "-", "-"},
    {{2, 1, 16, ramp(4)}, "-", "-", "-"},
    // Rows that run top to bottom, no pixels, and sizes beyond the limits.
    {{40000, 0U - 4, 24, ramp(120000)}, "-", "-", "-", "bmp-ratio "},
    {{0, 4, 24, ramp(48)}, "-", "0x4 BGR 8 0: 0", "0x4 RGB 8 0: 0"},
    {{~0U, ~0U, 65535, ramp(48)}, "-", "-", "-"},
    {{6, 1U << 22, 8, ramp(48)},
     "-",
     "6x4194304 GRAYSCALE 8 0: 33554432",
     "6x4194304 RGB 8 0: 25165824",
     "bmp-ratio "},
    {{1, 2, 8, large_bytes, "", 0, 0},
     "1x2 INDEX 8 65536: 300054",
     "1x2 GRAYSCALE 8 0: 8",
     "1x2 RGB 8 0: 2",
     "bmp-palette "},
};

using Bmp = picture_test_t;

TEST_F(Bmp, ReadersTakeOrRefuseTheSameFiles) {
    for (auto const& row : load_rows) {
        SCOPED_TRACE(row.mapped);
        write_file(file, row.file.bytes());
        capture_t capture;
        EXPECT_EQ(outcome(image_bmp2_t().load(image, path)), row.mapped);
        EXPECT_EQ(limits_in(capture.err(), file), row.limit);
        image = {};
        EXPECT_EQ(outcome(image_bmp_t().load(image, path)), row.streamed);
        image.desc.bits = IMAGE_BITS_64;
        EXPECT_EQ(outcome(BmpLoad(image, path, IMAGE_FORMAT_RGB)), row.known);
    }
    for (std::string const& none : {dir.file("none"), dir.path(), write_file(file, "")}) {
        EXPECT_FALSE(image_bmp2_t().load(image, none.c_str())) << none;
        EXPECT_FALSE(image_bmp_t().load(image, none.c_str())) << none;
        EXPECT_FALSE(BmpLoad(image, none.c_str(), IMAGE_FORMAT_RGB)) << none;
    }
}

TEST_F(Bmp, ReadersShowACutFileAsFarAsItGoes) {
    std::string const pixel_bytes = ramp(12), whole = bmp_t{3, 3, 8, pixel_bytes, ramp(8)}.bytes();
    std::size_t const offset = whole.size() - 12;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        write_file(file, whole.substr(0, size));
        std::string shown = pixel_bytes.substr(0, std::max(size, offset) - offset);
        shown.resize(12);
        ASSERT_EQ(image_bmp2_t().load(image, path), size >= offset + 3);
        if (size >= offset + 3) {
            EXPECT_EQ(pixels(), shown);
            EXPECT_EQ(image.is_writable(), size < whole.size()) << "pixels stay in the mapping";
            palette_t const& colors = image.palette;
            EXPECT_EQ(std::tuple(colors.red[1], colors.green[1], colors.blue[1]),
                      std::tuple(7 * 257, 6 * 257, 5 * 257));
        }
        ASSERT_EQ(image_bmp_t().load(image, path), size >= offset);
        EXPECT_TRUE(size < offset || pixels() == shown);
        image = {};
    }
    // A short file takes no memory for the bytes that it does not have.
    unsigned long const size = 8192UL * 12288 * 3;
    write_file(file, bmp_t{8192, 12288, 24, ramp(700000)}.bytes());
    for (bool const known : {false, true}) {
        long const before = resident_bytes();
        ASSERT_TRUE(known ? BmpLoad(image, path, IMAGE_FORMAT_RGB)
                          : image_bmp_t().load(image, path));
        EXPECT_LT(resident_bytes() - before, 64 << 20);
        EXPECT_EQ(image.size(), size);
        EXPECT_EQ(image[known ? 700001 : 699999], 0x60) << "the last byte of the file";
        EXPECT_EQ(image[known ? 699999 : 700001] + image[size - 1], 0);
        image = {};
    }
    // Unpadded sizes with padded steps: the second row's swap of colours would leave the block.
    write_file(file, bmp_t{1, 2, 24, ramp(8)}.bytes());
    ASSERT_TRUE(BmpLoad(image, path, IMAGE_FORMAT_RGB));
    EXPECT_EQ(pixels(), "\3\2\1\4\5\6");
}

TEST_F(Bmp, WriterTakesGrayAndBgrAsTheyLie) {
    // With the depth in the file, 0 where it is refused.
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, unsigned int>> const rows = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, 1},  {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, 4},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, 8},  {IMAGE_FORMAT_BGR, IMAGE_BITS_8, 24},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, 0}, {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 0},
    };
    for (auto const& [format, bits, depth] : rows) {
        image = image_of(4, 2, format, bits, ramp(24));
        write_file(file, "old");
        capture_t capture;
        EXPECT_EQ(image_bmp_t().save(image, path), depth != 0);
        std::string const written = bmp_t{4, 2, depth, ramp(24)}.bytes();
        EXPECT_EQ(read_file(file), depth != 0 ? written : "old");
        EXPECT_EQ(capture.err(), depth != 0 ? "" : "convert(to bmp): not supported format.\n");
        EXPECT_FALSE(image_bmp_t().save(image, dir.path().c_str()));
        EXPECT_FALSE(image_bmp_t().save(image, "/dev/full"));
        image.compressed = true;
        EXPECT_FALSE(image_bmp_t().save(image, path));
    }
}

}  // namespace
