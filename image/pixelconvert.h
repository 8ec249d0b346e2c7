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
//   - `dst` must not be `src`. Its bytes are newly allocated, unless the function says that it
//     shares those of `src`. With shared bytes, `dst` gets all fields of `src`, including the
//     window, store and palette.
//   - With new bytes, `dst` gets the new description and sizes. Its window and store are kept and
//     used, but `rgb2rgba`, `rgba2rgb` and, for three components, `rgb2bgr` set the store to native
//     byte order and alignment 4. Its palette is kept, but `index2rgb` and `rotate` clear it.
//   - `src` is read through its window and store, which are described in image/image.h.
//   - If pixels must be converted and `src` is compressed or incomplete (it has bytes for only some
//     of its pixels), the result is the same as for an unsupported description.
//   - If there is no memory, or if the pixels don't fit into the window of `dst`, the function
//     returns false. `dst` then has the new description and sizes, and undefined bytes, which may
//     be too few for its pixels.

/// Converts BGR to RGB, and BGRA to RGBA, with 8-bit integer components. A source that is RGB or
/// RGBA already is shared, whatever its components. With any other source, `dst` shares the bytes
/// of `src` and this function returns false.
///
/// Rows of `dst` are always written with 4-byte alignment; its window and store are ignored.
/// Returns false if the bytes allocated for `dst` are too few for this.
bool bgr2rgb(image2d_t& dst, image2d_t const& src);

/// Converts RGB to BGR, and RGBA to BGRA. The rules of `bgr2rgb` apply.
bool rgb2bgr(image2d_t& dst, image2d_t const& src);

/// Converts RGB with 8-bit integer components to RGBA with alpha 255. RGBA with 8-bit integer
/// components is shared. With any other source (GRAYSCALE, for example), `dst` shares the bytes of
/// `src` and this function returns false.
bool rgb2rgba(image2d_t& dst, image2d_t const& src);

/// Converts RGBA with 8-bit integer components to RGB and drops alpha. RGB with 8-bit integer
/// components is shared. With any other source, `dst` shares the bytes of `src` and this function
/// returns false.
bool rgba2rgb(image2d_t& dst, image2d_t const& src);

/// Converts INDEX of 1, 4 or 8 bits to RGB with 8-bit components. The colours are the upper bytes
/// of the palette entries, and black for indices without an entry. The leftmost pixel of a byte is
/// in its highest bits. A source of another format is shared.
///
/// For INDEX of other sizes, returns false, and `dst` is an RGB picture with undefined pixels.
/// `widen_samples` in image/samples.h converts 2 bits to 8.
bool index2rgb(image2d_t& dst, image2d_t const& src);

/// Copies the description, store and pixels of `src`, but not its palette. `dst` gets no window:
/// its bytes contain only the pixels of the window of `src`. The padding of the rows becomes 0.
///
/// If pixels are smaller than a byte, each row is copied from the byte that contains its first
/// pixel, and `rowbyte()` bytes long. The other bytes of the row become 0.
///
/// Returns false, with `dst` unchanged, for a compressed or incomplete source.
bool copy(image2d_t& dst, image2d_t const& src);

/// Converts a component from 0 to 1 to a byte from 0 to 255, rounded. Values outside the range are
/// clamped. NaN gives 255.
unsigned char channel_byte(float value);

/// Sets all pixels of an RGB or RGBA image with unsigned 8-bit components to a colour. For an image
/// of another description, prints an error line and returns false. Returns false without a line if
/// the image is compressed, incomplete or read-only. An image is read-only if its bytes are a file
/// mapped with PROTECTION_READ, as `image_bmp2_t` in codecs/bmpimage2.h delivers them. `copy` makes
/// a writable image.
bool fillcolor(image2d_t& img, color3a_t const& color);

/// Adds red, green and blue of a colour to all pixels. Components range from 0 to 1, and the sums
/// are clamped. Alpha is unchanged. The images and errors are those of `fillcolor`.
bool addcolor(image2d_t& img, color3a_t const& color);

/// Converts RGB with unsigned 8-bit components to GRAYSCALE: 0.299 R + 0.587 G + 0.114 B, rounded
/// down. The window and store of the source are ignored, and its rows are expected to be padded to
/// 4 bytes.
///
/// Returns false, with `dst` unchanged, for an image of another description, and for a compressed
/// or incomplete source. Prints an error line only for another description.
bool monochrome(image2d_t& dst, image2d_t const& src);

/// Rotates the pixels clockwise by `count` quarter turns, 0 to 3. With 0, `dst` shares the bytes of
/// any `src` and this function returns true. Otherwise the palette and store aren't copied, and if
/// pixels are smaller than a byte, all pixels of `dst` are 0.
///
/// Returns false, with `dst` unchanged, for another `count`, and for a compressed or incomplete
/// source with a `count` from 1 to 3.
bool rotate(unsigned long count, image2d_t& dst, image2d_t const& src);

/// Makes `dst` a window into `src` that shares its bytes: writing to the pixels of `dst` changes
/// those of `src`. The record `src` isn't changed. `dst` gets all fields of `src` except the sizes
/// and the window, whose row length is `src.rowlength()`. `x` and `y` are relative to the window of
/// `src`, from the lower left corner. A negative value is valid only if the window of `src` skips
/// at least as many pixels or rows.
///
/// The size is limited to the width and height of `src` minus the new `skippixels` and `skiprows`;
/// `m_width` and `m_height` of `dst` are the result. The new skips include those of `src`, so a
/// window made from a window may be smaller than requested even if the pixels exist.
///
/// Returns false, with `dst` unchanged, only for a compressed source. If the new `skippixels` is
/// larger than the width of `src`, the width isn't limited and this function returns true. The same
/// is true for `skiprows` and the height. `pixels_within` rejects this window only if it exceeds
/// the bytes, not if its rows extend into the next rows.
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
