// SPDX-License-Identifier: MIT
// Quarter turns from the Exif orientation.
#pragma once

namespace libgr {

/// Adds the turn of an Exif orientation (tag 0x0112) to a number of quarter turns.
///
/// Returns (`count` + turns) modulo 4, or `count` itself for values of `orientation` without turns.
/// Turns are clockwise. The last row is the operation of codecs/jtransform.h that makes the picture
/// upright without loss, also for the mirrored orientations 2, 4, 5 and 7.
///
///   Orientation  1     2       3        4       5          6       7           8
///   Turns                      2                           1                   3
///   JXFORM_      NONE  FLIP_H  ROT_180  FLIP_V  TRANSPOSE  ROT_90  TRANSVERSE  ROT_270
unsigned long mixorientandrightrotatecount(unsigned long count, unsigned long orientation);

}  // namespace libgr
