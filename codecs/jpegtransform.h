// SPDX-License-Identifier: MIT
// The lossless turn of a JPEG file in memory. `codecs/jtransform.h` has what lies behind it, for
// those who want to mirror, crop or keep markers.
#pragma once

#include "codecs/jpegdata.h"

namespace libgr {

/// Turns `in` by `rightrotatecount` quarter turns clockwise, 0 to 3, into `out`, which may be `in`.
///
/// Nothing is decoded to pixels: the quantised coefficients move (ITU-T T.81, A.3.3), so nothing is
/// lost. Blocks can only change sides where they fill whole units of 8 samples times the largest
/// sampling factor: of a picture with another width or height, a strip of less than a unit keeps
/// its place at the right or at the bottom. `out` is sequential, with the usual Huffman tables
/// where these have codes for all its values, and has none of the comments and APPn segments of
/// `in`, so that no Exif orientation contradicts the turn.
///
/// False with a line on std::cerr for a count of 4 or more, which leaves `out` alone, for bytes
/// that aren't a good and whole JPEG, and for values that no Huffman table has a code for: `out` is
/// empty after an error, and holds what could be turned where libjpeg merely warned of damage.
bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in);

}  // namespace libgr
