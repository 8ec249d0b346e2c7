// SPDX-License-Identifier: MIT
// The installed command: executes the program from the directory that has its data files.
//
// The program looks for its data beside the path that it is started by. A command found along PATH,
// or a link to it, is elsewhere. So this command resolves its own path (proc(5), /proc/pid/exe) and
// starts the program by a path relative to it, which holds wherever both are installed.
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

namespace {

/// Shortens `path` by its last component, the slash before it included. Returns the new length.
std::size_t parent(char const* path, std::size_t length) {
    while (length > 0 && path[--length] != '/') {
    }
    return length;
}

int fail(char const* what, char const* path) {
    std::fprintf(stderr, "zanoview3: %s %s: %s\n", what, path, std::strerror(errno));
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
    // The link's text has no symbolic link in it, so that ".." can be taken off as text.
    std::size_t length = parent(path, static_cast<std::size_t>(read));
    for (; std::strncmp(program, "../", 3) == 0; program += 3) {
        length = parent(path, length);
    }
    path[length] = '/';
    std::strcpy(path + length + 1, program);
    char* none[] = {path, nullptr};
    char** const arguments = argc > 0 ? argv : none;
    arguments[0] = path;
    execv(path, arguments);
    return fail("can't start", path);
}
