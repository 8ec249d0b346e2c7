// SPDX-License-Identifier: MIT
// The lookup of OpenGL's entry points in the system's library, apart so that tests can replace it.
#include <dlfcn.h>

#include "glext/glextloader.h"

namespace {

#ifdef __APPLE__
constexpr char g_library[] = "/System/Library/Frameworks/OpenGL.framework/Versions/Current/OpenGL";
#else
constexpr char g_library[] = "libGL.so.1";
#endif

}  // namespace

void* __gl_GetProcAddress(char const* symbol) {
    static void* handle = nullptr;
    if (!handle)
        handle = dlopen(g_library, RTLD_LAZY);
    return handle ? dlsym(handle, symbol) : nullptr;
}
