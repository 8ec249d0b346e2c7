// SPDX-License-Identifier: MIT
// Counts the OpenGL names of the viewer. Replaces glext/procaddress.cpp in a viewer for tests, and
// wraps the functions that generate and delete names. The counts are 64-bit integers in the file
// ZANOVIEW3_GL_NAMES, in the order of the rows, with display lists last.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>

#include "glext/glextloader.h"
#include "utils/filedescriptor.h"

namespace {

constexpr std::size_t lists = 4;  // the number of the kind of display lists, after the rows
std::int64_t* counts = nullptr;
std::array<std::set<GLuint>, lists + 1> live;

/// Returns the driver's function.
template <typename function_t>
function_t driver(char const* name) {
    static void* const library = dlopen("libGL.so.1", RTLD_LAZY);
    return library != nullptr ? reinterpret_cast<function_t>(dlsym(library, name)) : nullptr;
}

void publish(std::size_t kind) {
    counts[kind] = static_cast<std::int64_t>(live[kind].size());
}

struct row_t {
    std::string_view generate, remove;
    void (*generate_wrapper)(GLsizei, GLuint*);
    void (*remove_wrapper)(GLsizei, GLuint const*);
};
extern std::array<row_t, lists> const rows;

template <std::size_t kind>
void generate(GLsizei n, GLuint* names) {
    driver<void (*)(GLsizei, GLuint*)>(rows[kind].generate.data())(n, names);
    live[kind].insert(names, names + n);
    publish(kind);
}

template <std::size_t kind>
void remove(GLsizei n, GLuint const* names) {
    driver<void (*)(GLsizei, GLuint const*)>(rows[kind].remove.data())(n, names);
    for (GLsizei i = 0; i < n; ++i) {
        live[kind].erase(names[i]);
    }
    publish(kind);
}

std::array<row_t, lists> const rows = {{
    {"glGenTextures", "glDeleteTextures", generate<0>, remove<0>},
    {"glGenProgramsARB", "glDeleteProgramsARB", generate<1>, remove<1>},
    {"glGenBuffers", "glDeleteBuffers", generate<2>, remove<2>},
    {"glGenFramebuffers", "glDeleteFramebuffers", generate<3>, remove<3>},
}};

GLuint generate_lists(GLsizei n) {
    GLuint const first = driver<GLuint (*)(GLsizei)>("glGenLists")(n);
    for (GLuint i = 0; first != 0 && i < static_cast<GLuint>(n); ++i) {
        live[lists].insert(first + i);
    }
    publish(lists);
    return first;
}

void remove_lists(GLuint first, GLsizei n) {
    driver<void (*)(GLuint, GLsizei)>("glDeleteLists")(first, n);
    live[lists].erase(live[lists].lower_bound(first),
                      live[lists].lower_bound(first + static_cast<GLuint>(n)));
    publish(lists);
}

void open_counts() {
    constexpr std::size_t size = (lists + 1) * sizeof *counts;
    char const* const path = std::getenv("ZANOVIEW3_GL_NAMES");
    libutils::file_descriptor_t const file(
        path != nullptr ? open(path, O_RDWR | O_CREAT | O_CLOEXEC, 0600) : -1);
    if (ftruncate(file.get(), size) != 0) {
        std::abort();
    }
    void* const mapping = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
    counts = mapping != MAP_FAILED ? static_cast<std::int64_t*>(mapping) : nullptr;
}

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    if (counts == nullptr) {
        open_counts();
    }
    for (row_t const& row : rows) {
        if (row.generate == symbol) {
            return reinterpret_cast<void*>(row.generate_wrapper);
        }
        if (row.remove == symbol) {
            return reinterpret_cast<void*>(row.remove_wrapper);
        }
    }
    if (symbol == std::string_view("glGenLists")) {
        return reinterpret_cast<void*>(generate_lists);
    }
    if (symbol == std::string_view("glDeleteLists")) {
        return reinterpret_cast<void*>(remove_lists);
    }
    return driver<void*>(symbol);
}
