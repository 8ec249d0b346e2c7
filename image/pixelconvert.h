// SPDX-License-Identifier: MIT
// Conversions of pictures: channel order, alpha, palettes, colour, rotation and windows.
#pragma once

/// Shows a part of a picture without a copy, and rotates a copy of that part:
///
/// ```cpp
/// #include "image/pixelconvert.h"
///
/// libgr::image2d_t picture;  // filled by a decoder
/// libgr::image2d_t part;
/// libgr::image2d_t rotated;
/// if (libgr::makewindow(part, picture, 10, 20, 100, 50)) {
///     libgr::rotate(1, rotated, part);
/// }
/// ```

#include "geometry/color.h"
#include "image/image.h"

namespace libgr {

// The rules for all functions, unless stated otherwise:
//
//   - `dst` must not be `src`. It gets bytes of its own, or shares the bytes of `src` where this is
//     stated.
//   - `src` is read through its window and store, which are described in image/image.h.
//   - A compressed `src`, and one that has bytes for only a part of its pixels, is treated like one
//     with an unsupported description.
//   - `rgb2rgba`, `rgba2rgb` and, for three components, `rgb2bgr` give `dst` a store with native
//     byte order and alignment 4. Otherwise the store and window of `dst` stay and are used.
//   - If there is no memory, the function returns false, and `dst` has the new description and
//     undefined pixels.

/// Converts BGR to RGB, and BGRA to RGBA, with 8-bit integer components. A source that is RGB or
/// RGBA already is shared. With any other source, `dst` shares the bytes of `src` and this function
/// returns false. The rows of `dst` are padded to 4 bytes, whatever its window and store say.
/// Returns false if `dst` then has too few bytes.
bool bgr2rgb(image2d_t& dst, image2d_t const& src);

/// Converts RGB to BGR, and RGBA to BGRA. The rules of `bgr2rgb` apply.
bool rgb2bgr(image2d_t& dst, image2d_t const& src);

/// Converts RGB with 8-bit integer components to RGBA with alpha 255. RGBA with 8-bit integer
/// components is shared. With any other source, `dst` shares the bytes of `src` and this function
/// returns false.
bool rgb2rgba(image2d_t& dst, image2d_t const& src);

/// Converts RGBA with 8-bit integer components to RGB and drops alpha. RGB with 8-bit integer
/// components is shared. With any other source, `dst` shares the bytes of `src` and this function
/// returns false.
bool rgba2rgb(image2d_t& dst, image2d_t const& src);

/// Converts INDEX of 1, 4 or 8 bits to RGB with 8-bit components. The colours are the upper bytes
/// of the palette entries, and black for indices without an entry. The leftmost pixel of a byte is
/// in its highest bits. A source of another format is shared. Returns false for INDEX of other
/// sizes: `widen_samples` in image/samples.h converts 2 bits to 8.
bool index2rgb(image2d_t& dst, image2d_t const& src);

/// Copies the pixels and the store, without the palette and without the rest of the larger picture.
/// The padding of the rows becomes 0. If pixels are smaller than a byte, a byte that a row uses
/// only partly becomes 0, too. Returns false, with `dst` unchanged, for a compressed or incomplete
/// source.
bool copy(image2d_t& dst, image2d_t const& src);

/// Converts a component from 0 to 1 to a byte from 0 to 255, rounded. Values outside the range are
/// clamped. NaN gives 255.
unsigned char channel_byte(float value);

/// Sets all pixels of an RGB or RGBA image with unsigned 8-bit components to a colour. For an image
/// of another description, prints an error line and returns false. Returns false without a line if
/// the image is compressed, incomplete or read-only.
bool fillcolor(image2d_t& img, color3a_t const& color);

/// Adds red, green and blue of a colour to all pixels. Components range from 0 to 1, and the sums
/// are clamped. Alpha is unchanged. The images and errors are those of `fillcolor`.
bool addcolor(image2d_t& img, color3a_t const& color);

/// Converts RGB with unsigned 8-bit components to GRAYSCALE: 0.299 R + 0.587 G + 0.114 B, rounded
/// down. The window and store of the source are ignored, and its rows are expected to be padded to
/// 4 bytes. For an image of another description, prints an error line and returns false.
bool monochrome(image2d_t& dst, image2d_t const& src);

/// Rotates the pixels clockwise by `count` quarter turns, 0 to 3. With 0, `dst` shares the bytes of
/// `src`. Pixels smaller than a byte and the palette are not copied. Returns false, with `dst`
/// unchanged, for another `count`, and for a compressed or incomplete source.
bool rotate(unsigned long count, image2d_t& dst, image2d_t const& src);

/// Makes `dst` a window into `src` that shares its bytes. `x` and `y` are relative to the window of
/// `src`, from the lower left corner. Returns false, with `dst` unchanged, for a compressed source.
///
/// The size is limited to the width and height of `src` minus the new `skippixels` and `skiprows`.
/// These include the skips of `src`, so a window in a window may be smaller than necessary. The
/// subtraction is unsigned: a window that begins outside of `src` isn't limited. The pixel
/// operations reject it, and `pixels_within` returns false.
bool makewindow(image2d_t& dst, image2d_t& src, int x, int y, unsigned int width,
                unsigned int height);

template <typename T>
class image2d_reader_t;

/// A read-only view of the rows of a picture that ignores its window and store: rows are expected
/// to be padded to 4 bytes.
template <>
class image2d_reader_t<unsigned char> {
  public:
    /// Shares the bytes of the image and copies its sizes and description. Returns false, and
    /// leaves the view empty, if the image is compressed.
    bool setimage(image2d_t const& img);

    /// Returns the distance, in bytes, from one row to the next.
    unsigned long long rowsize() const;

    /// Returns true if the bytes contain all rows.
    bool has_all_rows() const;

    /// Returns the address of row `y`. Call `has_all_rows` before: the bounds are not checked.
    unsigned char const* row(unsigned long y) const;

    image_bytes_t bytes;
    unsigned long width = 0;   ///< in pixels
    unsigned long height = 0;  ///< in rows
    image_desc_t desc{};
};

}  // namespace libgr
