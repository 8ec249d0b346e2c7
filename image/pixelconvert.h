// SPDX-License-Identifier: MIT
// Pixel operations from one picture to another: channel order, alpha, palettes, colour, turns,
// windows.
#pragma once

#include "geometry/color.h"
#include "image/image.h"

namespace libgr {

// All take the destination first, which must not be the source, and give it bytes of its own unless
// they share the source's. Sources are read through their window and store. A source that is
// compressed or whose pixels don't lie in its bytes is refused as one of a wrong description is.
// After a failed allocation the destination has the new description and no new pixels.

/// BGR to RGB and BGRA to RGBA, of 8-bit integers. A source that is in the wanted order already is
/// shared; any other is shared with the result false. The destination's rows are padded to 4 bytes,
/// whatever its window and store; one whose bytes have no room for them is refused.
bool bgr2rgb(image2d_t& dst, image2d_t const& src);

/// RGB to BGR and RGBA to BGRA, likewise.
bool rgb2bgr(image2d_t& dst, image2d_t const& src);

/// RGB of 8-bit integers to RGBA with alpha 255. RGBA of that kind is shared, and any other source
/// is shared with the result false.
bool rgb2rgba(image2d_t& dst, image2d_t const& src);

/// RGBA of 8-bit integers to RGB: the alpha is dropped. Otherwise as `rgb2rgba`.
bool rgba2rgb(image2d_t& dst, image2d_t const& src);

/// An index image of 1, 4 or 8 bits to RGB of 8 bits by the upper bytes of its palette; entries
/// that the palette lacks are black. The leftmost pixel stands in the highest bits. A source that
/// isn't an index image is shared. False for other sizes of index.
bool index2rgb(image2d_t& dst, image2d_t const& src);

/// The deep copy, without window and palette. Whole bytes of the pixels are copied, the rest of
/// each row becomes 0. False, with `dst` as it was, for a compressed source.
bool copy(image2d_t& dst, image2d_t const& src);

/// A float channel as a byte: 0 to 1 is 0 to 255, rounded and saturated. NaN gives 255.
unsigned char channel_byte(float value);

/// Fills an RGB or RGBA image of unsigned 8 bits with a colour. Others are refused with a line on
/// the error stream, one that can't be written to without.
bool fillcolor(image2d_t& img, color3a_t const& color);

/// Adds a colour to every pixel of such an image, in the range 0 to 1 with saturation at both ends.
/// Alpha stays.
bool addcolor(image2d_t& img, color3a_t const& color);

/// RGB of unsigned 8 bits to gray by 0.299 R + 0.587 G + 0.114 B. The source's rows are taken to be
/// padded to 4 bytes and its window is ignored. Others are refused with a line on the error stream.
bool monochrome(image2d_t& dst, image2d_t const& src);

/// Turns clockwise by `count` quarters, 0 to 3; 0 shares the source. Pixels of less than a byte
/// aren't copied, nor is the palette.
bool rotate(unsigned long count, image2d_t& dst, image2d_t const& src);

/// Makes `dst` a window into `src`, sharing its bytes. `x` and `y` count from the source's own
/// window, and the size is cut to what is left of the source's sizes behind the whole skip. That
/// difference is unsigned: a window that begins beyond the source keeps the given size, and pixel
/// operations refuse it. False, with `dst` as it was, for a compressed source.
bool makewindow(image2d_t& dst, image2d_t& src, int x, int y, unsigned int width,
                unsigned int height);

template <typename T>
class image2d_reader_t;

/// A read-only view of a picture's bytes that knows no window and takes rows as padded to 4 bytes.
template <>
class image2d_reader_t<unsigned char> {
  public:
    /// Shares the image's bytes and takes over its sizes and description. A compressed image leaves
    /// the view empty, and the result is false.
    bool setimage(image2d_t const& img);

    /// Bytes from one row to the next.
    unsigned long long rowsize() const;

    /// Whether all rows lie in the bytes.
    bool within() const;

    /// Row `y` of the picture, for a view that is within.
    unsigned char const* row(unsigned long y) const;

    image_bytes_t bytes;
    unsigned long width = 0;
    unsigned long height = 0;
    image_desc_t desc{};
};

}  // namespace libgr
