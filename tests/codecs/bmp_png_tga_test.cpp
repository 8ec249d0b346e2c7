// SPDX-License-Identifier: MIT
// The codecs of BMP, TGA and PNG files.
#include <gtest/gtest.h>

#include "codecs/bmpimage.h"
#include "codecs/bmpimage2.h"
#include "codecs/bmpload.h"
#include "codecs/png.h"
#include "codecs/tga.h"
#include "tests/codecs/filemakers.h"

namespace {

using namespace libgr;
using PictureFiles = picture_test_t;

struct known_bmp_t : image_object_t {
    bool load(image2d_t& image, char const* path) override {
        return BmpLoad(image, path, IMAGE_FORMAT_RGB);
    }
};

std::string const palette = ramp(64);
std::string const srgb_header = "BGRs" + std::string(64, 'h') + "rgb0";

constexpr char const* row_reason = "ends within its first row";
constexpr char const* other = "not a BMP file";
constexpr char const* method_4 = "BMP with the unsupported compression 4";
constexpr char const* bmp_rle = "run-length encoded BMP";
constexpr char const* bit_fields = "BMP with bit fields";
constexpr char const* depth_16 = "BMP with the unsupported depth of 16 bits";
constexpr char const* depth_32 = "BMP with the unsupported depth of 32 bits";
constexpr char const* memory = "exceeds limit picture-memory (50 percent of the machine's memory)";
constexpr char const* one_mib = "16x65536 GRAYSCALE 8 0: 1048576";
constexpr char const* two_mib = "16x131072 GRAYSCALE 8 0: 2097152";
constexpr char const* ratio =
    "exceeds limit bmp-ratio (16 bytes of pixels for each that the file has)";

/// A file, and the results of image_bmp2_t and image_bmp_t.
std::tuple<bmp_t, char const*, char const*> const load_rows[] = {
    {{4, 2, 24, ramp(24), palette}, "4x2 BGR 8 0: 24", "4x2 BGR 8 0: 24"},
    {{2, 1, 32, ramp(8)}, "2x1 BGRA 8 0: 8", depth_32},
    {{2, 1, 32, ramp(8), palette}, "BMP of 32 bits with a palette or a longer header", depth_32},
    {{4, 1, 8, ramp(4096), ramp(1024)}, "4x1 INDEX 8 1024: 4096", "4x1 GRAYSCALE 8 0: 4"},
    {{3, 1, 4, ramp(4), palette}, "3x1 INDEX 4 16: 4", "3x1 GRAYSCALE 4 0: 4"},
    {{4, 1, 8, ramp(4), srgb_header}, "4x1 INDEX 8 1: 4", "4x1 GRAYSCALE 8 0: 4"},
    {{33, 1, 1, ramp(8)}, "33x1 GRAYSCALE 1 0: 8", "33x1 GRAYSCALE 1 0: 4"},
    {{2, 2, 8, ramp(12), "", 0, 0}, "2x2 INDEX 8 2: 66", "2x2 GRAYSCALE 8 0: 8"},
    {{4, 1, 8, ramp(4), "", 0, 59}, row_reason, "ends before its pixels"},
    // The mapping reader does not check the signature.
    {{4, 1, 8, ramp(4), "", 0, -1, "XY"}, "4x1 GRAYSCALE 8 0: 4", other},
    {{2, 1, 16, ramp(4), "", 0, -1, "XY"}, other, other},
    {{4, 1, 8, ramp(4), "", 1}, bmp_rle, bmp_rle},
    {{4, 1, 16, ramp(8), "", 3}, bit_fields, bit_fields},
    {{4, 1, 24, ramp(12), "", 4}, method_4, method_4},
    {{4, 1, 32, ramp(16), "", 6}, bit_fields, bit_fields},
    {{2, 1, 16, ramp(4)}, depth_16, depth_16},
    {{0, 4, 24, ramp(48)}, "no pixels", "0x4 BGR 8 0: 0"},
    {{40000, 0U - 4, 24, ramp(120000)}, "BMP with the top row first", memory},
    {{16, 131072, 8, std::string(131071, 's')}, ratio, two_mib},
    {{16, 131072, 8, std::string(131072, 's')}, two_mib, two_mib},
    {{16, 65536, 8, ramp(48)}, one_mib, one_mib},
    {{1, 2, 8, ramp(300000), "", 0, 0}, "1x2 INDEX 8 65536: 300054", "1x2 GRAYSCALE 8 0: 8"},
};

std::pair<bmp_t, char const*> const known_rows[] = {
    {{1, 1, 24, ramp(4), palette}, "1x1 RGB 8 0: 3"},
    {{2, 1, 32, ramp(8), palette}, "2x1 RGB 64 0: 8"},
    {{3, 1, 4, ramp(4), palette}, "3x1 RGB 4 0: 0"},
    {{4, 1, 8, ramp(4), "", 1}, bmp_rle},
    {{2, 1, 16, ramp(4)}, depth_16},
    {{40000, 0U - 4, 24, ramp(120000)}, memory},
};

TEST_F(PictureFiles, BmpReadersLoadOrRejectFiles) {
    for (auto const& [bmp, result] : known_rows) {
        EXPECT_EQ(load<known_bmp_t>(bmp.bytes()), result);
    }
    for (auto const& [bmp, mapped, streamed] : load_rows) {
        SCOPED_TRACE(mapped);
        EXPECT_EQ(load<image_bmp_t>(bmp.bytes()), streamed);
        EXPECT_EQ(load<image_bmp2_t>(bmp.bytes()), mapped);
    }
    EXPECT_TRUE(lines.starts_with(file + ": exceeds limit bmp-palette ")) << "of the last row";
    EXPECT_EQ(load_file<image_bmp2_t>(dir.file("none")), "No such file or directory");
}

TEST_F(PictureFiles, BmpReadersLoadCutFiles) {
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
    for (std::size_t const size : {0U, 13U, 53U}) {
        char const* const reason = size == 0 ? "empty file" : "ends within its header";
        EXPECT_EQ(load<image_bmp2_t>(whole.substr(0, size)), reason);
        EXPECT_EQ(load<image_bmp_t>(whole.substr(0, size)), reason);
    }
    // The memory has no padding, but red and blue are swapped as if it had.
    EXPECT_EQ(load<known_bmp_t>(bmp_t{1, 2, 24, ramp(8)}.bytes()), "1x2 RGB 8 0: 6");
    EXPECT_EQ(pixels(), "\3\2\1\4\5\6");
}

TEST_F(PictureFiles, WritersOfBmpAndTgaKeepTheFileIfTheyRejectThePicture) {
    image_bmp_t bmp;
    image_tga_t tga;
    std::tuple<image_object_t&, e_image_format_t, e_image_bits_t, std::string> const rows[] = {
        {bmp, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, bmp_t{2, 1, 1, ramp(8)}.bytes()},
        {bmp, IMAGE_FORMAT_BGR, IMAGE_BITS_8, bmp_t{2, 1, 24, ramp(8)}.bytes()},
        {bmp, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, "old"},
        {bmp, IMAGE_FORMAT_RGB, IMAGE_BITS_8, "old"},
        {tga, IMAGE_FORMAT_RGBA, IMAGE_BITS_8, tga_t{2, 2, 1, 32, "\3\2\1\4\7\6\5\10"}.bytes()},
        {tga, IMAGE_FORMAT_RGB, IMAGE_BITS_8, tga_t{2, 2, 1, 24, {"\3\2\1\6\5\4\0\0", 8}}.bytes()},
        {tga, IMAGE_FORMAT_RGBA, IMAGE_BITS_R5G5B5A1, tga_t{2, 2, 1, 16, ramp(8)}.bytes()},
        {tga, IMAGE_FORMAT_BGR, IMAGE_BITS_8, "old"},
        {tga, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8, "old"},
    };
    for (auto const& [codec, format, bits, written] : rows) {
        SCOPED_TRACE(written);
        image = image_of(2, 1, format, bits, ramp(8));
        write_file(file, "old");
        capture_t capture;
        EXPECT_EQ(codec.save(image, file.c_str()), written != "old");
        EXPECT_EQ(read_file(file), written);
        EXPECT_EQ(capture.err() == "convert(to bmp): not supported format.\n",
                  &codec == &bmp && written == "old");
        EXPECT_FALSE(codec.save(image, "/dev/full"));
        image.compressed = true;
        EXPECT_FALSE(codec.save(image, file.c_str()));
    }
    for (auto const& [width, height, saved] :
         {std::tuple(65535U, 1U, true), {65536U, 1U, false}, {1U, 65536U, false}}) {
        image = image_of(width, height, IMAGE_FORMAT_RGBA, IMAGE_BITS_R5G5B5A1, ramp(8));
        EXPECT_EQ(tga.save(image, file.c_str()), saved) << "a side has 16 bits";
    }
}

TEST_F(PictureFiles, TgaLoadsOrRejectsFiles) {
    constexpr char const* map_of_bits = "TGA with a colour map of 2 entries of 24 bits";
    std::vector<std::pair<tga_t, char const*>> const rows = {
        {{2, 3, 2, 8, ramp(8)}, "3x2 GRAYSCALE 8 0: 8"},
        {{2, 3, 1, 16, ramp(8)}, "3x1 BGRA R5G5B5A1 0: 8"},
        {{2, 3, 2, 24, ramp(24)}, "3x2 BGR 8 0: 24"},
        {{2, 1, 1, 32, ramp(4)}, "1x1 BGRA 8 0: 4"},
        // The entry size of a colour map is in bytes. Entries before the first one are in the file.
        {{1, 4, 1, 8, ramp(4), 0, "id", 1, 2, 3, ramp(9)}, "4x1 GRAYSCALE 8 0: 4"},
        {{1, 4, 1, 8, ramp(4), 0, "", 0, 2, 24, ramp(6)}, map_of_bits},
        {{1, 4, 12, 8, ramp(48), 0, "", 0, 2, 24, ramp(6)}, map_of_bits},
        {{2, 3, 2, 24, ramp(18)}, "TGA with rows that are not a multiple of 4 bytes"},
        {{2, 3, 2, 24, ramp(17)}, "ends within its pixels"},
        {{2, 2, 1, 15, ramp(4)}, "TGA with the unsupported depth of 15 bits"},
        {{0, 4, 1, 24, ramp(12)}, "TGA of the unsupported type 0"},
        {{3, 4, 1, 8, ramp(4)}, "TGA of gray levels"},
        {{9, 4, 1, 8, ""}, "run-length encoded TGA"},
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
}

TEST_F(PictureFiles, PngLoadsThePixelLayoutOfTheFile) {
    std::vector<std::tuple<png_t, std::string, std::string>> const rows = {
        {{9, 1, 0, 1, {"\0\xAA\x80", 3}}, "9x1 GRAYSCALE 1 0: 4", {"\xAA\x80\0\0", 4}},
        {{1, 2, 0, 16, {"\0\1\2\0\3\4", 6}}, "1x2 GRAYSCALE 16 0: 8", {"\3\4\0\0\1\2\0\0", 8}},
        {{1, 1, 2, 8, {"\0\1\2\3", 4}}, "1x1 RGB 8 0: 4", {"\1\2\3\0", 4}},
        {{2, 1, 3, 4, {"\0\x34", 2}, ramp(15)}, "2x1 INDEX 4 8: 4", {"\x34\0\0\0", 4}},
        {{4, 1, 3, 8, ramp(5, 0), ramp(48)}, "4x1 INDEX 8 16: 4", ramp(4)},
        {{1, 2, 0, 8, {"\0\1\0\2", 4}, "", 1}, "1x2 GRAYSCALE 8 0: 8", {"\2\0\0\0\1\0\0\0", 8}},
    };
    for (auto const& [fields, result, shown] : rows) {
        SCOPED_TRACE(result);
        EXPECT_EQ(load<image_png_t>(fields.bytes()), result);
        EXPECT_EQ(pixels(), shown);
        EXPECT_EQ(lines, "");
        for (unsigned int i = 0; i < image.palette.size; ++i) {
            unsigned int const used = 3 * i < fields.palette.size() ? 257 : 0;
            EXPECT_EQ(image.palette.red[i], (3 * i + 1) * used);
            EXPECT_EQ(image.palette.green[i], (3 * i + 2) * used);
            EXPECT_EQ(image.palette.blue[i], (3 * i + 3) * used);
        }
    }
}

TEST_F(PictureFiles, PngRejectsDamagedFiles) {
    std::string const whole = png_t{1, 1, 2, 8, ramp(4, 0)}.bytes();
    std::vector<std::pair<std::string, char const*>> const rows = {
        {"", "empty file"},
        {whole.substr(0, 3), "ends within its header"},
        {"GIF87a", "not a PNG file"},
        {std::string(whole).replace(17, 1, 1, 'x'), "IHDR: CRC error"},
        {png_t{1000, 1000, 0, 8, ramp(64, 0)}.bytes(),
         "exceeds limit png-ratio (1032 bytes of pixels for each of the file)"},
    };
    for (auto const& [bytes, reason] : rows) {
        EXPECT_EQ(load<image_png_t>(bytes), reason);
        EXPECT_EQ(lines.ends_with("FAIL\n"), bytes.size() > 6) << reason;
    }
    EXPECT_TRUE(lines.starts_with(file + ": exceeds limit png-ratio ")) << lines;
    for (std::size_t size = 4; size <= whole.size(); ++size) {
        std::string const result = load<image_png_t>(whole.substr(0, size));
        EXPECT_TRUE(is_loaded || size < whole.size() - 12) << size;
        if (size < whole.size() - 20) {
            EXPECT_EQ(result, "ends before its last row") << size;
        }
    }
    EXPECT_EQ(load_file<image_png_t>(dir.file("none")), "No such file or directory");
    EXPECT_EQ(lines, dir.file("none") + ": file open error, No such file or directory\n");
}

TEST_F(PictureFiles, PngSavesWhatItLoads) {
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, std::string>> const rows = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, "\1"},
        {IMAGE_FORMAT_GRAYSCALE_ALPHA, IMAGE_BITS_8, "\10\10"},
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_16, "\20\20\20\20"},
    };
    for (auto const& [format, bits, significant] : rows) {
        image = image_of(32, 2, format, bits, ramp(512, 0x65));
        EXPECT_EQ(savepng(file.c_str(), image, "words", nullptr), 0);
        std::string const bytes = read_file(file);
        EXPECT_NE(bytes.find(chunk("sBIT", significant)), std::string::npos);
        EXPECT_NE(bytes.find(chunk("tEXt", std::string("Title\0words", 11))), std::string::npos);
        std::string const saved = pixels().substr(0, 2 * image.rowsize());
        load_file<image_png_t>(file);
        EXPECT_EQ(pixels(), saved);
    }
    // A window whose first pixel is the low half of a byte.
    image = image_of(3, 1, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, ramp(16));
    image.window = {16, 5, 1};
    EXPECT_TRUE(image_png_t().save(image, file.c_str()));
    EXPECT_EQ(read_file(file).find("tEXt"), std::string::npos);
    load_file<image_png_t>(file);
    EXPECT_EQ(pixels(), std::string("\xB0\xC0\0\0", 4));
}

TEST_F(PictureFiles, PngSaveReturnsACodeForEachFailure) {
    std::vector<std::tuple<e_image_format_t, unsigned int, std::string, int, char const*>> const
        rows = {{IMAGE_FORMAT_BGR, 1, file, 0, ""},
                {IMAGE_FORMAT_RGB, 2, file, -4, "FAIL\n"},
                {IMAGE_FORMAT_RGB, 1, dir.file("none/x.png"), -1, ""},
                {IMAGE_FORMAT_RGB, 1, "/dev/full", -4, "FAIL\n"}};
    write_file(file, "old");
    for (auto const& [format, height, place, code, line] : rows) {
        image = image_of(4, height, format, IMAGE_BITS_8, ramp(12));
        capture_t streams;
        EXPECT_EQ(savepng(place.c_str(), image, nullptr, nullptr), code) << place;
        EXPECT_EQ(streams.err(), line) << place;
    }
    EXPECT_EQ(read_file(file), "old");
}

}  // namespace
