// SPDX-License-Identifier: MIT
// A free-standing BMP reader for pictures whose pixel format the caller knows.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the BMP file at `path` into `image`, bottom row first, with `format` as the image's format
/// as it stands. The bytes of a 24-bit file are turned from BGR to RGB. Rows are taken as unpadded:
/// only for widths whose rows are a multiple of 4 bytes. Returns false without a message if the
/// file cannot be opened, is not plain BMP, has 16 bits a pixel or ends within its headers, and
/// with a line on std::cerr if the pixels exceed the limit picture-memory (utils/limits.h). Returns
/// true for a file that ends within its pixels; the missing bytes are 0.
bool BmpLoad(image2d_t& image, char const* path, e_image_format_t format);

}  // namespace libgr
