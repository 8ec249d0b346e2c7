// SPDX-License-Identifier: MIT
// The BMP reader through a stream, with strict header checks, and the BMP writer.
#pragma once

#include "codecs/bmprecords.h"
#include "codecs/imageobject.h"
#include "utils/allocator.h"

namespace libgr {

/// A BMP file as a record. The pixels are the file's rows, bottom row first, padded to 4 bytes.
struct bmpimage_t {
    libutils::tagBITMAPFILEHEADER fileheader{};
    libutils::tagBITMAPINFOHEADER infoheader{};
    image_bytes_t pixels;

    /// Reads the file and skips its palette. Returns false without a message if the file cannot be
    /// opened, is not BMP, ends within its headers or before its pixel offset. Returns false with a
    /// line on std::cerr if the pixels exceed the limit picture-memory (utils/limits.h). Returns
    /// true for a file that ends within its pixels; the missing bytes are 0 and take no memory
    /// until they are used. A picture whose rows are shorter than a byte has no pixels.
    bool load(char const* path, libutils::android_app* app);

    /// Completes the header fields and writes the headers and the pixels, never a palette. False
    /// when the file can't be opened or written.
    bool save(char const* path, libutils::android_app* app);
};

/// Describes the record as a picture and shares its pixels. The indices of a palette picture are
/// shown as levels of gray. False for compressed files and for depths other than 1, 4, 8 and 24.
bool convert(image2d_t& image, bmpimage_t const& bmp);

/// Describes the picture as a BMP record and shares its bytes as they are. Takes integer gray
/// pictures of 1, 4 and 8 bits and BGR ones of 8; others are refused with a line on std::cerr.
bool convert(bmpimage_t& bmp, image2d_t const& image);

/// The codec on top of bmpimage_t.
class image_bmp_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;

  private:
    bmpimage_t m_bmp;
};

}  // namespace libgr
