// SPDX-License-Identifier: MIT
// The reader and writer of uncompressed TGA files whose rows are padded to 4 bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "codecs/imageobject.h"
#include "utils/allocator.h"

namespace libgr {

/// A TGA file as a record: the 18 header bytes in file order, then what follows them. Unlike plain
/// TGA, rows are padded to 4 bytes and the colour map's entry size counts bytes.
struct tgaimage_t {
    std::uint8_t id_length = 0;
    std::uint8_t colormap_type = 0;  ///< not 0 when there is a colour map
    std::uint8_t image_type = 0;     ///< 1 or 2 for the kinds that can be shown
    std::uint16_t colormap_first = 0;
    std::uint16_t colormap_length = 0;
    std::uint8_t colormap_entry_size = 0;
    std::uint16_t x_origin = 0;
    std::uint16_t y_origin = 0;
    std::uint16_t width = 0;      ///< pixels
    std::uint16_t height = 0;     ///< rows
    std::uint8_t depth = 0;       ///< bits of one pixel
    std::uint8_t descriptor = 0;  ///< bit 5 set: rows run top to bottom, which is refused

    std::vector<unsigned char> image_id;
    std::vector<unsigned char> colormap;
    image_bytes_t pixels;

    /// Reads the file. Returns false without a message if the file cannot be opened or has fewer
    /// bytes than its header claims, and with a line on std::cerr if the pixels exceed the limit
    /// picture-memory (utils/limits.h). Nothing is allocated for bytes that the file does not have.
    bool load(char const* path, libutils::android_app* app);

    /// Completes the header fields and writes header, id, colour map and pixels. False when the
    /// file can't be opened or written, or the id is longer than 255 bytes.
    bool save(char const* path, libutils::android_app* app);
};

/// Describes the record as a picture and shares its pixels; the colour map is ignored. Returns
/// false without a message for other types than 1 and 2 (run-length coding among them), for files
/// with the top row first, for depths other than 8, 16, 24 and 32, and for a picture without
/// pixels. Returns false with a line on std::cerr if the pixels exceed the limit picture-memory
/// (utils/limits.h).
bool convert(image2d_t& image, tgaimage_t const& tga);

/// Describes the picture as a TGA record with the bytes in BGR order. Takes RGB pictures of 8 bits,
/// RGBA ones of 8 bits and of 5, 5, 5 and 1, up to 65535 pixels a side; others are false, also
/// those that are in BGR order already. The record keeps the bytes of its id and colour map.
bool convert(tgaimage_t& tga, image2d_t const& image);

/// The codec on top of tgaimage_t.
class image_tga_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
