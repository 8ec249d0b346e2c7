// SPDX-License-Identifier: MIT
// The text form of the value types: a type name, then the numbers in parentheses.
#pragma once

#include <iosfwd>

#include "geometry/mtype.h"

namespace libgr {

/// A record of the type table. A plain float has its own operators already.
template <typename T>
concept typed_text = mtype_of<T>
!= MTYPE_END&& mtype_of<T> != MTYPE_FLOAT;

/// Writes the type's name, "(", the fields separated by ", ", and ")", with no line end, for
/// example `pos3(1.000000, 2.000000, 3.000000)`: floats fixed, with the stream's precision; a
/// record within a record with its own name; a matrix in four lines. The flags of the stream are
/// left as they were. The channels of byte colours are written as characters, not as numbers, and
/// aren't meant to be read back.
std::ostream& write_value(std::ostream& out, mtype_value_t const& value);

/// Reads a value of the alternative that `value` holds.
///
/// Whatever stands before "(" is skipped, the type's name included; one character of any kind is a
/// separator; ")" may be missing. Blanks between items mean nothing. Only a record within a record
/// must have its name: if it has another, the reading ends there. A `pst3w` asks for `rot3` where
/// the writer has `rev3`, so it doesn't read back.
///
/// Each field is set as it is read, and those that can't be parsed, or that the stream ends before,
/// stay as they were, with failbit set; `irt3` and `pst3w` change only when all was read.
void read_value(std::istream& in, mtype_value_t& value);

template <typed_text T>
std::ostream& operator<<(std::ostream& out, T const& value) {
    return write_value(out, mtype_value_t(std::in_place_type<T>, value));
}

template <typed_text T>
std::istream& operator>>(std::istream& in, T& value) {
    mtype_value_t any(std::in_place_type<T>, value);
    read_value(in, any);
    value = std::get<T>(any);
    return in;
}

/// Labelled lines, each with its end, for a person to read.
std::ostream& operator<<(std::ostream& out, triangle_t const& value);

/// The name; "no type", "table error" or "range over" and a line end for a value that has none.
std::ostream& operator<<(std::ostream& out, e_mtype_t type);

/// Reads a name of up to 16 characters, that ends before "(", ")", ",", NUL or a line's or a
/// field's end, and leaves skipws on. A name that isn't in the table gives `MTYPE_END`.
std::istream& operator>>(std::istream& in, e_mtype_t& type);

/// Writes the value by its type. The shapes (`box2` to `dim3`, `surface` to `line3d`) and a reader
/// without a type come out as nothing.
std::ostream& operator<<(std::ostream& out, mtype_reader const& reader);

/// Reads a name and then a value of that type; for a name that isn't in the table the text is
/// skipped up to the next ")".
std::istream& operator>>(std::istream& in, mtype_reader& reader);

}  // namespace libgr
