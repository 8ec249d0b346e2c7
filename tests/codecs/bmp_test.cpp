// SPDX-License-Identifier: MIT
// The three BMP readers with the same files, and the BMP writer.
#include <gtest/gtest.h>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "tests/codecs/filemakers.h"

namespace {

using namespace libgr;

struct known_bmp_t : image_object_t {
    bool load(image2d_t& image, char const* path) override {
        return BmpLoad(image, path, IMAGE_FORMAT_RGB);
    }
};

std::string const palette = ramp(64);
std::string const area(1024, 'q');
std::string const tail(4096, 'p');
std::string const large(300000, 'l');
std::string const srgb_header = "BGRs" + std::string(64, 'h') + "rgb0";

constexpr char const* row_reason = "ends within its first row";
constexpr char const* other = "not a BMP file";
constexpr char const* method_4 = "BMP with the unsupported compression 4";
constexpr char const* rle = "run-length encoded BMP";
constexpr char const* fields = "BMP with bit fields";
constexpr char const* depth_16 = "BMP with the unsupported depth of 16 bits";
constexpr char const* depth_32 = "BMP with the unsupported depth of 32 bits";
constexpr char const* long_32 = "BMP of 32 bits with a palette or a longer header";
constexpr char const* memory = "exceeds limit picture-memory (50 percent of the machine's memory)";
constexpr char const* two_mib = "16x131072 GRAYSCALE 8 0: 2097152";
constexpr char const* ratio =
    "exceeds limit bmp-ratio (16 bytes of pixels for each that the file has)";

/// A file, and the results of image_bmp2_t and image_bmp_t.
std::tuple<bmp_t, char const*, char const*> const load_rows[] = {
    {{4, 2, 24, ramp(24)}, "4x2 BGR 8 0: 24", "4x2 BGR 8 0: 24"},
    {{1, 1, 24, ramp(4), palette}, "1x1 BGR 8 0: 4", "1x1 BGR 8 0: 4"},
    {{2, 1, 32, ramp(8)}, "2x1 BGRA 8 0: 8", depth_32},
    {{2, 1, 32, ramp(8), palette}, long_32, depth_32},
    // The bytes of the palette count as entries. The rest of the file limits them.
    {{4, 1, 8, tail, area}, "4x1 INDEX 8 1024: 4096", "4x1 GRAYSCALE 8 0: 4"},
    {{3, 1, 4, ramp(4), palette}, "3x1 INDEX 4 16: 4", "3x1 GRAYSCALE 4 0: 4"},
    {{4, 1, 8, ramp(4), srgb_header}, "4x1 INDEX 8 1: 4", "4x1 GRAYSCALE 8 0: 4"},
    // The stream reader rounds the bits of a row down to bytes.
    {{33, 1, 1, ramp(8)}, "33x1 GRAYSCALE 1 0: 8", "33x1 GRAYSCALE 1 0: 4"},
    {{7, 1, 1, ramp(4)}, "7x1 GRAYSCALE 1 0: 4", "7x1 GRAYSCALE 1 0: 0"},
    // Pixels at the start of the file, and after its end.
    {{2, 2, 8, ramp(12), "", 0, 0}, "2x2 INDEX 8 2: 66", "2x2 GRAYSCALE 8 0: 8"},
    {{4, 1, 8, ramp(4), "", 0, 59}, row_reason, "ends before its pixels"},
    // The mapping reader does not check the signature.
    {{4, 1, 8, ramp(4), "", 0, -1, "XY"}, "4x1 GRAYSCALE 8 0: 4", other},
    {{2, 1, 16, ramp(4), "", 0, -1, "XY"}, other, other},
    {{4, 1, 8, ramp(4), "", 1}, rle, rle},
    {{4, 1, 4, ramp(4), "", 2}, rle, rle},
    {{4, 1, 16, ramp(8), "", 3}, fields, fields},
    {{4, 1, 24, ramp(12), "", 4}, method_4, method_4},
    {{4, 1, 32, ramp(16), "", 6}, fields, fields},
    {{2, 1, 16, ramp(4)}, depth_16, depth_16},
    // No columns, a negative height, and more than fifteen sixteenths of the pixels missing.
    {{0, 4, 24, ramp(48)}, "no pixels", "0x4 BGR 8 0: 0"},
    {{40000, 0U - 4, 24, ramp(120000)}, "BMP with the top row first", memory},
    {{6, 1U << 22, 8, ramp(48)}, ratio, "6x4194304 GRAYSCALE 8 0: 33554432"},
    {{16, 131072, 8, std::string(131071, 's')}, ratio, two_mib},
    {{16, 131072, 8, std::string(131072, 's')}, two_mib, two_mib},
    {{16, 65536, 8, ramp(48)},
     "16x65536 GRAYSCALE 8 0: 1048576",
     "16x65536 GRAYSCALE 8 0: 1048576"},
    {{1, 2, 8, large, "", 0, 0}, "1x2 INDEX 8 65536: 300054", "1x2 GRAYSCALE 8 0: 8"},
};

/// A file, and the result of BmpLoad.
std::pair<bmp_t, char const*> const known_rows[] = {
    {{4, 2, 24, ramp(24)}, "4x2 RGB 8 0: 24"},
    {{1, 1, 24, ramp(4), palette}, "1x1 RGB 8 0: 3"},
    {{2, 1, 32, ramp(8), palette}, "2x1 RGB 64 0: 8"},
    {{3, 1, 4, ramp(4), palette}, "3x1 RGB 4 0: 0"},
    {{33, 1, 1, ramp(8)}, "33x1 RGB 1 0: 0"},
    {{4, 1, 8, ramp(4), "", 0, -1, "XY"}, other},
    {{4, 1, 8, ramp(4), "", 1}, rle},
    {{2, 1, 16, ramp(4)}, depth_16},
    {{40000, 0U - 4, 24, ramp(120000)}, memory},
    {{6, 1U << 22, 8, ramp(48)}, "6x4194304 RGB 8 0: 25165824"},
};

using Bmp = picture_test_t;

TEST_F(Bmp, ReadersLoadOrRejectFiles) {
    for (auto const& [bmp, result] : known_rows) {
        EXPECT_EQ(load<known_bmp_t>(bmp.bytes()), result);
    }
    for (auto const& [bmp, mapped, streamed] : load_rows) {
        SCOPED_TRACE(mapped);
        EXPECT_EQ(load<image_bmp_t>(bmp.bytes()), streamed);
        EXPECT_EQ(load<image_bmp2_t>(bmp.bytes()), mapped);
    }
    EXPECT_EQ(limits_in(lines, file), "bmp-palette ") << "of the last row";
    std::string const folder_reason = load_file<image_bmp2_t>(dir.path());
    EXPECT_FALSE(is_loaded) << folder_reason;
    EXPECT_EQ(load_file<image_bmp2_t>(dir.file("none")), "No such file or directory");
    EXPECT_EQ(load_file<image_bmp_t>(dir.path()), "ends within its header");
}

TEST_F(Bmp, ReadersLoadCutFiles) {
    std::string const pixel_bytes = ramp(12), whole = bmp_t{3, 3, 8, pixel_bytes, ramp(8)}.bytes();
    std::size_t const offset = whole.size() - 12;
    for (std::size_t size = offset + 3; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        std::string shown = pixel_bytes.substr(0, size - offset);
        shown.resize(12);
        load<image_bmp2_t>(whole.substr(0, size));
        ASSERT_TRUE(is_loaded) << libutils::failure_reason();
        EXPECT_EQ(pixels(), shown);
        EXPECT_EQ(image.is_writable(), size < whole.size()) << "whole pixels are not copied";
        EXPECT_EQ(image.palette.red[1], 7 * 257);
        EXPECT_EQ(image.palette.green[1], 6 * 257);
        EXPECT_EQ(image.palette.blue[1], 5 * 257);
        EXPECT_EQ(load<image_bmp_t>(whole.substr(0, size)), "3x3 GRAYSCALE 8 0: 12");
        EXPECT_EQ(pixels(), shown);
    }
    EXPECT_EQ(load<image_bmp2_t>(whole.substr(0, offset + 2)), row_reason);
    EXPECT_EQ(load<image_bmp_t>(whole.substr(0, offset - 1)), "ends before its pixels");
    for (std::size_t const size : {0U, 13U, 53U}) {
        char const* const reason = size == 0 ? "empty file" : "ends within its header";
        EXPECT_EQ(load<image_bmp2_t>(whole.substr(0, size)), reason);
        EXPECT_EQ(load<image_bmp_t>(whole.substr(0, size)), reason);
    }
    // A short file uses no memory for the bytes that it does not have.
    unsigned long const size = 8192UL * 12288 * 3;
    std::string const cut = bmp_t{8192, 12288, 24, ramp(700000)}.bytes();
    for (bool const known : {false, true}) {
        long const before = resident_bytes();
        known ? load<known_bmp_t>(cut) : load<image_bmp_t>(cut);
        EXPECT_LT(resident_bytes() - before, 64 << 20);
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image[known ? 700001 : 699999], 0x60) << "the last byte of the file";
        EXPECT_EQ(image[known ? 699999 : 700001], 0);
        EXPECT_EQ(image[size - 1], 0);
    }
    // The memory has no padding, but red and blue are swapped as if it had.
    EXPECT_EQ(load<known_bmp_t>(bmp_t{1, 2, 24, ramp(8)}.bytes()), "1x2 RGB 8 0: 6");
    EXPECT_EQ(pixels(), "\3\2\1\4\5\6");
}

TEST_F(Bmp, WriterWritesGrayAndBgrUnchanged) {
    constexpr unsigned int rejected = 0;
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, unsigned int>> const rows = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, 1},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, 4},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, 8},
        {IMAGE_FORMAT_BGR, IMAGE_BITS_8, 24},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, rejected},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, rejected},
    };
    for (auto const& [format, bits, depth] : rows) {
        image = image_of(4, 2, format, bits, ramp(24));
        write_file(file, "old");
        capture_t capture;
        EXPECT_EQ(image_bmp_t().save(image, file.c_str()), depth != rejected);
        std::string const written = bmp_t{4, 2, depth, ramp(24)}.bytes();
        EXPECT_EQ(read_file(file), depth != rejected ? written : "old");
        EXPECT_EQ(capture.err(),
                  depth != rejected ? "" : "convert(to bmp): not supported format.\n");
        EXPECT_FALSE(image_bmp_t().save(image, dir.path().c_str()));
        EXPECT_FALSE(image_bmp_t().save(image, "/dev/full"));
        image.compressed = true;
        EXPECT_FALSE(image_bmp_t().save(image, file.c_str()));
    }
}

TEST(FailureReason, TheFirstReasonIsKept) {
    libutils::clear_failure_reason();
    EXPECT_EQ(libutils::failure_reason(), "");
    EXPECT_FALSE(libutils::reject("first ", 1, "."));
    EXPECT_FALSE(libutils::reject("second"));
    EXPECT_EQ(libutils::failure_reason(), "first 1");
    libutils::clear_failure_reason();
    capture_t output;
    EXPECT_FALSE(libutils::report_error(std::string(300, 'x'), 1));
    EXPECT_EQ(libutils::failure_reason(), std::string(255, 'x'));
    EXPECT_EQ(output.err(), std::string(300, 'x') + "1\n");
}

}  // namespace
