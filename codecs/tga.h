// SPDX-License-Identifier: MIT
// The TGA codec, for uncompressed files whose rows are padded to 4 bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "codecs/imageobject.h"
#include "utils/allocator.h"

namespace libgr {

/// A TGA file: the header fields in the order of the file, and the data after them. Two rules
/// differ from the published format, and stored files depend on them: rows are padded to 4 bytes,
/// and the entry size of the colour map is in bytes, not in bits. So files of other programs can be
/// loaded only if their rows are a multiple of 4 bytes long. `app` is ignored and may be null.
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

    /// Reads the file. Returns false without a line on std::cerr if the file cannot be opened or is
    /// shorter than its header says. Returns false with a line if the pixels exceed the limit
    /// picture-memory (utils/limits.h). Allocates no more memory than the file has bytes. After a
    /// failure, the fields have the values read so far.
    bool load(char const* path, libutils::android_app* app);

    /// Writes the file. Sets `id_length`, `colormap_type` and `colormap_length` from the data.
    /// Returns false without a line on std::cerr if the file cannot be opened or written, or if
    /// `image_id` has more than 255 bytes. Truncates an existing file.
    bool save(char const* path, libutils::android_app* app);
};

/// Makes a picture that shares the pixels: a change of one is visible in the other. The colour map
/// is ignored.
///
///   Depth  Format
///   8      GRAYSCALE with 8 bits
///   16     BGRA with IMAGE_BITS_R5G5B5A1, little-endian: see `to_machine_order` in image/samples.h
///   24     BGR with 8 bits
///   32     BGRA with 8 bits
///
/// Returns false without a line on std::cerr for other depths, for image types other than 1 and 2
/// (3 is gray levels, 9 to 11 are run-length encoded), for files with the top row first, and for
/// pictures without pixels. Returns false with a line if the pixels exceed the limit picture-memory
/// (utils/limits.h).
bool convert(image2d_t& image, tgaimage_t const& tga);

/// Makes a TGA from a picture of at most 65535 pixels a side. RGB and RGBA with 8 bits are copied
/// to BGR order, from rows with any padding. RGBA with IMAGE_BITS_R5G5B5A1 is shared without a
/// change: its rows must be padded to 4 bytes, and readers of the file see red and blue exchanged.
///
/// Returns false without a line on std::cerr, and without a reason, for all other formats. For
/// GRAYSCALE, BGR and BGRA, which `convert` delivers, it also sets `depth` and `pixels` of `tga`;
/// callers depend on the result and on this change. Other formats leave `tga` unchanged. `image_id`
/// and `colormap` of `tga` are always kept.
bool convert(tgaimage_t& tga, image2d_t const& image);

/// The codec that uses tgaimage_t.
class image_tga_t : public image_object_t {
  public:
    bool load(image2d_t& image, char const* path) override;
    bool save(image2d_t const& image, char const* path) override;
};

}  // namespace libgr
