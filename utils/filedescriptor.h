// SPDX-License-Identifier: MIT
// The owner of a file descriptor.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace libutils {

/// Owns a file descriptor and closes it in its destructor.
///
/// ```cpp
/// #include <fcntl.h>
///
/// libutils::file_descriptor_t const file(open("/etc/hostname", O_RDONLY | O_CLOEXEC));
/// char text[64];
/// bool const is_read = file.is_open() && read(file.get(), text, sizeof text) > 0;
/// ```
class file_descriptor_t {
  public:
    file_descriptor_t() = default;

    /// Becomes the owner of `fd`, which may be -1 for a file that could not be opened.
    explicit file_descriptor_t(int fd) : m_fd(fd) {}
    file_descriptor_t(file_descriptor_t const&) = delete;
    file_descriptor_t(file_descriptor_t&& other) noexcept : m_fd(other.release()) {}
    file_descriptor_t& operator=(file_descriptor_t const&) = delete;
    /// Swaps the descriptors. The destructor of `other` closes the old file. If `other` is a
    /// temporary object, as in `file = file_descriptor_t(open(...))`, this is at the end of the
    /// statement. The destructor ignores errors: call `close` first if the old file was written to.
    file_descriptor_t& operator=(file_descriptor_t&& other) noexcept {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    /// Closes the file. Ignores errors, and doesn't change errno.
    ~file_descriptor_t() {
        int const error = errno;
        close();
        errno = error;
    }

    bool is_open() const { return m_fd != -1; }

    /// Returns the descriptor, or -1.
    int get() const { return m_fd; }

    /// Returns the descriptor, which the caller must close, or -1. The object has no file
    /// afterwards.
    int release() { return std::exchange(m_fd, -1); }

    /// Closes the file. Returns false and sets errno on failure: some network file systems report
    /// a failed write only now. The object has no file afterwards, also on failure. Returns true if
    /// it had no file.
    bool close() { return !is_open() || ::close(release()) == 0; }

  private:
    int m_fd = -1;
};

}  // namespace libutils
