// SPDX-License-Identifier: MIT
// The allocators of the shared arrays: heap memory and memory mappings.
#pragma once

namespace libutils {

/// A platform context that callers may pass to a load. The library doesn't use it.
struct android_app;

/// The protection of a file mapping. With any other value, `alloc_mmap_unix::allocate` fails.
enum e_prot_t : unsigned int {
    PROTECTION_READ = 0,
    PROTECTION_READWRITE = 1,  ///< writing to the mapping changes the file
};

/// Returns the unused pages of the heap to the system.
///
/// The C library by itself only returns the pages after the last used block. So one small block
/// can keep the memory of all freed blocks before it, for example of the textures of a software
/// driver. Call this function after freeing many blocks. It takes up to about 0.4 ms for each MB
/// that is returned. It does nothing if the C library isn't glibc.
void release_unused_memory();

/// The text for a failed allocation. The library reports failures by results and never prints it.
extern char const* const memory_error;

// All allocators have the same functions. An allocator object manages one block of memory. Use the
// arrays in utils/ofsvector.h and utils/refvector.h instead of calling an allocator.
//
//   allocate(bytes, path, protection, offset, app)
//       Returns a block of `bytes` bytes. With a path, the block contains the bytes of the file
//       after `offset`. If `bytes` is 0, it is set to the number of these bytes.
//   reallocate(p, newsize, offset)
//       Returns a new block with the bytes of `p` that fit, and frees `p`. On failure, `p` stays
//       valid.
//   deallocate(p)
//       Frees the block.
//   failed(p)
//       Returns true if `p`, returned by `allocate` or `reallocate`, means failure.
//   writable()
//       Returns true if the block may be written to.

/// Heap memory. `protection` and `offset` are ignored: a file is read from its start. A missing
/// file is an error only if `bytes` is 0. If the file can't be read, the block is undefined.
struct alloc_new {
    unsigned long size = 0;  ///< bytes

    void* allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                   unsigned long long offset, android_app* app);
    void* reallocate(void* p, unsigned long newsize, unsigned long long offset);
    void deallocate(void* p);
    static bool failed(void const* p) { return p == nullptr; }
    static bool writable() { return true; }
};

/// Memory mappings: the pages of a file, or anonymous pages, which are 0.
///
/// Bytes that another program removes from a mapped file read as 0; see utils/mappingguard.h. One
/// anonymous mapping of 4 to 256 MiB is kept after its deallocation and used for the next one.
///
/// `allocate` and `reallocate` return MAP_FAILED if mmap fails, and always for 0 bytes, which the
/// arrays accept as an empty file. Test results with `failed`. `reallocate` to 0 bytes frees `p`.
struct alloc_mmap_unix {
    int fd = -1;             ///< the open file, or -1 for an anonymous mapping; owned
    unsigned long size = 0;  ///< bytes mapped
    int openmode = 0;        ///< O_RDONLY or O_RDWR
    int prot = 0;            ///< PROT_READ, or PROT_READ | PROT_WRITE
    int flags = 0;           ///< MAP_SHARED for a file, otherwise MAP_ANON | MAP_PRIVATE

    /// Returns null if the file doesn't have the range: reading after its end would raise SIGBUS.
    /// `offset` must be a multiple of the page size.
    void* allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                   unsigned long long offset, android_app* app);

    /// Replaces a read-only file mapping by an anonymous, writable copy. For a writable file
    /// mapping, fails if the file doesn't have the range.
    void* reallocate(void* p, unsigned long newsize, unsigned long long offset);
    void deallocate(void* p);
    static bool failed(void const* p);
    bool writable() const;
};

}  // namespace libutils
