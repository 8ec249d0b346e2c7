// SPDX-License-Identifier: MIT
// Enlarges pictures by repeating their edges.
#pragma once

#include "image/image.h"

namespace libgr {

/// Makes a picture of `width` by `height` pixels with `src` in its lower left corner. The last
/// column of `src` is repeated to the right, and then the top row upward.
///
/// `src` is read through its window and store. `dst`, which must not be `src`, gets newly allocated
/// bytes, the description, store and palette of `src`, and no window.
///
/// Returns false, with `dst` unchanged, if
///   - `width` or `height` is smaller than in `src`,
///   - `src` is compressed, has no pixels, or has bytes for only some of its pixels,
///   - the size of a pixel is not a multiple of 8 bits,
///   - there is no memory.
bool repeat_edges(image2d_t& dst, image2d_t const& src, unsigned int width, unsigned int height);

}  // namespace libgr
