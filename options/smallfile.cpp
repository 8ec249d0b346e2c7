// SPDX-License-Identifier: MIT
// Text files of the user, read whole and within a limit.
#include "options/smallfile.h"

#include <sys/stat.h>

#include <fstream>

namespace zanolib {

small_file_t read_small_file(std::vector<char>& buffer, char const* path) {
    struct stat status {};
    // Opening a pipe would wait for its writer.
    if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode)) {
        return small_file_t::UNREADABLE;
    }
    if (status.st_size > static_cast<off_t>(small_file_limit)) {
        return small_file_t::TOO_LONG;
    }
    buffer.resize(static_cast<std::size_t>(status.st_size));
    std::ifstream file(path, std::ios::binary);
    file.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    return file ? small_file_t::READ : small_file_t::UNREADABLE;
}

}  // namespace zanolib
