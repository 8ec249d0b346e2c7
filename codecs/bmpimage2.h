// SPDX-License-Identifier: MIT
// A BMP reader that maps the file and does not copy its pixels.
#pragma once

#include "codecs/bmprecords.h"
#include "codecs/imageobject.h"
#include "utils/allocator.h"
#include "utils/ofsvector.h"

namespace libgr {

/// Four views of the mapping of a BMP file. No view extends past the end of the mapping.
struct bmpimage2_t {
    template <typename T>
    using view_t = libutils::ofsvector<T, libutils::alloc_mmap_unix>;

    view_t<libutils::tagBITMAPFILEHEADER> fileheader;
    view_t<libutils::tagBITMAPINFOHEADER> infoheader;
    /// The view has one element for each byte of the palette instead of one for each entry, so it
    /// is four times too long. Callers depend on this.
    view_t<libutils::tagRGBQUAD> palette;
    image_bytes_t pixels;

    /// Maps the file read-only and sets the views. Checks no field. Returns false if the file
    /// cannot be mapped or has less than 14 bytes. `app` is ignored and may be null.
    bool load(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the mapped pixels. The mapping exists as long as the picture. The
/// colours of a palette are widened to 16 bits. If the file ends within its pixels, the picture
/// gets a copy instead, and the missing rows are 0.
///
/// Returns false without a message for compressed files, for depths other than 1, 4, 8, 24 and 32
/// bits, for 32 bits with a palette, and for files with less than one row of pixels. Returns false
/// with a line on std::cerr if the size exceeds the limit picture-memory or bmp-ratio
/// (utils/limits.h). Heights are read as unsigned, so a file with the top row first (negative
/// height) usually exceeds one of these limits.
bool convert(image2d_t& image, bmpimage2_t const& bmp);

/// The codec that uses bmpimage2_t. It cannot write.
class image_bmp2_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;

  private:
    bmpimage2_t m_bmp;
};

}  // namespace libgr
