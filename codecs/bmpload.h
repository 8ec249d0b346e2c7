// SPDX-License-Identifier: MIT
// A BMP reader for files whose pixel format the caller knows.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the BMP file at `path` into `image`, bottom row first, and sets the pixel format to
/// `format`. The bytes of a 24-bit file are swapped from BGR to RGB. For 32 bits, set
/// `image.desc.bits` to IMAGE_BITS_8 before the call, because the function does not change it.
///
/// The function expects rows without padding, which callers depend on. BMP rows are padded to 4
/// bytes, so pictures are distorted unless their rows are a multiple of 4 bytes long.
///
/// Returns false without a line on std::cerr if the file cannot be opened, is not an uncompressed
/// BMP, has 16 bits per pixel or ends within its headers. Returns false with a line if the pixels
/// exceed the limit picture-memory (utils/limits.h), or for most files with the top row first (see
/// `biHeight` in codecs/bmprecords.h).
///
/// Returns true for a file that ends within its pixels; the missing bytes are 0. Returns true for
/// less than 8 bits per pixel, too, but `image` then has no pixels.
bool BmpLoad(image2d_t& image, char const* path, e_image_format_t format);

}  // namespace libgr
