// SPDX-License-Identifier: MIT
// The lossless rotation of a JPEG file in memory.
#pragma once

#include "codecs/jpegdata.h"

namespace libgr {

/// Rotates the JPEG `in` by `rightrotatecount` quarter turns clockwise (0 to 3) into `out`, which
/// may be `in`. codecs/jtransform.h has the other operations: mirroring, cropping, markers.
///
/// To turn a photo upright:
///
/// ```cpp
/// #include "codecs/jpegobject.h"
/// #include "codecs/jpegtransform.h"
///
/// libgr::image_jpeg1_t codec;
/// libgr::image2d_t picture;
/// libgr::jpegdata_t file;
/// if (codec.load(picture, "photo.jpg") && file.load("photo.jpg", nullptr)) {
///     bool const is_clean = libgr::transform(codec.rightrotatecount(), file, file);
///     if (is_clean || !file.empty()) {  // also save a damaged picture
///         file.save("upright.jpg", nullptr);
///     }
/// }
/// ```
///
/// For mirrored orientations, see the table in codecs/orientation.h.
///
/// The picture is not decoded to pixels. Its quantised coefficients are moved (ITU-T T.81, A.3.3),
/// which loses nothing. Only whole iMCUs (see codecs/jtransform.h) can be moved to the opposite
/// side. If a side of the picture is not a multiple of the iMCU, a strip less than one iMCU wide
/// stays at the right or lower edge of `out`, where it does not belong. The request in
/// codecs/jtransform.h can remove this strip (`trim`) or fail (`perfect`).
///
/// `out` is sequential. It uses the standard Huffman tables if they have codes for all its values.
/// It has none of the comments and APPn segments of `in`, so that no Exif orientation contradicts
/// the rotation.
///
///   Result  `out`                      Reason
///   true    rotated
///   false   rotated                    libjpeg has printed a warning about damage
///   false   unchanged                  `rightrotatecount` is 4 or more
///   false   empty, even if it is `in`  `in` is not a complete JPEG or exceeds a limit
///                                      (docs/limits.md), or a value has no Huffman code
///
/// If the result is false, a line has been printed on std::cerr. Threads: see codecs/imageobject.h.
bool transform(unsigned long rightrotatecount, jpegdata_t& out, jpegdata_t const& in);

}  // namespace libgr
