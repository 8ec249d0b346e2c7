// SPDX-License-Identifier: MIT
// Tests of the way from image descriptions to OpenGL's enumerants.
#include "gl/glformat.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "glext/glextloader.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

TEST(glformat, each_description_gets_its_row_or_four_lines) {
    // A format's line tells what a refusal leaves there, 7 where nobody wrote: the pixel format is
    // written before the search. The descriptions that it accepts follow.
    constexpr unsigned int bits_count = IMAGE_BITS_MAX;
    std::string text;
    for (unsigned int format = 0; format <= IMAGE_FORMAT_MAX; ++format) {
        std::ostringstream accepted;
        std::set<std::string> left;
        for (unsigned int cell = 0; cell < IMAGE_TYPE_MAX * bits_count; ++cell) {
            image_desc_t const desc{static_cast<e_image_format_t>(format),
                                    static_cast<e_image_type_t>(cell / bits_count),
                                    static_cast<e_image_bits_t>(cell % bits_count)};
            gl_loading_format_t out{7, 7, 7};
            capture_t capture;
            bool const known = grConvertImageFormatToGlFormatFULL(&out, desc, false);
            if (known) {
                accepted << "  " << desc.type << ' ' << desc.bits << ": "
                         << gl_enum_name(out.internalformat) << ' ' << gl_enum_name(out.format)
                         << ' ' << gl_enum_name(out.type) << '\n';
                EXPECT_EQ("", capture.err());
                continue;
            }
            std::ostringstream lines;
            lines << "Not supported image format!\nimgformat: " << desc.format
                  << "\nimgtype: " << desc.type << "\nimgbits: " << desc.bits << "\nff";
            std::cerr << 255;  // the stream is left hexadecimal
            EXPECT_EQ(lines.str(), capture.err());
            EXPECT_TRUE(out.internalformat == 7 && out.type == 7) << lines.str();
            left.insert(gl_enum_name(out.format));
        }
        EXPECT_EQ(1U, left.size()) << format;
        std::ostringstream line;
        line << static_cast<e_image_format_t>(format) << " refused: " << *left.begin() << '\n';
        text += line.str() + accepted.str();
    }
    EXPECT_TRUE(matches_file(text, FORMATS));
    capture_t capture;
    EXPECT_FALSE(grConvertImageFormatToGlFormatFULL(
        nullptr, {IMAGE_FORMAT_RGB, IMAGE_TYPE_UINT, IMAGE_BITS_8}, false));
    EXPECT_TRUE(capture.err().starts_with("Not supported image format!\n"));
}
