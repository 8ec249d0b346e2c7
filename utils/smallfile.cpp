// SPDX-License-Identifier: MIT
// Reading and writing small files.
#include "utils/smallfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "utils/limits.h"

namespace libutils {

namespace {

/// Whether the disk has room for the text, so that what is there can be given up for it.
bool has_room(int fd, std::string const& text) {
    int const error = text.empty() ? 0 : posix_fallocate(fd, 0, static_cast<off_t>(text.size()));
    return error != ENOSPC && error != EFBIG && error != EDQUOT;
}

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

bool write_all(int fd, std::string const& text) {
    for (std::size_t done = 0; done < text.size();) {
        ssize_t const written = write(fd, text.data() + done, text.size() - done);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(written);
    }
    return ftruncate(fd, static_cast<off_t>(text.size())) == 0;
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

bool write_small_file(char const* path, std::string const& text) {
    // Without O_NONBLOCK a pipe would wait for its reader.
    constexpr int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC;
    int fd = open(path, flags | O_EXCL, 0666);
    bool const made = fd >= 0;
    if (!made) {
        fd = open(path, flags, 0666);
    }
    if (fd < 0) {
        return false;
    }
    bool const written = has_room(fd, text) && write_all(fd, text);
    if (!written && made) {
        unlink(path);
    }
    close(fd);
    return true;
}

}  // namespace libutils
