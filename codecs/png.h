// SPDX-License-Identifier: MIT
// The reader and writer of PNG files through libpng, which stays behind this header.
#pragma once

#include <iosfwd>

#include "codecs/imageobject.h"
#include "utils/allocator.h"

struct png_struct_def;

namespace libgr {

/// Whether the library that runs is the very version whose headers this was built with; if not,
/// says so in three lines on std::cerr.
bool check_png_version();

/// Opens the file at `path` and looks at the first 4 bytes of the signature, behind which the
/// stream then stands. A file that can't be opened gets a line on std::cerr; one that is shorter is
/// closed again.
template <typename stream_t>
bool check_if_png(char const* path, stream_t& stream);
extern template bool check_if_png<std::ifstream>(char const* path, std::ifstream& stream);

/// libpng's read callback: fills `data` from the std::ifstream that is the io pointer. The end of
/// the file is a libpng error.
void png_read(png_struct_def* png, unsigned char* data, unsigned long length);

/// Reads a PNG file in its own pixel layout (palette indices, packed samples and big-endian 16-bit
/// samples stay as they are), bottom row first, into the image's window. A size that exceeds the
/// limit picture-memory or png-ratio (utils/limits.h) is an error, reported before anything is
/// allocated.
/// Returns 0; -1 not readable as PNG; -2, -3 libpng couldn't be set up; -4 an error from libpng or
/// no memory for the pixels, with "FAIL" on std::cerr.
int loadpng(char const* path, image2d_t& image, libutils::android_app* app);

/// Writes a PNG file with the image's pixel layout; `title` may be null. Palettes are not written,
/// so that an index picture ends in libpng's error.
/// Returns 0, also for a description that PNG has no form for, where no file is touched; -1 the
/// file couldn't be opened; -2, -3 libpng couldn't be set up; -4 an error from libpng or an image
/// that lacks pixels, with "FAIL" on std::cerr.
int savepng(char const* path, image2d_t const& image, char const* title,
            libutils::android_app* app);

/// check_png_version and loadpng into the cleared image.
bool loader_png(image2d_t& image, char const* path, libutils::android_app* app);

/// check_png_version and savepng without a title.
bool saver_png(image2d_t const& image, char const* path, libutils::android_app* app);

/// The codec on top of loader_png and saver_png.
class image_png_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
