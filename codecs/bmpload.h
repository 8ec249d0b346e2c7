// SPDX-License-Identifier: MIT
// A BMP reader for files whose pixel format the caller knows.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the BMP file at `path` into `image`, bottom row first, and sets the pixel format to
/// `format`. The bytes of a 24-bit file are swapped from BGR to RGB.
///
/// The function reads rows without padding, which callers depend on. Use it only for widths whose
/// rows are a multiple of 4 bytes.
///
/// Returns false without a message if the file cannot be opened, is not an uncompressed BMP, has 16
/// bits per pixel or ends within its headers. Returns false with a line on std::cerr if the pixels
/// exceed the limit picture-memory (utils/limits.h). The height is read as unsigned, so a file with
/// the top row first (negative height) usually exceeds this limit. Returns true for a file that
/// ends within its pixels; the missing bytes are 0. Also returns true, but `image` gets no pixels,
/// for less than 8 bits per pixel.
bool BmpLoad(image2d_t& image, char const* path, e_image_format_t format);

}  // namespace libgr
