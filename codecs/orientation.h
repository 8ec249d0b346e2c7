// SPDX-License-Identifier: MIT
// How a picture's demanded turn follows from the Exif orientation.
#pragma once

namespace libgr {

/// The clockwise quarter turns, 0 to 3, that a picture needs which already has `count` of them and
/// whose Exif tag Orientation (0x0112) is `orientation`: 3 adds two, 6 one, 8 three. Any other
/// value, the mirrored ones included, leaves `count` as it is.
unsigned long mixorientandrightrotatecount(unsigned long count, unsigned long orientation);

}  // namespace libgr
