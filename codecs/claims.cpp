// SPDX-License-Identifier: MIT
// The limits that claimed picture sizes are held against.
#include "codecs/claims.h"

#include <unistd.h>

#include <limits>

#include "utils/bits.h"

namespace libgr {

namespace {

constexpr std::uint64_t k_small_picture = std::uint64_t{1} << 20;  // bytes
constexpr std::uint64_t k_bearable_ratio = 16;

std::uint64_t physical_memory() {
    long const pages = sysconf(_SC_PHYS_PAGES);
    long const page_size = sysconf(_SC_PAGESIZE);
    return pages > 0 && page_size > 0
               ? static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(page_size)
               : std::numeric_limits<std::uint64_t>::max();
}

}  // namespace

bool is_bearable_claim(std::uint64_t claimed, std::uint64_t held) {
    return claimed <= k_small_picture ||
           (claimed / k_bearable_ratio <= held && claimed <= physical_memory() / 2);
}

bool fits_in_memory(std::uint64_t bytes) {
    return bytes <= physical_memory() / 2;
}

bool fits_in_memory(std::uint64_t width, std::uint64_t height, std::uint64_t pixel_bits) {
    std::uint64_t const pixel_bytes = libutils::max2<std::uint64_t>((pixel_bits + 7) / 8, 4);
    std::optional<std::uint64_t> const pixels = checked_product(width, height);
    return pixels && *pixels != 0 && *pixels <= physical_memory() / 2 / pixel_bytes;
}

std::optional<std::uint64_t> checked_product(std::uint64_t a, std::uint64_t b) {
    std::uint64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product)) {
        return std::nullopt;
    }
    return product;
}

}  // namespace libgr
