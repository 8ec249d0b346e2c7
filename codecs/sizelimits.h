// SPDX-License-Identifier: MIT
// Checks of the picture sizes in file headers.
#pragma once

#include <cstdint>
#include <optional>

namespace libgr {

// If a limit of utils/limits.h is exceeded, the checks print an error line. `file` is the path
// named in that line. It may be null.

/// Returns true if `bytes` bytes of pixels take at most half of the machine's memory.
bool fits_in_memory(std::uint64_t bytes, char const* file);

/// Returns true if a picture of `width` by `height` pixels takes at most half of the machine's
/// memory. A pixel counts as `pixel_bits` bits, and as at least 32 bits, because its texture has
/// 32. Returns false, without an error line, if the picture has no pixels.
bool fits_in_memory(std::uint64_t width, std::uint64_t height, std::uint64_t pixel_bits,
                    char const* file);

/// Returns the product, or nothing if it does not fit into 64 bits.
std::optional<std::uint64_t> checked_product(std::uint64_t a, std::uint64_t b);

}  // namespace libgr
