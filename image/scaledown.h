// SPDX-License-Identifier: MIT
// Reductions of a picture to half its size: a box filter and four filters for Bayer mosaics.
#pragma once

#include "image/image.h"

namespace libgr {

// All of these functions:
//
//   - set `dst`, which must not be `src`, to half the width and height of `src`, rounded down, with
//     the description of `src`. The last column of an odd width and the top row of an odd height
//     are ignored. The store and window of `dst` are kept and used. Its palette is cleared.
//   - treat each component as one byte and ignore the type and bits of `src`; other components than
//     8-bit integers give meaningless pixels. Means are rounded down.
//   - return false and print an error line if the format isn't supported or there is no memory.
//     They return false without a line if `src` is compressed, has bytes for only some of its
//     pixels, or has pixels of fewer bits than its format needs with 8-bit components. `dst` is
//     unchanged if `src` is compressed. In the other cases it has the new description and sizes,
//     and either no bytes or undefined pixels.
//
// Two rules differ from a plain mean of 2 by 2 pixels. Callers depend on both:
//
//   - With four components, the second pixel of a pair is read 3 bytes after the first, not 4.
//   - In a grayscale picture, result column x is the mean of source columns x and x + 1, not 2x and
//     2x + 1. The result shows only the left half of the source.

/// Computes the mean of each 2 by 2 pixels, component by component. The supported formats are
/// GRAYSCALE, RGB, BGR, RGBA and BGRA.
bool scaledown(image2d_t& dst, image2d_t const& src);

/// Makes one pixel from each 2 by 2 cell of a Bayer mosaic. The letters of the names are the
/// colours of the cell: the two of its lower row, then the two of its upper row.
///
/// The supported formats are RGB and RGBA, with each sensor sample stored in the component of its
/// own colour, and GRAYSCALE, which is reduced as by `scaledown`. The green of the result is the
/// mean of the two greens. RGBA samples are read at the byte positions of an RGB picture, and the
/// alpha is the mean that `scaledown` computes.
bool scaledownGRBG(image2d_t& dst, image2d_t const& src);
bool scaledownGBRG(image2d_t& dst, image2d_t const& src);
bool scaledownRGGB(image2d_t& dst, image2d_t const& src);
bool scaledownBGGR(image2d_t& dst, image2d_t const& src);

}  // namespace libgr
