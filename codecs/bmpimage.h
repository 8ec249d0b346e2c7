// SPDX-License-Identifier: MIT
// A BMP reader that reads a stream and checks the headers strictly, and the BMP writer.
#pragma once

#include "codecs/bmprecords.h"
#include "codecs/imageobject.h"
#include "utils/allocator.h"

namespace libgr {

/// A BMP file. The pixels are the rows of the file, bottom row first, padded to 4 bytes. `app` is
/// ignored and may be null.
struct bmpimage_t {
    libutils::tagBITMAPFILEHEADER fileheader{};
    libutils::tagBITMAPINFOHEADER infoheader{};
    image_bytes_t pixels;

    /// Reads the file without its palette.
    ///
    /// Returns false without a line on std::cerr if the file cannot be opened, does not begin with
    /// "BM", or ends before its pixels. Returns false with a line if the pixels exceed the limit
    /// picture-memory (utils/limits.h), or for most files with the top row first (see `biHeight`).
    /// Returns true for a file that ends within its pixels; the missing bytes are 0.
    ///
    /// The size of a row is rounded down to bytes before the padding is added, which callers
    /// depend on. This distorts some pictures of 1 or 4 bits per pixel. If a row has fewer than 8
    /// bits, `pixels` becomes empty and the function returns true.
    bool load(char const* path, libutils::android_app* app);

    /// Writes the headers and the pixels, without a palette. Sets the fields of `fileheader`, and
    /// `biSize`. Returns false without a line on std::cerr if the file cannot be opened or written,
    /// or would exceed 4 GiB. Truncates an existing file.
    bool save(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the pixels: a change of one is visible in the other. Indices of a
/// palette become levels of gray. Returns false without a line on std::cerr for compressed files,
/// and for depths other than 1, 4, 8 and 24 bits.
bool convert(image2d_t& image, bmpimage_t const& bmp);

/// Makes a BMP that shares the pixels. The rows must be padded to 4 bytes, which is not checked.
/// The window is ignored. Accepts integer pictures of GRAYSCALE with 1, 4 and 8 bits and of BGR
/// with 8 bits. Returns false with a line on std::cerr for other formats, and without a line and a
/// reason for compressed data.
bool convert(bmpimage_t& bmp, image2d_t const& image);

/// The codec that uses bmpimage_t.
class image_bmp_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;

  private:
    bmpimage_t m_bmp;
};

}  // namespace libgr
