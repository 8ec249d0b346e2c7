// SPDX-License-Identifier: MIT
// Reads the frame buffer into an image.
#pragma once

#include "image/image.h"

namespace libgr {

/// Reads the rectangle of the viewport (GL_VIEWPORT) from the front buffer, whose contents the
/// window shows. Needs a current context, and framebuffer 0 bound for reading.
///
/// The old bytes of the image are released. It gets the size of the viewport, the description RGB,
/// UINT, 8 bits, and new bytes. Row 0 is the bottom row. `image.store` and `image.window` are kept
/// and determine the positions of the pixels: see image2d_t. Pixels outside the window are
/// undefined. Without a store, GL_PACK_ALIGNMENT must be 4, the initial value.
///
/// Some drivers return black pixels for the front buffer. If all pixels are black, this function
/// reads the back buffer instead. To support these drivers, draw the frame again before the call
/// and don't swap the buffers.
///
/// Returns false, without a message, if there is no memory or the viewport is empty. The image then
/// has its new size and description: ignore its bytes. GL errors don't change the result; call
/// grPrintError to detect them. Changes GL_READ_BUFFER and the pack parameters of grPixelStorePack
/// (gl/pixelstore.h), and doesn't restore them.
bool grReadPixelsRGB(image2d_t& image);

/// Reads the depth buffer in the same rectangle. Each pixel is a GL_UNSIGNED_INT of 4 bytes. With
/// the initial glDepthRange, 0 is the near plane and 2^32 - 1 the far plane.
///
/// The description is DEPTH, UINT, 24 bits, although a pixel has 32 bits: callers depend on it.
/// So `rowsize`, `pixel_row` and the pixel operations compute wrong addresses. The distance from
/// one row to the next is `rowlength()` * 4 bytes, padded to 8 bytes if the store has the alignment
/// 8.
///
/// Everything else is as in grReadPixelsRGB. GL_READ_BUFFER is set to GL_FRONT.
bool grReadPixelsDepth(image2d_t& image);

}  // namespace libgr
