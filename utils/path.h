// SPDX-License-Identifier: MIT
// Functions that split and search paths.
#pragma once

#include <cstddef>
#include <string>

namespace libutils {

// Both "/" and "\" are separators on all systems, so that a path gives the same parts on each
// system. Callers depend on this. So a file name that contains "\" is split there: the stem of
// "a\b.jpg" is "b".
//
// Paths are text in the current locale (setlocale): a byte inside a multibyte character is never a
// separator. A byte that isn't valid in the locale counts as one character. Only `searchpath` reads
// the file system. No function prints or records a reason. All may be called from any thread if no
// other thread calls setlocale or setenv.

/// The four parts of a path, each with a NUL at the end. See `splitpath`.
struct splitpath_t {
    char drive[1024];
    char dir[1024];
    char name[1024];
    char ext[1024];
};

/// Returns the address of the file name: the text after the last separator, or all of `path` if
/// there is none.
char const* baseptr(char const* path);

/// Returns the file name up to its last ".": "c.tar" for "/a/b/c.tar.gz", and "" for ".hidden".
std::string basename(std::string const& path);

/// Writes the result of `basename` to `dst`, which has `size` bytes. Returns the number of bytes
/// without the NUL. If it is `size`, there is no NUL at the end.
///
/// A `src` of more than `size` characters is cut before it is split, so the result may then be part
/// of a directory name. Use the std::string version for long paths. The result contains only whole
/// characters.
std::size_t basename(char* dst, char const* src, std::size_t size);

/// Returns the directory with its separator: "/a/b/" for "/a/b/c.jpg", and "" for "c.jpg".
std::string dirname(std::string const& path);

/// Writes the result of `dirname` to `dst`. The limits are the same as for `basename`.
std::size_t dirname(char* dst, char const* src, std::size_t size);

/// Returns the directory and the stem (`basename`) of `path`, followed by `suffix`: "d/a.zvw" for
/// "d/a.jpg" and ".zvw". The stem is cut to 255 bytes.
std::string path_beside(char const* path, char const* suffix);

/// Returns 0 if `s` ends with `ext`, which includes the dot. Upper and lower case are equal.
/// Returns -1 if `s` is shorter than `ext`, otherwise the result of strncasecmp.
int extcasecmp(std::string const& s, char const* ext);
int extcasecmp(char const* s, std::size_t len, char const* ext);

/// Splits a path into four texts: "c:", "/d/", "name" and ".ext" for "c:/d/name.ext". The drive is
/// all text up to and including the first ":", on all systems, so a colon in a directory name
/// counts, too. A missing part is an empty text. Each buffer must have 1024 bytes. Longer parts are
/// cut to 1023 bytes and a NUL.
void splitpath(char const* path, char* drive, char* dir, char* name, char* ext);

/// Writes the four texts and a NUL to `dst`, one after the other. Returns `dst`, which must be
/// large enough.
char* concatpath(char* dst, char const* a, char const* b, char const* c, char const* d);

/// Splits a path into the fields of `parts`.
void split(splitpath_t& parts, char const* path);

/// Writes the four fields and a NUL to `dst`, which must have 4093 bytes. Returns `dst`.
char* concat(char* dst, splitpath_t const& parts);

/// Returns the first of these paths that exists, also if it is a directory:
///
///   1. `name`
///   2. ".//" and `name`
///   3. each directory in the environment variable PATH, "/" and `name`
///   4. the drive and the directory of `extra` (see `splitpath`), "/" and `name`
///
/// `extra` is the path of a file, for example argv[0], or null for no fourth path. If `extra` has
/// no directory, the fourth path is "/" and `name`. Returns `name` if no path exists, so open the
/// result to find out.
std::string searchpath(std::string const& name, char const* extra);

/// Return `path` unchanged, because the separator is "/" on the supported systems. Elsewhere, the
/// first would convert each "/" to the separator of the system, and the second would convert it
/// back. Callers depend on both names.
std::string delimconvert(std::string const& path);
std::string deliminvert(std::string const& path);

}  // namespace libutils
