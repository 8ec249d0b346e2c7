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

/// Opens the file at `path` and compares its first 4 bytes with the PNG signature. Leaves the read
/// position after these bytes. Returns true if they match. Prints a line on std::cerr if the file
/// cannot be opened. Closes a file that is shorter than 4 bytes.
template <typename stream_t>
bool check_if_png(char const* path, stream_t& stream);
extern template bool check_if_png<std::ifstream>(char const* path, std::ifstream& stream);

/// The read callback of libpng: reads `length` bytes from the std::ifstream that is the io pointer.
/// The end of the file is a libpng error.
void png_read(png_struct_def* png, unsigned char* data, unsigned long length);

/// Reads a PNG file, bottom row first, into the window of the image. The pixels keep the layout of
/// the file: palette indices, packed samples and big-endian 16-bit samples are not converted.
/// Checks the limits picture-memory and png-ratio (utils/limits.h) before it allocates memory.
///
/// Returns 0 on success, -1 if the file is not a PNG, -2 or -3 if libpng cannot be initialised, and
/// -4 for an error of libpng, an exceeded limit or a lack of memory. With -4, the last line on
/// std::cerr is "FAIL". `app` is ignored and may be null, as in the functions below.
int loadpng(char const* path, image2d_t& image, libutils::android_app* app);

/// Writes a PNG file with the pixel layout of the image. `title` becomes a text chunk; it may be
/// null. Truncates an existing file. Palettes are not written, so pictures with a palette fail
/// after the file has been truncated.
///
/// Returns 0 on success, and also, without writing a file, for a pixel format that PNG does not
/// have: callers depend on it. Returns -1 if the file cannot be opened, -2 or -3 if libpng cannot
/// be initialised, and -4 for an error of libpng or an image with too few bytes. With -4, the last
/// line on std::cerr is "FAIL".
int savepng(char const* path, image2d_t const& image, char const* title,
            libutils::android_app* app);

/// Clears the image, and calls check_png_version and loadpng.
bool loader_png(image2d_t& image, char const* path, libutils::android_app* app);

/// Calls check_png_version and savepng, without a title. Like savepng, succeeds without writing a
/// file for a pixel format that PNG does not have.
bool saver_png(image2d_t const& image, char const* path, libutils::android_app* app);

/// The codec that uses loader_png and saver_png.
class image_png_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
