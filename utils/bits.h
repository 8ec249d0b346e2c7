// SPDX-License-Identifier: MIT
// Small functions on bits and on pairs of values.
#pragma once

// The functions on bits convert a signed value to the unsigned type of the same size first. So -1
// of type int has 32 bits set.

#include <bit>
#include <limits>
#include <type_traits>

namespace libutils {

/// Returns the larger value.
template <typename T>
constexpr T max2(T a, T b) {
    return b > a ? b : a;
}

/// Returns the smaller value.
template <typename T>
constexpr T min2(T a, T b) {
    return b < a ? b : a;
}

/// Returns true if `value` is a power of two: if one bit is set. 0 isn't a power of two.
template <typename T>
constexpr bool Is_2nSize(T value) {
    return std::has_single_bit(static_cast<std::make_unsigned_t<T>>(value));
}

/// Returns the position of the highest set bit, counted from 1: 0 for 0, 1 for 1, 9 for 256, and 32
/// for -1 of type int.
template <typename T>
constexpr unsigned int Get_TopBitPos(T value) {
    return static_cast<unsigned int>(std::bit_width(static_cast<std::make_unsigned_t<T>>(value)));
}

/// Returns `value` rounded up to a multiple of two to the power `bits`: 8 for (5, 3). Returns 0 if
/// the multiple doesn't fit into the unsigned type. If it fits there but not into a signed T, the
/// result is negative.
template <typename T>
constexpr T UpAlignBits(T value, unsigned int bits) {
    using unsigned_t = std::make_unsigned_t<T>;
    unsigned_t const low = bits < static_cast<unsigned int>(std::numeric_limits<unsigned_t>::digits)
                               ? static_cast<unsigned_t>((unsigned_t{1} << bits) - 1U)
                               : std::numeric_limits<unsigned_t>::max();
    return static_cast<T>(static_cast<unsigned_t>(static_cast<unsigned_t>(value) + low) &
                          static_cast<unsigned_t>(~low));
}

/// Converts a colour channel from 0 to 255 to a float from 0 to 1.
constexpr float uc2f(unsigned char value) {
    return static_cast<float>(value) * 0.003921569F;
}

}  // namespace libutils
