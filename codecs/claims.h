// SPDX-License-Identifier: MIT
// Whether what a file's header claims is worth an allocation, by what the file and the machine
// hold.
#pragma once

#include <cstdint>
#include <optional>

namespace libgr {

/// Whether `claimed` bytes of pixels may be allocated for a file that holds `held` bytes of them,
/// which may be fewer where the file is cut. Never more than half of the machine's memory, and more
/// than a megabyte only if a sixteenth of it is there.
bool is_bearable_claim(std::uint64_t claimed, std::uint64_t held);

/// Returns true if `bytes` bytes of pixels take at most half of the machine's memory.
bool fits_in_memory(std::uint64_t bytes);

/// Whether the machine can show a picture of this size: it takes at most half of the memory, with
/// each pixel counted as the 32 bits that a texture keeps of it, or more. False without any pixel.
bool fits_in_memory(std::uint64_t width, std::uint64_t height, std::uint64_t pixel_bits);

/// The product, or nothing where it has no room in 64 bits.
std::optional<std::uint64_t> checked_product(std::uint64_t a, std::uint64_t b);

}  // namespace libgr
