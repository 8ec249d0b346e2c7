// SPDX-License-Identifier: MIT
// The lookup of entry points in the system's OpenGL library, in a file that tests can replace.
#include <dlfcn.h>

#include "glext/glextloader.h"

namespace {

#ifdef __APPLE__
constexpr char library_path[] =
    "/System/Library/Frameworks/OpenGL.framework/Versions/Current/OpenGL";
#else
constexpr char library_path[] = "libGL.so.1";
#endif

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    static void* s_handle = nullptr;
    if (!s_handle) {
        s_handle = dlopen(library_path, RTLD_LAZY);
    }
    return s_handle ? dlsym(s_handle, symbol) : nullptr;
}
