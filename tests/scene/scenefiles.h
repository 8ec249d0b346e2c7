// SPDX-License-Identifier: MIT
// Picture files for tests, made byte by byte.
#pragma once

#include <cmath>
#include <iterator>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "codecs/jpegobject.h"
#include "geometry/matrix.h"
#include "tests/support/files/testfiles.h"

/// Red, green or blue (0, 1, 2) of the test picture at a pixel.
inline unsigned char test_channel(unsigned x, unsigned y, unsigned channel) {
    unsigned const channels[] = {x * 37 + 11, y * 53 + 7, x ^ y};
    return static_cast<unsigned char>(channels[channel]);
}

/// A BMP with a palette of `palette` bytes. The body is the palette and the pixels.
inline std::string bmp(unsigned width, unsigned height, unsigned bits, unsigned palette,
                       std::string const& body) {
    std::string bytes = "BM" + std::string(52, '\0') + body;
    unsigned const fields[] = {54 + palette, 40, width, height, 1 | bits << 16};
    for (std::size_t i = 0; i < 4 * std::size(fields); ++i) {
        bytes[10 + i] = static_cast<char>(fields[i / 4] >> 8 * (i % 4));
    }
    return bytes;
}

/// The test picture as a BMP of 24 bits.
inline std::string test_bmp(unsigned width, unsigned height) {
    std::string rows;
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned i = 0; i < 3 * width; ++i) {
            rows.push_back(static_cast<char>(test_channel(i / 3, y, 2 - i % 3)));
        }
        rows.append((4 - rows.size() % 4) % 4, '\0');
    }
    return bmp(width, height, 24, 0, rows);
}

/// Describes a view: the rotation in degrees, the scale, and the position of the centre.
inline std::string view_text(libgr::matrix3w_t const& m) {
    float const numbers[] = {std::atan2(m[0][1], m[0][0]) * 57.29578f, std::hypot(m[0][0], m[0][1]),
                             m[3][0], m[3][1]};
    char const* const labels[] = {"turned ", ", scaled ", ", at ", ", "};
    std::ostringstream text;
    for (std::size_t i = 0; i < 4; ++i) {
        text << labels[i] << std::round(numbers[i] * 1000) / 1000 + 0.0f;
    }
    return text.str();
}

/// Writes a JPEG with an orientation that needs a quarter turn clockwise.
inline std::string write_turned_jpeg(std::string const& path, unsigned width, unsigned height) {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = width;
    image.m_height = height;
    EXPECT_TRUE(image.allocate());
    EXPECT_TRUE(libgr::image_jpeg1_t().save(image, path.c_str()));
    // An Exif block with the tag Orientation = 6, which is inserted after the start marker.
    std::string const exif(
        "\xff\xe1\0\x22"
        "Exif\0\0MM\0*\0\0\0\x8\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0",
        36);
    return write_file(path, read_file(path).insert(2, exif));
}
