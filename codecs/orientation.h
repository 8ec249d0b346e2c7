// SPDX-License-Identifier: MIT
// Quarter turns from the Exif orientation.
#pragma once

namespace libgr {

/// Adds the turn of an Exif orientation (tag 0x0112) to a number of quarter turns.
///
/// Returns `count` plus 2 for orientation 3, plus 1 for 6 and plus 3 for 8, modulo 4. Other values
/// of `orientation`, including the mirrored ones, return `count` unchanged. Turns are clockwise.
unsigned long mixorientandrightrotatecount(unsigned long count, unsigned long orientation);

}  // namespace libgr
