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
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

namespace {

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

/// Returns the owner of the loaded file that contains the address. The program has no name.
owner_t owner_of(void* address) {
    dl_find_object object{};
    if (_dl_find_object(address, &object) != 0) {
        return owner_t::OTHER;
    }
    std::string_view const name = object.dlfo_link_map->l_name;
    auto owner = name.empty() ? owner_t::PROGRAM : owner_t::OTHER;
    for (char const* word : {"libjpeg", "libpng", "libz."}) {
        owner = name.find(word) != name.npos ? owner_t::PROGRAM : owner;
    }
    for (char const* word : {"zv_faults", "libstdc++", "libc.so", "libgcc"}) {
        owner = name.find(word) != name.npos ? owner_t::BETWEEN : owner;
    }
    return owner;
}

_Unwind_Reason_Code look_at_frame(_Unwind_Context* context, void* found) {
    owner_t const owner = owner_of(reinterpret_cast<void*>(_Unwind_GetIP(context)));
    *static_cast<owner_t*>(found) = owner;
    return owner == owner_t::BETWEEN ? _URC_NO_REASON : _URC_END_OF_STACK;
}

/// Returns true if the program made the call, directly or through the C and C++ libraries.
bool is_of_program(void* caller) {
    // The unwinder allocates memory under a lock if the process has generated code.
    [[gnu::tls_model("initial-exec")]] thread_local bool s_is_unwinding = false;
    owner_t owner = owner_of(caller);
    if (owner == owner_t::BETWEEN && !s_is_unwinding) {
        s_is_unwinding = true;
        _Unwind_Backtrace(look_at_frame, &owner);
        s_is_unwinding = false;
    }
    return owner == owner_t::PROGRAM;
}

/// Counts a call. Returns true and sets errno if the call must fail.
bool fails(std::string_view kind, int error, void* caller) {
    if (kind != s_step.kind.data() || !is_of_program(caller)) {
        return false;
    }
    ++s_step.count;
    bool const is_hit = s_step.count >= s_step.first && s_step.count - s_step.first < s_step.number;
    errno = is_hit ? error : errno;
    return is_hit;
}

/// The function of the same name in the libraries.
#define NEXT(function) reinterpret_cast<decltype(&function)>(dlsym(RTLD_NEXT, #function))
#define FAILS(kind, error) fails(kind, error, __builtin_return_address(0))
/// Replaces a function. The further arguments are those of the call to the library.
#define REPLACE(kind, error, failure, result, name, parameters, ...)   \
    result name parameters {                                           \
        return FAILS(kind, error) ? failure : NEXT(name)(__VA_ARGS__); \
    }

void take_step(char const* line) {
    s_step = {};
    s_keyboard.next_key = 0;
    std::sscanf(line, "%15s %ld %ld %63[^\n]", s_step.kind.data(), &s_step.first, &s_step.number,
                s_step.keys.data());
}

[[gnu::constructor]] void start() {
    if (char const* first = std::getenv("FAULT")) {
        take_step(first);
    }
}

/// Prints the result of the step and reads the next one.
void next_step() {
    std::printf("%ld\n", std::exchange(s_step, {}).count);
    std::fflush(stdout);
    std::array<char, 128> line{};
    take_step(std::fgets(line.data(), line.size(), stdin) != nullptr ? line.data() : "none 0 0 q");
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
    return FAILS("open", EMFILE) ? -1 : NEXT(open)(path, flags, mode);
}

ssize_t write(int fd, void const* bytes, std::size_t size) {
    bool const is_file = fd > STDERR_FILENO;
    if (is_file && FAILS("SIGTERM", 0)) {
        std::raise(SIGTERM);
    }
    bool const is_failure = is_file && FAILS("write", ENOSPC);
    ssize_t const written = NEXT(write)(fd, bytes, is_failure ? size / 2 : size);
    errno = is_failure ? ENOSPC : errno;
    return is_failure ? -1 : written;
}

int close(int fd) {
    int const closed = NEXT(close)(fd);
    return FAILS("close", EDQUOT) ? -1 : closed;
}

// The C++ library opens files with fopen64.
REPLACE("open", EMFILE, nullptr, FILE*, fopen64, (char const* path, char const* mode), path, mode)
REPLACE("read", EIO, -1, ssize_t, read, (int fd, void* bytes, std::size_t size), fd, bytes, size)
REPLACE("mmap", ENOMEM, MAP_FAILED, void*, mmap,
        (void* hint, std::size_t size, int protection, int flags, int fd, off_t offset) noexcept,
        hint, size, protection, flags, fd, offset)
REPLACE("ftruncate", ENOSPC, -1, int, ftruncate, (int fd, off_t size) noexcept, fd, size)
REPLACE("rename", EIO, -1, int, rename, (char const* from, char const* to) noexcept, from, to)
REPLACE("fsync", EIO, -1, int, fsync, (int fd), fd)

#ifndef __SANITIZE_ADDRESS__
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) noexcept {
    return FAILS("malloc", ENOMEM) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
    return FAILS("malloc", ENOMEM) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept {
    return FAILS("malloc", ENOMEM) ? nullptr : __libc_realloc(block, size);
}
#endif

}  // extern "C"
