// SPDX-License-Identifier: MIT
// The limits that protect the machine from damaged and hostile input.
#pragma once

// No file format requires these limits. They reject or shorten input that would otherwise use up
// the memory or take very long. docs/limits.md describes them for users; a test compares its table
// with this file.

#include <cstdint>

namespace libutils {

/// A limit with the name that error lines and docs/limits.md use. A limit whose name ends in
/// `unchecked` is the amount up to which the ratio isn't checked.
struct limit_t {
    char const* name;
    std::uint64_t value;
    char const* unit;  ///< the unit of `value`
};

/// Prints the line "FILE: exceeds limit NAME (VALUE UNIT)." on the error stream, without "FILE: "
/// if `file` is null. Records the text after "FILE: " as the reason of the
/// failure; see `reject`. Always returns false.
///
/// Call it if the number is larger than `limit.value`: `return report_limit(limits::tiles, path);`
bool report_limit(limit_t const& limit, char const* file = nullptr);

namespace limits {

/// The pixels of one picture, counted with at least 4 bytes each, as in its textures. The
/// coefficients of a JPEG file count, too, if it has several scans or is transformed.
inline constexpr limit_t picture_memory{"picture-memory", 50, "percent of the machine's memory"};

/// The viewer shows BMP files that end early. Without this limit, a file of a few bytes could make
/// it upload gigabytes of black pixels. The ratio is in bytes of pixels for each byte of pixels in
/// the file.
inline constexpr limit_t bmp_ratio{"bmp-ratio", 16, "bytes of pixels for each that the file has"};
inline constexpr limit_t bmp_unchecked{"bmp-unchecked", 1048576, "bytes of pixels"};

/// Indices of 8 bits use 256 entries, but the header of a file can specify more than 1,000 million.
inline constexpr limit_t bmp_palette{"bmp-palette", 65536, "entries"};

/// Deflate needs at least one bit for each 129 bytes of output. The ratio is in bytes of pixels for
/// each byte of the file.
inline constexpr limit_t png_ratio{"png-ratio", 1032, "bytes of pixels for each of the file"};

/// The ratio is in bytes of pixels for each byte of the file. With Huffman coding, a picture of one
/// colour has about 1500. The ratio of arithmetic coding has no bound, so up to
/// jpeg-arithmetic-unchecked bytes it isn't checked.
inline constexpr limit_t jpeg_ratio{"jpeg-ratio", 4096, "bytes of pixels for each of the file"};
inline constexpr limit_t jpeg_unchecked{"jpeg-unchecked", 67108864, "bytes of pixels"};
inline constexpr limit_t jpeg_arithmetic_unchecked{"jpeg-arithmetic-unchecked", 1073741824,
                                                   "bytes of pixels"};

/// A scan of a few bytes in a progressive file can make the decoder process the whole picture.
/// Encoders write about ten scans.
inline constexpr limit_t jpeg_scans{"jpeg-scans", 100, "scans"};
/// The blocks that the scans of a file may process, in addition to twice the blocks of the picture.
inline constexpr limit_t jpeg_blocks{"jpeg-blocks", 64, "blocks for each byte of the file"};
inline constexpr limit_t jpeg_blocks_unchecked{"jpeg-blocks-unchecked", 16777216, "blocks"};

/// Each tile needs some hundred bytes, in addition to its pixels. This many tiles of 256 by 256
/// pixels have 17,179,869,184 pixels.
inline constexpr limit_t tiles{"tiles", 262144, "tiles"};
/// Tiles are square, so a picture one pixel high uses only 1/256 of its textures.
inline constexpr limit_t texel_ratio{"texel-ratio", 8, "texels for each pixel"};
inline constexpr limit_t texels_unchecked{"texels-unchecked", 134217728, "texels"};

/// GLU counts the bytes of its scaled copies with 32 bits. A copy has up to 16 bytes for each
/// texel, and sides up to a third longer.
inline constexpr limit_t glu_texels{"glu-texels", 33554432, "texels"};
/// A texture has at most 32 levels for each of six faces. Further images are ignored.
inline constexpr limit_t texture_images{"texture-images", 192, "images"};

/// Files of options, messages, views and GL programs. They are read completely and usually have a
/// few kilobytes.
inline constexpr limit_t small_file{"small-file", 1048576, "bytes"};

/// Some software drivers crash with larger windows.
inline constexpr limit_t window_side{"window-side", 16384, "pixels a side"};

}  // namespace limits
}  // namespace libutils
