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
    /// The view is four times too long, because its `count` is the number of bytes of the palette.
    /// Callers depend on it.
    view_t<libutils::tagRGBQUAD> palette;
    image_bytes_t pixels;

    /// Maps the file read-only and sets the views. Checks no field. Returns false without a line
    /// on std::cerr if the file cannot be mapped or has less than 14 bytes. `app` is ignored and
    /// may be null.
    bool load(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the mapped pixels. The mapping exists until no picture and no
/// bmpimage2_t shares it. If the file ends within its pixels, the picture has its own copy of them,
/// and the missing rows are 0.
///
/// The pixels of a mapping are read-only: a write raises SIGSEGV. If `image.is_writable()` is
/// false, `image.resize(image.size(), 0)` replaces them by a copy that can be written to.
///
///   Bits     Without a palette  With a palette
///   1, 4, 8  GRAYSCALE          INDEX; the colours are widened to 16 bits
///   24       BGR                BGR; the palette is ignored
///   32       BGRA               rejected; most headers of more than 40 bytes count as a palette
///
/// Also returns false without a line on std::cerr for compressed files, other numbers of bits, and
/// files with less than one row of pixels. Returns false with a line if the size exceeds the limit
/// picture-memory or bmp-ratio (utils/limits.h), or for most files with the top row first (see
/// `biHeight`). The signature is not checked.
bool convert(image2d_t& image, bmpimage2_t const& bmp);

/// The codec that uses bmpimage2_t. It cannot write.
class image_bmp2_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;

  private:
    bmpimage2_t m_bmp;
};

}  // namespace libgr
