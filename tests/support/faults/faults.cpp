// SPDX-License-Identifier: MIT
// A library that is preloaded into the viewer. It presses keys and makes system calls fail.
//
// The variable FAULT describes the first step, the program's start, and each line on standard input
// the next one: "kind first number keys". In a step, the calls of the kind from the `first` one on
// fail, `number` of them. glfwWaitEvents passes one of the keys to the program's key callback. At
// the end of a step, the number of calls of the kind is printed on a line. At the end of the input,
// q is pressed.
//
// Only calls of the program, libjpeg, libpng and zlib count. GLFW and the OpenGL driver may end the
// process if they get no memory.
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>
#include <unwind.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

namespace {

struct kind_t {
    std::string_view name;
    int error;
};
constexpr kind_t open_kind{"open", EMFILE}, read_kind{"read", EIO}, write_kind{"write", ENOSPC},
    mmap_kind{"mmap", ENOMEM}, truncate_kind{"ftruncate", ENOSPC}, rename_kind{"rename", EIO},
    sync_kind{"fsync", EIO}, close_kind{"close", EDQUOT}, malloc_kind{"malloc", ENOMEM},
    terminate_kind{"SIGTERM", 0};  // sent during a write

struct {
    std::array<char, 16> kind;
    std::array<char, 64> keys;
    long first;
    long number;
    long count;
} s_step;

struct {
    GLFWwindow* window;
    GLFWkeyfun press;
    std::size_t next_key;
} s_keyboard;

enum class owner_t { PROGRAM, BETWEEN, OTHER };

/// The code of one loaded file.
struct range_t {
    std::uintptr_t begin, end;
    owner_t owner;
};
std::array<range_t, 16> s_ranges;
std::size_t s_range_count = 0;

int add_range(dl_phdr_info* info, std::size_t, void*) {
    std::string_view const name = info->dlpi_name;
    auto owner = owner_t::OTHER;
    for (char const* word : {"libjpeg", "libpng", "libz."}) {
        owner = name.find(word) != name.npos ? owner_t::PROGRAM : owner;
    }
    for (char const* word : {"zv_faults", "libstdc++", "libc.so", "libgcc"}) {
        owner = name.find(word) != name.npos ? owner_t::BETWEEN : owner;
    }
    owner = name.empty() && s_range_count == 0 ? owner_t::PROGRAM : owner;
    for (int i = 0; i < info->dlpi_phnum && owner != owner_t::OTHER; ++i) {
        ElfW(Phdr) const& segment = info->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0) {
            std::uintptr_t const begin = info->dlpi_addr + segment.p_vaddr;
            s_ranges.at(s_range_count++) = {begin, begin + segment.p_memsz, owner};
        }
    }
    return 0;
}

owner_t owner_of(std::uintptr_t address) {
    for (std::size_t i = 0; i < s_range_count; ++i) {
        if (s_ranges[i].begin <= address && address < s_ranges[i].end) {
            return s_ranges[i].owner;
        }
    }
    return owner_t::OTHER;
}

_Unwind_Reason_Code look_at_frame(_Unwind_Context* context, void* found) {
    owner_t const owner = owner_of(_Unwind_GetIP(context));
    *static_cast<owner_t*>(found) = owner;
    return owner == owner_t::BETWEEN ? _URC_NO_REASON : _URC_END_OF_STACK;
}

/// Returns true if the program made the call, directly or through the C and C++ libraries.
bool is_of_program(void* caller) {
    // The unwinder allocates memory under a lock if the process has generated code.
    [[gnu::tls_model("initial-exec")]] thread_local bool s_is_unwinding = false;
    owner_t owner = owner_of(reinterpret_cast<std::uintptr_t>(caller));
    if (owner == owner_t::BETWEEN && !s_is_unwinding) {
        s_is_unwinding = true;
        _Unwind_Backtrace(look_at_frame, &owner);
        s_is_unwinding = false;
    }
    return owner == owner_t::PROGRAM;
}

/// Counts a call. Returns true and sets errno if the call must fail.
bool fails(kind_t const& kind, void* caller) {
    if (kind.name != s_step.kind.data() || !is_of_program(caller)) {
        return false;
    }
    ++s_step.count;
    bool const is_hit = s_step.count >= s_step.first && s_step.count - s_step.first < s_step.number;
    errno = is_hit ? kind.error : errno;
    return is_hit;
}

/// Returns the function of the same name in the libraries.
template <typename function_t>
function_t* next(char const* name, function_t*) {
    return reinterpret_cast<function_t*>(dlsym(RTLD_NEXT, name));
}
#define NEXT(function) next(#function, &function)

void take_step(char const* line) {
    s_step = {};
    s_keyboard.next_key = 0;
    std::sscanf(line, "%15s %ld %ld %63[^\n]", s_step.kind.data(), &s_step.first, &s_step.number,
                s_step.keys.data());
}

[[gnu::constructor]] void start() {
    dl_iterate_phdr(add_range, nullptr);
    if (char const* first = std::getenv("FAULT")) {
        take_step(first);
    }
}

/// Prints the result of the step and reads the next one.
void next_step() {
    std::array<char, 128> line{};
    int const length = std::snprintf(line.data(), line.size(), "%ld\n", s_step.count);
    s_step = {};
    NEXT(write)(STDOUT_FILENO, line.data(), static_cast<std::size_t>(length));
    std::size_t end = 0;
    while (end + 1 < line.size() && NEXT(read)(STDIN_FILENO, &line.at(end), 1) == 1 &&
           line.at(end) != '\n') {
        ++end;
    }
    line.at(end) = '\0';
    take_step(end != 0 ? line.data() : "none 0 0 q");
}

}  // namespace

extern "C" {

GLFWkeyfun glfwSetKeyCallback(GLFWwindow* window, GLFWkeyfun callback) {
    s_keyboard.window = window;
    s_keyboard.press = callback;
    return NEXT(glfwSetKeyCallback)(window, callback);
}

void glfwWaitEvents() {
    glfwPollEvents();
    if (s_step.keys.at(s_keyboard.next_key) == '\0') {
        next_step();
    }
    char const key = s_step.keys.at(s_keyboard.next_key++);
    bool const is_lower = key >= 'a' && key <= 'z';
    bool const is_upper = key >= 'A' && key <= 'Z';
    int const code = key == '<' ? GLFW_KEY_HOME : is_lower ? key - 'a' + 'A' : key;
    s_keyboard.press(s_keyboard.window, code, 0, GLFW_PRESS, is_upper ? GLFW_MOD_SHIFT : 0);
}

int open(char const* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    unsigned const mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned) : 0;
    va_end(arguments);
    return fails(open_kind, __builtin_return_address(0)) ? -1 : NEXT(open)(path, flags, mode);
}

// The C++ library opens files with it.
FILE* fopen64(char const* path, char const* mode) {
    return fails(open_kind, __builtin_return_address(0)) ? nullptr : NEXT(fopen64)(path, mode);
}

ssize_t read(int fd, void* bytes, std::size_t size) {
    return fails(read_kind, __builtin_return_address(0)) ? -1 : NEXT(read)(fd, bytes, size);
}

ssize_t write(int fd, void const* bytes, std::size_t size) {
    bool const is_file = fd > STDERR_FILENO;
    if (is_file && fails(terminate_kind, __builtin_return_address(0))) {
        std::raise(SIGTERM);
    }
    bool const is_failure = is_file && fails(write_kind, __builtin_return_address(0));
    ssize_t const written = NEXT(write)(fd, bytes, is_failure ? size / 2 : size);
    errno = is_failure ? write_kind.error : errno;
    return is_failure ? -1 : written;
}

void* mmap(void* hint, std::size_t size, int protection, int flags, int fd, off_t offset) noexcept {
    return fails(mmap_kind, __builtin_return_address(0))
               ? MAP_FAILED
               : NEXT(mmap)(hint, size, protection, flags, fd, offset);
}

int ftruncate(int fd, off_t size) noexcept {
    return fails(truncate_kind, __builtin_return_address(0)) ? -1 : NEXT(ftruncate)(fd, size);
}

int rename(char const* from, char const* to) noexcept {
    return fails(rename_kind, __builtin_return_address(0)) ? -1 : NEXT(rename)(from, to);
}

int fsync(int fd) {
    return fails(sync_kind, __builtin_return_address(0)) ? -1 : NEXT(fsync)(fd);
}

int close(int fd) {
    int const closed = NEXT(close)(fd);
    return fails(close_kind, __builtin_return_address(0)) ? -1 : closed;
}

#ifndef __SANITIZE_ADDRESS__
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) noexcept {
    return fails(malloc_kind, __builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
    return fails(malloc_kind, __builtin_return_address(0)) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept {
    return fails(malloc_kind, __builtin_return_address(0)) ? nullptr : __libc_realloc(block, size);
}
#endif

}  // extern "C"
