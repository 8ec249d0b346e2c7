// SPDX-License-Identifier: MIT
// Writing a file as a whole or not at all.
#include "utils/replacefile.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>

namespace libutils {

namespace {

/// The directory of a path for the system, which has no other separator than "/".
std::string directory_of(std::string const& path) {
    return path.substr(0, path.rfind('/') + 1);
}

/// Holds back the signals that ask the program to end, for the lifetime of the object.
class signal_hold_t {
  public:
    signal_hold_t() {
        sigset_t held;
        sigemptyset(&held);
        for (int const signal : {SIGHUP, SIGINT, SIGTERM}) {
            sigaddset(&held, signal);
        }
        pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    signal_hold_t(signal_hold_t const&) = delete;
    signal_hold_t& operator=(signal_hold_t const&) = delete;
    ~signal_hold_t() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

  private:
    sigset_t m_before{};
};

/// A new file under a temporary name. The destructor removes it unless `rename_to` succeeded, and
/// leaves errno as it is.
class new_file_t {
  public:
    new_file_t() = default;
    new_file_t(new_file_t const&) = delete;
    new_file_t& operator=(new_file_t const&) = delete;
    ~new_file_t() {
        int const error = errno;
        if (m_fd != -1) {
            close(m_fd);
        }
        if (!m_path.empty()) {
            unlink(m_path.c_str());
        }
        errno = error;
    }

    /// The name has no extension of a picture, and its length does not depend on any other name.
    bool create(std::string const& directory, mode_t mode) {
        constexpr int most_attempts = 100;
        static unsigned s_number = 0;
        for (int i = 0; i < most_attempts; ++i) {
            std::array<char, 64> name{};
            std::snprintf(name.data(), name.size(), ".zvw-%ld-%u.new", static_cast<long>(getpid()),
                          s_number++);
            std::string path = directory + name.data();
            m_fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (m_fd != -1) {
                m_path.swap(path);
                return true;
            }
            if (errno != EEXIST) {
                return false;
            }
        }
        return false;
    }

    bool write(std::string_view bytes) const {
        while (!bytes.empty()) {
            ssize_t const written = ::write(m_fd, bytes.data(), bytes.size());
            if (written > 0) {
                bytes.remove_prefix(static_cast<std::size_t>(written));
            } else if (written == 0 || errno != EINTR) {
                errno = written == 0 ? ENOSPC : errno;
                return false;
            }
        }
        return true;
    }

    /// Returns true for a file system that does not implement fsync, too.
    bool sync() const { return fsync(m_fd) == 0 || errno == EINVAL; }

    void set_permissions(mode_t mode) const {
        // Where the file system has no permissions, those of `create` are as good.
        [[maybe_unused]] int const ignored = fchmod(m_fd, mode);
    }

    /// The errors of some network file systems come with the close.
    bool rename_to(std::string const& path) {
        int const fd = m_fd;
        m_fd = -1;
        if (close(fd) != 0 || rename(m_path.c_str(), path.c_str()) != 0) {
            return false;
        }
        m_path.clear();
        return true;
    }

  private:
    int m_fd = -1;
    std::string m_path;
};

}  // namespace

bool replace_file(std::string const& path, std::string_view bytes) {
    struct stat old {};
    bool const exists = lstat(path.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) {
        return false;
    }
    bool const is_file = exists && S_ISREG(old.st_mode);
    if (exists && !is_file && !S_ISLNK(old.st_mode)) {
        errno = S_ISDIR(old.st_mode) ? EISDIR : EEXIST;
        return false;
    }
    mode_t const mode = is_file ? old.st_mode & 0777 : 0666;
    signal_hold_t const hold;
    new_file_t file;
    if (!file.create(directory_of(path), mode) || !file.write(bytes)) {
        return false;
    }
    if (is_file) {
        file.set_permissions(mode);
        // A loss of power soon after the rename could otherwise leave an empty file in place of
        // the good one. Where there was no file, nothing can be lost, and the wait is not needed.
        if (!file.sync()) {
            return false;
        }
    }
    return file.rename_to(path);
}

std::string follow_links(std::string path) {
    constexpr int most_links = 40;
    std::array<char, PATH_MAX> target{};
    for (int i = 0; i < most_links; ++i) {
        ssize_t const length = readlink(path.c_str(), target.data(), target.size());
        if (length <= 0) {
            break;
        }
        std::string const next(target.data(), static_cast<std::size_t>(length));
        path = next.front() == '/' ? next : directory_of(path) + next;
    }
    return path;
}

}  // namespace libutils
