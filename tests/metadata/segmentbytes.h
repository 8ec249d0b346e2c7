// SPDX-License-Identifier: MIT
// Payloads of marker segments for tests.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>

#include "metadata/jpegcursor.h"

/// The bytes as a window into a larger block, whose other bytes are all `margin`.
inline libgr::jpeg_bytes_t window_of(std::string const& bytes, char margin = '\xFF') {
    std::string const all = std::string(3, margin) + bytes + std::string(64, margin);
    libgr::jpeg_bytes_t window;
    window.resize(all.size(), 0);
    std::ranges::copy(all, window.begin());
    window.offset = 3;
    window.count = bytes.size();
    return window;
}

/// Returns the bytes of a list of hexadecimal numbers. "A*3" is three bytes 0x0A; the count is
/// decimal.
inline std::string listed_bytes(std::string const& text) {
    std::istringstream in(text);
    std::string bytes, word;
    while (in >> word) {
        std::size_t const star = word.find('*');
        bytes.append(star == std::string::npos ? 1 : std::stoul(word.substr(star + 1)),
                     static_cast<char>(std::stoul(word, nullptr, 16)));
    }
    return bytes;
}
