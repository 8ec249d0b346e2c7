// SPDX-License-Identifier: MIT
// Which of a record's bytes OpenGL reads when the record goes up.
#pragma once

#include "gl/glformat.h"
#include "image/image.h"

namespace libgr {

/// A record as OpenGL reads it: a volume of `m_depth` pictures of `m_height` rows, with the window
/// and alignment that are in force once the record is unpacked. Without a store the alignment is
/// that of the context, so these need a current one.
image3d_t as_read(image1d_t const& image);
image3d_t as_read(image2d_t const& image);
image3d_t as_read(image3d_t const& image);
/// The same in OpenGL's initial unpack state, the bytes being pixels.
image3d_t as_read_in_initial_state(image2d_t const& image);

/// Bits that OpenGL reads for a pixel; 0 for a type that it turns down unread.
unsigned long long read_bits(gl_loading_format_t const& terms);

/// Whether OpenGL stays within the bytes of a record. A compressed one is read by its size, which a
/// GLsizei must hold.
bool reads_within(image3d_t const& read, gl_loading_format_t const& terms);

/// The bytes from the first pixel read to behind the last, and from one row to the next.
struct read_span_t {
    unsigned long first;
    unsigned long end;
    unsigned long stride;
};

/// For a record with pixels that is read within its bytes.
read_span_t span_of(image3d_t const& read, unsigned long long bits);

}  // namespace libgr
