// SPDX-License-Identifier: MIT
// The PNG codec. It uses libpng.
#pragma once

#include <iosfwd>

#include "codecs/imageobject.h"
#include "utils/allocator.h"

struct png_struct_def;

namespace libgr {

/// Returns true if the program runs with the version of libpng that it was built with. Otherwise
/// prints three lines on std::cerr.
bool check_png_version();

/// Opens the file at `path`, reads its first 4 bytes and returns true if they are those of the PNG
/// signature. The file stays open, with the read position after these bytes, unless it is shorter.
/// Prints a line on std::cerr only if the file cannot be opened.
template <typename stream_t>
bool check_if_png(char const* path, stream_t& stream);
extern template bool check_if_png<std::ifstream>(char const* path, std::ifstream& stream);

/// The read callback of libpng: reads `length` bytes from the std::ifstream that is the io pointer.
/// The end of the file is a libpng error.
void png_read(png_struct_def* png, unsigned char* data, unsigned long length);

/// Reads a PNG file, bottom row first, into the window of the image. The format is GRAYSCALE,
/// GRAYSCALE_ALPHA, RGB, RGBA or INDEX, as in the file, with 1, 2, 4, 8 or 16 bits. Samples of 16
/// bits are big-endian: see `to_machine_order` in image/samples.h. Checks the limits picture-memory
/// and png-ratio (utils/limits.h) before it allocates memory.
///
/// Returns 0 on success, -1 if the file is not a PNG, -2 or -3 if libpng cannot be initialised, and
/// -4 for an error of libpng, an exceeded limit or a lack of memory. With -4, the last line on
/// std::cerr is "FAIL". `app` is ignored and may be null.
int loadpng(char const* path, image2d_t& image, libutils::android_app* app);

/// Writes a PNG file with the pixel layout of the image, so samples of 16 bits must be big-endian.
/// The rows may have any padding. `title` becomes a text chunk; it may be null. Truncates an
/// existing file.
///
///   Format of the image                            Result
///   GRAYSCALE with 1, 2, 4, 8 or 16 bits           0
///   GRAYSCALE_ALPHA, RGB, RGBA with 8 or 16 bits   0
///   the same with fewer bits, and INDEX            -4, after the file has been truncated
///   others, for example BGR                        0, but no file is written or changed
///
/// Callers depend on the last row. Convert BGR and BGRA with `bgr2rgb` (image/pixelconvert.h)
/// first. Also returns -1 if the file cannot be opened, -2 or -3 if libpng cannot be initialised,
/// and -4 for an error of libpng. An image with too few bytes is -4, too, but the file is not
/// opened. With -4, the last line on std::cerr is "FAIL".
int savepng(char const* path, image2d_t const& image, char const* title,
            libutils::android_app* app);

/// Calls `image.clear()`, check_png_version and loadpng. Returns true if both succeed.
bool loader_png(image2d_t& image, char const* path, libutils::android_app* app);

/// Calls check_png_version and savepng, without a title. Returns true if savepng returns 0, and so
/// also for some formats that it does not write.
bool saver_png(image2d_t const& image, char const* path, libutils::android_app* app);

/// The codec that uses loader_png and saver_png.
class image_png_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
