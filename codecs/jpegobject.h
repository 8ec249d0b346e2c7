// SPDX-License-Identifier: MIT
// The JPEG codec.
#pragma once

#include "codecs/imageobject.h"
#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"

namespace libgr {

/// The JPEG codec. jpeginfo_t::decompress (codecs/jpeginfo.h) lists the files that it loads, and
/// the signs of damage. The Exif orientation is read from the first APP1 segment; if that is not a
/// complete Exif segment, `rightrotatecount` is not set.
///
/// Writes at quality 95, with the markers of the file that the object has loaded. They include the
/// Exif orientation, so do not turn the picture before you save it with the same object.
class image_jpeg1_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;

  private:
    void read_orientation();

    jpegdata_t m_data;
    jpeginfo_t m_info;
};

}  // namespace libgr
