// SPDX-License-Identifier: MIT
// The SIGBUS handler that replaces missing pages of mapped files by zeros.
#include "utils/mappingguard.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <csignal>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <new>

#include "utils/bits.h"

namespace libutils {

namespace {

struct mapping_t {
    std::uintptr_t begin;
    unsigned long size;         // bytes
    unsigned long long offset;  // bytes from the start of the file
    int prot;
    int fd;
    std::atomic<mapping_t*> next;
};

// The signal handler reads this list, so each change of the list stores one pointer.
std::atomic<mapping_t*> s_first = nullptr;
std::uintptr_t s_page_size = 0;
struct sigaction s_previous {};

/// Returns `bytes` rounded up to whole pages.
std::uintptr_t whole_pages(std::uintptr_t bytes) {
    return (bytes + s_page_size - 1) / s_page_size * s_page_size;
}

mapping_t const* find_mapping(std::uintptr_t address) {
    mapping_t const* mapping = s_first;
    while (mapping != nullptr && address - mapping->begin >= whole_pages(mapping->size)) {
        mapping = mapping->next;
    }
    return mapping;
}

/// Replaces the pages that the file doesn't have any more by zeros. If the file has the page at
/// `address`, the device has failed, and only that page is replaced. Returns false if no mapping
/// contains the address. Calls only functions that are safe in a signal handler.
bool replace_missing_pages(std::uintptr_t address) {
    mapping_t const* const mapping = find_mapping(address);
    if (mapping == nullptr) {
        return false;
    }
    std::uintptr_t begin = address / s_page_size * s_page_size;
    std::uintptr_t end = begin + s_page_size;
    struct stat info {};
    if (::fstat(mapping->fd, &info) == 0) {
        auto const file_size = static_cast<unsigned long long>(info.st_size);
        std::uintptr_t const present =
            file_size > mapping->offset ? file_size - mapping->offset : 0;
        std::uintptr_t const missing = mapping->begin + whole_pages(min2(present, mapping->size));
        if (missing <= begin) {
            begin = missing;
            end = whole_pages(mapping->begin + mapping->size);
        }
    }
    // POSIX doesn't list mmap as safe in signal handlers. On Linux it is a plain system call.
    void* const pages = reinterpret_cast<void*>(begin);
    return ::mmap(pages, end - begin, mapping->prot, MAP_FIXED | MAP_PRIVATE | MAP_ANONYMOUS, -1,
                  0) == pages;
}

void pass_on(int number, siginfo_t* info, void* context) {
    bool const is_sent = info->si_code <= 0;
    if ((s_previous.sa_flags & SA_SIGINFO) != 0) {
        s_previous.sa_sigaction(number, info, context);
    } else if (s_previous.sa_handler != SIG_DFL && s_previous.sa_handler != SIG_IGN) {
        s_previous.sa_handler(number);
    } else if (!is_sent || s_previous.sa_handler == SIG_DFL) {
        // After the return, the same instruction faults again, with the previous action. A signal
        // that was sent must be raised again.
        ::sigaction(number, &s_previous, nullptr);
        if (is_sent) {
            ::raise(number);
        }
    }
}

void handle_bus_error(int number, siginfo_t* info, void* context) {
    int const error = errno;
    bool const is_fault = info->si_code > 0;
    if (!is_fault || !replace_missing_pages(reinterpret_cast<std::uintptr_t>(info->si_addr))) {
        pass_on(number, info, context);
    }
    errno = error;
}

void install_handler_once() {
    if (s_page_size != 0) {
        return;
    }
    s_page_size = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    struct sigaction action {};
    action.sa_sigaction = handle_bus_error;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGBUS, &action, &s_previous);
}

}  // namespace

bool guard_mapping(void* begin, unsigned long size, int prot, int fd, unsigned long long offset) {
    install_handler_once();
    auto* const mapping = new (std::nothrow)
        mapping_t{reinterpret_cast<std::uintptr_t>(begin), size, offset, prot, fd, s_first.load()};
    if (mapping == nullptr) {
        return false;
    }
    s_first = mapping;
    return true;
}

void unguard_mapping(void const* begin) {
    std::atomic<mapping_t*>* link = &s_first;
    while (mapping_t* const mapping = *link) {
        if (mapping->begin == reinterpret_cast<std::uintptr_t>(begin)) {
            *link = mapping->next.load();
            delete mapping;
            return;
        }
        link = &mapping->next;
    }
}

}  // namespace libutils
