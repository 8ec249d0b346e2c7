// SPDX-License-Identifier: MIT
// The lossless rotation of a JPEG file in memory.
#pragma once

#include "codecs/jpegdata.h"

namespace libgr {

/// Rotates the JPEG `in` by `rightrotatecount` quarter turns clockwise (0 to 3) into `out`, which
/// may be `in`. codecs/jtransform.h has the other operations: mirroring, cropping, markers.
///
/// ```cpp
/// libgr::jpegdata_t file;
/// if (file.load("photo.jpg", nullptr) && libgr::transform(1, file, file)) {
///     file.save("turned.jpg", nullptr);
/// }
/// ```
///
/// The picture is not decoded to pixels. Its quantised coefficients are moved (ITU-T T.81, A.3.3),
/// which loses nothing. Only whole iMCUs can be moved to the opposite side. The width of an iMCU is
/// 8 samples times the largest horizontal sampling factor; its height likewise. If the width or
/// height is not a multiple of the iMCU, the rest, a strip at the right or the bottom, keeps its
/// place.
///
/// `out` is sequential. It uses the standard Huffman tables if they have codes for all its values.
/// It has none of the comments and APPn segments of `in`, so that no Exif orientation contradicts
/// the rotation.
///
/// Returns false with a line on std::cerr
/// - if `rightrotatecount` is 4 or more: `out` is unchanged;
/// - if `in` is not a complete JPEG or exceeds a limit (docs/limits.md), or a value has no Huffman
///   code: `out` is empty;
/// - if libjpeg prints a warning about damage: `out` is the rotated picture.
bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in);

}  // namespace libgr
