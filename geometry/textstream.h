// SPDX-License-Identifier: MIT
// The text form of the value types: the name of the type and its numbers in parentheses.
#pragma once

/// Writes a size and a matrix to a file and reads them back:
///
/// ```cpp
/// #include <fstream>
///
/// #include "geometry/textstream.h"
///
/// bool copy(libgr::direction2l_t& size, libgr::matrix3w_t& view) {
///     std::ofstream("view.txt") << size << "\n" << view << "\n";  // dir2l(640, 480)
///     std::ifstream in("view.txt");
///     return static_cast<bool>(in >> size >> view);
/// }
/// ```
///
/// The names of the types are in `mtype_table` in `geometry/mtype.h`.

#include <iosfwd>

#include "geometry/mtype.h"

namespace libgr {

/// A type of the type table. A float isn't included: the standard library has its operators.
template <typename T>
concept has_text_form = (mtype_of<T> < MTYPE_END) && (mtype_of<T> != MTYPE_FLOAT);

/// Writes the name of the type, "(", the fields separated by ", ", and ")". Writes no line end.
///
/// Example: `rot3(90.000000, dir3(0.000000, 0.000000, 1.000000))`. Floats are written in fixed
/// notation with the precision of the stream. A nested record is written with its own name, a
/// matrix in four lines. The format flags of the stream don't change.
///
/// The channels of a byte colour are written as characters, each after a "0", and not as numbers.
/// Existing text depends on this form. It isn't meant to be read back.
std::ostream& write_value(std::ostream& out, mtype_value_t const& value);

/// Reads a value of the type of `value`'s current alternative.
///
/// The reader skips all characters before "(", including the name of the type. A separator may be
/// any one character. The ")" is optional. Blanks between these items are ignored. The name of a
/// nested record is checked, and reading ends at a wrong name, without failbit. A `pst3w` can't be
/// read back: its reader expects the name `rot3`, while its writer writes `rev3`. Existing text
/// depends on both names.
///
/// If a number can't be parsed, or the stream ends, failbit is set. The fields before that number
/// are stored, the others keep their values. An `irt3` or a `pst3w` is stored only as a whole.
void read_value(std::istream& in, mtype_value_t& value);

template <has_text_form T>
std::ostream& operator<<(std::ostream& out, T const& value) {
    return write_value(out, mtype_value_t(std::in_place_type<T>, value));
}

template <has_text_form T>
std::istream& operator>>(std::istream& in, T& value) {
    mtype_value_t any(std::in_place_type<T>, value);
    read_value(in, any);
    value = std::get<T>(any);
    return in;
}

/// Writes labelled lines for debug output. There is no reader.
std::ostream& operator<<(std::ostream& out, triangle_t const& value);

/// Writes the name of the type, without a line end. For a value without a name, writes "no type",
/// "table error" or "range over", with a line end.
std::ostream& operator<<(std::ostream& out, e_mtype_t type);

/// Reads the name of a type. The name ends before "(", ")", ",", a tab, a line end or a NUL, or
/// after 16 characters. Blanks are skipped, even inside the name. An unknown name gives
/// `MTYPE_END`. The flag skipws of the stream is set afterwards. An empty name at the end of the
/// stream sets failbit.
std::istream& operator>>(std::istream& in, e_mtype_t& type);

/// Writes the value with the writer of its type. Writes nothing for the types `box2`, `box3`,
/// `dim2`, `dim3`, `surface`, `line2d`, `line3d` and `MTYPE_END`. Existing output depends on this.
std::ostream& operator<<(std::ostream& out, mtype_reader const& reader);

/// Reads the name of a type and a value of that type. After an unknown name, skips the text up to
/// and including the next ")".
std::istream& operator>>(std::istream& in, mtype_reader& reader);

}  // namespace libgr
