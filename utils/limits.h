// SPDX-License-Identifier: MIT
// The limits that protect the machine from damaged and hostile input.
#pragma once

// No file format requires these limits. They reject or shorten input that would otherwise use up
// the memory or take very long. docs/limits.md describes the effect of each limit; a test compares
// its table with this file.

#include <cstdint>

namespace libutils {

/// The name, the value and the unit of a limit. The input exceeds the limit if the number in the
/// right column is larger than `value`:
///
///   unit                              number
///   "percent of the machine's memory" 100 * bytes / memory. The memory in bytes is
///                                     sysconf(_SC_PHYS_PAGES) * sysconf(_SC_PAGESIZE).
///   "A for each B"                    the amount of A / the amount of B
///   another unit                      the amount
///
/// A ratio isn't checked for an amount of A up to the limit with "unchecked" in its name, because
/// a small amount does no damage. Only jpeg_blocks differs; see its comment. Report the ratio, not
/// the amount:
///
/// ```cpp
/// bool is_plausible(std::uint64_t pixel_bytes, std::uint64_t file_bytes, char const* path) {
///     namespace limits = libutils::limits;
///     return pixel_bytes <= limits::jpeg_unchecked.value ||
///            pixel_bytes / limits::jpeg_ratio.value <= file_bytes ||
///            libutils::report_limit(limits::jpeg_ratio, path);
/// }
/// ```
struct limit_t {
    char const* name;  ///< as in error lines and in docs/limits.md
    std::uint64_t value;
    char const* unit;
};

/// Prints the line "FILE: exceeds limit NAME (VALUE UNIT)." on the error stream, without "FILE: "
/// if `file` is null. Records the text after "FILE: " as the reason of the failure; see `reject`
/// and the rule for threads in utils/diagnostics.h. Always returns false.
bool report_limit(limit_t const& limit, char const* file = nullptr);

namespace limits {

/// The memory for one picture: its pixels, with at least 4 bytes each, as in its textures. For a
/// JPEG file that has several scans or is transformed, the memory for its coefficients is added.
inline constexpr limit_t picture_memory{"picture-memory", 50, "percent of the machine's memory"};

/// A BMP file that ends early is loaded, and its missing pixels are black. Without this limit, a
/// file of a few bytes could give gigabytes of black pixels. The ratio is the size, in bytes, of
/// all pixels of the picture, divided by the size of the pixels in the file.
inline constexpr limit_t bmp_ratio{"bmp-ratio", 16, "bytes of pixels for each that the file has"};
inline constexpr limit_t bmp_unchecked{"bmp-unchecked", 1048576, "bytes of pixels"};

/// Indices of 8 bits use 256 entries, but the header of a file can specify more than 1,000 million.
inline constexpr limit_t bmp_palette{"bmp-palette", 65536, "entries"};

/// The ratio is the size of the pixels, divided by the size of the file, both in bytes. The
/// compression of PNG can't exceed 1032: one bit of the file gives at most 129 bytes of pixels.
inline constexpr limit_t png_ratio{"png-ratio", 1032, "bytes of pixels for each of the file"};

/// The ratio is the size of the pixels, divided by the size of the file, both in bytes. A picture
/// of one colour has a ratio of about 1500 with Huffman coding. With arithmetic coding, the ratio
/// can be of any size, so jpeg-arithmetic-unchecked is used instead of jpeg-unchecked.
inline constexpr limit_t jpeg_ratio{"jpeg-ratio", 4096, "bytes of pixels for each of the file"};
inline constexpr limit_t jpeg_unchecked{"jpeg-unchecked", 67108864, "bytes of pixels"};
inline constexpr limit_t jpeg_arithmetic_unchecked{"jpeg-arithmetic-unchecked", 1073741824,
                                                   "bytes of pixels"};

/// A scan of a few bytes can make the decoder process the whole picture. Encoders write about ten
/// scans.
inline constexpr limit_t jpeg_scans{"jpeg-scans", 100, "scans"};
/// A file may have this many blocks in all its scans together: twice the blocks of the picture,
/// plus jpeg-blocks-unchecked, plus jpeg-blocks for each byte of the file.
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
