// SPDX-License-Identifier: MIT
// Tables from image descriptions to OpenGL enumerants.
#pragma once

#include <span>

#include "image/image.h"

namespace libgr {

/// The OpenGL pixel format of an image format.
struct gl_pixelformat_row_t {
    e_image_format_t imageformat;
    unsigned int glformat;
};

/// The internal format and pixel type for a component type and size. The description is rejected if
/// one of them is GL_INVALID_VALUE.
struct gl_typebits_row_t {
    e_image_type_t imagetype;
    e_image_bits_t imagebits;
    unsigned int internalformat;
    unsigned int type;
};

/// Returns the row of `format`, or null if there is none.
gl_pixelformat_row_t const* find_gl_pixelformat(e_image_format_t format);

/// Returns the rows of `format`. The first row that matches is used. IMAGE_FORMAT_YCbCr has the
/// rows of RGB and IMAGE_FORMAT_YCbCrA those of RGBA. Returns an empty list for
/// IMAGE_FORMAT_YCbCr422 and for values that are no format.
std::span<gl_typebits_row_t const> gl_typebits_rows(e_image_format_t format);

}  // namespace libgr
