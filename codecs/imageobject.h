// SPDX-License-Identifier: MIT
// The interface of the codecs: one class for each picture file format.
#pragma once

#include "image/image.h"

namespace libgr {

/// The base class of the codecs. Make a new object for each file, because a new load does not reset
/// `rightrotatecount`. To keep the markers of a JPEG, save with the object that loaded it.
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
///     std::cout << "not loaded: " << libutils::putname(libutils::failure_reason()) << "\n";
/// }
/// ```
///
/// The codecs, and the formats that they load and save, with 8 bits per component unless the header
/// of the codec says otherwise:
///
///   Codec          Header               Loads files with      Delivers            Saves
///   image_jpeg1_t  codecs/jpegobject.h  gray, YCbCr, RGB      GRAYSCALE, RGB      these and YCbCr
///   image_png_t    codecs/png.h         all types and depths  the file's layout   see there
///   image_bmp2_t   codecs/bmpimage2.h   1, 4, 8, 24, 32 bits  see there           nothing
///   image_bmp_t    codecs/bmpimage.h    1, 4, 8, 24 bits      GRAYSCALE, BGR      these
///   image_tga_t    codecs/tga.h         8, 16, 24, 32 bits    see there           RGB, RGBA
///
/// Use image_bmp2_t to load BMP files, and image_bmp_t to save them. image_bmp_t ignores palettes.
/// BMP and TGA files must be uncompressed. BmpLoad (codecs/bmpload.h) loads BMP files with a known
/// pixel format.
///
/// The codecs deliver rows that are padded to 4 bytes. `save` accepts any padding, because it reads
/// the store and the window of the image. But image_bmp_t, and image_tga_t for 16 bits, write the
/// bytes without a check. For them the rows must be padded to 4 bytes, without a window. Otherwise
/// the picture in the file is distorted.
///
/// The codecs look at the bytes of a file, not at the extension of its name. To load a file of
/// unknown format, try image_jpeg1_t, image_png_t, image_tga_t and image_bmp2_t in this order.
/// Before each attempt, call `image.clear()` and `libutils::clear_failure_reason()`. Otherwise the
/// reason of the first codec remains. image_tga_t precedes image_bmp2_t because image_bmp2_t does
/// not check the signature and can accept a TGA. image_tga_t accepts no BMP, because a BMP has a 0
/// in place of the depth. image_jpeg1_t prints lines on std::cerr for a file that is not a JPEG.
///
/// The functions of this library need no GL context. They check the sizes in headers before they
/// allocate memory (docs/limits.md). Use all of them, and the pictures and the JPEG data, from one
/// thread: they share static data without locks.
///
/// A function that reads picture data and fails records the reason (utils/diagnostics.h), also if
/// it returns false without a line on std::cerr. A function that writes may record no reason, or a
/// wrong one.
class image_object_t {
  public:
    /// Reads the file at `path` into `image`, bottom row first. `image` must have no window, and a
    /// null store or a store with an alignment of 4.
    ///
    /// Returns false if the picture cannot be loaded. `image` may then have a new size without
    /// pixels: call `image.clear()` before you use it again. Returns true for a JPEG of which only
    /// a part can be decoded; see jpeginfo_t::decompress (codecs/jpeginfo.h).
    ///
    /// The image may outlive this object. The bytes delivered by image_bmp2_t are usually
    /// read-only; see codecs/bmpimage2.h.
    virtual bool load(image2d_t& image, char const* path) = 0;

    /// Writes `image`, bottom row first, to the file at `path`. Returns false if the codec does not
    /// save the pixel format, or if the file cannot be written. A failure has this effect on an
    /// existing file:
    ///
    ///   Codec          Format is not saved                     Error while writing
    ///   image_jpeg1_t  unchanged                               unchanged
    ///   image_png_t    unchanged, and the result is true; for  has a part of the new file
    ///                  exceptions see savepng in codecs/png.h
    ///   image_bmp_t    unchanged                               has a part of the new file
    ///   image_tga_t    unchanged                               has a part of the new file
    ///
    /// image_jpeg1_t writes a new file and renames it. The others truncate the existing file, so do
    /// not use them to save an image of image_bmp2_t to its own file: its pixels would be lost.
    virtual bool save([[maybe_unused]] image2d_t const& image, [[maybe_unused]] char const* path) {
        return false;
    }

    virtual ~image_object_t() = 0;

    /// Returns the number of clockwise quarter turns that make the loaded picture upright. `load`
    /// does not turn the picture. Mirrored orientations count as 0; see codecs/orientation.h.
    unsigned long rightrotatecount() const { return m_rightrotatecount; }

  protected:
    unsigned long m_rightrotatecount = 0;
};

inline image_object_t::~image_object_t() = default;

}  // namespace libgr
