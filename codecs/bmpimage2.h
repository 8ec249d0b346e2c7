// SPDX-License-Identifier: MIT
// The BMP reader that maps the file and lets the picture's pixels stay in the mapping.
#pragma once

#include "codecs/bmprecords.h"
#include "codecs/imageobject.h"
#include "utils/allocator.h"
#include "utils/ofsvector.h"

namespace libgr {

/// Four views onto the one shared mapping of a BMP file, each clipped to the mapping's end.
struct bmpimage2_t {
    template <typename T>
    using view_t = libutils::ofsvector<T, libutils::alloc_mmap_unix>;

    view_t<libutils::tagBITMAPFILEHEADER> fileheader;
    view_t<libutils::tagBITMAPINFOHEADER> infoheader;
    /// The count holds the palette area's size in bytes, not its entries.
    view_t<libutils::tagRGBQUAD> palette;
    image_bytes_t pixels;

    /// Maps the file read-only and points the views at its parts; no field is checked. False when
    /// the file can't be mapped or ends before its pixel offset can be read.
    bool load(char const* path, libutils::android_app* app);
};

/// Describes the mapped file as a picture with its palette widened to 16 bits, and shares the pixel
/// view, so that the pixels stay in the mapping as long as the picture lives. If the file ends
/// within its pixels, the picture gets a copy instead, whose missing rows are 0.
///
/// Returns false without a message for compressed files, for depths other than 1, 4, 8, 24 and 32,
/// for 32 bits with a palette, and for files with less than a row of pixels. Returns false with a
/// line on std::cerr for a size, such as a negative height, that exceeds the limit picture-memory
/// or bmp-ratio (utils/limits.h).
bool convert(image2d_t& image, bmpimage2_t const& bmp);

/// The codec on top of bmpimage2_t; it has no writer.
class image_bmp2_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;

  private:
    bmpimage2_t m_bmp;
};

}  // namespace libgr
