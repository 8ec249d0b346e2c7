// SPDX-License-Identifier: MIT
// PNG files made chunk by chunk, read and written.
#include "codecs/png.h"

#include <gtest/gtest.h>
#include <png.h>

#include "tests/codecs/filemakers.h"

// Stands in front of the library's own, so that a test can change the version.
static char const* s_version = PNG_LIBPNG_VER_STRING;
extern "C" char const* png_get_header_ver(png_struct const*) {
    return s_version;
}

namespace {

using namespace libgr;
using namespace std::string_literals;

struct Png : picture_test_t {
    Png() { testing::internal::CaptureStderr(); }
    ~Png() override { testing::internal::GetCapturedStderr(); }
    /// What is written on the error stream, behind the status.
    static std::string lines(std::string const& status = "") {
        std::string const all = testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        return status + all;
    }
};

TEST_F(Png, KeepsTheFilesPixelLayoutBottomRowFirst) {
    std::vector<std::tuple<png_t, std::string, std::string>> const rows = {
        {{9, 1, 0, 1, {"\0\xAA\x80", 3}}, "9x1 GRAYSCALE 1 0: 4", {"\xAA\x80\0\0", 4}},
        {{3, 1, 0, 2, {"\0\x1C", 2}}, "3x1 GRAYSCALE 2 0: 4", {"\x1C\0\0\0", 4}},
        {{1, 2, 0, 16, {"\0\1\2\0\3\4", 6}}, "1x2 GRAYSCALE 16 0: 8", {"\3\4\0\0\1\2\0\0", 8}},
        {{1, 1, 2, 8, {"\0\1\2\3", 4}}, "1x1 RGB 8 0: 4", {"\1\2\3\0", 4}},
        {{2, 1, 4, 8, ramp(5, 0)}, "2x1 GRAYSCALE_ALPHA 8 0: 4", ramp(4)},
        {{1, 1, 6, 16, ramp(9, 0)}, "1x1 RGBA 16 0: 8", ramp(8)},
        {{2, 1, 3, 4, {"\0\x34", 2}, ramp(15)}, "2x1 INDEX 4 8: 4", {"\x34\0\0\0", 4}},
        {{4, 1, 3, 8, ramp(5, 0), ramp(48)}, "4x1 INDEX 8 16: 4", ramp(4)},
        // Interlaced: the lower row of two is the last pass.
        {{1, 2, 0, 8, {"\0\1\0\2", 4}, "", 1}, "1x2 GRAYSCALE 8 0: 8", {"\2\0\0\0\1\0\0\0", 8}},
        // No palette, and claims that so few bytes can't fill.
        {{1, 1, 3, 8, ramp(2, 0)}, "-", ""},
        {{1000000, 1000000, 0, 1, ramp(64, 0)}, "-", "png-ratio "},
        {{1000, 1000, 0, 8, ramp(64, 0)}, "-", "png-ratio "},
    };
    for (auto const& [bytes, expected, shown] : rows) {
        write_file(file, bytes.bytes());
        EXPECT_EQ(outcome(image_png_t().load(image, path)), expected);
        bool const loaded = expected != "-";
        EXPECT_EQ(pixels(), loaded ? shown : "") << "a rejected file takes no memory";
        std::string const printed = lines();
        EXPECT_EQ(printed.empty(), loaded);
        EXPECT_EQ(limits_in(printed, file), loaded ? "" : shown);
        for (unsigned int i = 0; i < image.palette.size; ++i) {
            unsigned int const used = 3 * i < bytes.palette.size() ? 257 : 0;
            EXPECT_EQ(
                std::tuple(image.palette.red[i], image.palette.green[i], image.palette.blue[i]),
                std::tuple((3 * i + 1) * used, (3 * i + 2) * used, (3 * i + 3) * used));
        }
    }
}

TEST_F(Png, TellsHowFarACutFileWent) {
    std::string const whole = png_t{1, 1, 2, 8, ramp(4, 0)}.bytes();
    std::size_t const trailer = whole.size() - 12;  // behind the checksums of the pixels
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        write_file(file, whole.substr(0, size));
        std::string const told = lines(std::to_string(loadpng(path, image, nullptr)));
        if (size < trailer - 8 || size >= trailer) {
            char const* const cut = size < 4 ? "-1" : "-4libpng error: Read Error\nFAIL\n";
            EXPECT_EQ(told, size < trailer ? cut : "0") << size;
        }
    }
    std::string const missing = dir.file("none");
    for (auto const& [place, told] :
         {std::pair{write_file(file, "GIF87a"), ""s},
          {dir.path(), ""},
          {missing, missing + ": file open error, No such file or directory\n"}}) {
        EXPECT_FALSE(image_png_t().load(image, place.c_str()));
        EXPECT_EQ(lines(), told);
    }
}

TEST_F(Png, SavesWhatItReads) {
    std::vector<std::tuple<e_image_format_t, e_image_bits_t, std::string>> const rows = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, "\1"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, "\4"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, "\20"},
        {IMAGE_FORMAT_GRAYSCALE_ALPHA, IMAGE_BITS_8, "\10\10"},
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_16, "\20\20\20\20"},
    };
    for (auto const& [format, bits, significant] : rows) {
        image = image_of(32, 2, format, bits, ramp(512, 0x65));
        EXPECT_TRUE(image_png_t().save(image, path));
        EXPECT_NE(read_file(file).find(chunk("sBIT", significant)), std::string::npos);
        std::string const saved = pixels().substr(0, 2 * image.rowsize());
        EXPECT_TRUE(image_png_t().load(image, path));
        EXPECT_EQ(pixels(), saved);
    }
    // A window whose first pixel is the low half of a byte.
    image = image_of(3, 1, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, ramp(16));
    image.window = {16, 5, 1};
    EXPECT_TRUE(image_png_t().save(image, path));
    image = {};
    EXPECT_TRUE(image_png_t().load(image, path));
    EXPECT_EQ(pixels(), std::string("\xB0\xC0\0\0", 4));
}

TEST_F(Png, RefusesToSaveInItsOwnWays) {
    // Of a height of two, one row is there.
    std::vector<std::tuple<e_image_format_t, unsigned int, std::string, std::string>> const rows = {
        {IMAGE_FORMAT_BGR, 1, file, "0"},
        {IMAGE_FORMAT_RGB, 2, file, "-4FAIL\n"},
        {IMAGE_FORMAT_RGB, 1, dir.file("none/x.png"), "-1"},
        {IMAGE_FORMAT_RGB, 1, "/dev/full", "-4FAIL\n"},
        {IMAGE_FORMAT_INDEX, 1, dir.file("y"),
         "-4libpng error: Valid palette required for paletted images\nFAIL\n"},
    };
    write_file(file, "old");
    for (auto const& [format, height, place, told] : rows) {
        image = image_of(4, height, format, IMAGE_BITS_8, ramp(12));
        EXPECT_EQ(lines(std::to_string(savepng(place.c_str(), image, nullptr, nullptr))), told);
    }
    s_version = "0.0.1";
    EXPECT_FALSE(image_png_t().save(image, path) || image_png_t().load(image, path));
    s_version = PNG_LIBPNG_VER_STRING;
    std::string const told =
        "libpng version different.\n  header: " PNG_LIBPNG_VER_STRING "\n  source: 0.0.1\n";
    EXPECT_EQ(lines(), told + told);
    EXPECT_EQ(read_file(file), "old");
}

}  // namespace
