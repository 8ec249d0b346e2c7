// SPDX-License-Identifier: MIT
// PNG files made chunk by chunk, read and written.
#include "codecs/png.h"

#include <gtest/gtest.h>

#include "tests/codecs/picturebytes.h"
#include "tests/support/files/testfiles.h"

extern "C" unsigned int png_access_version_number();

static std::string library_version() {
    unsigned int const number = png_access_version_number();
    return std::to_string(number / 10000) + "." + std::to_string(number / 100 % 100) + "." +
           std::to_string(number % 100);
}
static std::string s_version = library_version();

// Stands in front of the library's own, so that a test can change the version.
extern "C" char const* png_get_header_ver(png_struct_def const*) {
    return s_version.c_str();
}

namespace {

using namespace libgr;

std::string be(std::uint64_t value, unsigned int size) {
    std::string const bytes = le(value, size);
    return {bytes.rbegin(), bytes.rend()};
}

std::string chunk(std::string const& name, std::string const& data) {
    std::uint32_t crc = ~0U;
    for (char const c : name + data) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) * 0xEDB88320U);
        }
    }
    return be(data.size(), 4) + name + data + be(~crc, 4);
}

/// A zlib stream of one stored block.
std::string stored(std::string const& data) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (char const c : data) {
        a = (a + static_cast<unsigned char>(c)) % 65521;
        b = (b + a) % 65521;
    }
    return "\x78\x01\x01" + le(data.size(), 2) + le(~data.size(), 2) + data + be(b, 2) + be(a, 2);
}

struct png_t {
    unsigned int width, height, color_type, depth;
    std::string rows;  // top row first, each behind its filter byte
    std::string palette = {};
    unsigned int interlace = 0;

    std::string bytes() const {
        std::string const header = be(width, 4) + be(height, 4) + be(depth, 1) + be(color_type, 1) +
                                   be(0, 2) + be(interlace, 1);
        return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) +
               (palette.empty() ? "" : chunk("PLTE", palette)) + chunk("IDAT", stored(rows)) +
               chunk("IEND", "");
    }
};

/// Takes what goes to the error stream, the library's own lines before ours.
struct errors_t {
    capture_t capture;
    errors_t() { testing::internal::CaptureStderr(); }
    ~errors_t() { testing::internal::GetCapturedStderr(); }
    std::string lines() {
        std::string const library = testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        return library + capture.err();
    }
};

TEST(Png, KeepsTheFilesPixelLayoutBottomRowFirst) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.png");
    struct {
        png_t file;
        char const* expected;
        std::string pixels;
    } const rows[] = {
        {{9, 2, 0, 1, {"\0\xAA\x80\0\x55\0", 6}},
         "9x2 GRAYSCALE 1 0: 8",
         {"\x55\0\0\0\xAA\x80\0\0", 8}},
        {{3, 1, 0, 2, {"\0\x1C", 2}}, "3x1 GRAYSCALE 2 0: 4", {"\x1C\0\0\0", 4}},
        {{1, 2, 0, 16, {"\0\1\2\0\3\4", 6}}, "1x2 GRAYSCALE 16 0: 8", {"\3\4\0\0\1\2\0\0", 8}},
        {{1, 1, 2, 8, {"\0\1\2\3", 4}}, "1x1 RGB 8 0: 4", {"\1\2\3\0", 4}},
        {{2, 1, 4, 8, ramp(5, 0)}, "2x1 GRAYSCALE_ALPHA 8 0: 4", ramp(4)},
        {{1, 1, 6, 16, ramp(9, 0)}, "1x1 RGBA 16 0: 8", ramp(8)},
        {{2, 1, 3, 4, {"\0\x34", 2}, ramp(15)}, "2x1 INDEX 4 8: 4", {"\x34\0\0\0", 4}},
        {{4, 1, 3, 8, ramp(5, 0), ramp(48)}, "4x1 INDEX 8 16: 4", ramp(4)},
        // Interlaced: the top left pixel, the top right one, the lower row.
        {{2, 2, 0, 8, {"\0\1\0\2\0\3\4", 7}, "", 1},
         "2x2 GRAYSCALE 8 0: 8",
         {"\3\4\0\0\1\2\0\0", 8}},
        // No such depth, no palette, no pixels, claims that so few bytes can't fill.
        {{1, 1, 0, 3, ramp(2, 0)}, "-", ""},
        {{1, 1, 3, 8, ramp(2, 0)}, "-", ""},
        {{0, 1, 0, 8, ramp(2, 0)}, "-", ""},
        {{1U << 31, 1, 0, 8, ramp(64, 0)}, "-", ""},
        {{1000000, 1000000, 0, 1, ramp(64, 0)}, "-", ""},
        {{1000, 1000, 0, 8, ramp(64, 0)}, "-", ""},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.expected);
        write_file(path, row.file.bytes());
        image2d_t image;
        errors_t errors;
        EXPECT_EQ(load_outcome<image_png_t>(image, path), row.expected);
        EXPECT_EQ(pixels_of(image), row.pixels) << "nothing is allocated for what is refused";
        std::string const lines = errors.lines();
        EXPECT_EQ(lines.find("FAIL\n") != lines.npos, row.pixels.empty()) << lines;
        EXPECT_EQ(lines.empty(), !row.pixels.empty()) << lines;
        for (unsigned int i = 0; i < image.palette.size; ++i) {
            unsigned int const used = 3 * i < row.file.palette.size() ? 257 : 0;
            EXPECT_EQ(image.palette.red[i], (3 * i + 1) * used);
            EXPECT_EQ(image.palette.green[i], (3 * i + 2) * used);
            EXPECT_EQ(image.palette.blue[i], (3 * i + 3) * used);
        }
    }
}

TEST(Png, TellsHowFarACutFileWent) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.png");
    std::string const whole = png_t{1, 1, 2, 8, ramp(4, 0)}.bytes();
    std::size_t const trailer = whole.size() - 12;  // behind the checksums of the pixels
    errors_t errors;
    long const files = open_files();
    image2d_t image;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        write_file(path, whole.substr(0, size));
        int const status = loadpng(path.c_str(), image, nullptr);
        std::string const lines = errors.lines();
        if (size < 4 || size >= trailer) {
            EXPECT_EQ(std::to_string(status) + lines, size < 4 ? "-1" : "0") << size;
        } else if (size < trailer - 8) {
            EXPECT_EQ(std::to_string(status) + lines, "-4libpng error: Read Error\nFAIL\n") << size;
        }
    }
    write_file(path, "GIF87a");
    EXPECT_EQ(loadpng(path.c_str(), image, nullptr), -1);
    EXPECT_FALSE(image_png_t().load(image, dir.path().c_str()));
    EXPECT_EQ(errors.lines(), "");
    std::string const missing = dir.file("none.png");
    EXPECT_FALSE(image_png_t().load(image, missing.c_str()));
    EXPECT_EQ(errors.lines(), missing + ": file open error, No such file or directory\n");
    EXPECT_EQ(open_files(), files);
}

TEST(Png, SavesWhatItReads) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.png");
    struct {
        e_image_format_t format;
        e_image_bits_t bits;
        char const* significant;  // the sBIT chunk
    } const rows[] = {
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1, "\1"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_2, "\2"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, "\4"},
        {IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_16, "\20"},
        {IMAGE_FORMAT_GRAYSCALE_ALPHA, IMAGE_BITS_8, "\10\10"},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, "\10\10\10"},
        {IMAGE_FORMAT_RGBA, IMAGE_BITS_16, "\20\20\20\20"},
    };
    for (auto const& row : rows) {
        image2d_t image = image_of(32, 2, row.format, row.bits, "");
        image = image_of(32, 2, row.format, row.bits, ramp(2 * image.rowsize(), 0x65));
        EXPECT_TRUE(image_png_t().save(image, path.c_str()));
        EXPECT_NE(read_file(path).find(chunk("sBIT", row.significant)), std::string::npos);
        image2d_t loaded;
        EXPECT_TRUE(image_png_t().load(loaded, path.c_str()));
        EXPECT_EQ(outcome(true, loaded), outcome(true, image));
        EXPECT_EQ(pixels_of(loaded), pixels_of(image));
    }
    image2d_t window = image_of(3, 1, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4, ramp(16, 0x65));
    window.window = {16, 5, 1};  // the fifth pixel of the upper row is the low half of a byte
    EXPECT_TRUE(image_png_t().save(window, path.c_str()));
    EXPECT_TRUE(image_png_t().load(window, path.c_str())) << "into the same window";
    EXPECT_EQ(window.size(), 16U);
}

TEST(Png, RefusesToSaveInItsOwnWays) {
    temp_dir_t const dir;
    std::string const path = dir.file("x.png");
    struct {
        e_image_format_t format;
        e_image_bits_t bits;
        unsigned int height;  // of which 1 row is there
        std::string path;
        int status;
        char const* lines;
    } const rows[] = {
        {IMAGE_FORMAT_BGR, IMAGE_BITS_8, 1, path, 0, ""},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_12, 1, path, 0, ""},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 2, path, -4, "FAIL\n"},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 1, dir.file("none/x.png"), -1, ""},
        {IMAGE_FORMAT_RGB, IMAGE_BITS_8, 1, "/dev/full", -4, "FAIL\n"},
        {IMAGE_FORMAT_INDEX, IMAGE_BITS_8, 1, dir.file("y"), -4,
         "libpng error: Valid palette required for paletted images\nFAIL\n"},
    };
    write_file(path, "old");
    errors_t errors;
    long const files = open_files();
    for (auto const& row : rows) {
        image2d_t const image = image_of(4, row.height, row.format, row.bits, ramp(12));
        EXPECT_EQ(savepng(row.path.c_str(), image, nullptr, nullptr), row.status);
        EXPECT_EQ(errors.lines(), row.lines);
    }
    EXPECT_EQ(open_files(), files);
    EXPECT_EQ(read_file(path), "old");

    image2d_t image = image_of(4, 1, IMAGE_FORMAT_RGB, IMAGE_BITS_8, ramp(12));
    EXPECT_EQ(savepng(path.c_str(), image, "a name", nullptr), 0);
    std::string const title = chunk("tEXt", {"Title\0a name", 12});
    EXPECT_NE(read_file(path).find(title), std::string::npos);

    s_version = "0.0.1";
    EXPECT_FALSE(image_png_t().save(image, path.c_str()));
    EXPECT_FALSE(image_png_t().load(image, path.c_str()));
    s_version = library_version();
    std::string const lines =
        "libpng version different.\n  header: " + s_version + "\n  source: 0.0.1\n";
    EXPECT_EQ(errors.lines(), lines + lines);
}

}  // namespace
