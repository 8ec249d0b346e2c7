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
    /// Returns false without a message if the file cannot be opened, does not begin with "BM", or
    /// ends before its pixels. Returns false with a line on std::cerr if the pixels exceed the
    /// limit picture-memory (utils/limits.h). The height is read as unsigned, so a file with the
    /// top row first (negative height) usually exceeds this limit. Returns true for a file that
    /// ends within its pixels; the missing bytes are 0 and use no memory until they are read or
    /// written.
    ///
    /// The bits of a row are rounded down to whole bytes. If a row has fewer than 8 bits, for
    /// example 7 pixels of 1 bit, `pixels` becomes empty and the function returns true.
    bool load(char const* path, libutils::android_app* app);

    /// Sets the remaining header fields and writes headers and pixels, without a palette. Returns
    /// false if the file cannot be opened or written. Truncates an existing file.
    bool save(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the pixels. Indices of a palette become levels of gray. Returns
/// false for compressed files, and for depths other than 1, 4, 8 and 24 bits.
bool convert(image2d_t& image, bmpimage_t const& bmp);

/// Makes a BMP that shares the pixels, which are not converted. The rows must be padded to 4 bytes,
/// and the window is ignored. Accepts integer pictures of GRAYSCALE with 1, 4 and 8 bits and of BGR
/// with 8 bits. For other formats, returns false and prints a line on std::cerr. For compressed
/// data, returns false without a line.
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
