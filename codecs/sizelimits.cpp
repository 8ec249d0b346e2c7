// SPDX-License-Identifier: MIT
// Checks of the picture sizes in file headers.
#include "codecs/sizelimits.h"

#include <unistd.h>

#include <limits>

#include "utils/bits.h"
#include "utils/diagnostics.h"
#include "utils/limits.h"

namespace libgr {

namespace {

using libutils::limits::picture_memory;

/// Returns the number of bytes that a picture may use.
std::uint64_t max_picture_memory() {
    long const pages = sysconf(_SC_PHYS_PAGES);
    long const page_size = sysconf(_SC_PAGESIZE);
    return pages > 0 && page_size > 0
               ? static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(page_size) / 100 *
                     picture_memory.value
               : std::numeric_limits<std::uint64_t>::max();
}

}  // namespace

bool fits_in_memory(std::uint64_t bytes, char const* file) {
    return bytes <= max_picture_memory() || libutils::report_limit(picture_memory, file);
}

bool fits_in_memory(std::uint64_t width, std::uint64_t height, std::uint64_t pixel_bits,
                    char const* file) {
    if (width == 0 || height == 0) {
        return libutils::reject("no pixels");
    }
    std::uint64_t const pixel_bytes = libutils::max2<std::uint64_t>((pixel_bits + 7) / 8, 4);
    std::optional<std::uint64_t> const pixels = checked_product(width, height);
    return (pixels && *pixels <= max_picture_memory() / pixel_bytes) ||
           libutils::report_limit(picture_memory, file);
}

std::optional<std::uint64_t> checked_product(std::uint64_t a, std::uint64_t b) {
    std::uint64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product)) {
        return std::nullopt;
    }
    return product;
}

}  // namespace libgr
