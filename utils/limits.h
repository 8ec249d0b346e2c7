// SPDX-License-Identifier: MIT
// The limits that protect the machine. No file format and no option requires them: they reject or
// shorten damaged and hostile input that would otherwise fill the memory or never end.
//
// docs/limits.md lists them for users. A test compares its table with this file.
#pragma once

#include <cstdint>

namespace libutils {

/// A limit, as it is named in error lines and in docs/limits.md.
struct limit_t {
    char const* name;
    std::uint64_t value;
    char const* unit;  ///< of `value`
};

/// Prints the line "FILE: exceeds limit NAME (VALUE UNIT)." on the error stream, without "FILE: "
/// if `file` is null. Always returns false.
bool report_limit(limit_t const& limit, char const* file = nullptr);

namespace limits {

/// A picture and its textures, which keep at least 32 bits of each pixel, must leave memory for
/// everything else.
inline constexpr limit_t picture_memory{"picture-memory", 50, "percent of the machine's memory"};

/// The viewer uploads all pixels of a BMP that ends within its pixels. A few bytes must not make it
/// upload gigabytes of black.
inline constexpr limit_t bmp_ratio{"bmp-ratio", 16, "bytes of pixels for each that the file has"};
inline constexpr limit_t bmp_unchecked{"bmp-unchecked", 1048576, "bytes of pixels"};

/// Indices of 8 bits use 256 entries, while the pixel offset may claim more than a thousand
/// million.
inline constexpr limit_t bmp_palette{"bmp-palette", 65536, "entries"};

/// Deflate uses at least one bit for each 129 bytes of output.
inline constexpr limit_t png_ratio{"png-ratio", 1032, "bytes of pixels for each of the file"};

/// With Huffman coding, a picture of one colour has some 1500 bytes of pixels for each byte of the
/// file. Arithmetic coding has no bound.
inline constexpr limit_t jpeg_ratio{"jpeg-ratio", 4096, "bytes of pixels for each of the file"};
inline constexpr limit_t jpeg_unchecked{"jpeg-unchecked", 67108864, "bytes of pixels"};
inline constexpr limit_t jpeg_arithmetic_unchecked{"jpeg-arithmetic-unchecked", 1073741824,
                                                   "bytes of pixels"};

/// Each scan of a progressive file may visit the whole picture for a few bytes. Encoders write
/// about ten scans.
inline constexpr limit_t jpeg_scans{"jpeg-scans", 100, "scans"};
/// The blocks that all scans of a file may visit, in addition to twice the blocks of the picture.
inline constexpr limit_t jpeg_blocks{"jpeg-blocks", 64, "blocks for each byte of the file"};
inline constexpr limit_t jpeg_blocks_unchecked{"jpeg-blocks-unchecked", 16777216, "blocks"};

/// Each tile takes some hundred bytes of records before any pixel is uploaded. This many tiles of
/// 256 pixels a side hold 17,179,869,184 pixels.
inline constexpr limit_t tiles{"tiles", 262144, "tiles"};
/// Tiles are square, so a picture of one row fills a 256th of its textures.
inline constexpr limit_t texel_ratio{"texel-ratio", 8, "texels for each pixel"};
inline constexpr limit_t texels_unchecked{"texels-unchecked", 134217728, "texels"};

/// GLU counts the bytes of its scaled copies in 32 bits: up to 16 bytes a texel, and each side up
/// to a third longer.
inline constexpr limit_t glu_texels{"glu-texels", 33554432, "texels"};
/// A texture has at most 32 levels for each of six faces. Images after these are ignored.
inline constexpr limit_t texture_images{"texture-images", 192, "images"};

/// Files of options, messages, views and GL programs are read whole. Real ones have a few
/// kilobytes.
inline constexpr limit_t small_file{"small-file", 1048576, "bytes"};

/// Software drivers have been seen to crash with larger windows.
inline constexpr limit_t window_side{"window-side", 16384, "pixels a side"};

}  // namespace limits
}  // namespace libutils
