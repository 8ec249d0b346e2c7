// SPDX-License-Identifier: MIT
// Checks of the picture sizes in file headers, before anything is allocated for them. A check that
// fails because of a limit prints an error line that names the limit; see utils/limits.h.
//
// `file` is the path for that line, or null.
#pragma once

#include <cstdint>
#include <optional>

namespace libgr {

/// Returns true if `bytes` bytes of pixels take at most half of the machine's memory.
bool fits_in_memory(std::uint64_t bytes, char const* file);

/// Returns true if a picture of `width` by `height` pixels takes at most half of the machine's
/// memory, with each pixel counted as `pixel_bits` bits or as the 32 bits that a texture keeps of
/// it, whichever is more. Returns false without a line for a picture of no pixels.
bool fits_in_memory(std::uint64_t width, std::uint64_t height, std::uint64_t pixel_bits,
                    char const* file);

/// Returns the product, or nothing if it does not fit into 64 bits.
std::optional<std::uint64_t> checked_product(std::uint64_t a, std::uint64_t b);

}  // namespace libgr
