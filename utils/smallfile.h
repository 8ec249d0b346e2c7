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
/// ```cpp
/// #include <cerrno>
/// #include "utils/diagnostics.h"
///
/// std::vector<char> text;
/// errno = 0;
/// if (libutils::read_small_file(text, "a.txt") == libutils::small_file_t::UNREADABLE) {
///     libutils::reject_errno(errno);  // `failure_reason` is then "No such file or directory"
/// }
/// ```
///
/// `TOO_LONG` prints the line of `report_limit` and records a reason. `UNREADABLE` does neither. It
/// sets errno only if a system call failed, so not for a file that isn't regular or that becomes
/// shorter during the call. The content of `buffer` is undefined for both results. The function has
/// the same threads as `reject`; see utils/diagnostics.h.
small_file_t read_small_file(std::vector<char>& buffer, char const* path);

}  // namespace libutils
