// SPDX-License-Identifier: MIT
// Conversions from the byte order of a file to that of the host, which is little-endian.
#pragma once

#include <bit>

namespace libutils {

static_assert(std::endian::native == std::endian::little,
              "on a big-endian host, swap the two byte orders");

/// The byte order of a file, for a reader that selects it at run time. Each function converts a
/// number of 16, 32 or 64 bits to the byte order of the host.
class byteorder {
  public:
    virtual unsigned short tohs(unsigned short value) const = 0;
    virtual unsigned int tohl(unsigned int value) const = 0;
    virtual unsigned long long tohll(unsigned long long value) const = 0;
    virtual ~byteorder() = default;
};

/// Least significant byte first ("II" in a TIFF header).
class intel_byteorder final : public byteorder {
  public:
    unsigned short tohs(unsigned short value) const override { return value; }
    unsigned int tohl(unsigned int value) const override { return value; }
    unsigned long long tohll(unsigned long long value) const override { return value; }
};

/// Most significant byte first ("MM" in a TIFF header).
class motorola_byteorder final : public byteorder {
  public:
    unsigned short tohs(unsigned short value) const override { return __builtin_bswap16(value); }
    unsigned int tohl(unsigned int value) const override { return __builtin_bswap32(value); }
    unsigned long long tohll(unsigned long long value) const override {
        return __builtin_bswap64(value);
    }
};

// The same conversions for a byte order known at compile time. The first letter of a name is the
// byte order of the file: i (Intel) is little-endian, m (Motorola) is big-endian. The last letters
// are the size: s is 16 bits, l is 32 bits, ll is 64 bits.
constexpr unsigned short itohs(unsigned short value) {
    return value;
}
constexpr unsigned int itohl(unsigned int value) {
    return value;
}
constexpr unsigned long long itohll(unsigned long long value) {
    return value;
}
constexpr unsigned long long mtohll(unsigned long long value) {
    return __builtin_bswap64(value);
}

}  // namespace libutils
