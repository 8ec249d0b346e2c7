// SPDX-License-Identifier: MIT
// Lossless operations held against one rule, block by block and by pixels.
#include "codecs/jpegtransform.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "codecs/jpeginfo.h"
#include "codecs/jtransform.h"
#include "geometry/constants.h"
#include "tests/support/files/testfiles.h"

namespace {

using namespace libgr;

struct layout_t {
    unsigned int width, height;
    J_COLOR_SPACE colors;
    unsigned int h, v;  ///< sampling factors of the first component
    bool progressive;
};

/// The first four are of whole iMCUs.
constexpr layout_t k_layouts[] = {
    {64, 48, JCS_YCbCr, 2, 2, false},     {64, 48, JCS_YCbCr, 2, 1, true},
    {40, 24, JCS_RGB, 1, 1, false},       {56, 32, JCS_GRAYSCALE, 1, 1, false},
    {57, 43, JCS_YCbCr, 2, 2, true},      {45, 39, JCS_YCbCr, 1, 2, false},
    {27, 35, JCS_GRAYSCALE, 2, 2, false}, {9, 13, JCS_YCbCr, 2, 2, false},
};
constexpr layout_t const &k_whole = k_layouts[0], &k_rgb = k_layouts[2], &k_partial = k_layouts[4];

jpegdata_t data_of(std::string const& bytes) {
    jpegdata_t data;
    EXPECT_TRUE(data.resize(bytes.size(), 0));
    std::copy(bytes.begin(), bytes.end(), data.begin());
    data.name = "memory";
    return data;
}

std::string bytes_of(jpegdata_t const& data) {
    return {data.begin(), data.end()};
}

/// A picture without symmetry as a JPEG, with these segments behind its SOI.
jpegdata_t encoded(layout_t const& layout, std::string const& segments = {}) {
    jpegdata_t data;
    jpeg_compress_struct cinfo;
    jpeg_error_mgr error;
    cinfo.err = jpeg_std_error(&error);
    jpeg_create_compress(&cinfo);
    use_memory_destination(&cinfo, data);
    cinfo.image_width = layout.width;
    cinfo.image_height = layout.height;
    cinfo.input_components = 3;
    cinfo.in_color_space = JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_colorspace(&cinfo, layout.colors);
    jpeg_set_quality(&cinfo, 92, TRUE);
    cinfo.comp_info[0].h_samp_factor = static_cast<int>(layout.h);
    cinfo.comp_info[0].v_samp_factor = static_cast<int>(layout.v);
    if (layout.progressive) {
        jpeg_simple_progression(&cinfo);
    }
    jpeg_start_compress(&cinfo, TRUE);
    std::vector<JSAMPLE> row(layout.width * 3);
    for (unsigned int y = 0; y < layout.height; ++y) {
        for (unsigned int i = 0; i < row.size(); ++i) {
            double const wave =
                50 * std::sin(i * 0.04 + i % 3) + 40 * std::cos(y * 0.07 + i * 0.01);
            row[i] = static_cast<JSAMPLE>(128 + wave + (i > 60 && y < 9 ? 30 : 0));
        }
        JSAMPROW pixels = row.data();
        jpeg_write_scanlines(&cinfo, &pixels, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    return data_of(bytes_of(data).insert(2, segments));
}

struct component_t {
    unsigned int width, height;  ///< blocks
    std::vector<int> quantisation, coefficients;
    bool operator==(component_t const&) const = default;
};

std::vector<component_t> components_of(jpegdata_t const& data) {
    jpeg_decompress_struct cinfo;
    jpeg_error_mgr error;
    cinfo.err = jpeg_std_error(&error);
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, data.begin(), data.size());
    jpeg_read_header(&cinfo, TRUE);
    jvirt_barray_ptr* const arrays = jpeg_read_coefficients(&cinfo);
    std::vector<component_t> all;
    for (int i = 0; i < cinfo.num_components; ++i) {
        jpeg_component_info const& from = cinfo.comp_info[i];
        component_t& to = all.emplace_back();
        to.width = from.width_in_blocks;
        to.height = from.height_in_blocks;
        to.quantisation.assign(from.quant_table->quantval, from.quant_table->quantval + 64);
        for (unsigned int y = 0; y < to.height; ++y) {
            JCOEF const* const row = (*cinfo.mem->access_virt_barray)(
                reinterpret_cast<j_common_ptr>(&cinfo), arrays[i], y, 1, FALSE)[0][0];
            to.coefficients.insert(to.coefficients.end(), row, row + to.width * 64);
        }
    }
    jpeg_destroy_decompress(&cinfo);
    return all;
}

jpeg_transform_info request(int code, char const* crop = nullptr, bool gray = false) {
    jpeg_transform_info info;
    info.transform = static_cast<JXFORM_CODE>(code);
    info.force_grayscale = gray;
    EXPECT_TRUE(crop == nullptr || jtransform_parse_crop_spec(&info, crop)) << crop;
    return info;
}

jpegdata_t transformed(jpegdata_t const& data, jpeg_transform_info info, int option = JCOPY_NONE) {
    jpegdata_t out;
    EXPECT_TRUE(transform(info, static_cast<JCOPY_OPTION>(option), out, data));
    return out;
}

/// What an operation does, told from its source: which of its directions become the other one, and
/// which turn round.
struct operation_t {
    JXFORM_CODE code;
    bool swaps, reverses_x, reverses_y;
};
constexpr operation_t k_operations[] = {
    {JXFORM_NONE, false, false, false},    {JXFORM_FLIP_H, false, true, false},
    {JXFORM_FLIP_V, false, false, true},   {JXFORM_TRANSPOSE, true, false, false},
    {JXFORM_TRANSVERSE, true, true, true}, {JXFORM_ROT_90, true, false, true},
    {JXFORM_ROT_180, false, true, true},   {JXFORM_ROT_270, true, true, false},
};

/// Where (x, y) of the output comes from, in blocks or samples, if the source has `w` by `h` of
/// them in whole iMCUs: the others keep their side.
struct from_t {
    unsigned int x, y;
    bool reversed_x, reversed_y;
    from_t(operation_t const& op, unsigned to_x, unsigned to_y, unsigned w, unsigned h)
        : x(op.swaps ? to_y : to_x),
          y(op.swaps ? to_x : to_y),
          reversed_x(op.reverses_x && x < w),
          reversed_y(op.reverses_y && y < h) {
        x = reversed_x ? w - 1 - x : x;
        y = reversed_y ? h - 1 - y : y;
    }
};

TEST(JpegTransformTest, MovesEachBlockByTheRule) {
    for (layout_t const& layout : k_layouts) {
        jpegdata_t const data = encoded(layout);
        std::vector<component_t> const source = components_of(data);
        unsigned int const h = source.size() == 1 ? 1 : layout.h;
        unsigned int const v = source.size() == 1 ? 1 : layout.v;
        for (std::size_t i = 0; i < source.size() * std::size(k_operations); ++i) {
            operation_t const& op = k_operations[i / source.size()];
            EXPECT_EQ(jtransform_perfect_transform(33, 24, 16, 8, op.code), !op.reverses_x);
            EXPECT_EQ(jtransform_perfect_transform(32, 17, 16, 8, op.code), !op.reverses_y);
            std::size_t const which = i % source.size();
            component_t const& from = source[which];
            component_t const to = components_of(transformed(data, request(op.code)))[which];
            ASSERT_EQ(to.width, op.swaps ? from.height : from.width);
            ASSERT_EQ(to.coefficients.size(), from.coefficients.size());
            for (unsigned int n = 0; n < to.coefficients.size(); ++n) {
                from_t const block(op, n / 64 % to.width, n / 64 / to.width,
                                   layout.width / (8 * h) * (which == 0 ? h : 1),
                                   layout.height / (8 * v) * (which == 0 ? v : 1));
                from_t const inner(op, n % 8, n / 8 % 8, 0, 0);
                unsigned int const at = inner.y * 8 + inner.x;
                bool const odd_x = inner.x % 2 == 1, odd_y = inner.y % 2 == 1;
                bool const negates = (block.reversed_x && odd_x) != (block.reversed_y && odd_y);
                int const value = from.coefficients[(block.y * from.width + block.x) * 64 + at];
                ASSERT_EQ(to.coefficients[n], negates ? -value : value) << op.code << " " << n;
                ASSERT_EQ(to.quantisation[n % 64], from.quantisation[at]);
            }
        }
    }
}

TEST(JpegTransformTest, TurnsBackWithoutLossIntoItsOwnSource) {
    for (unsigned int i = 0; i < 4 * 4; ++i) {
        jpegdata_t data = encoded(k_layouts[i / 4]);
        std::vector<component_t> const source = components_of(data);
        jpegdata_t const same = transformed(data, request(std::array{0, 5, 6, 7}[i % 4]));
        ASSERT_TRUE(transform(i % 4, data, data));
        EXPECT_EQ(bytes_of(data), bytes_of(same));
        ASSERT_TRUE(transform((4 - i % 4) % 4, data, data));
        EXPECT_EQ(components_of(data), source) << i;
    }
}

/// The luma of a pixel, y from the top.
double luma(image2d_t const& image, unsigned int x, unsigned int y) {
    bool const gray = image.desc.format == IMAGE_FORMAT_GRAYSCALE;
    auto const* const p = pixel_row(image, image.m_height - 1 - y) + x * (gray ? 1u : 3u);
    return gray ? p[0] : 0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2];
}

TEST(JpegTransformTest, ShowsTurnedAndCroppedPixels) {
    struct row_t {
        layout_t const& layout;
        JXFORM_CODE code;
        char const* crop;
        bool trim, gray;
        unsigned int width, height, x, y;  ///< size of the output, and where it begins
        unsigned int fold = 1000;          ///< where mirror images begin in x
    };
    row_t const rows[] = {
        {k_whole, JXFORM_FLIP_H, nullptr, false, true, 64, 48, 0, 0},
        {k_whole, JXFORM_FLIP_V, nullptr, false, false, 64, 48, 0, 0},
        {k_whole, JXFORM_TRANSPOSE, nullptr, true, false, 48, 64, 0, 0},
        {k_whole, JXFORM_TRANSVERSE, nullptr, false, false, 48, 64, 0, 0},
        // The corner goes to the unit's edge, and the size grows unless it is forced.
        {k_whole, JXFORM_NONE, "20x10+18+33", false, false, 22, 11, 16, 32},
        {k_whole, JXFORM_NONE, "20fx10F-10-3", false, false, 20, 10, 32, 32},
        {k_whole, JXFORM_FLIP_H, "+16+1", false, false, 48, 48, 16, 0},
        {k_whole, JXFORM_ROT_90, "16x16+16+32", false, true, 16, 16, 16, 32},
        {k_whole, JXFORM_FLIP_H, "150rx48", false, false, 150, 48, 0, 0, 64},
        // With 48 by 32 samples in whole units, and 56 by 40 in the units of gray.
        {k_partial, JXFORM_ROT_90, nullptr, true, false, 32, 57, 0, 0},
        {k_partial, JXFORM_ROT_270, "+0+16", true, false, 43, 32, 0, 16},
        {k_partial, JXFORM_FLIP_V, "+0+32", true, false, 57, 11, 0, 32},  // all that there is
        {k_partial, JXFORM_ROT_180, nullptr, true, true, 56, 40, 0, 0},
        {k_partial, JXFORM_NONE, "90R", false, false, 90, 43, 0, 0, 48},
    };
    for (row_t const& row : rows) {
        jpegdata_t const data = encoded(row.layout);
        jpeg_transform_info info = request(row.code, row.crop, row.gray);
        info.trim = row.trim;
        info.slow_hflip = row.gray;
        image2d_t source, turned;
        ASSERT_TRUE(jpeginfo_t().decompress(source, data, 0, false, white3ub));
        ASSERT_TRUE(jpeginfo_t().decompress(turned, transformed(data, info), 0, false, white3ub));
        ASSERT_EQ(std::pair(turned.m_width, turned.m_height), std::pair(row.width, row.height));
        EXPECT_EQ(turned.desc.format == IMAGE_FORMAT_GRAYSCALE, row.gray);
        unsigned int const unit = row.gray ? 8 : 16;
        for (unsigned int n = 0; n < row.width * row.height; ++n) {
            unsigned int x = n % row.width + row.x;
            x = x / row.fold % 2 == 0 ? x % row.fold : row.fold - 1 - x % row.fold;
            from_t const from(k_operations[row.code], x, n / row.width + row.y,
                              source.m_width / unit * unit, source.m_height / unit * unit);
            ASSERT_NEAR(luma(turned, n % row.width, n / row.width), luma(source, from.x, from.y), 2)
                << &row - rows << " " << n;
        }
    }
}

TEST(JpegTransformTest, FillsAForcedSizeWithTheNearestBlocksMean) {
    jpegdata_t const data = encoded(k_partial);
    component_t const from = components_of(data)[0];
    component_t const to =  // from 16 on, where 41 samples are left
        components_of(transformed(data, request(JXFORM_FLIP_H, "80fx60f+17")))[0];
    for (auto const& [at, from_at] : {std::pair{6, 7}, {59, 47}, {70, 43}, {79, 47}}) {
        std::vector<int> plain(64);
        plain[0] = from.coefficients.at(static_cast<unsigned>(from_at) * 64);
        auto const block = to.coefficients.begin() + at * 64;
        EXPECT_EQ(std::vector(block, block + 64), plain) << at;
    }
}

/// Runs a request: "true", or whether "nothing" or "something" is left, and all lines.
std::string outcome(jpegdata_t const& data, jpeg_transform_info info) {
    capture_t captured;
    testing::internal::CaptureStderr();
    jpegdata_t out = data;
    bool const good = transform(info, JCOPY_ALL, out, data);
    std::string const theirs = testing::internal::GetCapturedStderr();
    return good ? "true" : (out.empty() ? "nothing\n" : "something\n") + captured.err() + theirs;
}

TEST(JpegTransformTest, RefusesWhatCantBeDone) {
    std::string const error = "nothing\nmemory: error detected.\n";
    jpegdata_t const data = encoded(k_partial);
    for (char const* crop :
         {"58", "x44", "x10+0+34", "0x5", "10f+57", "50-8", "65501f", "4294967295-4294967295"}) {
        EXPECT_EQ(outcome(data, request(0, crop)), error + "Invalid crop request\n") << crop;
    }
    EXPECT_EQ(outcome(data, request(JXFORM_ROT_90, "43x57")), "true");
    for (char const* text :
         {"4294967296", "10x", "10X10", "10ff", "+", "1+2+3+4", " 1", "1x2 ", "+1f", "1F+-3"}) {
        jpeg_transform_info info;
        EXPECT_FALSE(jtransform_parse_crop_spec(&info, text) || info.crop) << text;
    }
    EXPECT_EQ(outcome(encoded(k_layouts[7]), request(JXFORM_NONE, "40r")),  // nothing to mirror
              error + "Invalid crop request\n");
    EXPECT_EQ(outcome(encoded(k_rgb), request(JXFORM_NONE, nullptr, true)),
              error + "Unsupported color conversion request\n");
    for (int code = JXFORM_WIPE; code <= 10; ++code) {
        EXPECT_TRUE(jtransform_perfect_transform(33, 17, 16, 8, request(code).transform));
        EXPECT_EQ(outcome(data, request(code)),
                  error + "Requested feature was omitted at compile time\n");
    }
    jpeg_transform_info perfect = request(JXFORM_ROT_90);
    perfect.perfect = true;
    EXPECT_EQ(outcome(data, perfect), "nothing\n: transformation is not perfect\n");
    capture_t captured;
    jpegdata_t out = data_of("kept");
    EXPECT_FALSE(transform(4, out, out));
    EXPECT_EQ(captured.err(), "4: jpeg transform rightrotate count over.\n");
    EXPECT_EQ(bytes_of(out), "kept");
}

TEST(JpegTransformTest, SurvivesCutAndDamagedFiles) {
    for (layout_t const* layout : {&k_layouts[4], &k_layouts[5], &k_layouts[6]}) {
        jpegdata_t data = encoded(*layout);
        std::string const bytes = bytes_of(data);
        for (data.count = 0; data.count < bytes.size(); ++data.count) {
            ASSERT_NE(outcome(data, request(JXFORM_ROT_90)), "true") << data.count;
        }
        // Not all damage is an error, but what is refused is refused with a reason.
        std::size_t const scan = bytes.find("\xFF\xDA") * 3;
        for (std::size_t n = 6; n < bytes.size() * 3; n += n < scan ? 1 : 5) {
            data[n / 3] = std::to_array<unsigned char>({0x00, 0xFF, 0x44})[n % 3];
            std::string const lines = outcome(data, request(JXFORM_ROT_90));
            data[n / 3] = static_cast<unsigned char>(bytes[n / 3]);
            ASSERT_TRUE(lines == "true" || lines.find('\n') + 1 < lines.size()) << n / 3 << lines;
        }
        // A frame whose coefficients nobody can hold.
        std::size_t const frame = bytes.find(layout->progressive ? "\xFF\xC2" : "\xFF\xC0");
        std::fill_n(data.begin() + frame + 5, 4, 0xFE);
        EXPECT_EQ(outcome(data, request(JXFORM_ROT_90)),
                  "nothing\nmemory: error detected.\nInsufficient memory (case 0)\n");
    }
}

std::string segment(char code, std::string const& payload) {
    return std::string{'\xFF', code, '\0', static_cast<char>(payload.size() + 2)} + payload;
}

TEST(JpegTransformTest, CopiesMarkersByOption) {
    // Among them an APP0 and a comment that only look like JFIF's and Adobe's segments.
    std::string const parts[] = {segment('\xE1', "x"), segment('\xE0', "JFXX"),
                                 segment('\xE2', "ICC"), segment('\xFE', "Adobe"),
                                 segment('\xEE', {"Adobe\0d\0\0\0\0\1", 12})};
    jpegdata_t const data = encoded(k_whole, parts[0] + parts[1] + parts[2] + parts[3] + parts[4]);
    std::string const copied[] = {"", "3", "01234", "0134", "2"};
    for (int option = JCOPY_NONE; option <= JCOPY_ICC; ++option) {
        std::string expected;  // straight behind the new JFIF header
        for (char const part : copied[option]) {
            expected += parts[part - '0'];
        }
        std::string const out = bytes_of(transformed(data, request(0), option));
        EXPECT_EQ(out.substr(20, expected.size() + 2), expected + "\xFF\xDB");
        std::string const rgb = bytes_of(transformed(encoded(k_rgb), request(0), option));
        EXPECT_EQ(rgb.find("Adobe"), rgb.rfind("Adobe"));
    }
}

TEST(JpegTransformTest, WritesTheNewSizeIntoExif) {
    // A pointer to the Exif IFD at 26, which has the width of 64 and the height of 48.
    std::string const blocks[] = {
        {"Exif\0\0II*\0\x08\0\0\0\x01\0\x69\x87\x04\0\x01\0\0\0\x1A\0\0\0\0\0\0\0\x02\0"
         "\x02\xA0\x04\0\x01\0\0\0\x40\0\0\0\x03\xA0\x04\0\x01\0\0\0\x30\0\0\0",
         58},
        {"Exif\0\0MM\0*\0\0\0\x08\0\x01\x87\x69\0\x04\0\0\0\x01\0\0\0\x1A\0\0\0\0\0\x02"
         "\xA0\x02\0\x04\0\0\0\x01\0\0\0\x40\xA0\x03\0\x04\0\0\0\x01\0\0\0\x30",
         58}};
    auto const check = [](std::string const& block, std::string const& expected) {
        std::string const out = bytes_of(transformed(encoded(k_whole, segment('\xE1', block)),
                                                     request(JXFORM_ROT_270), JCOPY_ALL));
        EXPECT_NE(out.find(segment('\xE1', expected)), std::string::npos) << block.size();
    };
    for (std::string const& block : blocks) {
        std::string turned = block;
        std::swap(turned[turned.find('\x40')], turned[turned.find('\x30')]);
        check(block, turned);
        for (std::size_t at : {0u, 5u, 6u, 8u, 10u, 13u, 16u, 17u, 24u, 25u, 26u, 27u}) {
            std::string damaged = block;  // not Exif, no pointer, or one to the outside
            damaged[at] = '\x7F';
            check(damaged, damaged);
            check(block.substr(0, at), block.substr(0, at));
        }
    }
}

}  // namespace
