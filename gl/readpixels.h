// SPDX-License-Identifier: MIT
// What the window shows, read into an image.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the viewport's rectangle of the front buffer, so that the image has what was shown: RGB of
/// 8 bits, row 0 at the bottom, rows laid out by the image's own store and window.
///
/// Some drivers keep no front buffer that can be read and give black for it. A wholly black answer
/// is therefore read again from the back buffer, which has the frame when it was drawn anew, and
/// not swapped, before the call. False, with no message, when there is no memory or the viewport is
/// empty. The read buffer stays the one read last. Needs a current context.
bool grReadPixelsRGB(image2d_t& image);

/// Reads the depth of the same rectangle. The description says 24 bits, but a pixel takes 4 bytes,
/// a full-range GL_UNSIGNED_INT, and the rows follow each other at that size. Fails as above.
bool grReadPixelsDepth(image2d_t& image);

}  // namespace libgr
