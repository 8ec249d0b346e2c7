// SPDX-License-Identifier: MIT
// Reads a whole file that must not be larger than a limit.
#pragma once

#include <vector>

namespace libutils {

/// The result of `read_small_file`.
enum class small_file_t {
    READ,        ///< the buffer contains the file
    UNREADABLE,  ///< the file can't be opened or read, or isn't a regular file
    TOO_LONG     ///< the file exceeds `limits::small_file` (1 MiB, utils/limits.h)
};

/// Reads all bytes of the regular file at `path` into `buffer`, without a NUL at the end.
///
/// Prints the line of `report_limit` for `TOO_LONG`, and nothing for `UNREADABLE`. In both cases
/// the content of `buffer` is undefined. For `UNREADABLE`, errno is set if a system call failed. It
/// is unchanged if the file isn't regular or became shorter.
small_file_t read_small_file(std::vector<char>& buffer, char const* path);

}  // namespace libutils
