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

/// Decodes and encodes JPEG data. Error lines go to std::cerr. They begin with the name of the
/// data, and a line with libjpeg's message follows them.
///
/// To read the markers of a file without decoding it:
///
/// ```cpp
/// #include "metadata/exif.h"
///
/// libgr::jpegdata_t file;
/// libgr::jpeginfo_t info;
/// libgr::app1_marker_t exif;
/// if (file.load("photo.jpg", nullptr) && info.analyze_markers(file)) {
///     exif.set_app1_buffer(info.get_marker(libgr::MARKER_APP1));
///     exif.parse();
/// }
/// ```
class jpeginfo_t {
  public:
    unsigned long width = 0;      ///< pixels, from the last header read
    unsigned long height = 0;     ///< pixels, from the last header read
    std::list<marker_t> markers;  ///< APPn and COM in file order; `compress` writes them

    /// Decodes `data`, bottom row first, directly into the memory of `image`, and stores the
    /// markers in `markers`, without empty and truncated ones. The format is RGB or GRAYSCALE with
    /// 8 bits.
    ///
    /// If `square_unit` is not 0, the image memory is a square whose side, in pixels, is the longer
    /// side of the picture, rounded up to a multiple of `square_unit`. Without `border`, the other
    /// pixels are 0. With `border`, the side is 2 pixels longer, `window.skiprows` is 1, and a
    /// frame of one pixel in `border_color` is painted as if the picture began in row 1 and
    /// column 1. The picture is then decoded to row 0 and column 0 and overwrites a part of the
    /// frame. With `border` and a `square_unit` of 0, the side is the width plus 2, and rows that
    /// do not fit are dropped.
    ///
    /// Returns true if the header is valid, even if some or all rows cannot be decoded. A line on
    /// std::cerr reports missing rows; they are 0 if the image was empty. Returns false with an
    /// error line for a damaged header, and if the picture or the square exceeds the limit
    /// jpeg-ratio or picture-memory (utils/limits.h). Returns false without a line for other
    /// colours, such as CMYK.
    bool decompress(image2d_t& image, jpegdata_t const& data, unsigned short square_unit,
                    bool border, color3ub_t const& border_color);

    /// Encodes `image` into new bytes of `data`, and writes the markers before it. `quality` is
    /// from 1 to 100. `force_baseline` limits the quantisation to 8 bits. The format must be in the
    /// table. Returns false and sets errno on failure: EINVAL for another format or an image with
    /// too few bytes, and EINVAL or ENOMEM, after an error line, if libjpeg fails.
    bool compress(jpegdata_t& data, image2d_t const& image, int quality, bool force_baseline);

    /// Reads only the header: `width`, `height`, and all markers, including empty and truncated
    /// ones. Returns false with an error line if the header is damaged.
    bool analyze_markers(jpegdata_t const& data);

    /// Returns the payload of the first marker with this number, or empty bytes. The payload is
    /// shared, not copied.
    jpeg_bytes_t get_marker(e_marker_num_t number) const;
};

}  // namespace libgr
