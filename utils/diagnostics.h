// SPDX-License-Identifier: MIT
// Reporting of errors, a function for breakpoints, and helpers for lines of text on streams.
#pragma once

// Functions return false on failure. To get the reason as a text:
//
// ```cpp
// #include <cerrno>
// #include "utils/diagnostics.h"
// #include "utils/replacefile.h"
//
// libutils::clear_failure_reason();
// if (!libutils::replace_file("a.txt", "text\n")) {
//     libutils::reject_errno(errno);
//     // "Permission denied":
//     std::cerr << libutils::putname(libutils::failure_reason()) << std::endl;
// }
// ```
//
// The functions of this library that can fail:
//
//   function                        prints a line   records a reason   sets errno
//   reject, reject_errno            no              yes                no
//   report_error, report_limit      yes             yes                no
//   read_small_file: TOO_LONG       yes             yes                no
//   read_small_file: UNREADABLE     no              no                 if a system call failed
//   load and resize of an array     no              no                 if a system call failed
//   replace_file                    no              no                 yes
//
// Set errno to 0 before a call that doesn't always set it. `reject_errno(0)` records "read error".
//
// The process has one recorded reason, without a lock. So one thread must call all functions that
// print a line, or that record, return or clear the reason.

#include <iomanip>
#include <ios>
#include <iostream>
#include <string>
#include <string_view>

namespace libutils {

/// Does nothing. Error paths call this function before they write to the error stream, so a
/// breakpoint in it stops at all of them.
void error();

/// Saves the format flags of a stream. The destructor restores them. The width, the precision and
/// the fill character aren't saved.
struct keepflag {
    explicit keepflag(std::ostream& out) : stream(out), flags(out.flags()) {}
    keepflag(keepflag const&) = delete;
    keepflag& operator=(keepflag const&) = delete;
    ~keepflag() { stream.flags(flags); }

    std::ostream& stream;
    std::ios_base::fmtflags flags;
};

/// Returns the stream that records the reason of a failure, or null if a reason is recorded
/// already. Use `reject`.
std::ostream* begin_failure_reason();

/// Records the reason why the running operation fails, and prints nothing. The first reason is kept
/// until `clear_failure_reason`, because the innermost function knows it best. At most 255 bytes
/// are kept, in a static buffer, so that this also works without memory. Always returns false.
template <typename... Parts>
bool reject(Parts const&... parts) {
    if (std::ostream* const out = begin_failure_reason()) {
        (*out << ... << parts);
    }
    return false;
}

/// Records the text of a value of errno, for example "Permission denied", as `reject` does. Records
/// "read error" for 0. Always returns false.
bool reject_errno(int error);

/// Returns the recorded reason without a final full stop, or an empty text. The view is valid until
/// `clear_failure_reason`. The reason may contain unescaped names: print it with `putname`.
std::string_view failure_reason();

/// Forgets the recorded reason. Call it before an operation if you need the reason of its failure.
void clear_failure_reason();

/// Prints the parts as one line on the error stream, with numbers in decimal, and records them as
/// `reject` does. Always returns false, so that functions that fail can return it.
template <typename... Parts>
bool report_error(Parts const&... parts) {
    reject(parts...);
    error();
    keepflag const keep(std::cerr);
    std::cerr << std::dec;
    (std::cerr << ... << parts) << std::endl;
    return false;
}

struct _putspace {
    unsigned long n;
};
struct _putcn {
    char c;
    unsigned long n;
};

/// `n` bytes of `text`, including NULs. The bytes aren't owned.
struct _putn {
    char const* text;
    unsigned long n;
};

/// A path or another text from outside the program. The bytes aren't owned.
struct _putname {
    std::string_view text;
};

/// A value that its operator<< writes in hexadecimal.
template <typename T>
struct _puthex {
    T value;
};

/// Returns an object that writes `n` blanks when it is inserted into a stream.
inline _putspace putspace(unsigned long n) {
    return {n};
}

/// Returns an object that writes `c` `n` times when it is inserted into a stream.
inline _putcn putcn(char c, unsigned long n) {
    return {c, n};
}

/// Returns an object that writes `text` when it is inserted into a stream. A null pointer writes
/// nothing. Use it for every path: on a terminal, control characters are escaped, see
/// `escape_names_on_terminals`.
inline _putname putname(std::string_view text) {
    return {text};
}
inline _putname putname(char const* text) {
    return {text != nullptr ? std::string_view(text) : std::string_view()};
}

/// Makes `putname` escape control characters on std::cout and std::cerr if they are terminals. Call
/// it once, after setlocale.
void escape_names_on_terminals();

/// Returns `text` with each byte of a control character replaced by "\x" and two hexadecimal
/// digits. Control characters are U+0000 to U+001F, U+007F, and U+0080 to U+009F in UTF-8 or, with
/// `as_bytes`, as the single bytes 0x80 to 0x9F of 8-bit character sets.
std::string escape_controls(std::string_view text, bool as_bytes);

std::ostream& operator<<(std::ostream& out, _putspace const& space);
std::ostream& operator<<(std::ostream& out, _putcn const& run);
std::ostream& operator<<(std::ostream& out, _putn const& bytes);
std::ostream& operator<<(std::ostream& out, _putname const& name);

/// Writes the value in hexadecimal with at least 2 digits. The flags and the fill character of the
/// stream don't change.
///
///   _puthex<unsigned>{10}          0a
///   _puthex<unsigned>{255}         ff
///   the same with showbase         0x0xff: the operator and the stream both write "0x"
///   _puthex<unsigned char>{'A'}    0A: "0" and the character, not its number
///
/// Existing output depends on the last two. For the number of a byte, use `_puthex<unsigned>`.
template <typename T>
std::ostream& operator<<(std::ostream& out, _puthex<T> const& hex) {
    keepflag const keep(out);
    if ((out.flags() & std::ios_base::showbase) != 0) {
        out << "0x";
    }
    char const fill = out.fill('0');
    out << std::hex << std::setw(2) << hex.value;
    out.fill(fill);
    return out;
}

}  // namespace libutils
