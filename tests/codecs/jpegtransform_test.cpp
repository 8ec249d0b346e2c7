// SPDX-License-Identifier: MIT
// Lossless operations, compared sample by sample with one rule, and requests and files that fail.
#include "codecs/jpegtransform.h"

#include <array>

#include "codecs/jtransform.h"
#include "tests/codecs/jpegmaker.h"

namespace {

using namespace libgr;
using namespace std::string_literals;

constexpr layout_t whole_layout{64, 48, JCS_YCbCr, 2, 2},
    wide_layout{64, 48, JCS_YCbCr, 2, 1, true}, rgb_layout{40, 24, JCS_RGB, 1, 1},
    partial_layout{57, 43, JCS_YCbCr, 2, 2, true}, tall_layout{45, 39, JCS_YCbCr, 1, 2},
    gray_layout{27, 43, JCS_GRAYSCALE, 2, 2}, tiny_layout{9, 13, JCS_YCbCr, 2, 2},
    scans_layout{64, 48, JCS_YCbCr, 4, 3};

jpeg_transform_info request(int code, char const* crop = nullptr) {
    jpeg_transform_info info;
    info.transform = static_cast<JXFORM_CODE>(code);
    EXPECT_TRUE(crop == nullptr || jtransform_parse_crop_spec(&info, crop)) << crop;
    return info;
}

/// Returns the output of a request. If it fails, returns "nothing" or "something" for the output
/// that it leaves, and the lines of the error stream.
std::string outcome(std::string const& bytes, jpeg_transform_info info, int option = JCOPY_NONE) {
    capture_t streams;
    jpegdata_t out = jpegdata_of("old");
    bool const good = transform(info, static_cast<JCOPY_OPTION>(option), out, jpegdata_of(bytes));
    return good ? bytes_of(out) : (out.empty() ? "nothing\n" : "something\n") + streams.err();
}

/// The rule of each operation: whether x and y of the source are swapped, and then which of them
/// are reversed.
struct {
    bool swaps, reverses_x, reverses_y;
} constexpr operation_rows[] = {{false, false, false}, {false, true, false}, {false, false, true},
                                {true, false, false},  {true, true, true},   {true, false, true},
                                {false, true, true},   {true, true, false}};

struct row_t {
    layout_t const& layout;
    int code;
    unsigned int width, height;  ///< of the output
    char const* crop = nullptr;
    unsigned int x = 0, y = 0;  ///< where the crop begins
    bool trim = false, gray = false;
    unsigned int fold = 1000;  ///< the x at which mirror images begin
};

unsigned int up(unsigned int n, unsigned int unit) {
    return (n + unit - 1) / unit * unit;
}

/// Returns the source of a sample in one direction. Only whole units change sides.
unsigned int source_of(unsigned int at, unsigned int size, unsigned int unit, bool reverses) {
    unsigned int const whole = size / unit * unit;
    return reverses && at < whole ? whole - 1 - at : at;
}

void expect_moved(row_t const& row) {
    auto const& [width, height, colors, h, v, progressive, restart, arithmetic] = row.layout;
    auto const& [swaps, reverses_x, reverses_y] = operation_rows[row.code];
    jpeg_transform_info info = request(row.code, row.crop);
    info.trim = row.trim;
    info.force_grayscale = row.gray;
    std::string in = jpeg_of(row.layout);
    std::string const out = outcome(in, info), size = be(height, 2) + be(width, 2);
    ASSERT_NE(out.find(be(row.height, 2) + be(row.width, 2)), out.npos) << out;
    in.replace(in.find(size), 4, be(up(height, 8 * v), 2) + be(up(width, 8 * h), 2));
    pixels_t const from = pixels_of(in), to = pixels_of(out);  // `from` is extended to whole iMCUs
    bool const alone = to.components == 1;
    for (unsigned int n = 0; n < to.samples.size(); ++n) {
        unsigned int const i = n % to.components;
        unsigned int x = n / to.components % to.width + row.x;
        unsigned int y = n / to.components / to.width + row.y;
        x = x / row.fold % 2 == 0 ? x % row.fold : row.fold - 1 - x % row.fold;
        if (swaps) {
            std::swap(x, y);
        }
        if (x < up(width, i == 0 ? 8 : 8 * h) && y < up(height, i == 0 ? 8 : 8 * v)) {
            x = source_of(x, width, alone ? 8 : 8 * h, reverses_x);
            y = source_of(y, height, alone ? 8 : 8 * v, reverses_y);
            ASSERT_NEAR(to.samples[n], from.at(x, y, i), 1.01) << n;
        }
    }
}

TEST(JpegTransformTest, MovesEachSampleByTheRule) {
    for (layout_t const& layout : {whole_layout, wide_layout, rgb_layout, partial_layout,
                                   tall_layout, gray_layout, tiny_layout, scans_layout}) {
        for (int code = 0; code < 8; ++code) {
            auto const [swaps, reverses_x, reverses_y] = operation_rows[code];
            expect_moved({layout, code, swaps ? layout.height : layout.width,
                          swaps ? layout.width : layout.height});
            JXFORM_CODE const transform = request(code).transform;
            EXPECT_EQ(jtransform_perfect_transform(33, 24, 16, 8, transform), !reverses_x);
            EXPECT_EQ(jtransform_perfect_transform(32, 17, 16, 8, transform), !reverses_y);
        }
    }
    row_t const rows[] = {
        {whole_layout, JXFORM_FLIP_H, 64, 48, nullptr, 0, 0, false, true},
        {whole_layout, JXFORM_NONE, 22, 11, "20x10+18+33", 16, 32},
        {whole_layout, JXFORM_NONE, 20, 10, "20fx10F-10-3", 32, 32},
        {whole_layout, JXFORM_FLIP_H, 48, 48, "+16+1", 16, 0},
        {whole_layout, JXFORM_ROT_90, 16, 16, "16x16+16+32", 16, 32, false, true},
        {whole_layout, JXFORM_FLIP_H, 150, 48, "150rx48", 0, 0, false, false, 64},
        // Whole iMCUs have 48 by 32 samples, or 56 by 40 in gray.
        {partial_layout, JXFORM_ROT_90, 32, 57, nullptr, 0, 0, true},
        {partial_layout, JXFORM_ROT_270, 43, 32, "+0+16", 0, 16, true},
        {partial_layout, JXFORM_FLIP_V, 57, 11, "+0+32", 0, 32, true},  // all of it is incomplete
        {partial_layout, JXFORM_ROT_180, 56, 40, nullptr, 0, 0, true, true},
        {partial_layout, JXFORM_NONE, 90, 43, "90R", 0, 0, false, false, 48},
        {partial_layout, JXFORM_FLIP_H, 80, 60, "80fx60f+17", 16},
    };
    for (row_t const& row : rows) {
        expect_moved(row);
    }
    pixels_t const larger = pixels_of(outcome(jpeg_of(rgb_layout), request(0, "48fx32f")));
    EXPECT_EQ(larger.at(47, 31, 0), 135) << "not the mean of the last block";
}

TEST(JpegTransformTest, TurnsByCountsBelowFourInPlace) {
    std::string const bytes = jpeg_of(partial_layout);
    for (unsigned int count = 0; count < 5; ++count) {
        jpegdata_t data = jpegdata_of(bytes);
        EXPECT_EQ(transform(count, data, data), count < 4) << count;
        int const code = std::array{0, 5, 6, 7, 0}[count];
        EXPECT_EQ(bytes_of(data), count < 4 ? outcome(bytes, request(code)) : bytes) << count;
    }
}

TEST(JpegTransformTest, RejectsRequestsThatCannotBeCarriedOut) {
    std::string const error = "nothing\nmemory: error detected.\n";
    std::string const no_crop = error + "Invalid crop request\n", partial = jpeg_of(partial_layout);
    for (char const* crop :
         {"58", "x44", "x10+0+34", "0x5", "10f+57", "50-8", "65501f", "4294967295-4294967295"}) {
        EXPECT_EQ(outcome(partial, request(0, crop)), no_crop) << crop;
    }
    EXPECT_EQ(outcome(jpeg_of(tiny_layout), request(0, "40r")), no_crop) << "no whole iMCU";
    for (char const* text :
         {"4294967296", "10x", "10X10", "10ff", "+", "1+2+3+4", " 1", "1x2 ", "+1f", "1F+-3"}) {
        jpeg_transform_info info;
        EXPECT_FALSE(jtransform_parse_crop_spec(&info, text)) << text;
        EXPECT_FALSE(info.crop) << text;
    }
    EXPECT_EQ(outcome(partial, request(JXFORM_WIPE)),
              error + "Requested feature was omitted at compile time\n");
    EXPECT_EQ(outcome(jpeg_of(rgb_layout), {.force_grayscale = true}),
              error + "Unsupported color conversion request\n");
    EXPECT_EQ(outcome(partial, {.transform = JXFORM_ROT_90, .perfect = true}),
              "nothing\n: transformation is not perfect\n");
}

TEST(JpegTransformTest, RejectsCutAndTooLargeFiles) {
    for (layout_t const& layout : {partial_layout, tall_layout}) {
        std::string bytes = jpeg_of(layout);
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            std::string const text = outcome(bytes.substr(0, size), request(JXFORM_ROT_90));
            ASSERT_TRUE(text.starts_with("nothing\n")) << size;
        }
        std::size_t const frame = bytes.find(layout.progressive ? "\xFF\xC2" : "\xFF\xC0");
        bytes.replace(frame + 5, 4, "\xFE\xFE\xFE\xFE");
        std::string const text = outcome(bytes, request(JXFORM_ROT_90));
        EXPECT_TRUE(text.starts_with("nothing\nmemory: exceeds limit jpeg-ratio ")) << text;
    }
    std::string const text = outcome(jpeg_without_end(), request(0));
    EXPECT_NE(text.find("\nInvalid progressive parameters"), text.npos) << text;
}

TEST(JpegTransformTest, FailsForValuesWithoutAHuffmanCode) {
    // Six blocks with the means 900, 0, -900, -1800, 0 and 900, and without other coefficients.
    std::string const blocks =
        "\xFE\xE1\x2B\xF8\x7B\xAF\xE1\xEE\xBF\x87\xBA\xFF\x00\x70\x8A\xFE\xE1\x2B"s;
    std::string bytes = jpeg_of({24, 16, JCS_GRAYSCALE, 1, 1});
    bytes = bytes.substr(0, bytes.find("\xFF\xDA") + 10) + blocks + "\xFF\xD9";
    for (int code = 0; code < 8; ++code) {
        std::string const out = outcome(bytes, request(code));
        bool const steps = operation_rows[code].swaps;  // 900 is next to -1800 then
        if (steps) {
            EXPECT_EQ(out, "nothing\nmemory: error detected.\nDCT coefficient out of range\n");
        } else {
            EXPECT_EQ(pixels_of(out).samples.size(), 24U * 16) << code;
        }
    }
}

TEST(JpegTransformTest, CopiesMarkersByOption) {
    std::string const comment = segment(0xFE, "JFIF\0"s), icc = segment(0xE2, "ICC");
    std::string const others = segment(0xE0, "JFXX") + segment(0xEE, "Adobe\0d\0\0\0\0\1"s);
    std::string const all = icc + comment + others;
    std::string const copied[] = {"", comment, all, comment + others, icc};
    for (int option = JCOPY_NONE; option <= JCOPY_ICC; ++option) {
        std::string const expected = copied[option] + "\xFF\xDB";  // after the new JFIF header
        std::string const out = outcome(jpeg_of(whole_layout, all), request(0), option);
        EXPECT_EQ(out.substr(20, expected.size()), expected);
    }
    std::string const rgb = outcome(jpeg_of(rgb_layout), request(0), JCOPY_ALL);
    EXPECT_NE(rgb.find("Adobe"), rgb.npos);
    EXPECT_EQ(rgb.find("Adobe"), rgb.rfind("Adobe")) << "libjpeg writes this segment itself";
}

TEST(JpegTransformTest, WritesTheNewSizeIntoExif) {
    auto const expect = [](std::string const& written, std::string const& old) {
        std::string const in = jpeg_of(whole_layout, segment(0xE1, old));
        std::string const out = outcome(in, request(JXFORM_ROT_270), JCOPY_ALL);
        EXPECT_NE(out.find(segment(0xE1, written)), out.npos) << old.size();
    };
    for (bool const intel : {false, true}) {
        std::string const good = exif(intel, 1, 64, 48);
        expect(exif(intel, 1, 48, 64), good);
        for (std::size_t at : {0u, 5u, 6u, 8u, 10u, 13u, 16u, 17u, 24u, 25u, 26u, 27u}) {
            std::string damaged = good;  // not Exif, no pointer, or a pointer outside of the block
            damaged[at] = '\x7F';
            expect(damaged, damaged);
            expect(good.substr(0, at), good.substr(0, at));
        }
    }
}

}  // namespace
