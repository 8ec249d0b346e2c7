// SPDX-License-Identifier: MIT
// Tests of the conversion from image descriptions to OpenGL enumerants.
#include "gl/glformat.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "gl/unpackbounds.h"
#include "glext/glextloader.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

/// The pixel format of an image format, and the sizes that it accepts by component type.
struct accepted_t {
    char const* glformat;
    char const* sizes[IMAGE_TYPE_MAX];
};
constexpr accepted_t accepted[IMAGE_FORMAT_MAX] = {
    {"GL_LUMINANCE", {" 4 8 12 16 32", " 1 4 8 16 32", " 16 32"}},
    {"GL_LUMINANCE_ALPHA", {" 4 8 16 32 L6A2 L12A4", " 1 4 8 12 16 24 32 L6A2 L12A4", " 16 32"}},
    {"GL_INTENSITY", {" 4 8 16 32", " 1 4 8 12 16 32", " 16 32"}},
    {"GL_RED", {" 8 16 32", " 1 8 16 32", " 16 32"}},
    {"GL_GREEN", {" 8 16 32", " 1 8 16 32", " 16 32"}},
    {"GL_BLUE", {" 8 16 32", " 1 8 16 32", " 16 32"}},
    {"GL_ALPHA", {" 4 8 12 16 32", " 1 4 8 12 16 32", " 16 32"}},
    {"7", {"", "", ""}},  // RG: the pixel format is not written
    {"GL_RGB", {" 4 8 12 16 32 R3G3B2 R5G6B5", " 1 4 8 12 16 32 R3G3B2 R5G6B5", " 16 32"}},
    {"GL_RGBA",
     {" 4 8 12 16 32 R5G5B5A1 R10G10B10A2", " 1 4 8 12 16 32 R5G5B5A1 R10G10B10A2", " 16 32"}},
    {"GL_BGR", {" 8 R3G3B2 R5G6B5", " 8 R3G3B2 R5G6B5", ""}},
    {"GL_BGRA", {" 4 8 R5G5B5A1 R10G10B10A2", " 4 8 R5G5B5A1 R10G10B10A2", ""}},
    {"GL_DEPTH_COMPONENT", {"", "", " 16 24 32"}},
    {"7", {"", "", ""}},  // DEPTH_STENCIL
    {"GL_RGB", {" 4 8 12 16 32 R3G3B2 R5G6B5", " 1 4 8 12 16 32 R3G3B2 R5G6B5", " 16 32"}},
    {"GL_RGBA",
     {" 4 8 12 16 32 R5G5B5A1 R10G10B10A2", " 1 4 8 12 16 32 R5G5B5A1 R10G10B10A2", " 16 32"}},
    {"GL_RGB", {"", "", ""}},
    {"GL_COLOR_INDEX", {"", " 1 8", ""}},
};

std::map<e_image_bits_t, std::string> const packed_types = {
    {IMAGE_BITS_R3G3B2, "GL_UNSIGNED_BYTE_2_3_3_REV"},
    {IMAGE_BITS_R5G6B5, "GL_UNSIGNED_SHORT_5_6_5_REV"},
    {IMAGE_BITS_R5G5B5A1, "GL_UNSIGNED_SHORT_1_5_5_5_REV"},
    {IMAGE_BITS_R10G10B10A2, "GL_UNSIGNED_INT_2_10_10_10_REV"},
};
std::map<e_image_bits_t, std::string> const packed_internalformats = {
    {IMAGE_BITS_R3G3B2, "GL_R3_G3_B2"},        {IMAGE_BITS_R5G6B5, "GL_RGB5"},
    {IMAGE_BITS_R5G5B5A1, "GL_RGB5_A1"},       {IMAGE_BITS_R10G10B10A2, "GL_RGB10_A2"},
    {IMAGE_BITS_L6A2, "GL_LUMINANCE6_ALPHA2"}, {IMAGE_BITS_L12A4, "GL_LUMINANCE12_ALPHA4"},
};

std::string expected_type(image_desc_t const& desc, std::string const& glformat) {
    auto const bits = s_image_bits_list[desc.bits].component;  // 0 for packed pixels
    bool const is_unsigned = desc.type == IMAGE_TYPE_UINT;
    if (packed_types.contains(desc.bits)) {
        return packed_types.at(desc.bits);
    }
    if (bits == 4 && (glformat == "GL_RGBA" || glformat == "GL_BGRA")) {
        return "GL_UNSIGNED_SHORT_4_4_4_4_REV";
    }
    if (desc.type == IMAGE_TYPE_FLOAT) {
        return glformat == "GL_DEPTH_COMPONENT" ? glformat
               : bits == 16                     ? "GL_HALF_FLOAT"
                                                : "GL_FLOAT";
    }
    if (bits == 1 || (is_unsigned && desc.bits == IMAGE_BITS_L12A4)) {
        return "GL_BITMAP";
    }
    bool const is_byte = bits <= 8 && desc.bits != IMAGE_BITS_L12A4;
    return std::string(is_unsigned ? "GL_UNSIGNED_" : "GL_") + (is_byte      ? "BYTE"
                                                                : bits <= 16 ? "SHORT"
                                                                             : "INT");
}

std::string expected_internalformat(image_desc_t const& desc, std::string const& glformat) {
    auto const bits = s_image_bits_list[desc.bits].component;
    std::string const size = std::to_string(bits);
    bool const is_float = desc.type == IMAGE_TYPE_FLOAT;
    if (packed_internalformats.contains(desc.bits)) {
        return packed_internalformats.at(desc.bits);
    }
    if (glformat == "GL_BGR" || glformat == "GL_BGRA") {
        return bits == 4 ? "GL_RGB4" : glformat == "GL_BGR" ? "GL_RGB" : "GL_RGBA";
    }
    if (glformat == "GL_RED" && bits != 1) {
        return "GL_R" + size + (is_float ? "F" : desc.type == IMAGE_TYPE_UINT ? "UI" : "I");
    }
    if (glformat == "GL_DEPTH_COMPONENT") {
        return glformat + size;
    }
    bool const is_alpha8 = glformat == "GL_ALPHA" && bits == 8;
    if (bits == 1 || is_alpha8 || (bits >= 24 && !is_float) || glformat == "GL_GREEN" ||
        glformat == "GL_BLUE" || glformat == "GL_COLOR_INDEX") {
        return glformat;
    }
    if (is_float) {
        return glformat + size + (glformat.starts_with("GL_RGB") ? "F" : "F_ARB");
    }
    return glformat == "GL_LUMINANCE_ALPHA" ? "GL_LUMINANCE" + size + "_ALPHA" + size
                                            : glformat + size;
}

/// Converts all sizes of a format and component type. Returns the accepted sizes.
std::string accepted_sizes(e_image_format_t format, e_image_type_t type, std::string glformat) {
    std::string sizes;
    for (unsigned int bits = 0; bits < IMAGE_BITS_MAX; ++bits) {
        image_desc_t const desc{format, type, static_cast<e_image_bits_t>(bits)};
        gl_loading_format_t out{7, 7, 7};
        std::ostringstream report;
        report << "Not supported image format!\nimgformat: " << format << "\nimgtype: " << type
               << "\nimgbits: " << desc.bits << "\nff";
        SCOPED_TRACE(report.str());
        capture_t capture;
        bool const is_accepted = grConvertImageFormatToGlFormatFULL(&out, desc, false);
        EXPECT_EQ(gl_enum_name(out.format), glformat);
        if (is_accepted) {
            EXPECT_EQ(gl_enum_name(out.internalformat), expected_internalformat(desc, glformat));
            EXPECT_EQ(gl_enum_name(out.type), expected_type(desc, glformat));
            EXPECT_EQ(capture.err(), "");
            sizes += image_bits_string[bits].name + std::string("IMAGE_BITS").size();
            sizes[sizes.rfind('_')] = ' ';
        } else {
            std::cerr << 255;  // the stream is hexadecimal now
            EXPECT_EQ(capture.err(), report.str());
            EXPECT_EQ(out.internalformat, 7U);
            EXPECT_EQ(out.type, 7U);
        }
    }
    return sizes;
}

}  // namespace

TEST(GlFormat, DescriptionsAreConvertedOrReported) {
    for (unsigned int format = 0; format < IMAGE_FORMAT_MAX; ++format) {
        for (unsigned int type = 0; type < IMAGE_TYPE_MAX; ++type) {
            EXPECT_EQ(accepted_sizes(static_cast<e_image_format_t>(format),
                                     static_cast<e_image_type_t>(type), accepted[format].glformat),
                      accepted[format].sizes[type])
                << image_format_string[format].name << ' ' << image_type_string[type].name;
        }
    }
    EXPECT_EQ(accepted_sizes(IMAGE_FORMAT_MAX, IMAGE_TYPE_UINT, "7"), "");
    capture_t capture;
    EXPECT_FALSE(grConvertImageFormatToGlFormatFULL(
        nullptr, {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}, false));
    EXPECT_EQ(internal_format_of({IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8}, false),
              GLenum{GL_INVALID_VALUE});
}

TEST(GlFormat, UnpackedPixelsHaveTheBitsThatOpenGLReads) {
    struct row_t {
        int format, type;
        unsigned long long bits;
    };
    constexpr row_t rows[] = {
        {GL_RGB, GL_UNSIGNED_BYTE_2_3_3_REV, 8},
        {GL_RGB, GL_UNSIGNED_SHORT_5_6_5_REV, 16},
        {GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4_REV, 16},
        {GL_RGBA, GL_UNSIGNED_SHORT_1_5_5_5_REV, 16},
        {GL_RGBA, GL_UNSIGNED_INT_2_10_10_10_REV, 32},
        {GL_RGBA, GL_UNSIGNED_INT_24_8, 32},
        {GL_RGBA, GL_BITMAP, 4},
        {GL_BGR, GL_HALF_FLOAT, 48},
        {GL_LUMINANCE_ALPHA, GL_SHORT, 32},
        {GL_RED, GL_FLOAT, 32},
        {GL_INTENSITY, GL_UNSIGNED_BYTE, 8},
        {GL_DEPTH_COMPONENT, GL_DEPTH_COMPONENT, 0},
    };
    for (row_t const& row : rows) {
        gl_loading_format_t const format{0, static_cast<GLenum>(row.format),
                                         static_cast<GLenum>(row.type)};
        EXPECT_EQ(unpacked_pixel_bits(format), row.bits) << gl_enum_name(format.type);
    }
}

TEST(GlFormat, ByteRangeOfAVolumeHasTheSkippedPicturesRowsAndPixels) {
    image_store_t const store{false, 8};
    image3d_t volume;
    volume.store = &store;
    volume.m_width = 3;
    volume.m_height = 2;
    volume.m_depth = 2;
    volume.window = {7, 5, 4, 1, 2};
    byte_range_t const range = byte_range_of(volume, 24);
    EXPECT_EQ(range.stride, 24U);
    EXPECT_EQ(range.first, 24U * (2 * 5 + 1));
    EXPECT_EQ(range.end, 24U * (3 * 5 + 1 + 1) + 3 * (4 + 3));
}
