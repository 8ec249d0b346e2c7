// SPDX-License-Identifier: MIT
// Wraps mmap, mremap and munmap for the linker's --wrap: the bytes between the end of a mapping and
// the end of its last page are an error for the address sanitizer, as they are after a heap block.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdarg>
#include <cstddef>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(begin, size) static_cast<void>(size)
#define ASAN_UNPOISON_MEMORY_REGION(begin, size) static_cast<void>(size)
#endif

extern "C" {
void* __real_mmap(void* hint, std::size_t size, int prot, int flags, int fd, off_t offset);
void* __real_mremap(void* old, std::size_t old_size, std::size_t size, int flags, ...);
int __real_munmap(void* begin, std::size_t size);
void* __wrap_mmap(void* hint, std::size_t size, int prot, int flags, int fd, off_t offset);
void* __wrap_mremap(void* old, std::size_t old_size, std::size_t size, int flags);
int __wrap_munmap(void* begin, std::size_t size);
}

namespace {

std::size_t whole_pages(std::size_t size) {
    std::size_t const page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    return (size + page - 1) / page * page;
}

void* guard(void* begin, std::size_t size) {
    if (begin != MAP_FAILED) {
        ASAN_UNPOISON_MEMORY_REGION(begin, whole_pages(size));
        ASAN_POISON_MEMORY_REGION(static_cast<char*>(begin) + size, whole_pages(size) - size);
    }
    return begin;
}

}  // namespace

void* __wrap_mmap(void* hint, std::size_t size, int prot, int flags, int fd, off_t offset) {
    return guard(__real_mmap(hint, size, prot, flags, fd, offset), size);
}

void* __wrap_mremap(void* old, std::size_t old_size, std::size_t size, int flags) {
    ASAN_UNPOISON_MEMORY_REGION(old, whole_pages(old_size));
    return guard(__real_mremap(old, old_size, size, flags), size);
}

int __wrap_munmap(void* begin, std::size_t size) {
    ASAN_UNPOISON_MEMORY_REGION(begin, whole_pages(size));
    return __real_munmap(begin, size);
}
