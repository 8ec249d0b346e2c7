// SPDX-License-Identifier: MIT
// The hook that failure paths call and the small stream helpers that lines are written with.
#pragma once

#include <iomanip>
#include <ios>
#include <iostream>

namespace libutils {

/// An empty hook: error paths call it just before they write to the error stream, so that a
/// debugger can stop at all of them.
void error();

/// Writes a stream's format flags back at the end of a block.
struct keepflag {
    explicit keepflag(std::ostream& out) : stream(out), flags(out.flags()) {}
    keepflag(keepflag const&) = delete;
    keepflag& operator=(keepflag const&) = delete;
    ~keepflag() { stream.flags(flags); }

    std::ostream& stream;
    std::ios_base::fmtflags flags;
};

/// Writes the parts as one line on the error stream, numbers in decimal. Always false, so that who
/// refuses something can return it.
template <typename... Parts>
bool refuse(Parts const&... parts) {
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

/// `n` bytes of `text`, NUL or not. The bytes aren't owned.
struct _putn {
    char const* text;
    unsigned long n;
};

/// One value in the colour text form: see the operator.
template <typename T>
struct _puthex {
    T value;
};

/// `n` blanks, to be inserted into a stream.
inline _putspace putspace(unsigned long n) {
    return {n};
}

/// `c` repeated `n` times, to be inserted into a stream.
inline _putcn putcn(char c, unsigned long n) {
    return {c, n};
}

std::ostream& operator<<(std::ostream& out, _putspace const& space);
std::ostream& operator<<(std::ostream& out, _putcn const& run);
std::ostream& operator<<(std::ostream& out, _putn const& bytes);

/// Inserts the value in hexadecimal, in a field of width 2 filled with "0", behind "0x" when the
/// stream has showbase set. An unsigned char goes to the stream as a character, so the output is
/// that byte itself behind one "0": text forms depend on these bytes. Flags and fill come back.
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
