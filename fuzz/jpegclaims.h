// SPDX-License-Identifier: MIT
// The size that a JPEG claims to have.
#pragma once

#include <cstddef>
#include <cstdint>

/// Returns true if a frame header (ITU-T T.81, B.2.2) claims so many pixels that decoding them
/// takes too long for a fuzzer: 16 million, or 1 million for seven sizes of input out of eight.
inline bool is_too_slow(std::uint8_t const* data, std::size_t size) {
    std::uint64_t const largest = std::uint64_t{1} << (size % 8 == 0 ? 24 : 20);
    for (std::size_t i = 0; i + 8 < size; ++i) {
        unsigned int const code = data[i + 1];
        bool const is_frame = code == 0xC0 || (code > 0xC0 && code <= 0xCF && code % 4 != 0);
        if (data[i] == 0xFF && is_frame &&
            std::uint64_t{data[i + 5] * 256U + data[i + 6]} * (data[i + 7] * 256U + data[i + 8]) >
                largest) {
            return true;
        }
    }
    return false;
}
