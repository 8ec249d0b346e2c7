// SPDX-License-Identifier: MIT
// Functions that pick paths apart; both "/" and "\" separate everywhere.
#pragma once

#include <cstddef>
#include <string>

namespace libutils {

// A path is walked by the characters of the locale that is set, so that a byte within a multibyte
// character can't pass for a separator. Bytes that are no character in the locale count one by one.

/// The four parts of a path, each NUL-terminated and cut at 1023 bytes.
struct splitpath_t {
    char drive[1024];
    char dir[1024];
    char name[1024];
    char ext[1024];
};

/// Behind the last separator of `path`, or `path` itself when there is none.
char const* baseptr(char const* path);

/// The file's stem: the text behind the last separator, up to its last ".". "/a/b/c.tar.gz" gives
/// "c.tar", ".hidden" gives "".
std::string basename(std::string const& path);

/// Writes the stem of at most the first `size` characters of `src`, at most `size` bytes of it, and
/// returns its length in bytes. A result of `size` has no closing NUL.
std::size_t basename(char* dst, char const* src, std::size_t size);

/// The text through the last separator, or "" when there is none: "/a/b/c.jpg" gives "/a/b/".
std::string dirname(std::string const& path);

/// Writes the directory part, within the same limits as `basename`.
std::size_t dirname(char* dst, char const* src, std::size_t size);

/// Returns the path of a file that accompanies the one at `path`: its directory, its stem and
/// `suffix`. The stem is taken from the first 256 characters of the file's name and has at most 255
/// bytes.
std::string path_beside(char const* path, char const* suffix);

/// 0 when `s` ends in `ext` (with its dot) without regard to case, -1 when `s` is shorter than
/// `ext`, else the sign of the comparison.
int extcasecmp(std::string const& s, char const* ext);
int extcasecmp(char const* s, std::size_t len, char const* ext);

/// Splits a path into four texts that need room for 1024 bytes each: through the first ":", through
/// the last separator, up to the last ".", and from there on. What is longer is cut.
void splitpath(char const* path, char* drive, char* dir, char* name, char* ext);

/// Writes the four texts in a row, with no test of the room, and returns `dst`.
char* concatpath(char* dst, char const* a, char const* b, char const* c, char const* d);

void split(splitpath_t& parts, char const* path);

/// Writes the four fields in a row; `dst` needs room for 4093 bytes. Returns `dst`.
char* concat(char* dst, splitpath_t const& parts);

/// Where a file of that name is found: as it stands, in "./", along the PATH variable, or beside
/// the file `extra`, which may be null. Without a hit, `name` as it stands.
std::string searchpath(std::string const& name, char const* extra);

/// The text with native separators for "/" and the other way round. Nothing changes where "/" is
/// the native one.
std::string delimconvert(std::string const& path);
std::string deliminvert(std::string const& path);

}  // namespace libutils
