// SPDX-License-Identifier: MIT
// The interface that every image file codec implements: one object loads or saves one kind of file.
#pragma once

#include "image/image.h"

namespace libgr {

/// One kind of image file, made for the time of one load or save. No GL context is needed.
class image_object_t {
  public:
    /// Reads the file at `path` into `image`, bottom row first, and says whether the picture can be
    /// shown. After false, `image` may hold whatever had been read by then. The image owns its
    /// bytes (or its share of the file's mapping) and outlives this object.
    virtual bool load(image2d_t& image, char const* path) = 0;

    /// Writes `image` to the file at `path`, which is truncated if it exists. False when the codec
    /// has no writer, when it has no form for the image's description, or when writing fails.
    virtual bool save([[maybe_unused]] image2d_t const& image, [[maybe_unused]] char const* path) {
        return false;
    }

    virtual ~image_object_t() = 0;

    /// Clockwise quarter turns that the loaded picture must be given to stand upright.
    unsigned long rightrotatecount() const { return m_rightrotatecount; }

  protected:
    unsigned long m_rightrotatecount = 0;
};

inline image_object_t::~image_object_t() {}

}  // namespace libgr
