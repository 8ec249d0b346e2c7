// SPDX-License-Identifier: MIT
// Reductions of a picture to half its size, plain or by reading it as a Bayer mosaic.
#pragma once

#include "image/image.h"

namespace libgr {

// The destination gets half the source's width and height, truncated, with the source's
// description; its store and window stay. It must be another record than the source. Rows are read
// from the source's window, and components are taken to be bytes. Sums are truncated. A format that
// isn't supported is refused with a line on the error stream, a source whose pixels don't lie in
// its bytes, are compressed or are smaller than its components' bytes without.
//
// Two sampling rules differ from the plain box of 2 by 2 pixels. With four components the second
// pixel of a pair is read 3 bytes behind the first. A grayscale source moves one pixel, not two,
// for each pixel of the destination, which so covers its left half.

/// The box filter, for GRAYSCALE, RGB, BGR, RGBA and BGRA.
bool scaledown(image2d_t& dst, image2d_t const& src);

/// One colour pixel for each cell of a mosaic, which is named by the colours of its two rows, the
/// lower row first. RGB and RGBA are read in the channel that a place in the cell carries, RGBA at
/// the byte places of RGB; GRAYSCALE as by `scaledown`.
bool scaledownGRBG(image2d_t& dst, image2d_t const& src);
bool scaledownGBRG(image2d_t& dst, image2d_t const& src);
bool scaledownRGGB(image2d_t& dst, image2d_t const& src);
bool scaledownBGGR(image2d_t& dst, image2d_t const& src);

}  // namespace libgr
