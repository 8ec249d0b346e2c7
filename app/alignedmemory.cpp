// SPDX-License-Identifier: MIT
// A posix_memalign() for the whole program that uses free blocks again.
//
// Before version 2.38, glibc allocates aligned memory by asking for a larger block and cutting it
// (https://sourceware.org/bugzilla/show_bug.cgi?id=14581). A freed block is then too small for the
// next request of the same size. A software driver allocates a texture without mipmaps, replaces it
// by one with mipmaps, and frees the first one, for each tile of a picture. Without this function
// all the first ones stay in the heap as free blocks: 72 MiB for a picture of 24 megapixels.
#include <features.h>

#if defined(__GLIBC__) && !__GLIBC_PREREQ(2, 38)
#include <malloc.h>

#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t min_block = 65536;

}  // namespace

/// See POSIX.1-2017, posix_memalign(). The program exports it, so that it replaces the function of
/// the C library for the driver, too. free() and realloc() accept the block.
extern "C" [[gnu::visibility("default")]] int posix_memalign(void** block, std::size_t alignment,
                                                             std::size_t size) noexcept {
    if (!std::has_single_bit(alignment) || alignment % sizeof(void*) != 0) {
        return EINVAL;
    }
    if (size >= min_block) {
        // This is the block of an earlier request, if one is free. Then it is aligned.
        void* const candidate = std::malloc(size);
        if (candidate == nullptr) {
            return ENOMEM;
        }
        if (reinterpret_cast<std::uintptr_t>(candidate) % alignment == 0) {
            *block = candidate;
            return 0;
        }
        std::free(candidate);
    }
    void* const aligned = ::memalign(alignment, size);
    if (aligned == nullptr) {
        return ENOMEM;
    }
    *block = aligned;
    return 0;
}
#endif
