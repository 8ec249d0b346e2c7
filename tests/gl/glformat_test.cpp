// SPDX-License-Identifier: MIT
// Tests of the way from image descriptions to OpenGL's enumerants.
#include "gl/glformat.h"

#include <gtest/gtest.h>

#include <sstream>

#include "gl/glformattables.h"
#include "glext/glextloader.h"
#include "tests/support/files/testfiles.h"

using namespace libgr;

namespace {

constexpr auto SINT = IMAGE_TYPE_SINT;
constexpr auto UINT = IMAGE_TYPE_UINT;
constexpr auto FLOAT = IMAGE_TYPE_FLOAT;

struct row_t {
    image_desc_t desc;
    unsigned int internalformat;
    unsigned int format;
};

constexpr row_t s_rows[] = {
    {{IMAGE_FORMAT_RGB, UINT, IMAGE_BITS_8}, GL_RGB8, GL_RGB},
    {{IMAGE_FORMAT_RGB, FLOAT, IMAGE_BITS_16}, GL_RGB16F, GL_RGB},
    {{IMAGE_FORMAT_BGR, UINT, IMAGE_BITS_8}, GL_RGB, GL_BGR},
    {{IMAGE_FORMAT_BGRA, UINT, IMAGE_BITS_4}, GL_RGB4, GL_BGRA},
    {{IMAGE_FORMAT_YCbCr, UINT, IMAGE_BITS_8}, GL_RGB8, GL_RGB},
    {{IMAGE_FORMAT_YCbCrA, UINT, IMAGE_BITS_12}, GL_RGBA12, GL_RGBA},
    {{IMAGE_FORMAT_ALPHA, UINT, IMAGE_BITS_8}, GL_ALPHA, GL_ALPHA},
    {{IMAGE_FORMAT_RED, SINT, IMAGE_BITS_16}, GL_R16I, GL_RED},
    {{IMAGE_FORMAT_GREEN, FLOAT, IMAGE_BITS_32}, GL_GREEN, GL_GREEN},
    {{IMAGE_FORMAT_BLUE, SINT, IMAGE_BITS_8}, GL_BLUE, GL_BLUE},
    {{IMAGE_FORMAT_GRAYSCALE, UINT, IMAGE_BITS_8}, GL_LUMINANCE8, GL_LUMINANCE},
    {{IMAGE_FORMAT_GRAYSCALE, SINT, IMAGE_BITS_12}, GL_LUMINANCE12, GL_LUMINANCE},
    {{IMAGE_FORMAT_GRAYSCALE, FLOAT, IMAGE_BITS_16}, GL_LUMINANCE16F_ARB, GL_LUMINANCE},
    {{IMAGE_FORMAT_INTENSITY, UINT, IMAGE_BITS_12}, GL_INTENSITY12, GL_INTENSITY},
    {{IMAGE_FORMAT_GRAYSCALE_ALPHA, UINT, IMAGE_BITS_24}, GL_LUMINANCE_ALPHA, GL_LUMINANCE_ALPHA},
    {{IMAGE_FORMAT_GRAYSCALE_ALPHA, UINT, IMAGE_BITS_L12A4},
     GL_LUMINANCE12_ALPHA4,
     GL_LUMINANCE_ALPHA},
    {{IMAGE_FORMAT_DEPTH, FLOAT, IMAGE_BITS_24}, GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT},
    {{IMAGE_FORMAT_INDEX, UINT, IMAGE_BITS_8}, GL_COLOR_INDEX, GL_COLOR_INDEX},
};

/// Accepted pairs of type and bits, by format value.
constexpr int s_accepted[IMAGE_FORMAT_MAX] = {12, 17, 12, 9, 9, 9,  13, 0, 17,
                                              17, 6,  8,  3, 0, 17, 17, 0, 2};

/// The pixel type of SINT, UINT and FLOAT, by the bits: all families have the same but for depth
/// and for four bits of four components.
constexpr unsigned int s_types[IMAGE_BITS_MAX][3] = {
    {0, GL_BITMAP, 0},
    {},
    {GL_BYTE, GL_UNSIGNED_BYTE, 0},
    {GL_BYTE, GL_UNSIGNED_BYTE, 0},
    {GL_SHORT, GL_UNSIGNED_SHORT, 0},
    {GL_SHORT, GL_UNSIGNED_SHORT, GL_HALF_FLOAT},
    {0, GL_UNSIGNED_INT, 0},
    {GL_INT, GL_UNSIGNED_INT, GL_FLOAT},
    {},
    {GL_UNSIGNED_BYTE_2_3_3_REV, GL_UNSIGNED_BYTE_2_3_3_REV, 0},
    {GL_UNSIGNED_SHORT_5_6_5_REV, GL_UNSIGNED_SHORT_5_6_5_REV, 0},
    {GL_UNSIGNED_SHORT_1_5_5_5_REV, GL_UNSIGNED_SHORT_1_5_5_5_REV, 0},
    {GL_UNSIGNED_INT_2_10_10_10_REV, GL_UNSIGNED_INT_2_10_10_10_REV, 0},
    {GL_BYTE, GL_UNSIGNED_BYTE, 0},
    {GL_SHORT, GL_BITMAP, 0},
    {},
};

unsigned int pixel_type(image_desc_t desc) {
    if (desc.format == IMAGE_FORMAT_DEPTH) {
        return GL_DEPTH_COMPONENT;
    }
    return desc.bits == IMAGE_BITS_4 && desc.getPixelBits() == 16 ? GL_UNSIGNED_SHORT_4_4_4_4_REV
                                                                  : s_types[desc.bits][desc.type];
}

}  // namespace

TEST(glformat, descriptions_become_the_rows_of_their_family) {
    capture_t const quiet;
    for (row_t const& row : s_rows) {
        gl_loading_format_t out{};
        ASSERT_TRUE(grConvertImageFormatToGlFormatFULL(&out, row.desc, false))
            << row.desc.format << ' ' << row.desc.type << ' ' << row.desc.bits;
        EXPECT_EQ(row.internalformat, out.internalformat) << row.desc.format << row.desc.bits;
        EXPECT_EQ(row.format, out.format) << row.desc.format;
    }
    for (unsigned int format = 0; format < IMAGE_FORMAT_MAX; ++format) {
        constexpr unsigned int s_bits = IMAGE_BITS_MAX;
        int accepted = 0;
        for (unsigned int cell = 0; cell < IMAGE_TYPE_MAX * s_bits; ++cell) {
            image_desc_t const desc{static_cast<e_image_format_t>(format),
                                    static_cast<e_image_type_t>(cell / s_bits),
                                    static_cast<e_image_bits_t>(cell % s_bits)};
            gl_loading_format_t out{};
            if (grConvertImageFormatToGlFormatFULL(&out, desc, false)) {
                ++accepted;
                EXPECT_EQ(pixel_type(desc), out.type) << desc.format << desc.type << desc.bits;
            }
        }
        EXPECT_EQ(s_accepted[format], accepted) << format;
    }
    EXPECT_EQ(9U, gl_typebits_rows(IMAGE_FORMAT_RG).size());
    EXPECT_EQ(1U, gl_typebits_rows(IMAGE_FORMAT_DEPTH_STENCIL).size());
}

TEST(glformat, refusal_writes_four_lines_and_leaves_the_stream_hexadecimal) {
    // The pixel format is written before the search; 7 stands for what nobody wrote.
    struct refusal_t {
        image_desc_t desc;
        unsigned int format;
    };
    constexpr refusal_t refusals[] = {
        {{IMAGE_FORMAT_RG, UINT, IMAGE_BITS_8}, 7},
        {{IMAGE_FORMAT_DEPTH_STENCIL, UINT, IMAGE_BITS_D24S8}, 7},
        {{IMAGE_FORMAT_MAX, SINT, IMAGE_BITS_1}, 7},
        {{IMAGE_FORMAT_YCbCr422, UINT, IMAGE_BITS_8}, GL_RGB},
        {{IMAGE_FORMAT_RGB, UINT, IMAGE_BITS_24}, GL_RGB},
        {{IMAGE_FORMAT_GRAYSCALE, UINT, IMAGE_BITS_12}, GL_LUMINANCE},
        {{IMAGE_FORMAT_INTENSITY, SINT, IMAGE_BITS_12}, GL_INTENSITY},
    };
    for (auto const& [desc, format] : refusals) {
        std::ostringstream lines;
        lines << "Not supported image format!\nimgformat: " << desc.format
              << "\nimgtype: " << desc.type << "\nimgbits: " << desc.bits << "\nff";
        capture_t capture;
        gl_loading_format_t out{7, 7, 7};
        EXPECT_FALSE(grConvertImageFormatToGlFormatFULL(&out, desc, false));
        std::cerr << 255;
        EXPECT_EQ(lines.str(), capture.err());
        EXPECT_EQ(7U, out.internalformat);
        EXPECT_EQ(format, out.format);
        EXPECT_EQ(7U, out.type);
    }
    capture_t capture;
    EXPECT_FALSE(
        grConvertImageFormatToGlFormatFULL(nullptr, {IMAGE_FORMAT_RGB, UINT, IMAGE_BITS_8}, false));
    EXPECT_TRUE(capture.err().starts_with("Not supported image format!\n"));
}
