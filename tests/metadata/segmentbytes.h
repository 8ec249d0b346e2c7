// SPDX-License-Identifier: MIT
// Payloads of marker segments for tests.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>

#include "metadata/jpegcursor.h"

/// Returns a view of `bytes` in a larger block, with the bytes of `margin` before and after them.
inline libgr::jpeg_bytes_t window_of(std::string const& bytes,
                                     std::string const& margin = std::string(64, '\xFF')) {
    std::string const all = margin + bytes + margin;
    libgr::jpeg_bytes_t window;
    window.resize(all.size(), 0);
    std::ranges::copy(all, window.begin());
    window.offset = margin.size();
    window.count = bytes.size();
    return window;
}

/// Returns the bytes of a list of hexadecimal numbers. "A*16" is 16 bytes 0x0A.
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
