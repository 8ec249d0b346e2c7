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
    int h, v;  ///< sampling factors of the first component
    bool progressive;
};

constexpr layout_t k_layouts[] = {
    {64, 48, JCS_YCbCr, 2, 2, false},     {64, 48, JCS_YCbCr, 2, 1, true},
    {40, 24, JCS_RGB, 1, 1, false},       {56, 32, JCS_GRAYSCALE, 1, 1, false},
    {57, 43, JCS_YCbCr, 2, 2, true},      {45, 39, JCS_YCbCr, 1, 2, false},
    {27, 35, JCS_GRAYSCALE, 2, 2, false}, {9, 13, JCS_YCbCr, 2, 2, false},
};
constexpr layout_t const &k_whole = k_layouts[0], &k_rgb = k_layouts[2], &k_partial = k_layouts[4];
constexpr unsigned int k_whole_layouts = 4;  ///< of whole iMCUs

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
    bool const gray = layout.colors == JCS_GRAYSCALE;
    cinfo.input_components = gray ? 1 : 3;
    cinfo.in_color_space = gray ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_colorspace(&cinfo, layout.colors);
    jpeg_set_quality(&cinfo, 92, TRUE);
    cinfo.comp_info[0].h_samp_factor = layout.h;
    cinfo.comp_info[0].v_samp_factor = layout.v;
    if (layout.progressive) {
        jpeg_simple_progression(&cinfo);
    }
    jpeg_start_compress(&cinfo, TRUE);
    std::vector<JSAMPLE> row(layout.width * (gray ? 1 : 3));
    for (unsigned int y = 0; y < layout.height; ++y) {
        for (unsigned int i = 0; i < row.size(); ++i) {
            unsigned int const x = i / (gray ? 1 : 3);
            row[i] = static_cast<JSAMPLE>(128 + 50 * std::sin(x * 0.11 + i % 3) +
                                          40 * std::cos(y * 0.07 + x * 0.02) +
                                          (x > 20 && y < 9 ? 30 : 0));
        }
        JSAMPROW const rows[] = {row.data()};
        jpeg_write_scanlines(&cinfo, const_cast<JSAMPARRAY>(rows), 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    return data_of(bytes_of(data).insert(2, segments));
}

struct component_t {
    unsigned int width, height, h, v;  ///< blocks, sampling factors
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
    for (jpeg_component_info* i = cinfo.comp_info; i != cinfo.comp_info + cinfo.num_components;
         ++i) {
        JQUANT_TBL const& table = *i->quant_table;
        component_t& kept = all.emplace_back(component_t{i->width_in_blocks,
                                                         i->height_in_blocks,
                                                         static_cast<unsigned>(i->h_samp_factor),
                                                         static_cast<unsigned>(i->v_samp_factor),
                                                         {table.quantval, table.quantval + 64},
                                                         {}});
        for (unsigned int y = 0; y < kept.height; ++y) {
            JCOEF const* const row = (*cinfo.mem->access_virt_barray)(
                reinterpret_cast<j_common_ptr>(&cinfo), arrays[all.size() - 1], y, 1, FALSE)[0][0];
            kept.coefficients.insert(kept.coefficients.end(), row, row + kept.width * 64);
        }
    }
    jpeg_destroy_decompress(&cinfo);
    return all;
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
    from_t(operation_t const& op, unsigned int to_x, unsigned int to_y, unsigned int w,
           unsigned int h)
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
        for (operation_t const& op : k_operations) {
            SCOPED_TRACE(&layout - k_layouts);
            jpeg_transform_info info;
            info.transform = op.code;
            jpegdata_t out;
            ASSERT_TRUE(transform(info, JCOPY_NONE, out, data));
            std::vector<component_t> const turned = components_of(out);
            bool const single = source.size() == 1;
            for (std::size_t i = 0; i < source.size(); ++i) {
                component_t const &from = source[i], &to = turned[i];
                unsigned int const h = single ? 1 : from.h, v = single ? 1 : from.v;
                unsigned int const whole_x =
                    layout.width * h / (single ? 8 : source[0].h * 8) / h * h;
                unsigned int const whole_y = layout.height / (single ? 8 : source[0].v * 8) * v;
                ASSERT_EQ(to.width, op.swaps ? from.height : from.width);
                ASSERT_EQ(to.coefficients.size(), from.coefficients.size());
                EXPECT_EQ(to.h, op.swaps ? v : op.code == JXFORM_NONE ? to.h : h);
                for (unsigned int n = 0; n < to.coefficients.size(); ++n) {
                    from_t const block(op, n / 64 % to.width, n / 64 / to.width, whole_x, whole_y);
                    from_t const inner(op, n % 8, n / 8 % 8, 0, 0);
                    unsigned int const at = inner.y * 8 + inner.x;
                    bool const negates = (block.reversed_x && inner.x % 2 == 1) !=
                                         (block.reversed_y && inner.y % 2 == 1);
                    int const value = from.coefficients[(block.y * from.width + block.x) * 64 + at];
                    ASSERT_EQ(to.coefficients[n], negates ? -value : value) << op.code << " " << n;
                    ASSERT_EQ(to.quantisation[n % 64], from.quantisation[at]);
                }
            }
        }
    }
}

TEST(JpegTransformTest, TurnsBackWithoutLossIntoItsOwnSource) {
    for (unsigned int i = 0; i < k_whole_layouts; ++i) {
        jpegdata_t data = encoded(k_layouts[i]);
        std::vector<component_t> const source = components_of(data);
        for (auto const& [there, back] : {std::pair{1u, 3u}, {2u, 2u}, {0u, 0u}}) {
            jpeg_transform_info info;
            info.transform = std::array{JXFORM_NONE, JXFORM_ROT_90, JXFORM_ROT_180}[there];
            jpegdata_t same;
            ASSERT_TRUE(transform(info, JCOPY_NONE, same, data));
            ASSERT_TRUE(transform(there, data, data));
            EXPECT_EQ(bytes_of(same), bytes_of(data));
            ASSERT_TRUE(transform(back, data, data));
            EXPECT_EQ(components_of(data), source) << i << " " << there;
        }
    }
}

/// The red of a pixel, y from the top, or its luma.
double sample(image2d_t const& image, unsigned int x, unsigned int y, bool luma) {
    bool const gray = image.desc.format == IMAGE_FORMAT_GRAYSCALE;
    auto const* const p = pixel_row(image, image.m_height - 1 - y) + x * (gray ? 1u : 3u);
    return gray || !luma ? p[0] : 0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2];
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
        {k_whole, JXFORM_ROT_90, nullptr, false, true, 48, 64, 0, 0},
        {k_layouts[1], JXFORM_ROT_180, nullptr, false, false, 64, 48, 0, 0},
        {k_layouts[1], JXFORM_ROT_270, nullptr, false, false, 48, 64, 0, 0},
        // The corner goes to the unit's edge, and the size grows unless it is forced.
        {k_whole, JXFORM_NONE, "20x10+18+33", false, false, 22, 11, 16, 32},
        {k_whole, JXFORM_NONE, "20fx10F-10-3", false, false, 20, 10, 32, 32},
        {k_whole, JXFORM_FLIP_H, "+16+1", false, false, 48, 48, 16, 0},
        {k_whole, JXFORM_ROT_90, "16x16+16+32", false, true, 16, 16, 16, 32},
        {k_whole, JXFORM_FLIP_H, "150rx48", false, false, 150, 48, 0, 0, 64},
        // With 48 by 32 samples in whole units, and 56 by 40 in the units of gray.
        {k_partial, JXFORM_FLIP_H, nullptr, false, false, 57, 43, 0, 0},
        {k_partial, JXFORM_FLIP_H, nullptr, true, false, 48, 43, 0, 0},
        {k_partial, JXFORM_ROT_90, nullptr, true, false, 32, 57, 0, 0},
        {k_partial, JXFORM_ROT_270, "+0+16", true, false, 43, 32, 0, 16},
        {k_partial, JXFORM_FLIP_V, "+0+32", true, false, 57, 11, 0, 32},  // all that there is
        {k_partial, JXFORM_ROT_180, nullptr, true, true, 56, 40, 0, 0},
        {k_partial, JXFORM_NONE, "90R", false, false, 90, 43, 0, 0, 48},
    };
    for (row_t const& row : rows) {
        SCOPED_TRACE(&row - rows);
        jpegdata_t const data = encoded(row.layout);
        jpeg_transform_info info;
        info.transform = row.code;
        info.trim = row.trim;
        info.force_grayscale = row.gray;
        info.slow_hflip = row.gray;
        EXPECT_TRUE(row.crop == nullptr || jtransform_parse_crop_spec(&info, row.crop));
        jpegdata_t out;
        image2d_t source, turned;
        ASSERT_TRUE(transform(info, JCOPY_NONE, out, data));
        ASSERT_TRUE(jpeginfo_t().decompress(source, data, 0, false, white3ub));
        ASSERT_TRUE(jpeginfo_t().decompress(turned, out, 0, false, white3ub));
        ASSERT_EQ(turned.m_width, row.width);
        ASSERT_EQ(turned.m_height, row.height);
        EXPECT_EQ(turned.desc.format == IMAGE_FORMAT_GRAYSCALE, row.gray);
        unsigned int const unit = row.gray ? 8 : 16;
        double worst = 0;
        for (unsigned int n = 0; n < row.width * row.height; ++n) {
            unsigned int x = n % row.width + row.x;
            x = x / row.fold % 2 == 0 ? x % row.fold : row.fold - 1 - x % row.fold;
            from_t const from(k_operations[row.code], x, n / row.width + row.y,
                              source.m_width / unit * unit, source.m_height / unit * unit);
            worst =
                std::max(worst, std::abs(sample(turned, n % row.width, n / row.width, row.gray) -
                                         sample(source, from.x, from.y, row.gray)));
        }
        EXPECT_LE(worst, 4);
    }
}

TEST(JpegTransformTest, FillsAForcedSizeWithTheNearestBlocksMean) {
    jpegdata_t const data = encoded(k_partial);
    component_t const from = components_of(data)[0];
    jpeg_transform_info info;
    info.transform = JXFORM_FLIP_H;
    ASSERT_TRUE(jtransform_parse_crop_spec(&info, "80fx60f+17"));  // from 16 on, where 41 are left
    jpegdata_t out;
    ASSERT_TRUE(transform(info, JCOPY_NONE, out, data));
    component_t const to = components_of(out)[0];
    struct row_t {
        unsigned int x, y, from_x, from_y;
    };
    for (row_t const& row : {row_t{6, 0, 7, 0}, {9, 5, 7, 5}, {0, 7, 3, 5}, {9, 7, 7, 5}}) {
        std::vector<int> plain(64);
        plain[0] = from.coefficients[(row.from_y * from.width + row.from_x) * 64];
        auto const block = to.coefficients.begin() + (row.y * to.width + row.x) * 64;
        EXPECT_EQ(std::vector(block, block + 64), plain) << row.x << " " << row.y;
    }
}

/// Runs a request. The result is "true ", or "false " or "partly " and the lines on both errors
/// streams.
std::string outcome(jpeg_transform_info info, jpegdata_t const& data) {
    capture_t captured;
    testing::internal::CaptureStderr();  // libjpeg's own lines
    jpegdata_t out = data;
    bool const good = transform(info, JCOPY_ALL, out, data);
    std::string const theirs = testing::internal::GetCapturedStderr();
    return good ? "true " : (out.empty() ? "false " : "partly ") + captured.err() + theirs;
}

TEST(JpegTransformTest, RefusesWhatCantBeDone) {
    std::string const error = "false memory: error detected.\n";
    std::string const crop = error + "Invalid crop request\n";
    std::string const code = error + "Requested feature was omitted at compile time\n";
    struct row_t {
        layout_t const& layout;
        JXFORM_CODE code;
        char const* crop;
        std::string lines;
        bool perfect = false, gray = false;
    };
    row_t const rows[] = {
        {k_partial, JXFORM_ROT_90, nullptr, "false : transformation is not perfect\n", true},
        {k_partial, JXFORM_TRANSPOSE, nullptr, "true ", true},
        {k_partial, JXFORM_WIPE, nullptr, code},
        {k_partial, JXFORM_DROP, nullptr, code},
        {k_partial, static_cast<JXFORM_CODE>(10), nullptr, code},
        {k_rgb, JXFORM_NONE, nullptr, error + "Unsupported color conversion request\n", false,
         true},
        {k_partial, JXFORM_NONE, "57x43", "true "},
        {k_partial, JXFORM_NONE, "58", crop},
        {k_partial, JXFORM_ROT_90, "44", crop},
        {k_partial, JXFORM_NONE, "x10+0+34", crop},
        {k_partial, JXFORM_NONE, "0x5", crop},
        {k_partial, JXFORM_NONE, "10f+57", crop},
        {k_partial, JXFORM_NONE, "50-8", crop},
        {k_partial, JXFORM_NONE, "65501f", crop},
        {k_partial, JXFORM_NONE, "4294967295-4294967295", crop},
        {k_layouts[7], JXFORM_NONE, "40r", crop},  // no whole unit to mirror
    };
    for (row_t const& row : rows) {
        jpeg_transform_info info;
        info.transform = row.code;
        info.perfect = row.perfect;
        info.force_grayscale = row.gray;
        EXPECT_TRUE(row.crop == nullptr || jtransform_parse_crop_spec(&info, row.crop));
        EXPECT_EQ(outcome(info, encoded(row.layout)), row.lines) << &row - rows;
    }
    capture_t captured;
    jpegdata_t out = data_of("kept");
    EXPECT_FALSE(transform(4, out, out));
    EXPECT_FALSE(transform(~0UL, out, out));
    EXPECT_EQ(captured.err(),
              "4: jpeg transform rightrotate count over.\n"
              "18446744073709551615: jpeg transform rightrotate count over.\n");
    EXPECT_EQ(bytes_of(out), "kept");
}

TEST(JpegTransformTest, SurvivesCutAndDamagedFiles) {
    jpeg_transform_info info;
    info.transform = JXFORM_ROT_90;
    for (layout_t const& layout : {k_layouts[4], k_layouts[5], k_layouts[6]}) {
        jpegdata_t data = encoded(layout);
        std::string const bytes = bytes_of(data);
        for (data.count = 0; data.count < bytes.size(); ++data.count) {
            ASSERT_NE(outcome(info, data), "true ") << data.count;
        }
        // Not all damage is an error, but what is refused is refused with a reason.
        for (std::size_t at = 2; at < bytes.size(); at += at < bytes.find("\xFF\xDA") ? 1u : 5u) {
            for (JOCTET const value : std::to_array<JOCTET>({0x00, 0xFF, 0x44})) {
                unsigned char const kept = std::exchange(data[at], value);
                std::string const lines = outcome(info, data);
                data[at] = kept;
                ASSERT_TRUE(lines == "true " || lines.size() > 7) << at << lines;
            }
        }
        // A frame whose coefficients nobody can hold.
        std::fill_n(data.begin() + bytes.find(layout.progressive ? "\xFF\xC2" : "\xFF\xC0") + 5, 4,
                    0xFE);
        EXPECT_EQ(outcome(info, data).substr(0, 30), "false memory: error detected.\n");
    }
}

std::string segment(int code, std::string const& payload) {
    return std::string{'\xFF', static_cast<char>(code), '\0',
                       static_cast<char>(payload.size() + 2)} +
           payload;
}

/// The last digits of the codes of the segments before the first quantisation table.
std::string segments_of(jpegdata_t const& data) {
    std::string codes;
    for (std::size_t at = 2; data[at + 1] != 0xDB; at += 2u + data[at + 2] * 256u + data[at + 3]) {
        codes += "0123456789ABCDEF"[data[at + 1] & 15];
    }
    return codes;
}

TEST(JpegTransformTest, CopiesMarkersByOption) {
    // Among them an APP0 and a comment that only look like JFIF's and Adobe's segments.
    jpegdata_t const data = encoded(
        k_whole, segment(0xE1, "x") + segment(0xE0, "JFXX") + segment(0xE2, "ICC") +
                     segment(0xFE, "Adobe") + segment(0xEE, std::string("Adobe\0d\0\0\0\0\1", 12)));
    ASSERT_EQ(segments_of(data), "102EE0");
    std::string const copied[] = {"0", "0E", "0102EE", "010EE", "02"};
    for (int option = JCOPY_NONE; option <= JCOPY_ICC; ++option) {
        jpeg_transform_info info;
        jpegdata_t out;
        ASSERT_TRUE(transform(info, static_cast<JCOPY_OPTION>(option), out, data));
        EXPECT_EQ(segments_of(out), copied[option]);
        ASSERT_TRUE(transform(info, static_cast<JCOPY_OPTION>(option), out, encoded(k_rgb)));
        EXPECT_EQ(segments_of(out), "E");
    }
}

TEST(JpegTransformTest, WritesTheNewSizeIntoExif) {
    // A pointer to the Exif IFD at 26; in it the width of 64 as a short, the height of 48 as a
    // long.
    std::string const blocks[] = {
        {"Exif\0\0II*\0\x08\0\0\0\x01\0\x69\x87\x04\0\x01\0\0\0\x1A\0\0\0\0\0\0\0\x02\0"
         "\x02\xA0\x03\0\x01\0\0\0\x40\0\0\0\x03\xA0\x04\0\x01\0\0\0\x30\0\0\0",
         58},
        {"Exif\0\0MM\0*\0\0\0\x08\0\x01\x87\x69\0\x04\0\0\0\x01\0\0\0\x1A\0\0\0\0\0\x02"
         "\xA0\x02\0\x03\0\0\0\x01\0\x40\0\0\xA0\x03\0\x04\0\0\0\x01\0\0\0\x30",
         58}};
    std::string const turned[] = {
        {"\x02\xA0\x04\0\x01\0\0\0\x30\0\0\0\x03\xA0\x04\0\x01\0\0\0\x40\0\0\0", 24},
        {"\xA0\x02\0\x04\0\0\0\x01\0\0\0\x30\xA0\x03\0\x04\0\0\0\x01\0\0\0\x40", 24}};
    jpeg_transform_info info;
    info.transform = JXFORM_ROT_270;
    auto const check = [&](std::string const& block, std::string const& expected) {
        jpegdata_t out;
        EXPECT_TRUE(transform(info, JCOPY_ALL, out, encoded(k_whole, segment(0xE1, block))));
        EXPECT_NE(bytes_of(out).find(segment(0xE1, expected)), std::string::npos) << block.size();
    };
    for (int order = 0; order < 2; ++order) {
        for (std::size_t size = 6; size <= 58; ++size) {
            std::string const block = blocks[order].substr(0, size);
            std::size_t const whole = size == 58 ? 24 : size >= 46 ? 12 : 0;  // bytes of entries
            check(block, block.substr(0, 34) + turned[order].substr(0, whole) +
                             (size > 34 ? block.substr(34 + whole) : ""));
        }
        for (std::size_t at : {0u, 5u, 6u, 8u, 10u, 13u, 16u, 17u, 24u, 25u, 26u, 27u}) {
            std::string damaged = blocks[order];  // not Exif, no pointer, or one to the outside
            damaged[at] = '\x7F';
            check(damaged, damaged);
        }
    }
}

TEST(JpegTransformTest, KnowsPerfectTurns) {
    for (int code = 0; code <= 10; ++code) {
        operation_t const op = code < 8 ? k_operations[code] : operation_t{};
        auto const perfect = [&](unsigned int width, unsigned int height) {
            return jtransform_perfect_transform(width, height, 16, 8,
                                                static_cast<JXFORM_CODE>(code));
        };
        EXPECT_TRUE(perfect(32, 24));
        EXPECT_EQ(perfect(33, 24), !op.reverses_x) << code;
        EXPECT_EQ(perfect(32, 17), !op.reverses_y) << code;
    }
}

TEST(JpegTransformTest, ReadsCropTexts) {
    struct row_t {
        char const* text;
        char const* read;  ///< width, height, x, y, each behind its code; none where it is refused
    };
    row_t const rows[] = {
        {"100x50+3-4", "1:100 1:50 1:3 2:4"},
        {"", "0:0 0:0 0:0 0:0"},
        {"7f", "3:7 0:0 0:0 0:0"},
        {"7Rx8F", "4:7 3:8 0:0 0:0"},
        {"x8r", "0:0 4:8 0:0 0:0"},
        {"-1", "0:0 0:0 2:1 0:0"},
        {"9+1+0", "1:9 0:0 1:1 1:0"},
        {"4294967295", "1:4294967295 0:0 0:0 0:0"},
        {"4294967296", nullptr},
        {"10x", nullptr},
        {"10X10", nullptr},
        {"10ff", nullptr},
        {"+", nullptr},
        {"1+2+3+4", nullptr},
        {" 1", nullptr},
        {"1x2 ", nullptr},
        {"+1f", nullptr},
        {"1F+-3", nullptr},
    };
    for (row_t const& row : rows) {
        jpeg_transform_info info;
        EXPECT_EQ(jtransform_parse_crop_spec(&info, row.text), row.read != nullptr) << row.text;
        EXPECT_EQ(info.crop, row.read != nullptr);
        std::ostringstream read;
        read << info.crop_width_set << ":" << info.crop_width << " " << info.crop_height_set << ":"
             << info.crop_height << " " << info.crop_xoffset_set << ":" << info.crop_xoffset << " "
             << info.crop_yoffset_set << ":" << info.crop_yoffset;
        EXPECT_EQ(read.str(), row.read != nullptr ? row.read : "0:0 0:0 0:0 0:0") << row.text;
    }
}

}  // namespace
