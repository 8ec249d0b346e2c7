// SPDX-License-Identifier: MIT
// Quarter turns from the Exif orientation.
#include "codecs/orientation.h"

namespace libgr {

unsigned long mixorientandrightrotatecount(unsigned long count, unsigned long orientation) {
    switch (orientation) {
        case 3:
            return (count + 2) % 4;
        case 6:
            return (count + 1) % 4;
        case 8:
            return (count - 1) % 4;
        default:
            return count;
    }
}

}  // namespace libgr
