// SPDX-License-Identifier: MIT
// The recorded reasons of all files that the codecs reject.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <memory>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "codecs/jpegobject.h"
#include "codecs/png.h"
#include "codecs/sizelimits.h"
#include "codecs/tga.h"
#include "tests/codecs/filemakers.h"
#include "tests/codecs/jpegmaker.h"
#include "utils/diagnostics.h"

namespace {

using namespace libgr;

std::string replaced(std::string bytes, std::size_t at, std::string const& with) {
    return bytes.replace(at, with.size(), with);
}

std::string const png = png_t{1, 1, 2, 8, ramp(4, 0)}.bytes();
std::string const jpeg = jpeg_of({40, 60, JCS_YCbCr, 1, 1});
std::size_t const jpeg_frame = jpeg.find("\xFF\xC0");
std::string const bmp = bmp_t{4, 2, 24, ramp(24)}.bytes();
std::string const tga = tga_t{2, 2, 1, 24, ramp(8)}.bytes();

struct row_t {
    char const* name;
    std::string bytes;
    char const* reason;
};

struct Rejection : picture_test_t {
    /// Loads the bytes of each row. Expects the reason, and nothing on standard output.
    template <typename codec_t>
    void expect_reasons(std::initializer_list<row_t> rows) {
        for (row_t const& row : rows) {
            SCOPED_TRACE(row.name);
            write_file(file, row.bytes);
            expect_reason<codec_t>(path, row.reason);
        }
    }
    template <typename codec_t>
    void expect_reason(char const* place, std::string const& reason) {
        libutils::clear_failure_reason();
        capture_t capture;
        EXPECT_FALSE(codec_t().load(image, place));
        EXPECT_EQ(libutils::failure_reason(), reason);
        EXPECT_EQ(capture.out(), "");
        image = {};
    }
};

struct known_bmp_t {
    static bool load(image2d_t& image, char const* path) {
        return BmpLoad(image, path, IMAGE_FORMAT_RGB);
    }
};

constexpr char const* ratio_reason =
    "exceeds limit bmp-ratio (16 bytes of pixels for each that the file has)";

TEST_F(Rejection, BmpReasons) {
    expect_reasons<image_bmp2_t>({
        {"empty", "", "empty file"},
        {"cut in the first header", bmp.substr(0, 13), "ends within its header"},
        {"cut in the second header", bmp.substr(0, 53), "ends within its header"},
        {"cut before its pixels", bmp.substr(0, 54), "ends within its first row"},
        {"run lengths of 8 bits", bmp_t{4, 1, 8, ramp(4), "", 1}.bytes(), "run-length encoded BMP"},
        {"run lengths of 4 bits", bmp_t{4, 1, 4, ramp(4), "", 2}.bytes(), "run-length encoded BMP"},
        {"bit fields", bmp_t{4, 1, 16, ramp(8), "", 3}.bytes(), "BMP with bit fields"},
        {"alpha bit fields", bmp_t{4, 1, 32, ramp(16), "", 6}.bytes(), "BMP with bit fields"},
        {"JPEG in BMP", bmp_t{4, 1, 24, jpeg, "", 4}.bytes(),
         "BMP with the unsupported compression 4"},
        {"16 bits", bmp_t{2, 1, 16, ramp(4)}.bytes(), "BMP with the unsupported depth of 16 bits"},
        {"32 bits with a palette", bmp_t{1, 1, 32, ramp(4), ramp(4)}.bytes(),
         "BMP of 32 bits with a palette or a longer header"},
        {"PNG", png, "not a BMP file"},
        {"top row first", bmp_t{4, 0U - 2, 24, ramp(24)}.bytes(), "BMP with the top row first"},
        {"no column", bmp_t{0, 2, 24, ramp(24)}.bytes(), "no pixels"},
        {"large claim", bmp_t{6, 1U << 22, 8, ramp(48)}.bytes(), ratio_reason},
    });
    expect_reason<image_bmp2_t>(dir.file("gone").c_str(), "No such file or directory");
}

TEST_F(Rejection, StreamBmpReasons) {
    std::initializer_list<row_t> const rows = {
        {"empty", "", "empty file"},
        {"cut in the first header", bmp.substr(0, 13), "ends within its header"},
        {"cut in the second header", bmp.substr(0, 53), "ends within its header"},
        {"pixels after the end", bmp_t{4, 2, 24, "", "", 0, 55}.bytes(), "ends before its pixels"},
        {"other signature", replaced(bmp, 0, "XY"), "not a BMP file"},
        {"run lengths", bmp_t{4, 1, 8, ramp(4), "", 1}.bytes(), "run-length encoded BMP"},
        {"16 bits", bmp_t{2, 1, 16, ramp(4)}.bytes(), "BMP with the unsupported depth of 16 bits"},
    };
    expect_reasons<image_bmp_t>(rows);
    expect_reasons<known_bmp_t>(rows);
}

TEST_F(Rejection, TgaReasons) {
    expect_reasons<image_tga_t>({
        {"empty", "", "empty file"},
        {"cut header", tga.substr(0, 17), "ends within its header"},
        {"cut pixels", tga.substr(0, 22), "ends within its pixels"},
        {"cut identifier", replaced(tga, 0, "\xFF"), "ends within its image identifier"},
        {"entries of 24 bits", tga_t{1, 4, 1, 8, ramp(4), 0, "", 0, 2, 24, ramp(6)}.bytes(),
         "TGA with a colour map of 2 entries of 24 bits"},
        {"no picture", tga_t{0, 4, 1, 24, ramp(12)}.bytes(), "TGA of the unsupported type 0"},
        {"gray", tga_t{3, 4, 1, 8, ramp(4)}.bytes(), "TGA of gray levels"},
        {"run lengths, palette", tga_t{9, 4, 1, 8, ""}.bytes(), "run-length encoded TGA"},
        {"run lengths, colours", tga_t{10, 4, 1, 24, ramp(12)}.bytes(), "run-length encoded TGA"},
        {"run lengths, gray", tga_t{11, 4, 1, 8, ramp(4)}.bytes(), "run-length encoded TGA"},
        {"top row first", tga_t{2, 4, 1, 24, ramp(12), 0x20}.bytes(), "TGA with the top row first"},
        {"15 bits", tga_t{2, 2, 1, 15, ramp(4)}.bytes(),
         "TGA with the unsupported depth of 15 bits"},
        {"rows of 6 bytes", tga_t{2, 2, 3, 24, ramp(18)}.bytes(),
         "TGA with rows that are not a multiple of 4 bytes"},
        {"no column", tga_t{2, 0, 1, 24, ""}.bytes(), "no pixels"},
    });
}

TEST_F(Rejection, PngReasons) {
    std::size_t const pixels = png.find("IDAT");
    expect_reasons<image_png_t>({
        {"empty", "", "empty file"},
        {"cut signature", png.substr(0, 3), "ends within its header"},
        {"BMP", bmp, "not a PNG file"},
        {"damaged signature", replaced(png, 5, "x"), "PNG file corrupted by ASCII conversion"},
        {"damaged header", replaced(png, 17, "x"), "IHDR: CRC error"},
        {"damaged pixels", replaced(png, pixels + 7, "x"), "IDAT: invalid stored block lengths"},
        {"cut pixels", png.substr(0, pixels + 9), "ends before its last row"},
        {"no palette", png_t{1, 1, 3, 8, ramp(2, 0)}.bytes(), "IDAT: Missing PLTE before IDAT"},
        {"large claim", png_t{1000, 1000, 0, 8, ramp(64, 0)}.bytes(),
         "exceeds limit png-ratio (1032 bytes of pixels for each of the file)"},
    });
    expect_reason<image_png_t>(dir.file("gone").c_str(), "No such file or directory");
}

TEST_F(Rejection, JpegReasons) {
    std::string cmyk = std::string(jpeg).insert(jpeg_frame + 19, be(0x041101, 3));
    cmyk[jpeg_frame + 3] = 0x14;
    cmyk[jpeg_frame + 9] = 4;
    expect_reasons<image_jpeg1_t>({
        {"empty", "", "Empty input file"},
        {"BMP", bmp, "Not a JPEG file: starts with 0x42 0x4d"},
        {"cut header", jpeg.substr(0, jpeg_frame), "Premature end of input file"},
        {"lossless", replaced(jpeg, jpeg_frame + 1, "\xC3"),
         "Unsupported JPEG process: SOF type 0xc3"},
        {"four components", cmyk, "CMYK JPEG"},
        {"large claim", replaced(jpeg, jpeg_frame + 5, be(0xFFDCFFDC, 4)),
         "exceeds limit jpeg-ratio (4096 bytes of pixels for each of the file)"},
    });
    expect_reason<image_jpeg1_t>(dir.file("gone").c_str(), "No such file or directory");
}

TEST_F(Rejection, PipesAreNotRead) {
    ASSERT_EQ(mkfifo(path, 0600), 0);
    expect_reason<image_bmp_t>(path, "not a regular file");
    expect_reason<known_bmp_t>(path, "not a regular file");
    expect_reason<image_tga_t>(path, "not a regular file");
    expect_reason<image_png_t>(path, "not a regular file");
    expect_reason<image_bmp2_t>(path, "empty file");
    expect_reason<image_jpeg1_t>(path, "Empty input file");
}

TEST_F(Rejection, TheFirstReasonIsKept) {
    libutils::clear_failure_reason();
    capture_t capture;
    EXPECT_FALSE(fits_in_memory(1UL << 63, nullptr));
    EXPECT_FALSE(libutils::reject("later"));
    EXPECT_EQ(libutils::failure_reason(),
              "exceeds limit picture-memory (50 percent of the machine's memory)");
    libutils::clear_failure_reason();
    EXPECT_EQ(libutils::failure_reason(), "");
    libutils::refuse(std::string(300, 'x'), 1);
    EXPECT_EQ(libutils::failure_reason(), std::string(255, 'x'));
}

}  // namespace
