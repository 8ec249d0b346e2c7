// SPDX-License-Identifier: MIT
// The JPEG codec object: pictures with the turn that their Exif orientation demands.
#pragma once

#include "codecs/imageobject.h"
#include "codecs/jpegdata.h"
#include "codecs/jpeginfo.h"

namespace libgr {

/// Reads JPEG files by a mapping, and writes them at quality 95 with the markers of what it last
/// read. A picture that decodes in part is a picture.
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
