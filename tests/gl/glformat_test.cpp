// SPDX-License-Identifier: MIT
// Tests of the conversion from image descriptions to OpenGL enumerants.
#include "gl/glformat.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>

#include "gl/unpackbounds.h"
#include "glext/glextloader.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

/// The pixel format of an image format, the start of the names of its internal formats, and the
/// number of accepted component sizes by component type.
struct family_t {
    std::string format, internalformat;
    int accepted[IMAGE_TYPE_MAX];
};
family_t const families[IMAGE_FORMAT_MAX + 1] = {
    {"GL_LUMINANCE", "GL_LUMINANCE", {5, 5, 2}},
    {"GL_LUMINANCE_ALPHA", "GL_LUMINANCE", {6, 9, 2}},
    {"GL_INTENSITY", "GL_INTENSITY", {4, 6, 2}},
    {"GL_RED", "GL_R", {3, 4, 2}},
    {"GL_GREEN", "GL_GREEN", {3, 4, 2}},
    {"GL_BLUE", "GL_BLUE", {3, 4, 2}},
    {"GL_ALPHA", "GL_ALPHA", {5, 6, 2}},
    {"7", "", {0, 0, 0}},  // RG: the conversion doesn't write the pixel format
    {"GL_RGB", "GL_R", {7, 8, 2}},
    {"GL_RGBA", "GL_RGB", {7, 8, 2}},
    {"GL_BGR", "GL_R", {3, 3, 0}},
    {"GL_BGRA", "GL_RGB", {4, 4, 0}},
    {"GL_DEPTH_COMPONENT", "GL_DEPTH_COMPONENT", {0, 0, 3}},
    {"7", "", {0, 0, 0}},  // DEPTH_STENCIL
    {"GL_RGB", "GL_R", {7, 8, 2}},
    {"GL_RGBA", "GL_RGB", {7, 8, 2}},
    {"GL_RGB", "", {0, 0, 0}},
    {"GL_COLOR_INDEX", "GL_COLOR_INDEX", {0, 2, 0}},
    {"7", "", {0, 0, 0}},  // no format
};

/// Expects the component type and the bits of a pixel of the description, and no other size in the
/// name of the internal format than its size of components.
void expect_rules(image_desc_t const& desc, gl_loading_format_t const& out) {
    family_t const& family = families[desc.format];
    std::string const internalformat = gl_enum_name(out.internalformat);
    std::string const type = gl_enum_name(out.type);
    EXPECT_EQ(internalformat.find(family.internalformat), 0U) << internalformat;
    unsigned long long const bits = s_image_bits_list[desc.bits].component;
    bool const is_packed = bits == 0 || type.ends_with("_REV");
    bool const is_depth = desc.format == IMAGE_FORMAT_DEPTH;
    if (type.ends_with("_REV") || is_depth || bits == 1 || bits == 8 || bits == 16 || bits == 32) {
        EXPECT_EQ(unpacked_pixel_bits(out), is_depth ? 0 : desc.getPixelBits()) << type;
    }
    if (is_packed) {
        return;
    }
    std::size_t const digit = internalformat.find_first_of("123456789");
    EXPECT_TRUE(digit == std::string::npos || std::stoull(internalformat.substr(digit)) == bits)
        << internalformat;
    std::string const size = bits == 1    ? "BITMAP"
                             : bits <= 8  ? "BYTE"
                             : bits <= 16 ? "SHORT"
                                          : "INT";
    bool const is_unsigned = desc.type == IMAGE_TYPE_UINT && bits > 1;
    EXPECT_EQ(type, is_depth                        ? "GL_DEPTH_COMPONENT"
                    : desc.type != IMAGE_TYPE_FLOAT ? (is_unsigned ? "GL_UNSIGNED_" : "GL_") + size
                    : bits == 16                    ? "GL_HALF_FLOAT"
                                                    : "GL_FLOAT");
}

/// Converts a description and expects the rules or a report. Returns true if it is accepted.
bool is_converted(image_desc_t const& desc) {
    std::ostringstream report;
    report << "Not supported image format!\nimgformat: " << desc.format
           << "\nimgtype: " << desc.type << "\nimgbits: " << desc.bits << "\nff";
    SCOPED_TRACE(report.str());
    gl_loading_format_t out{7, 7, 7};
    capture_t capture;
    bool const is_accepted = grConvertImageFormatToGlFormatFULL(&out, desc, false);
    EXPECT_EQ(gl_enum_name(out.format), families[desc.format].format);
    if (is_accepted) {
        expect_rules(desc, out);
        EXPECT_EQ(capture.err(), "");
    } else {
        std::cerr << 255;  // the stream is hexadecimal now
        EXPECT_EQ(capture.err(), report.str());
    }
    return is_accepted;
}

}  // namespace

TEST(GlFormat, AllDescriptionsAreConvertedOrReported) {
    for (unsigned int format = 0; format <= IMAGE_FORMAT_MAX; ++format) {
        for (unsigned int type = 0; type < IMAGE_TYPE_MAX; ++type) {
            int accepted = 0;
            for (unsigned int bits = 0; bits < IMAGE_BITS_MAX; ++bits) {
                accepted += is_converted({static_cast<e_image_format_t>(format),
                                          static_cast<e_image_type_t>(type),
                                          static_cast<e_image_bits_t>(bits)});
            }
            EXPECT_EQ(accepted, families[format].accepted[type])
                << image_format_string[format].name << ' ' << image_type_string[type].name;
        }
    }
    capture_t capture;
    EXPECT_FALSE(grConvertImageFormatToGlFormatFULL(
        nullptr, {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}, false));
    EXPECT_EQ(internal_format_of({IMAGE_FORMAT_RG, IMAGE_TYPE_UINT, IMAGE_BITS_8}, false),
              GLenum{GL_INVALID_VALUE});
}

TEST(GlFormat, DescriptionsOfPicturesHaveTheirFormats) {
    std::tuple<image_desc_t, int, int> const rows[] = {
        {{IMAGE_FORMAT_RGBA, IMAGE_TYPE_UINT, IMAGE_BITS_8}, GL_RGBA8, GL_UNSIGNED_BYTE},
        {{IMAGE_FORMAT_BGR, IMAGE_TYPE_UINT, IMAGE_BITS_8}, GL_RGB, GL_UNSIGNED_BYTE},
        {{IMAGE_FORMAT_BGRA, IMAGE_TYPE_UINT, IMAGE_BITS_8}, GL_RGBA, GL_UNSIGNED_BYTE},
        {{IMAGE_FORMAT_RED, IMAGE_TYPE_UINT, IMAGE_BITS_16}, GL_R16UI, GL_UNSIGNED_SHORT},
        {{IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_16}, GL_RGB16, GL_UNSIGNED_SHORT},
    };
    for (auto const& [desc, internalformat, type] : rows) {
        gl_loading_format_t out{};
        EXPECT_TRUE(grConvertImageFormatToGlFormatFULL(&out, desc, false));
        EXPECT_EQ(out.internalformat, static_cast<GLenum>(internalformat)) << desc.format;
        EXPECT_EQ(out.type, static_cast<GLenum>(type)) << desc.format;
    }
}
