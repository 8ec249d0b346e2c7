// SPDX-License-Identifier: MIT
// Reading small text files of the user whole and within a limit.
#pragma once

#include <vector>

namespace libutils {

enum class small_file_t {
    READ,
    UNREADABLE,  ///< missing, not to be opened, or no plain file
    TOO_LONG     ///< exceeds the limit small-file (utils/limits.h), which was reported
};

/// Reads a plain file into `buffer`. Otherwise the buffer's content is of no use.
small_file_t read_small_file(std::vector<char>& buffer, char const* path);

}  // namespace libutils
