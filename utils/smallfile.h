// SPDX-License-Identifier: MIT
// Small text files of the user, read whole and within a limit, and written without losing the old.
#pragma once

#include <string>
#include <vector>

namespace libutils {

enum class small_file_t {
    READ,
    UNREADABLE,  ///< missing, not to be opened, or no plain file
    TOO_LONG     ///< exceeds the limit small-file (utils/limits.h), which was reported
};

/// Reads a plain file into `buffer`. Otherwise the buffer's content is of no use.
small_file_t read_small_file(std::vector<char>& buffer, char const* path);

/// Writes `text` as the whole content of the file at `path`, over what is there: links and
/// permissions stay. Where the disk has no room for it an old file keeps its content, and a file
/// that was made for it is removed again. False when the file can't be opened, and only then.
bool write_small_file(char const* path, std::string const& text);

}  // namespace libutils
