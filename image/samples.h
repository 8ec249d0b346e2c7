// SPDX-License-Identifier: MIT
// Samples of other than 8 bits, in the form that OpenGL reads.
#pragma once

#include <bit>

#include "image/image.h"

namespace libgr {

/// Converts components of 16 bits, and packed pixels of 16 bits, from the byte order of a file to
/// the machine's order. Other images are unchanged, and so are all images if `order` is the order
/// of the machine: the result is true, even if they are compressed.
///
/// The bytes are swapped in place, so records that share them change, too. They must be writable.
/// Only the pixels of the window are swapped. `swapbytes` of the store is ignored and not changed.
///
/// Use this instead of GL_UNPACK_SWAP_BYTES: with that, GLU generates mipmaps with the wrong byte
/// order.
///
/// Returns false, without a change, if the bytes must be swapped and the image is compressed or has
/// bytes for only some of its pixels.
bool to_machine_order(image2d_t& image, std::endian order);

/// Returns sample `x` of a row of samples of 1, 2, 4 or 8 bits each. The first sample of a byte is
/// in its highest bits.
inline unsigned int packed_sample(unsigned char const* row, unsigned long long bits,
                                  unsigned long long x) {
    unsigned long long const position = x * bits;
    return (row[position / 8] >> (8 - bits - position % 8)) & ((1U << bits) - 1U);
}

/// Converts samples to 8 bits:
///
///   Source                                  Result
///   unsigned GRAYSCALE of 1, 2 or 4 bits    scaled: 0 becomes 0, the highest value 255
///   unsigned INDEX of 2 bits                the same indices; the palette is shared
///   any other, also INDEX of 1 or 4 bits    `dst` shares the bytes of `src`
///
/// `src`, which must not be `dst`, is read through its window and store. The window and store of
/// a converted `dst` are kept and used.
///
/// Returns false if pixels must be converted and `src` is compressed or has bytes for only some of
/// its pixels, if there is no memory, or if the pixels don't fit into the window of `dst`. `dst`
/// then has the new description and sizes, and no bytes or undefined pixels.
bool widen_samples(image2d_t& dst, image2d_t const& src);

}  // namespace libgr
