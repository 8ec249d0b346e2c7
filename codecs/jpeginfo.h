// SPDX-License-Identifier: MIT
// Decodes and encodes JPEG data in memory (ITU-T T.81) with libjpeg.
#pragma once

#include <list>

#include "codecs/jpegdata.h"
#include "geometry/color.h"
#include "image/image.h"

namespace libgr {

/// A marker segment of a JPEG file, with a copy of its payload, the bytes after the length field.
struct marker_t {
    unsigned char code;
    jpeg_bytes_t payload;
};

/// A pixel format and the J_COLOR_SPACE of libjpeg for it.
struct jpeg_info_desc_t {
    image_desc_t desc;
    unsigned int color_space;
    unsigned int components;
};
/// The formats that are decoded and encoded: RGB, YCbCr and GRAYSCALE, all with 8 bits.
extern jpeg_info_desc_t const jpeg_info_desc_table[3];

/// Decodes and encodes JPEG data. Error lines on std::cerr begin with the name of the data. If
/// libjpeg fails, the next line is its message. Threads: see codecs/imageobject.h.
///
/// To read the markers of a file without decoding it:
///
/// ```cpp
/// #include <iostream>
///
/// #include "metadata/exif.h"
///
/// libgr::jpegdata_t file;
/// libgr::jpeginfo_t info;
/// libgr::app1_marker_t exif;
/// if (file.load("photo.jpg", nullptr) && info.analyze_markers(file)) {
///     exif.set_app1_buffer(info.get_marker(libgr::MARKER_APP1));
///     if (exif.parse()) {
///         std::cout << exif.tiff_header.tag_0th_ifd.Make.c_str() << "\n";
///     }
/// }
/// ```
class jpeginfo_t {
  public:
    unsigned long width = 0;      ///< pixels, from the last header read
    unsigned long height = 0;     ///< pixels, from the last header read
    std::list<marker_t> markers;  ///< APPn and COM in file order; `compress` writes them

    /// Decodes `data`, bottom row first, into new memory of `image`, as RGB or GRAYSCALE with 8
    /// bits. `image` must have no window. Its store becomes a static one with an alignment of 4.
    /// `markers` gets the segments of the file, except empty ones.
    ///
    /// The memory can be a square that is larger than the picture, for a texture:
    ///
    ///   square_unit  border  Side of the square in pixels
    ///   0            false   no square: the memory has the size of the picture
    ///   n            false   the longer side, rounded up to a multiple of n; the rest is 0
    ///   n            true    2 more than without `border`
    ///   0            true    the width plus 2; rows that do not fit are dropped
    ///
    /// With `border`, `window.skiprows` is 1, and a frame in `border_color`, one pixel wide, is
    /// painted around the place of a picture that begins in row 1 and column 1. But the picture is
    /// decoded to row 0 and column 0, and overwrites a part of the frame. Callers depend on it.
    ///
    /// Returns true if the header is valid, even if rows cannot be decoded, as in a file that is
    /// cut in the middle. Missing rows are 0 if `image` was empty before the call. Otherwise they
    /// contain bytes of its old pixels, which are copied to the new memory. The only sure sign of
    /// them is a line with "decompress fail" on std::cerr. The failure reason is usually set, too,
    /// but not for all files of several scans.
    ///
    /// Returns false with an error line for a damaged header, if the picture or the square exceeds
    /// the limit jpeg-ratio or picture-memory (utils/limits.h), and for a square of more than 65535
    /// pixels a side. Returns false without a line for other colours, for example CMYK. The size
    /// and the format of `image` may have changed then.
    bool decompress(image2d_t& image, jpegdata_t const& data, unsigned short square_unit,
                    bool border, color3ub_t const& border_color);

    /// Encodes `image` and replaces the bytes of `data`. The segments in `markers` are written
    /// before the pixels. The format must be in jpeg_info_desc_table; the rows may have any
    /// padding. `quality` is from 1 to 100. If `force_baseline` is true, the steps of the
    /// quantisation are limited to 8 bits, so that all decoders can read the data.
    ///
    /// Returns false and sets errno on failure. EINVAL without a line on std::cerr means another
    /// format, or an image with too few bytes; `data` is empty. EINVAL or ENOMEM after an error
    /// line means that libjpeg has failed; the bytes of `data` are not a JPEG.
    bool compress(jpegdata_t& data, image2d_t const& image, int quality, bool force_baseline);

    /// Reads only the header: `width`, `height`, and all markers, including empty ones. Returns
    /// false with an error line if the header is damaged.
    bool analyze_markers(jpegdata_t const& data);

    /// Returns the payload of the first marker with this number, or empty bytes. The payload is
    /// shared, not copied.
    jpeg_bytes_t get_marker(e_marker_num_t number) const;
};

}  // namespace libgr
