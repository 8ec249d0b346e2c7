// SPDX-License-Identifier: MIT
// Samples of other than 8 bits, in the form that OpenGL reads.
#pragma once

#include "image/image.h"

namespace libgr {

/// Stores of files whose samples of 16 bits are big-endian or little-endian, with rows padded to
/// 4 bytes. The bytes are swapped if the machine has the other order.
extern image_store_t const big_endian_store;
extern image_store_t const little_endian_store;

/// Returns true if a sample or a packed pixel of `bits` takes more than one byte, so that the byte
/// order matters.
bool has_byte_order(e_image_bits_t bits);

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
