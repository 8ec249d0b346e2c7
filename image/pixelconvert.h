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
//   - `dst` must not be `src`. Pass a new record, because fields of an old one may be kept.
//   - `src` is read through its window and store, which are described in image/image.h.
//   - A `dst` with shared bytes gets all fields of `src`, with the window, store and palette.
//   - A `dst` with new bytes gets the new description and sizes. Its window, store and palette are
//     kept. The pixels are written through its window and store.
//
// The results:
//
//   true, converted     `dst` has new bytes.
//   true, shared        `src` has the wanted format already, and `dst` shares its bytes.
//   false, rejected     The description of `src` isn't supported, or pixels must be converted and
//                       `src` is compressed or incomplete: it has bytes for only some of its
//                       pixels. The state of `dst` is described with each function.
//   false, no room      There is no memory, or the pixels don't fit into the window of `dst`.
//                       `dst` has the new description and sizes, and undefined bytes, maybe too
//                       few. Only assign to it or call `clear`.
//
// image/image.h shows the conversion of a decoder's picture to RGBA.

// The four conversions of channels share the bytes of a rejected source. So after false, `dst` is
// the same picture as `src` if `dst.desc == src.desc`; otherwise there was no memory.

/// Converts BGR to RGB, and BGRA to RGBA, with 8-bit integer components. A source that is RGB or
/// RGBA already is shared, whatever its components, even if it is compressed. Others are rejected.
///
/// Rows of `dst` are always written from the start of its bytes and padded to 4 bytes, but its
/// window and store are kept. So if they mean another layout, `dst` shows wrong pixels, or its
/// bytes are too few and the result is false.
bool bgr2rgb(image2d_t& dst, image2d_t const& src);

/// Converts RGB to BGR, and RGBA to BGRA. The rules of `bgr2rgb` apply, but for RGB the store of
/// `dst` is set to native byte order and alignment 4.
bool rgb2bgr(image2d_t& dst, image2d_t const& src);

/// Converts RGB with 8-bit integer components to RGBA with alpha 255. RGBA with 8-bit integer
/// components is shared. Others are rejected, for example GRAYSCALE. The store of a converted `dst`
/// is set to native byte order and alignment 4.
bool rgb2rgba(image2d_t& dst, image2d_t const& src);

/// Converts RGBA with 8-bit integer components to RGB without alpha. RGB with 8-bit integer
/// components is shared. Others are rejected. The store is set as by `rgb2rgba`.
bool rgba2rgb(image2d_t& dst, image2d_t const& src);

/// Converts INDEX of 1, 4 or 8 bits to RGB with 8-bit components. The colours are the upper bytes
/// of the palette entries, and black for indices without an entry. The leftmost pixel of a byte is
/// in its highest bits. The palette of `dst` is cleared. A source of another format is shared.
///
/// INDEX of other sizes is rejected: `dst` is an RGB picture with undefined pixels. For 2 bits,
/// call `widen_samples` in image/samples.h first.
bool index2rgb(image2d_t& dst, image2d_t const& src);

/// Copies the description, store and pixels of `src`, but not its palette: for INDEX, assign
/// `dst.palette` too. `dst` gets no window: its bytes contain only the pixels of the window of
/// `src`. The padding of the rows becomes 0.
///
/// Rows are copied in whole bytes: `rowbyte()` bytes from the byte that contains the first pixel.
/// So pixels smaller than a byte may be lost or moved. With 1-bit pixels, for example,
///   - of a width of 10, 8 pixels are copied, and the last 2 become 0;
///   - of a window at x = 3 of width 16, pixel 0 becomes pixel 3 of `dst`, and the last 3 are lost.
/// `widen_samples` and `index2rgb` convert small pixels correctly.
///
/// Leaves `dst` unchanged if `src` is rejected.
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

/// Adds red, green and blue of a colour to all pixels: 1 adds 255, and the sums are clamped. Alpha
/// is unchanged. Accepts the same images as `fillcolor` and fails in the same cases.
bool addcolor(image2d_t& img, color3a_t const& color);

/// Converts RGB with unsigned 8-bit components to GRAYSCALE: 0.299 R + 0.587 G + 0.114 B, rounded
/// down. The window and store of the source are ignored, and its rows are expected to be padded to
/// 4 bytes: pass the result of `copy` for a window.
///
/// Leaves `dst` unchanged if `src` is rejected, and prints an error line if the reason is the
/// description.
bool monochrome(image2d_t& dst, image2d_t const& src);

/// Rotates the pixels clockwise by `count` quarter turns, 0 to 3. With 0, `dst` shares the bytes of
/// any `src` and this function returns true. With 1 to 3, `dst` gets
///   - new bytes, and the description of `src`;
///   - the sizes of `src`, exchanged for 1 and 3;
///   - no palette: for INDEX, assign it afterwards;
///   - no store of `src`: the window and store of `dst` are kept. The bytes of a component keep
///     their order, so if `swapbytes` is true in `src.store`, set `dst.store` to it before.
///
/// The size of a pixel must be a multiple of 8 bits. If it is smaller than a byte, all pixels of
/// `dst` are 0. With other sizes, for example 12 bits, the pixels are undefined. Both return true.
///
/// Leaves `dst` unchanged for another `count`, with the result false, and if `src` is rejected.
bool rotate(unsigned long count, image2d_t& dst, image2d_t const& src);

/// Makes `dst` a window into `src` that shares its bytes: writing to the pixels of `dst` changes
/// those of `src`. `dst` gets all fields of `src` except the sizes and the window, whose row length
/// is `src.rowlength()`. (`x`, `y`) is the lower left corner, relative to the window of `src`.
///
/// Returns false, with `dst` unchanged, only for a compressed source. Otherwise `m_width` and
/// `m_height` of `dst` may be smaller than requested. Examples for 640 by 480 pixels:
///
///   x, y, width, height   m_width, m_height
///   10, 20, 100, 50       100, 50
///   600, 470, 100, 50     40, 10
///   700, 0, 100, 50       100, 50: not limited; each row is a part of the next one
///   -5, 600, 100, 50      100, 50: not limited; outside the bytes
///
/// Check before the call that (`x`, `y`) is a pixel of `src`. `pixels_within` rejects the last of
/// these windows, but not the one before.
///
/// The width is limited to `src.m_width - dst.window.skippixels`, in unsigned arithmetic, and the
/// height likewise. The new skips include those of `src`, so a window of a window may be too small:
/// in the window of the first example, (0, 0, 100, 50) has 90 by 30 pixels. Callers depend on this.
/// To avoid it, make all windows from the whole picture.
bool makewindow(image2d_t& dst, image2d_t& src, int x, int y, unsigned int width,
                unsigned int height);

template <typename T>
class image2d_reader_t;

/// A read-only view of the rows of a picture. It ignores the window and store of the picture, and
/// expects rows that are padded to 4 bytes.
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
