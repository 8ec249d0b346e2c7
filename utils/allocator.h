// SPDX-License-Identifier: MIT
// The two ways to get the storage of a shared array: the free store and memory mappings.
#pragma once

namespace libutils {

/// A platform context that callers hand down with a load; nothing here looks into it.
struct android_app;

/// Protection of a mapping. A value that is neither of the two makes a mapping fail.
enum e_prot_t : unsigned int {
    PROTECTION_READ = 0,
    PROTECTION_READWRITE = 1,
};

/// The text for a failed allocation. Failure is told by results, so nothing prints it.
extern char const* const memory_error;

// Every allocator has the same operations; one object of it belongs to one storage:
//
// allocate(size, path, prot, offset, app)
//     Storage of `size` bytes, or null. With a path it holds the file's bytes, and a `size` of 0
//     means the whole file, whose size is written back.
// reallocate(p, size, offset)
//     New storage of `size` bytes with the smaller of the two sizes copied; the old one is given
//     back. On failure the old one stays.
// deallocate(p)
//     Gives the storage back.
// failed(p)
//     Whether a result of the first two stands for no storage.
// writable()
//     Whether the storage may be written to.

/// Storage on the free store. `prot` and `offset` aren't looked at.
struct alloc_new {
    unsigned long size = 0;  ///< bytes

    void* allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                   unsigned long long offset, android_app* app);
    void* reallocate(void* p, unsigned long newsize, unsigned long long offset);
    void deallocate(void* p);
    static bool failed(void const* p) { return p == nullptr; }
    static bool writable() { return true; }
};

/// Storage by mmap: a file's own pages, or anonymous pages, which read as 0 and cost nothing until
/// they are touched. The part of a mapped file that another program truncates reads as 0, see
/// utils/mappingguard.h. A large anonymous mapping that was given back is kept for the next one to
/// come, which then has its pages at once; the next small one gives it up. A failed mmap is handed
/// on as the system's failed-map pointer, not as null; a mapping of 0 bytes always is one.
struct alloc_mmap_unix {
    int fd = -1;             ///< the open file, -1 for an anonymous mapping
    unsigned long size = 0;  ///< bytes mapped
    int openmode = 0;        ///< O_RDONLY or O_RDWR
    int prot = 0;            ///< PROT_READ, with PROT_WRITE where it may be written
    int flags = 0;           ///< MAP_SHARED for a file, MAP_ANON with MAP_PRIVATE without one

    /// A range that a file doesn't hold is refused with null, since reading it would end the
    /// program.
    void* allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                   unsigned long long offset, android_app* app);

    /// A read-only file mapping becomes an anonymous, writable copy.
    void* reallocate(void* p, unsigned long newsize, unsigned long long offset);
    void deallocate(void* p);
    static bool failed(void const* p);
    bool writable() const;
};

}  // namespace libutils
