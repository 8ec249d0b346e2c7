// SPDX-License-Identifier: MIT
// Small pictures for tests, given as rows of bytes from the bottom to the top.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "image/image.h"

using row_t = std::vector<unsigned char>;
using rows_t = std::vector<row_t>;

constexpr libgr::image_desc_t bytes_desc(libgr::e_image_format_t format,
                                         libgr::e_image_type_t type = libgr::IMAGE_TYPE_UINT) {
    return {format, type, libgr::IMAGE_BITS_8};
}

inline constexpr libgr::image_desc_t gray8 = bytes_desc(libgr::IMAGE_FORMAT_GRAYSCALE);
inline constexpr libgr::image_desc_t rgb8 = bytes_desc(libgr::IMAGE_FORMAT_RGB);
inline constexpr libgr::image_desc_t rgba8 = bytes_desc(libgr::IMAGE_FORMAT_RGBA);

/// A picture of `width` pixels whose rows begin with these bytes. The rest of each row is 0xEE.
inline libgr::image2d_t picture(libgr::image_desc_t const& desc, unsigned int width,
                                rows_t const& rows) {
    libgr::image2d_t image;
    image.desc = desc;
    image.m_width = width;
    image.m_height = static_cast<unsigned int>(rows.size());
    EXPECT_TRUE(image.allocate());
    std::fill(image.begin(), image.end(), static_cast<unsigned char>(0xEE));
    for (unsigned int y = 0; y < image.m_height; ++y) {
        std::ranges::copy(rows[y], libgr::pixel_row(image, y));
    }
    return image;
}

/// The rows of the record, without padding and without the rest of a larger picture.
inline rows_t pixels(libgr::image2d_t const& image) {
    rows_t rows;
    for (unsigned int y = 0; y < image.m_height; ++y) {
        unsigned char const* const row = libgr::pixel_row(image, y);
        rows.emplace_back(row, row + image.rowbyte());
    }
    return rows;
}
