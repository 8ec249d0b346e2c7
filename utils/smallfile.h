// SPDX-License-Identifier: MIT
// Reading small text files of the user whole and within a limit.
#pragma once

#include <cstddef>
#include <vector>

namespace libutils {

/// The longest file that is taken for one of options, messages, views or programs, in bytes.
inline constexpr std::size_t small_file_limit = std::size_t{1} << 20;

enum class small_file_t {
    READ,
    UNREADABLE,  ///< missing, not to be opened, or no plain file
    TOO_LONG
};

/// Reads a plain file into `buffer`. Otherwise the buffer's content is of no use.
small_file_t read_small_file(std::vector<char>& buffer, char const* path);

}  // namespace libutils
