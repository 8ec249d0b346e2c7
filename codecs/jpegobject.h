// SPDX-License-Identifier: MIT
// The JPEG codec.
#pragma once

#include "codecs/imageobject.h"
#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"

namespace libgr {

/// Reads mapped JPEG files and their Exif orientation. Also loads a picture that can only be partly
/// decoded; its missing rows are black if `image` was empty. Rejects CMYK.
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
