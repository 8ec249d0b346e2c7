// SPDX-License-Identifier: MIT
// Functions that split and search paths.
#include "utils/path.h"

#include <strings.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>
#include <list>

#include "utils/bits.h"
#include "utils/token.h"

namespace libutils {

namespace {

constexpr std::size_t no_limit = std::numeric_limits<std::size_t>::max();
constexpr std::size_t part_size = sizeof(splitpath_t::name);

/// Iterates over the characters of a text in the current locale.
class character_walk_t {
  public:
    explicit character_walk_t(char const* text) : m_text(text), m_length(std::strlen(text)) {}

    bool at_end() const { return m_position == m_length; }
    std::size_t position() const { return m_position; }

    /// Moves to the next character. Returns the current one if it has one byte, otherwise 0.
    char next() {
        char const* const here = m_text + m_position;
        std::size_t bytes = std::mbrlen(here, m_length - m_position, &m_state);
        if (bytes == 0 || bytes > m_length - m_position) {  // invalid, or cut
            m_state = {};
            bytes = 1;
        }
        m_position += bytes;
        return bytes == 1 ? *here : '\0';
    }

  private:
    char const* m_text;
    std::size_t m_length;
    std::size_t m_position = 0;
    std::mbstate_t m_state{};
};

/// Byte offsets into a path: the start of the file name, the last "." of the file name or its end,
/// and the end.
struct marks_t {
    std::size_t name = 0;
    std::size_t dot = 0;
    std::size_t end = 0;
};

/// Returns the marks of the first `limit` characters of a path.
marks_t marks(char const* path, std::size_t limit) {
    marks_t found;
    bool dotted = false;
    character_walk_t walk(path);
    for (std::size_t n = 0; n < limit && !walk.at_end(); ++n) {
        std::size_t const here = walk.position();
        char const c = walk.next();
        if (c == '/' || c == '\\') {
            found.name = walk.position();
            dotted = false;
        } else if (c == '.') {
            found.dot = here;
            dotted = true;
        }
    }
    found.end = walk.position();
    if (!dotted) {
        found.dot = found.end;
    }
    return found;
}

/// Writes the characters of `text` that fit into `size` bytes, and a NUL if it fits. Returns the
/// number of bytes without the NUL.
std::size_t put_characters(char* dst, std::string const& text, std::size_t size) {
    std::size_t length = 0;
    for (character_walk_t walk(text.c_str()); !walk.at_end();) {
        walk.next();
        if (walk.position() > size) {
            break;
        }
        length = walk.position();
    }
    std::memcpy(dst, text.data(), length);
    if (length < size) {
        dst[length] = '\0';
    }
    return length;
}

/// Writes a text of `length` bytes to a field of `splitpath_t`. A longer text is cut.
void put_part(char* dst, char const* text, std::size_t length) {
    std::size_t const kept = min2(length, part_size - 1);
    std::memcpy(dst, text, kept);
    dst[kept] = '\0';
}

bool exists(std::string const& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0;
}

std::string with_native_separators(std::string const& path) {
    constexpr wchar_t native = L'/';
    std::wstring wide = str2wstr(path);
    if (wide.empty()) {
        return path;
    }
    for (wchar_t& c : wide) {
        c = c == L'/' ? native : c;
    }
    return wstr2str(wide);
}

}  // namespace

char const* baseptr(char const* path) {
    return path + marks(path, no_limit).name;
}

std::string basename(std::string const& path) {
    marks_t const found = marks(path.c_str(), no_limit);
    return path.substr(found.name, found.dot - found.name);
}

std::size_t basename(char* dst, char const* src, std::size_t size) {
    marks_t const found = marks(src, size);
    return put_characters(dst, std::string(src + found.name, found.dot - found.name), size);
}

std::string dirname(std::string const& path) {
    return path.substr(0, marks(path.c_str(), no_limit).name);
}

std::size_t dirname(char* dst, char const* src, std::size_t size) {
    return put_characters(dst, std::string(src, marks(src, size).name), size);
}

std::string path_beside(char const* path, char const* suffix) {
    char const* const name = baseptr(path);
    std::array<char, 256> stem{};
    basename(stem.data(), name, stem.size());
    stem.back() = '\0';
    return std::string(path, name) + stem.data() + suffix;
}

int extcasecmp(std::string const& s, char const* ext) {
    return extcasecmp(s.data(), s.size(), ext);
}

int extcasecmp(char const* s, std::size_t len, char const* ext) {
    std::size_t const extlen = std::strlen(ext);
    return extlen > len ? -1 : ::strncasecmp(s + (len - extlen), ext, extlen);
}

void splitpath(char const* path, char* drive, char* dir, char* name, char* ext) {
    char const* const colon = std::strchr(path, ':');
    char const* const rest = colon != nullptr ? colon + 1 : path;
    marks_t const found = marks(rest, no_limit);
    put_part(drive, path, static_cast<std::size_t>(rest - path));
    put_part(dir, rest, found.name);
    put_part(name, rest + found.name, found.dot - found.name);
    put_part(ext, rest + found.dot, found.end - found.dot);
}

char* concatpath(char* dst, char const* a, char const* b, char const* c, char const* d) {
    char* end = dst;
    for (char const* const text : {a, b, c, d}) {
        std::size_t const length = std::strlen(text);
        std::memcpy(end, text, length);
        end += length;
    }
    *end = '\0';
    return dst;
}

void split(splitpath_t& parts, char const* path) {
    splitpath(path, parts.drive, parts.dir, parts.name, parts.ext);
}

char* concat(char* dst, splitpath_t const& parts) {
    return concatpath(dst, parts.drive, parts.dir, parts.name, parts.ext);
}

std::string searchpath(std::string const& name, char const* extra) {
    if (exists(name)) {
        return name;
    }
    std::list<std::string> directories;
    if (char const* const path = std::getenv("PATH")) {
        separate_token(directories, path, ":");
    }
    directories.emplace_front("./");
    if (extra != nullptr) {
        splitpath_t parts;
        split(parts, extra);
        directories.push_back(std::string(parts.drive) + parts.dir);
    }
    for (std::string const& directory : directories) {
        std::string candidate = directory + "/" + name;
        if (exists(candidate)) {
            return candidate;
        }
    }
    return name;
}

std::string delimconvert(std::string const& path) {
    return with_native_separators(path);
}

std::string deliminvert(std::string const& path) {
    return with_native_separators(path);
}

}  // namespace libutils
