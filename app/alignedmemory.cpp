// SPDX-License-Identifier: MIT
// A posix_memalign() for the whole program that uses free blocks again.
//
// glibc allocates aligned memory by asking for a larger block and cutting it. A freed block is then
// too small for the next request of the same size
// (https://sourceware.org/bugzilla/show_bug.cgi?id=14581). A software driver allocates a texture
// without mipmaps, replaces it by one with mipmaps, and frees the first one, for each tile of a
// picture. Without this function most of the first ones stay in the heap as free blocks: up to 71
// MiB for a picture of 24 megapixels.
#include <features.h>

#ifdef __GLIBC__
#include <malloc.h>

#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// Smaller blocks leave small holes. malloc() maps larger blocks, and these are never aligned.
constexpr std::size_t min_block = std::size_t{64} << 10;
constexpr std::size_t max_block = std::size_t{1} << 20;

}  // namespace

/// See POSIX.1-2017, posix_memalign(). The program exports it, so that it replaces the function of
/// the C library for the driver, too. free() and realloc() accept the block.
extern "C" [[gnu::visibility("default")]] int posix_memalign(void** block, std::size_t alignment,
                                                             std::size_t size) noexcept {
    if (!std::has_single_bit(alignment) || alignment % sizeof(void*) != 0) {
        return EINVAL;
    }
    if (min_block <= size && size <= max_block) {
        // malloc() often returns the block of an earlier request. That block is usually aligned.
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
