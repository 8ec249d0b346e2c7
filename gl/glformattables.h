// SPDX-License-Identifier: MIT
// The tables from image descriptions to OpenGL's enumerants, as data.
#pragma once

#include <span>

#include "image/image.h"

namespace libgr {

/// The OpenGL pixel format of an image format.
struct gl_pixelformat_row_t {
    e_image_format_t imageformat;
    unsigned int glformat;
};

/// What one pair of type and bits becomes within a format family. GL_INVALID_VALUE in either of the
/// last two columns marks a refused pair.
struct gl_typebits_row_t {
    e_image_type_t imagetype;
    e_image_bits_t imagebits;
    unsigned int internalformat;
    unsigned int type;
};

/// The row of `format`, or null for a format that has none.
gl_pixelformat_row_t const* find_gl_pixelformat(e_image_format_t format);

/// The rows of the format's family, in the order in which they are searched. YCbCr goes by the RGB
/// rows and YCbCrA by the RGBA rows; YCbCr422 and what is no format have none.
std::span<gl_typebits_row_t const> gl_typebits_rows(e_image_format_t format);

}  // namespace libgr
