// SPDX-License-Identifier: MIT
// Payloads of marker segments for tests.
#pragma once

#include <algorithm>
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
