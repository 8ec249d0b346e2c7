// SPDX-License-Identifier: MIT
// The one way in which the readers of a JPEG's segments refuse what they read.
#pragma once

#include <iostream>

#include "utils/diagnostics.h"

namespace libgr {

/// Writes the parts as one line on the error stream, numbers in decimal. Always false, so that a
/// reader can return it.
template <typename... Parts>
bool refuse(Parts const&... parts) {
    libutils::error();
    libutils::keepflag const keep(std::cerr);
    std::cerr << std::dec;
    (std::cerr << ... << parts) << std::endl;
    return false;
}

}  // namespace libgr
