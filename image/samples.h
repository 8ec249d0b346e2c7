// SPDX-License-Identifier: MIT
// Samples of other than 8 bits, in the form that OpenGL reads.
#pragma once

#include <bit>

#include "image/image.h"

namespace libgr {

/// Converts samples of 16 bits, and packed pixels of 16 bits, from the byte order of a file to the
/// machine's order, in place. An image of any other size, or in the machine's order, is unchanged.
///
/// OpenGL could swap the bytes by GL_UNPACK_SWAP_BYTES, but GLU writes the mipmaps of these images
/// with the bytes in the wrong order.
///
/// Returns false if the pixels are not in the image's bytes.
bool to_machine_order(image2d_t& image, std::endian order);

/// Returns sample `x` of a row of samples of 1, 2, 4 or 8 bits each. The first sample of a byte is
/// in its highest bits.
inline unsigned int packed_sample(unsigned char const* row, unsigned long long bits,
                                  unsigned long long x) {
    unsigned long long const position = x * bits;
    return (row[position / 8] >> (8 - bits - position % 8)) & ((1U << bits) - 1U);
}

/// Converts gray of 1, 2 and 4 bits to gray of 8 bits, with the range scaled so that the lowest
/// value stays black and the highest becomes white, and indices of 2 bits to indices of 8 bits,
/// which share the palette. An image of any other description is shared.
///
/// The source, which must not be the destination, is read through its window and store. Returns
/// false if there is no memory for the pixels or the source's pixels are not in its bytes.
bool widen_samples(image2d_t& dst, image2d_t const& src);

}  // namespace libgr
