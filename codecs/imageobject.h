// SPDX-License-Identifier: MIT
// The interface of the codecs: one class for each picture file format.
#pragma once

#include "image/image.h"

namespace libgr {

/// The base class of the codecs. Make a new object for each file. To keep the markers of a JPEG,
/// save with the object that loaded it.
///
/// ```cpp
/// #include <iostream>
///
/// #include "codecs/png.h"
/// #include "utils/diagnostics.h"
///
/// libgr::image_png_t codec;
/// libgr::image2d_t picture;
/// libutils::clear_failure_reason();  // otherwise the reason of an earlier failure is kept
/// if (codec.load(picture, "photo.png")) {
///     std::cout << picture.m_width << "x" << picture.m_height << " pixels\n";
/// } else {
///     std::cout << "not loaded: " << libutils::failure_reason() << "\n";
/// }
/// ```
///
/// The codecs:
/// - image_jpeg1_t (codecs/jpegobject.h) reads JPEG in gray, YCbCr and RGB, but not CMYK. It
///   delivers GRAYSCALE or RGB with 8 bits, and writes these two and YCbCr.
/// - image_png_t (codecs/png.h) reads PNG of all colour types and depths, and delivers the pixel
///   layout of the file. It writes the same formats without palettes.
/// - image_bmp2_t (codecs/bmpimage2.h) is the usual BMP reader. It reads uncompressed BMP of 1, 4,
///   8, 24 and 32 bits. It delivers INDEX or GRAYSCALE up to 8 bits, BGR or BGRA. It does not
///   write.
/// - image_bmp_t (codecs/bmpimage.h) is the BMP writer. It writes GRAYSCALE and BGR. It also reads
///   uncompressed BMP of 1, 4, 8 and 24 bits, but ignores palettes.
/// - image_tga_t (codecs/tga.h) reads uncompressed TGA of 8, 16, 24 and 32 bits with padded rows.
///   It delivers GRAYSCALE, BGR or BGRA, and writes RGB and RGBA.
///
/// The function BmpLoad (codecs/bmpload.h) reads BMP files whose pixel format the caller knows.
///
/// The codecs look at the bytes of a file, not at the extension of its name. To load a file of
/// unknown format, try image_jpeg1_t, image_png_t, image_tga_t and image_bmp2_t in this order. The
/// first two check the signature of the file, the others only check header fields.
///
/// The codecs need no GL context. Sizes in headers are checked before memory is allocated for them
/// (docs/limits.md). Error lines go to std::cerr. The codecs, the pictures and the failure reason
/// share static data without locks: use all of them from one thread.
class image_object_t {
  public:
    /// Reads the file at `path` into `image`, bottom row first. Returns false if the picture cannot
    /// be loaded; `libutils::failure_reason` returns the reason, and `image` may have been changed.
    /// The image owns its bytes, or a share of the mapped file, and may outlive this object.
    virtual bool load(image2d_t& image, char const* path) = 0;

    /// Writes `image`, bottom row first, to the file at `path` and replaces an existing file.
    /// Returns false if the codec cannot write, if the file format does not have the pixel format,
    /// or if writing fails. But image_png_t returns true, and writes no file, for a pixel format
    /// that PNG does not have. `libutils::failure_reason` can be empty or wrong after a failed
    /// save.
    ///
    /// If the pixel format is rejected, the old file is unchanged, except that image_png_t
    /// truncates it for a picture with a palette. image_jpeg1_t writes a new file and renames it,
    /// so every failure leaves the old file. The other codecs truncate the old file before they
    /// write, so a failure leaves a part of the new file. Do not save an image with them to the
    /// file that image_bmp2_t has mapped for it: its pixels would be lost.
    virtual bool save([[maybe_unused]] image2d_t const& image, [[maybe_unused]] char const* path) {
        return false;
    }

    virtual ~image_object_t() = 0;

    /// Returns the number of clockwise quarter turns that make the loaded picture upright. `load`
    /// does not turn the picture.
    unsigned long rightrotatecount() const { return m_rightrotatecount; }

  protected:
    unsigned long m_rightrotatecount = 0;
};

inline image_object_t::~image_object_t() = default;

}  // namespace libgr
