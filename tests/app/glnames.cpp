// SPDX-License-Identifier: MIT
// Counts the OpenGL names of the viewer. Replaces glext/procaddress.cpp in a viewer for tests, and
// wraps the functions that generate and delete names. The counts are 64-bit integers in the file
// ZANOVIEW3_GL_NAMES, in the order of the rows.
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "glext/glextloader.h"

namespace {

/// Returns the driver's function.
template <typename function_t>
function_t driver(char const* name) {
    static void* const library = dlopen("libGL.so.1", RTLD_LAZY);
    return library != nullptr ? reinterpret_cast<function_t>(dlsym(library, name)) : nullptr;
}

void count(std::size_t kind, std::int64_t change) {
    static std::array<std::int64_t, 3> s_counts;
    static int const file =
        open(std::getenv("ZANOVIEW3_GL_NAMES"), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    s_counts[kind] += change;
    if (pwrite(file, s_counts.data(), sizeof s_counts, 0) < 0) {
        std::abort();
    }
}

struct row_t {
    std::string_view generate, remove;
    void* generate_wrapper;
    void* remove_wrapper;
};
extern std::array<row_t, 3> const rows;

template <std::size_t kind>
void generate(GLsizei n, GLuint* names) {
    driver<void (*)(GLsizei, GLuint*)>(rows[kind].generate.data())(n, names);
    count(kind, n);
}

template <std::size_t kind>
void remove(GLsizei n, GLuint const* names) {
    driver<void (*)(GLsizei, GLuint const*)>(rows[kind].remove.data())(n, names);
    for (GLsizei i = 0; i < n; ++i) {
        count(kind, names[i] != 0 ? -1 : 0);
    }
}

GLuint generate_lists(GLsizei n) {
    count(2, n);
    return driver<GLuint (*)(GLsizei)>("glGenLists")(n);
}

void remove_lists(GLuint first, GLsizei n) {
    driver<void (*)(GLuint, GLsizei)>("glDeleteLists")(first, n);
    count(2, first != 0 ? -n : 0);
}

template <std::size_t kind>
row_t row(char const* generated, char const* removed) {
    return {generated, removed, reinterpret_cast<void*>(generate<kind>),
            reinterpret_cast<void*>(remove<kind>)};
}

std::array<row_t, 3> const rows = {{
    row<0>("glGenTextures", "glDeleteTextures"),
    row<1>("glGenProgramsARB", "glDeleteProgramsARB"),
    {"glGenLists", "glDeleteLists", reinterpret_cast<void*>(generate_lists),
     reinterpret_cast<void*>(remove_lists)},
}};

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    for (row_t const& row : rows) {
        if (row.generate == symbol) {
            return row.generate_wrapper;
        }
        if (row.remove == symbol) {
            return row.remove_wrapper;
        }
    }
    return driver<void*>(symbol);
}
