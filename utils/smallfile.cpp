// SPDX-License-Identifier: MIT
// Reading small files.
#include "utils/smallfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "utils/limits.h"

namespace libutils {

namespace {

bool read_all(int fd, std::vector<char>& buffer) {
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
    // Without O_NONBLOCK a pipe would wait for its writer.
    int const fd = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        return small_file_t::UNREADABLE;
    }
    struct stat status {};
    small_file_t outcome = small_file_t::UNREADABLE;
    if (fstat(fd, &status) == 0 && S_ISREG(status.st_mode)) {
        if (static_cast<std::uint64_t>(status.st_size) > limits::small_file.value) {
            report_limit(limits::small_file, path);
            outcome = small_file_t::TOO_LONG;
        } else {
            buffer.resize(static_cast<std::size_t>(status.st_size));
            outcome = read_all(fd, buffer) ? small_file_t::READ : small_file_t::UNREADABLE;
        }
    }
    close(fd);
    return outcome;
}

}  // namespace libutils
