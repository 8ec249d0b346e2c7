// SPDX-License-Identifier: MIT
// The PNG codec.
#include "codecs/png.h"

#include <gtest/gtest.h>
#include <png.h>

#include "tests/codecs/filemakers.h"

// Replaces the function of libpng, so that a test can change the version.
static char const* s_version = PNG_LIBPNG_VER_STRING;
extern "C" char const* png_get_header_ver(png_struct const*) {
    return s_version;
}

namespace {

using namespace libgr;

using Png = picture_test_t;

TEST_F(Png, LoadsThePixelLayoutOfTheFile) {
    std::vector<std::tuple<png_t, std::string, std::string>> const rows = {
        {{9, 1, 0, 1, {"\0\xAA\x80", 3}}, "9x1 GRAYSCALE 1 0: 4", {"\xAA\x80\0\0", 4}},
        {{3, 1, 0, 2, {"\0\x1C", 2}}, "3x1 GRAYSCALE 2 0: 4", {"\x1C\0\0\0", 4}},
        {{1, 2, 0, 16, {"\0\1\2\0\3\4", 6}}, "1x2 GRAYSCALE 16 0: 8", {"\3\4\0\0\1\2\0\0", 8}},
        {{1, 1, 2, 8, {"\0\1\2\3", 4}}, "1x1 RGB 8 0: 4", {"\1\2\3\0", 4}},
        {{2, 1, 4, 8, ramp(5, 0)}, "2x1 GRAYSCALE_ALPHA 8 0: 4", ramp(4)},
        {{1, 1, 6, 16, ramp(9, 0)}, "1x1 RGBA 16 0: 8", ramp(8)},
        {{2, 1, 3, 4, {"\0\x34", 2}, ramp(15)}, "2x1 INDEX 4 8: 4", {"\x34\0\0\0", 4}},
        {{4, 1, 3, 8, ramp(5, 0), ramp(48)}, "4x1 INDEX 8 16: 4", ramp(4)},
        // Interlaced: the last pass has the lower row.
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

TEST_F(Png, RejectsDamagedFiles) {
    std::string const whole = png_t{1, 1, 2, 8, ramp(4, 0)}.bytes();
    std::size_t const data = whole.find("IDAT"), trailer = whole.size() - 12;
    auto const damaged = [&](std::size_t at) {
        std::string bytes = whole;
        bytes[at] = 'x';
        return bytes;
    };
    constexpr char const* ratio_reason =
        "exceeds limit png-ratio (1032 bytes of pixels for each of the file)";
    std::vector<std::pair<std::string, char const*>> const rows = {
        {"", "empty file"},
        {whole.substr(0, 3), "ends within its header"},
        {"GIF87a", "not a PNG file"},
        {damaged(5), "PNG file corrupted by ASCII conversion"},
        {damaged(17), "IHDR: CRC error"},
        {damaged(data + 7), "IDAT: invalid stored block lengths"},
        {png_t{1, 1, 3, 8, ramp(2, 0)}.bytes(), "IDAT: Missing PLTE before IDAT"},
        {png_t{1000, 1000, 0, 8, ramp(64, 0)}.bytes(), ratio_reason},
        {png_t{1000000, 1000000, 0, 1, ramp(64, 0)}.bytes(), ratio_reason},
    };
    for (auto const& [bytes, reason] : rows) {
        EXPECT_EQ(load<image_png_t>(bytes), reason);
        EXPECT_EQ(lines.ends_with("FAIL\n"), bytes.size() > 6) << reason;
    }
    EXPECT_EQ(limits_in(lines, file), "png-ratio ");
    EXPECT_TRUE(image.empty());
    for (std::size_t size = 4; size <= whole.size(); ++size) {
        std::string const result = load<image_png_t>(whole.substr(0, size));
        EXPECT_TRUE(is_loaded || size < trailer) << size;
        if (size < trailer - 8) {
            EXPECT_EQ(result, "ends before its last row") << size;
            EXPECT_EQ(lines, "libpng error: Read Error\nFAIL\n") << size;
        }
    }
    EXPECT_EQ(load_file<image_png_t>(dir.file("none")), "No such file or directory");
    EXPECT_EQ(lines, dir.file("none") + ": file open error, No such file or directory\n");
    load_file<image_png_t>(dir.path());
    EXPECT_FALSE(is_loaded);
    EXPECT_EQ(lines, "");
}

TEST_F(Png, SavesWhatItLoads) {
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, std::string>> const rows = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, "\1"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, "\4"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, "\20"},
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

TEST_F(Png, SaveReturnsACodeForEachFailure) {
    constexpr char const* no_palette =
        "libpng error: Valid palette required for paletted images\nFAIL\n";
    // The image has the bytes of one row.
    std::vector<std::tuple<e_image_format_t, unsigned int, std::string, int, char const*>> const
        rows = {{IMAGE_FORMAT_BGR, 1, file, 0, ""},
                {IMAGE_FORMAT_RGB, 2, file, -4, "FAIL\n"},
                {IMAGE_FORMAT_RGB, 1, dir.file("none/x.png"), -1, ""},
                {IMAGE_FORMAT_RGB, 1, "/dev/full", -4, "FAIL\n"},
                {IMAGE_FORMAT_INDEX, 1, dir.file("y"), -4, no_palette}};
    write_file(file, "old");
    for (auto const& [format, height, place, code, line] : rows) {
        image = image_of(4, height, format, IMAGE_BITS_8, ramp(12));
        testing::internal::CaptureStderr();
        EXPECT_EQ(savepng(place.c_str(), image, nullptr, nullptr), code) << place;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), line) << place;
    }
    s_version = "0.0.1";
    EXPECT_EQ(load_file<image_png_t>(file),
              "libpng is not the version that the program was built with");
    EXPECT_EQ(lines,
              "libpng version different.\n  header: " PNG_LIBPNG_VER_STRING "\n  source: 0.0.1\n");
    EXPECT_FALSE(image_png_t().save(image, file.c_str()));
    s_version = PNG_LIBPNG_VER_STRING;
    EXPECT_EQ(read_file(file), "old");
}

}  // namespace
