// SPDX-License-Identifier: MIT
// Pictures for the scene's tests, made byte by byte, and the state that the tests put back.
#pragma once

#include <string>

#include "options/option.h"
#include "tests/support/files/testfiles.h"

/// The settings as built in, and as they were again at the end.
class options_guard_t {
  public:
    options_guard_t() { zanolib::g_option = {}; }
    options_guard_t(options_guard_t const&) = delete;
    options_guard_t& operator=(options_guard_t const&) = delete;
    ~options_guard_t() { zanolib::g_option = m_former; }

  private:
    zanolib::option_t m_former = zanolib::g_option;
};

/// Bytes of 0 to 255.
inline std::string bytes_of(std::initializer_list<int> values) {
    return {values.begin(), values.end()};
}

/// Little-endian words of 4 bytes.
inline std::string words(std::initializer_list<unsigned> values) {
    std::string bytes;
    for (unsigned const value : values) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<char>(value >> shift & 0xff));
        }
    }
    return bytes;
}

/// Channel 0, 1 or 2 (red, green, blue) of the test picture at a pixel: no neighbours are alike.
inline unsigned char test_channel(unsigned x, unsigned y, unsigned channel) {
    return static_cast<unsigned char>(channel == 0   ? x * 37 + 11
                                      : channel == 1 ? y * 53 + 7
                                                     : x ^ y);
}

/// A BMP of 54 bytes of headers and `body` behind them; its pixels begin after `palette` bytes.
inline std::string bmp(unsigned width, unsigned height, unsigned bits, unsigned palette,
                       std::string const& body) {
    return "BM" +
           words({0, 0, 54 + palette, 40, width, height, 1 + (bits << 16), 0, 0, 72, 72, 0, 0}) +
           body;
}

/// The test picture as a BMP of 24 bits.
inline std::string test_bmp(unsigned width, unsigned height) {
    std::string rows;
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned x = 0; x < width; ++x) {
            for (unsigned const channel : {2U, 1U, 0U}) {
                rows.push_back(static_cast<char>(test_channel(x, y, channel)));
            }
        }
        rows.append((4 - rows.size() % 4) % 4, '\0');
    }
    return bmp(width, height, 24, 0, rows);
}
