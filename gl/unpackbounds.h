// SPDX-License-Identifier: MIT
// The bytes of an image that OpenGL reads in an upload.
#pragma once

#include "gl/glformat.h"
#include "image/image.h"

namespace libgr {

/// Return an image as a volume of `m_depth` pictures of `m_height` rows, with the window and
/// alignment that OpenGL reads it with after `set_unpack_state` (gl/textureupload.h). An image
/// without a row layout (`store`), or with an invalid alignment, gets the alignment of the context.
/// The bytes are shared. Need a current context.
image3d_t as_unpacked(image1d_t const& image);
image3d_t as_unpacked(image2d_t const& image);
image3d_t as_unpacked(image3d_t const& image);
/// Does the same with OpenGL's initial unpack parameters, and as if the image were not compressed.
/// Makes no GL call.
image3d_t as_unpacked_in_initial_state(image2d_t const& image);

/// Returns the bits that OpenGL reads for a pixel, or 0 for a pixel type that OpenGL rejects
/// without reading pixels.
unsigned long long unpacked_pixel_bits(gl_loading_format_t const& glformat);

/// Returns true if OpenGL reads no bytes outside the image. `read` is a result of `as_unpacked`.
/// OpenGL reads all bytes of a compressed image, so their number must fit in a GLsizei.
bool is_read_within_bytes(image3d_t const& read, gl_loading_format_t const& glformat);

/// Offsets into the bytes of an image.
struct byte_range_t {
    unsigned long first;   ///< of the row with the first pixel that is read
    unsigned long end;     ///< after the last pixel that is read
    unsigned long stride;  ///< bytes from one row to the next
};

/// Returns the bytes that OpenGL reads. The image must have pixels, `bits` bits each, and
/// `is_read_within_bytes` must be true.
byte_range_t byte_range_of(image3d_t const& read, unsigned long long bits);

}  // namespace libgr
