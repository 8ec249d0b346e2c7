// SPDX-License-Identifier: MIT
// Reads a whole file that must not be larger than a limit.
#include "utils/smallfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "utils/filedescriptor.h"
#include "utils/limits.h"

namespace libutils {

namespace {

bool fill(std::vector<char>& buffer, int fd) {
    for (std::size_t done = 0; done < buffer.size();) {
        ssize_t const got = read(fd, buffer.data() + done, buffer.size() - done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(got);
    }
    return true;
}

}  // namespace

small_file_t read_small_file(std::vector<char>& buffer, char const* path) {
    // Without O_NONBLOCK, opening a named pipe waits for its writer.
    file_descriptor_t const file(open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.is_open() || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return small_file_t::UNREADABLE;
    }
    if (static_cast<std::uint64_t>(status.st_size) > limits::small_file.value) {
        report_limit(limits::small_file, path);
        return small_file_t::TOO_LONG;
    }
    buffer.resize(static_cast<std::size_t>(status.st_size));
    return fill(buffer, file.get()) ? small_file_t::READ : small_file_t::UNREADABLE;
}

}  // namespace libutils
