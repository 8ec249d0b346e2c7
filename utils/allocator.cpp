// SPDX-License-Identifier: MIT
// The allocators of the shared arrays: heap memory and memory mappings.
#include "utils/allocator.h"

#include <fcntl.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <new>
#include <utility>

#include "utils/bits.h"
#include "utils/filedescriptor.h"
#include "utils/mappingguard.h"

namespace libutils {

void release_unused_memory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

char const* const memory_error = "can't alloc memory.\n";

namespace {

/// Returns `bytes` rounded up to whole pages.
unsigned long whole_pages(unsigned long bytes) {
    static unsigned long const page = static_cast<unsigned long>(::sysconf(_SC_PAGESIZE));
    return (bytes + page - 1) / page * page;
}

/// Keeps one large anonymous mapping for reuse after it was deallocated. The next picture needs a
/// mapping of similar size, and it takes longer to get new pages from the system than to fill them.
/// The system may take the pages of the kept mapping back if it needs memory.
class spare_block_t {
  public:
    /// Returns the kept mapping, resized to `size` bytes and filled with 0, or null if there is
    /// none. The caller becomes the owner. A small size unmaps the kept mapping instead: it shows
    /// that no large picture is being loaded.
    void* take(unsigned long size) {
        if (size < smallest) {
            drop();
        }
        unsigned long const pages = whole_pages(size);
        void* const block =
            m_begin != nullptr ? ::mremap(m_begin, m_size, pages, MREMAP_MAYMOVE) : MAP_FAILED;
        if (block == MAP_FAILED) {
            return nullptr;
        }
        // Fills whole pages, because a later call may make the mapping longer.
        std::memset(block, 0, min2(m_size, pages));
        m_begin = nullptr;
        return block;
    }

    /// Takes over a mapping. Returns false if the caller must unmap it.
    bool keep(void* block, unsigned long size) {
        if (m_begin != nullptr || size < smallest || size > largest) {
            return false;
        }
        m_begin = block;
        m_size = whole_pages(size);
        ::madvise(m_begin, m_size, MADV_FREE);
        return true;
    }

    /// Unmaps the kept mapping. Returns true if there was one.
    bool drop() {
        bool const has_mapping = m_begin != nullptr;
        if (has_mapping) {
            ::munmap(m_begin, m_size);
            m_begin = nullptr;
        }
        return has_mapping;
    }

  private:
    static constexpr unsigned long smallest = 4UL << 20;  // bytes
    static constexpr unsigned long largest = 256UL << 20;

    void* m_begin = nullptr;
    unsigned long m_size = 0;
};

spare_block_t s_spare;

/// Maps and guards a part of a file, or maps anonymous pages if `fd` is -1. If there isn't enough
/// memory, unmaps the spare mapping and tries again. Returns MAP_FAILED on failure.
void* map(void* hint, unsigned long size, int prot, int flags, int fd, unsigned long long offset) {
    void* storage = MAP_FAILED;
    do {
        storage = ::mmap(hint, size, prot, flags, fd, static_cast<off_t>(offset));
    } while (storage == MAP_FAILED && s_spare.drop());
    if (storage != MAP_FAILED && fd != -1 && !guard_mapping(storage, size, prot, fd, offset)) {
        ::munmap(storage, size);
        return MAP_FAILED;
    }
    return storage;
}

unsigned char* new_bytes(unsigned long bytes) {
    return bytes <= PTRDIFF_MAX ? new (std::nothrow) unsigned char[bytes] : nullptr;
}

void copy_bytes(void* to, void const* from, unsigned long bytes) {
    if (bytes != 0) {
        std::memcpy(to, from, bytes);
    }
}

/// Returns true if the file has `bytes` bytes after `offset`. If `bytes` is 0, sets it to the
/// number of bytes after `offset`.
bool has_range(int fd, unsigned long& bytes, unsigned long long offset) {
    struct stat info {};
    if (::fstat(fd, &info) != 0) {
        return false;
    }
    auto const size = static_cast<unsigned long long>(info.st_size);
    if (offset > size || bytes > size - offset) {
        return false;
    }
    if (bytes == 0) {
        bytes = size - offset;
    }
    return true;
}

}  // namespace

void* alloc_new::allocate(unsigned long& bytes, char const* path, e_prot_t /*protection*/,
                          unsigned long long /*offset*/, android_app* /*app*/) {
    if (path != nullptr && bytes == 0) {
        struct stat info {};
        if (::stat(path, &info) != 0) {
            return nullptr;
        }
        bytes = static_cast<unsigned long>(info.st_size);
    }
    unsigned char* const storage = new_bytes(bytes);
    if (storage == nullptr) {
        return nullptr;
    }
    if (path != nullptr && bytes != 0) {
        // A file that can't be opened isn't an error. The storage is then undefined.
        std::ifstream in(path, std::ios::binary);
        in.read(static_cast<char*>(static_cast<void*>(storage)),
                static_cast<std::streamsize>(bytes));
    }
    size = bytes;
    return storage;
}

void* alloc_new::reallocate(void* p, unsigned long newsize, unsigned long long /*offset*/) {
    unsigned char* const storage = new_bytes(newsize);
    if (storage == nullptr) {
        return nullptr;
    }
    copy_bytes(storage, p, p != nullptr ? min2(size, newsize) : 0);
    deallocate(p);
    size = newsize;
    return storage;
}

void alloc_new::deallocate(void* p) {
    delete[] static_cast<unsigned char*>(p);
}

void* alloc_mmap_unix::allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                                unsigned long long offset, android_app* /*app*/) {
    if (protection != PROTECTION_READ && protection != PROTECTION_READWRITE) {
        return nullptr;
    }
    bool const write = protection == PROTECTION_READWRITE;
    openmode = write ? O_RDWR : O_RDONLY;
    prot = write ? PROT_READ | PROT_WRITE : PROT_READ;
    fd = -1;
    if (path != nullptr) {
        flags = MAP_SHARED;
        // Without O_NONBLOCK, opening a named pipe waits for its writer.
        file_descriptor_t file(::open(path, openmode | O_CLOEXEC | O_NONBLOCK));
        if (!file.is_open() || !has_range(file.get(), bytes, offset)) {
            return nullptr;
        }
        fd = file.release();
    } else {
        prot = PROT_READ | PROT_WRITE;
        flags = MAP_ANON | MAP_PRIVATE;
    }
    size = bytes;
    if (void* const spare = fd == -1 && offset == 0 ? s_spare.take(size) : nullptr) {
        return spare;
    }
    return map(nullptr, size, prot, flags, fd, offset);
}

void* alloc_mmap_unix::reallocate(void* p, unsigned long newsize, unsigned long long offset) {
    alloc_mmap_unix next = *this;
    if (!writable()) {
        next.fd = -1;
        next.prot = PROT_READ | PROT_WRITE;
        next.flags = MAP_ANON | MAP_PRIVATE;
    }
    unsigned long wanted = newsize;
    if (next.fd != -1 && !has_range(next.fd, wanted, offset)) {
        return MAP_FAILED;
    }
    void* const storage = map(p, newsize, next.prot, next.flags, next.fd, offset);
    if (failed(storage) && newsize != 0) {
        return MAP_FAILED;
    }
    if (!failed(p)) {
        copy_bytes(storage, p, min2(size, newsize));
    }
    if (next.fd != -1) {
        fd = -1;  // `next` owns the file
    }
    deallocate(p);
    *this = next;
    size = newsize;
    return storage;
}

void alloc_mmap_unix::deallocate(void* p) {
    // Closes the file after the mapping is unguarded.
    file_descriptor_t const file(std::exchange(fd, -1));
    bool const is_kept = (flags & MAP_ANON) != 0 && !failed(p) && s_spare.keep(p, size);
    if (!is_kept && !failed(p)) {
        if ((flags & MAP_ANON) == 0) {
            unguard_mapping(p);
        }
        ::munmap(p, size);
    }
}

bool alloc_mmap_unix::failed(void const* p) {
    return p == nullptr || p == MAP_FAILED;
}

bool alloc_mmap_unix::writable() const {
    return (prot & PROT_WRITE) != 0;
}

}  // namespace libutils
