// SPDX-License-Identifier: MIT
// Reductions of a picture to half its size: a box filter and four filters for Bayer mosaics.
#pragma once

#include "image/image.h"

namespace libgr {

// The rules for all functions:
//
//   - `dst`, which must not be `src`, gets the description of `src` and half its width and height,
//     rounded down. The last column of an odd width and the top row of an odd height are ignored.
//     From a width or height of 1, `dst` gets no pixels, and the result is true.
//   - `src` is read, and `dst` is written, through its window and store. The window and store of
//     `dst` are kept, and its palette is cleared.
//   - Components must be 8-bit integers. The type and bits are not checked: larger components are
//     read as if each were one byte and give meaningless pixels. Means are rounded down.
//
// The result is false in these cases:
//
//   Cause                                         Error line
//   the format isn't supported, or no memory      yes
//   `src` is compressed                           no: `dst` is unchanged
//   `src` has bytes for only some of its pixels   no
//   a pixel has fewer bits than 8-bit components  no
//   the pixels don't fit the window of `dst`      no
//
// Unless `src` is compressed, `dst` then has the new description and sizes, and either no bytes or
// undefined pixels.
//
// Two rules differ from a plain mean of 2 by 2 pixels. They are kept because callers depend on the
// bytes:
//
//   - In RGBA and BGRA, too, the second pixel of a pair is read 3 bytes after the first, as in RGB.
//     So different components are mixed: the red of the result contains the alpha of the source.
//   - In a grayscale picture, result column x is the mean of source columns x and x + 1, not 2x and
//     2x + 1. The result shows only the left half of the source.
//
// For a plain mean, convert to RGB first: `rgba2rgb` drops alpha, and image/image.h shows how 8-bit
// gray becomes RGB.

/// Computes the mean of each 2 by 2 pixels, component by component. The supported formats are
/// GRAYSCALE, RGB, BGR, RGBA and BGRA.
bool scaledown(image2d_t& dst, image2d_t const& src);

/// Makes one pixel from each 2 by 2 cell of a Bayer mosaic. The letters of the names are the
/// colours of the cell: the two of its lower row, then the two of its upper row. If the pattern of
/// a sensor is listed from the top and the height is even, exchange the rows: GRBG becomes BGGR.
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
