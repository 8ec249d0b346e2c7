// SPDX-License-Identifier: MIT
// The allocators of the shared arrays: heap memory and memory mappings.
#pragma once

namespace libutils {

/// The type of the last argument of each load. The library ignores this argument: pass null.
struct android_app;

/// The protection of a file mapping; see the table below. `alloc_mmap_unix` rejects other values.
enum e_prot_t : unsigned int {
    PROTECTION_READ = 0,
    PROTECTION_READWRITE = 1,
};

/// Returns the unused pages of the heap to the system.
///
/// The C library by itself only returns the pages after the last used block. So one small block
/// can keep the memory of all freed blocks before it, for example of the textures of a software
/// driver. Call this function after freeing many blocks. It takes up to about 0.4 ms for each MB
/// that is returned. It does nothing if the C library isn't glibc.
void release_unused_memory();

/// A message that callers can print if there isn't enough memory. The library never prints it.
extern char const* const memory_error;

// All allocators have the same functions. An allocator object manages one block of memory. Use the
// arrays in utils/ofsvector.h and utils/refvector.h instead of calling an allocator.
//
//   allocate(bytes, path, protection, offset, app)
//       Returns a block of `bytes` bytes. With a path, the block contains the bytes of the file,
//       starting at byte `offset`. If `bytes` is 0, sets it to the number of bytes from `offset` to
//       the end of the file.
//   reallocate(p, newsize, offset)
//       Returns a new block with the bytes of `p` that fit, and frees `p`. On failure, `p` stays
//       valid, except for 0 bytes; see `alloc_mmap_unix`.
//   deallocate(p)
//       Frees the block.
//   failed(p)
//       Returns true if `p`, returned by `allocate` or `reallocate`, means failure.
//   writable()
//       Returns true if the block may be written to.
//
// The differences between the allocators:
//
//                                   alloc_new                      alloc_mmap_unix
//   no path: the new bytes          undefined                      0
//   no path, any `protection`       writable                       writable
//   file, PROTECTION_READ           a writable copy                writing raises SIGSEGV
//   file, PROTECTION_READWRITE      a writable copy                writing changes the file
//   `offset`                        ignored: always starts at 0    a multiple of the page size
//   missing file, `bytes` is 0      fails                          fails
//   missing file, other `bytes`     succeeds, undefined bytes      fails
//   file without read permission    succeeds, undefined bytes      fails
//   file with too few bytes         succeeds, undefined rest       fails
//
// The page size is sysconf(_SC_PAGESIZE).

/// Heap memory. A file is copied into it.
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
/// Another program can make a mapped file shorter, or its device can fail. The lost bytes are then
/// read as 0, without a SIGBUS. Bytes that are written to the lost pages don't reach the file. For
/// this, the first load of a file installs a handler for SIGBUS, which calls the previous handler
/// for faults at other addresses. A program with a handler for SIGBUS must install it before the
/// first load, or its handler must call the one that it replaces.
///
/// One anonymous mapping of 4 to 256 MiB is kept after its deallocation and used for the next one,
/// because new pages from the system are slow.
///
/// On failure, `allocate` returns null or MAP_FAILED, and `reallocate` returns MAP_FAILED. Both
/// also return MAP_FAILED for 0 bytes, because mmap can't map 0 bytes. The arrays accept this as an
/// empty block. `reallocate` to 0 bytes frees `p`.
struct alloc_mmap_unix {
    int fd = -1;             ///< the open file, or -1 for an anonymous mapping; owned
    unsigned long size = 0;  ///< bytes mapped
    int openmode = 0;        ///< O_RDONLY or O_RDWR
    int prot = 0;            ///< PROT_READ, or PROT_READ | PROT_WRITE
    int flags = 0;           ///< MAP_SHARED for a file, otherwise MAP_ANON | MAP_PRIVATE

    /// Fails if the file has fewer than `bytes` bytes after `offset` at the time of the call.
    void* allocate(unsigned long& bytes, char const* path, e_prot_t protection,
                   unsigned long long offset, android_app* app);

    /// Replaces a read-only file mapping by an anonymous, writable copy. For a writable file
    /// mapping, fails if the file has fewer than `newsize` bytes after `offset`.
    void* reallocate(void* p, unsigned long newsize, unsigned long long offset);
    void deallocate(void* p);
    static bool failed(void const* p);
    bool writable() const;
};

}  // namespace libutils
