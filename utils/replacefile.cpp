// SPDX-License-Identifier: MIT
// Replaces a file by a complete new one.
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

#include "utils/filedescriptor.h"

namespace libutils {

namespace {

/// Returns the directory part of a path, up to and including its last "/". The system's functions
/// have no other separator.
std::string directory_of(std::string const& path) {
    return path.substr(0, path.rfind('/') + 1);
}

/// Blocks the signals that ask the program to end, until the end of the block.
class signal_block_t {
  public:
    signal_block_t() {
        sigset_t blocked;
        sigemptyset(&blocked);
        for (int const signal : {SIGHUP, SIGINT, SIGTERM}) {
            sigaddset(&blocked, signal);
        }
        pthread_sigmask(SIG_BLOCK, &blocked, &m_before);
    }
    signal_block_t(signal_block_t const&) = delete;
    signal_block_t& operator=(signal_block_t const&) = delete;
    ~signal_block_t() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

  private:
    sigset_t m_before{};
};

/// A new file under a temporary name. The destructor removes the file unless `rename_to` has
/// succeeded. It doesn't change errno.
class new_file_t {
  public:
    new_file_t() = default;
    new_file_t(new_file_t const&) = delete;
    new_file_t& operator=(new_file_t const&) = delete;
    ~new_file_t() {
        int const error = errno;
        if (!m_path.empty()) {
            unlink(m_path.c_str());
        }
        errno = error;
    }

    /// Creates the file. Its name has no extension of a picture, and its length doesn't depend on
    /// any other name.
    bool create(std::string const& directory, mode_t mode) {
        constexpr int max_attempt_count = 100;
        static unsigned s_number = 0;
        for (int i = 0; i < max_attempt_count; ++i) {
            std::array<char, 64> name{};
            std::snprintf(name.data(), name.size(), ".zvw-%ld-%u.new", static_cast<long>(getpid()),
                          s_number++);
            std::string path = directory + name.data();
            m_file = file_descriptor_t(
                open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            if (m_file.is_open()) {
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
            ssize_t const written = ::write(m_file.get(), bytes.data(), bytes.size());
            if (written > 0) {
                bytes.remove_prefix(static_cast<std::size_t>(written));
            } else if (written == 0 || errno != EINTR) {
                errno = written == 0 ? ENOSPC : errno;
                return false;
            }
        }
        return true;
    }

    /// Writes the content to the device. Succeeds on a file system that doesn't implement fsync.
    bool sync() const { return fsync(m_file.get()) == 0 || errno == EINVAL; }

    void set_permissions(mode_t mode) const {
        // The result is ignored because some file systems have no permissions.
        [[maybe_unused]] int const ignored = fchmod(m_file.get(), mode);
    }

    bool rename_to(std::string const& path) {
        if (!m_file.close() || rename(m_path.c_str(), path.c_str()) != 0) {
            return false;
        }
        m_path.clear();
        return true;
    }

  private:
    file_descriptor_t m_file;
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
    signal_block_t const signals;
    new_file_t file;
    if (!file.create(directory_of(path), mode) || !file.write(bytes)) {
        return false;
    }
    if (is_file) {
        file.set_permissions(mode);
        // Otherwise a power failure soon after the rename could replace the old file by an empty
        // one. A new file replaces nothing and doesn't need to wait.
        if (!file.sync()) {
            return false;
        }
    }
    return file.rename_to(path);
}

std::string follow_links(std::string path) {
    constexpr int max_link_count = 40;
    std::array<char, PATH_MAX> target{};
    for (int i = 0; i < max_link_count; ++i) {
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
