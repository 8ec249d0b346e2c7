// SPDX-License-Identifier: MIT
// The lines that the program prints under its options debug and verbose.
#pragma once

#include <iostream>

#include "options/option.h"

namespace zanolib {

/// Prints the parts as one line on `out` if the option debug is set. Flushes the stream.
template <typename... Parts>
void trace(std::ostream& out, Parts const&... parts) {
    if (g_option.debug) {
        (out << ... << parts) << std::endl;
    }
}

/// Prints the parts as one line on standard output if the option verbose is set. Flushes the
/// stream.
template <typename... Parts>
void report(Parts const&... parts) {
    if (g_option.verbose) {
        (std::cout << ... << parts) << std::endl;
    }
}

}  // namespace zanolib
