// SPDX-License-Identifier: MIT
// The TGA codec, for uncompressed files whose rows are padded to 4 bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "codecs/imageobject.h"
#include "utils/allocator.h"

namespace libgr {

/// A TGA file: the header fields in the order of the file, and the data after them. It differs from
/// the published format in two ways that stored files depend on: rows are padded to 4 bytes, and
/// the entry size of the colour map is in bytes, not in bits. `app` is ignored and may be null.
struct tgaimage_t {
    std::uint8_t id_length = 0;      ///< bytes
    std::uint8_t colormap_type = 0;  ///< not 0 if there is a colour map
    std::uint8_t image_type = 0;     ///< 1 (colour map) and 2 (true colour) can be shown
    std::uint16_t colormap_first = 0;
    std::uint16_t colormap_length = 0;     ///< entries
    std::uint8_t colormap_entry_size = 0;  ///< bytes
    std::uint16_t x_origin = 0;
    std::uint16_t y_origin = 0;
    std::uint16_t width = 0;      ///< pixels
    std::uint16_t height = 0;     ///< rows
    std::uint8_t depth = 0;       ///< bits per pixel
    std::uint8_t descriptor = 0;  ///< bit 5: the top row is first, which is rejected

    std::vector<unsigned char> image_id;
    std::vector<unsigned char> colormap;
    image_bytes_t pixels;

    /// Reads the file. Returns false without a message if the file cannot be opened or is shorter
    /// than its header says. Returns false with a line on std::cerr if the pixels exceed the limit
    /// picture-memory (utils/limits.h). Allocates no more memory than the file has bytes.
    bool load(char const* path, libutils::android_app* app);

    /// Sets the remaining header fields and writes the file. Returns false if the file cannot be
    /// opened or written, or if `image_id` has more than 255 bytes. Truncates an existing file.
    bool save(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the pixels. The colour map is ignored.
///
/// Returns false without a message for image types other than 1 and 2 (such as run-length encoded
/// ones), for files with the top row first, for depths other than 8, 16, 24 and 32 bits, and for
/// pictures without pixels. Returns false with a line on std::cerr if the pixels exceed the limit
/// picture-memory (utils/limits.h).
bool convert(image2d_t& image, tgaimage_t const& tga);

/// Makes a TGA with the pixels in BGR order. Accepts RGB with 8 bits, RGBA with 8 bits, and RGBA
/// with 5, 5, 5 and 1 bits, of at most 65535 pixels a side. Returns false for all other formats.
/// This includes GRAYSCALE, BGR and BGRA, with which `depth` and `pixels` of `tga` are set all the
/// same; callers depend on this. `image_id` and `colormap` of `tga` are kept.
bool convert(tgaimage_t& tga, image2d_t const& image);

/// The codec that uses tgaimage_t.
class image_tga_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
