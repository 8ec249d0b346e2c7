// SPDX-License-Identifier: MIT
// The size that a JPEG claims to have.
#pragma once

#include <cstddef>
#include <cstdint>

/// Returns true if a frame header (ITU-T T.81, B.2.2) claims more than 1,048,576 pixels. A few such
/// inputs would take up a fuzzer's time, so targets accept those of every eighth size only.
inline bool is_too_slow(std::uint8_t const* data, std::size_t size) {
    constexpr std::uint64_t k_largest = 1 << 20;
    for (std::size_t i = 0; size % 8 != 0 && i + 8 < size; ++i) {
        unsigned int const code = data[i + 1];
        bool const is_frame = data[i] == 0xFF && (code & 0xF0) == 0xC0 && code % 4 != 0;
        if ((is_frame || (data[i] == 0xFF && code == 0xC0)) &&
            std::uint64_t{data[i + 5] * 256U + data[i + 6]} * (data[i + 7] * 256U + data[i + 8]) >
                k_largest) {
            return true;
        }
    }
    return false;
}
