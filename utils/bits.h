// SPDX-License-Identifier: MIT
// Small functions on bits and on pairs of values.
#pragma once

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

/// Returns true if `value` is a power of two. 0 isn't one.
template <typename T>
constexpr bool Is_2nSize(T value) {
    return std::has_single_bit(static_cast<std::make_unsigned_t<T>>(value));
}

/// Returns the position of the highest set bit, counted from 1: 1 for 1, 9 for 256. Returns 0 for
/// 0.
template <typename T>
constexpr unsigned int Get_TopBitPos(T value) {
    return static_cast<unsigned int>(std::bit_width(static_cast<std::make_unsigned_t<T>>(value)));
}

/// Returns `value` rounded up to a multiple of two to the power `bits`, or 0 if that multiple
/// doesn't fit into the type.
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
