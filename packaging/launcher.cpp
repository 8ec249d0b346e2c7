// SPDX-License-Identifier: MIT
// The installed command: executes the program from the directory that has its data files.
//
// The program reads its data from the directory of the path by which it is started. A command on
// PATH and a link to it are in other directories. This command therefore resolves its own path
// (proc(5), /proc/pid/exe) and starts the program by a path relative to it, which is independent of
// the prefix.
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

namespace {

/// Returns the length of `path` without its last component and the slash before it.
std::size_t parent(char const* path, std::size_t length) {
    while (length > 0 && path[--length] != '/') {
    }
    return length;
}

/// Prints the action that failed, the path and the reason. Returns the exit status.
int fail(char const* action, char const* path) {
    std::fprintf(stderr, "zanoview3: %s %s: %s\n", action, path, std::strerror(errno));
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr char self[] = "/proc/self/exe";
    char const* program = ZV_PROGRAM;  // relative to this command's directory
    char path[PATH_MAX + sizeof ZV_PROGRAM];
    ssize_t const read = readlink(self, path, PATH_MAX);
    if (read < 0) {
        return fail("can't read", self);
    }
    // The resolved path contains no symbolic link, so that each ".." removes one component.
    std::size_t length = parent(path, static_cast<std::size_t>(read));
    for (; std::strncmp(program, "../", 3) == 0; program += 3) {
        length = parent(path, length);
    }
    path[length] = '/';
    std::memcpy(path + length + 1, program, std::strlen(program) + 1);
    char* none[] = {path, nullptr};
    char** const arguments = argc > 0 ? argv : none;
    arguments[0] = path;
    execv(path, arguments);
    return fail("can't start", path);
}
