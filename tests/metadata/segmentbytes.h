// SPDX-License-Identifier: MIT
// Payloads of marker segments for tests.
#pragma once

#include <algorithm>
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
