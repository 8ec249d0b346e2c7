// SPDX-License-Identifier: MIT
// Pictures made larger by their own edges.
#pragma once

#include "image/image.h"

namespace libgr {

/// Copies `src` into the lower left corner of a picture of `width` by `height` pixels and repeats
/// its last column and its top row in the rest. `dst` gets bytes of its own, with the description,
/// store and palette of `src`, and must not be `src`.
///
/// Returns false, with `dst` as it was, if the sizes are smaller than those of `src`, if `src` is
/// compressed, has no pixels, has bytes for only a part of them or has pixels that aren't whole
/// bytes, and if there is no memory.
bool repeat_edges(image2d_t& dst, image2d_t const& src, unsigned int width, unsigned int height);

}  // namespace libgr
