// SPDX-License-Identifier: MIT
// Decoding and encoding of JPEG data in memory (ITU-T T.81) through libjpeg, and the markers that
// are kept of it.
#pragma once

#include <list>

#include "codecs/jpegdata.h"
#include "geometry/color.h"
#include "image/image.h"

namespace libgr {

/// A marker segment of a JPEG file, with a copy of its payload: the bytes behind the length field.
struct marker_t {
    unsigned char code;
    jpeg_bytes_t payload;
};

/// One row between an image's description and libjpeg's J_COLOR_SPACE.
struct jpeg_info_desc_t {
    image_desc_t desc;
    unsigned int color_space;
    unsigned int components;
};
extern jpeg_info_desc_t const jpeg_info_desc_table[3];

/// Decodes and encodes. An error in the data never ends the process. All messages go to std::cerr
/// and begin with the data's name, if it has one; libjpeg's own words follow them.
class jpeginfo_t {
  public:
    unsigned long width = 0;      ///< pixels, from the last header read
    unsigned long height = 0;     ///< pixels, from the last header read
    std::list<marker_t> markers;  ///< APPn and COM in file order; encoding writes them again

    /// Decodes `data` into `image`, bottom row first, each row straight into its place, and keeps
    /// the markers that are whole.
    ///
    /// With `square_unit` above 0 the rows lie in a square whose side is the picture's longer one
    /// rounded up to a multiple of it, the rest zero. With `border` the store has a margin of one
    /// pixel, painted with `border_color` before the rows go in.
    ///
    /// Returns true if the picture was decoded, with a line if only in part; missing rows are left
    /// as allocated. Returns false with a line for a damaged header and for a size, of the picture
    /// or of the square, that exceeds the limit jpeg-ratio or picture-memory (utils/limits.h), and
    /// without a line for colours that the table does not have, such as CMYK.
    bool decompress(image2d_t& image, jpegdata_t const& data, unsigned short square_unit,
                    bool border, color3ub_t const& border_color);

    /// Encodes `image`, whose description must be in the table, into new bytes of `data`, behind
    /// the markers; `quality` from 1 to 100, with `force_baseline` kept to 8-bit quantisation.
    /// Returns false and sets errno for another description or an image that lacks bytes, and,
    /// after a line, for an error in libjpeg.
    bool compress(jpegdata_t& data, image2d_t const& image, int quality, bool force_baseline);

    /// Reads the header alone, for sizes and markers, cut ones included. False with a line when it
    /// is damaged.
    bool analyze_markers(jpegdata_t const& data);

    /// The payload of the first kept marker of that number, shared; empty when there is none.
    jpeg_bytes_t get_marker(e_marker_num_t number) const;
};

}  // namespace libgr
