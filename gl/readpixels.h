// SPDX-License-Identifier: MIT
// Reads the frame buffer into an image.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the rectangle of the viewport from the front buffer, which has the picture that the window
/// shows. The image gets the size of the viewport and RGB pixels of 8 bits, row 0 at the bottom. It
/// keeps its row layout (`store`) and window. If it has no row layout, GL_PACK_ALIGNMENT must be 4,
/// the initial value. Needs a current context.
///
/// Some drivers have no readable front buffer and return black pixels. If all pixels are black, the
/// back buffer is read instead: to support these drivers, draw the frame again before the call and
/// don't swap the buffers.
///
/// Returns false, without a message, if there is no memory or the viewport is empty. The image then
/// has its new size and description, but no valid pixels. Changes GL_READ_BUFFER and the pack
/// parameters.
bool grReadPixelsRGB(image2d_t& image);

/// Reads the depth of the same rectangle from the front buffer, and never from the back buffer. The
/// description of the image has 24 bits, but each pixel has 4 bytes: a GL_UNSIGNED_INT from 0
/// (near) to 2^32 - 1 (far). The length of a row is calculated with 4 bytes a pixel and then
/// padded. Row layout and failures are as in grReadPixelsRGB. Needs a current context.
bool grReadPixelsDepth(image2d_t& image);

}  // namespace libgr
