// SPDX-License-Identifier: MIT
// The text form of the value types: the name of the type and its numbers in parentheses.
#pragma once

/// Writes a size and a matrix to a file and reads them back, rounded to 6 decimals:
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
/// Copies values of any types, one per line. Without std::ws, a line end would be read as an empty
/// name. Values are separated by blanks or line ends, not by commas.
///
/// ```cpp
/// #include <iostream>
///
/// #include "geometry/textstream.h"
///
/// bool copy_values(std::istream& in, std::ostream& out) {
///     libgr::mtype_reader reader;
///     while (in >> std::ws >> reader) {
///         if (reader.type != libgr::MTYPE_END) {  // false for an unknown name
///             libgr::write_value(out, reader.value) << "\n";
///         }
///     }
///     return reader.type == libgr::MTYPE_END;  // false after a bad number or a cut value
/// }
/// ```
///
/// The names of the types are in `mtype_table` in `geometry/mtype.h`. A stream must not be used by
/// two threads at the same time. No function prints a message.

#include <iosfwd>

#include "geometry/mtype.h"

namespace libgr {

/// True for the types in `mtype_table`, except float. The standard library has operators for float.
template <typename T>
concept has_text_form = (mtype_of<T> < MTYPE_END) && (mtype_of<T> != MTYPE_FLOAT);

/// Writes the name of the type, "(", the fields in the order of their declaration with ", " between
/// them, and ")". Writes no line end. A record within a record has its own name, and a matrix takes
/// four lines. Example: `rot3(90.000000, dir3(0.000000, 0.000000, 1.000000))`.
///
/// Floats have fixed notation and the precision of the stream. The default is 6 decimals, so values
/// are rounded to 0.000001. `out << std::setprecision(149)` writes every float without loss.
/// Infinities and NaNs can be written but not read. The format flags of the stream don't change.
///
/// The channels of a byte colour are written as characters, each after a "0", and can't be read
/// back. Existing text depends on this form. To write numbers, convert a `color3aub_t` to a
/// `color3a_t` with `color3a`.
std::ostream& write_value(std::ostream& out, mtype_value_t const& value);

/// Reads the fields of the type that `value` contains. Skips all characters before "(", including
/// the name, which isn't checked. The separator of two fields is any one character. Blanks are
/// skipped.
///
///   text                         failbit    fields of `value`
///   no "("                       set        unchanged; the stream is at its end
///   bad number, end of stream    set        changed only before that number
///   wrong name within a record   not set    changed only before that name; reading stops after it
///   no ")" after the last field  not set    all changed
///
/// An `irt3` or a `pst3w` changes only as a whole. A float is read between any two characters,
/// which must both exist. To go on after a bad number, use in.clear() and in.ignore(n, '\n').
///
/// A `pst3w` can't be read back: the reader expects the names `rot3`, `rot3` and `pos3`, but the
/// writer writes `rev3` for `rot3`. Existing text depends on both.
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

/// Writes lines with labels, for debug output.
std::ostream& operator<<(std::ostream& out, triangle_t const& value);

/// Writes the name of the type without a line end. Writes "no type" for `MTYPE_END`, and
/// "range over" for greater numbers, with a line end.
std::ostream& operator<<(std::ostream& out, e_mtype_t type);

/// Reads the name of a type. Skips spaces, even within the name. The name ends after 16 characters,
/// or before a parenthesis, a comma, a tab, a line end, a NUL or the end of the stream. So it is
/// empty if a tab or a line end precedes it: use `in >> std::ws >> type`.
///
/// `type` is `MTYPE_END` after an unknown or empty name. Only an empty name at the end of the
/// stream sets failbit. The function sets the flag skipws of the stream.
std::istream& operator>>(std::istream& in, e_mtype_t& type);

/// Writes `reader.value` with `write_value`. Writes nothing if `reader.type` is `MTYPE_END` or
/// isn't the type of the value, or is `box2`, `box3`, `dim2`, `dim3`, `surface`, `line2d` or
/// `line3d`. Existing output depends on this. For these types, use `write_value`.
std::ostream& operator<<(std::ostream& out, mtype_reader const& reader);

/// Reads the name of a type into `reader.type`, and with `read_value` a value of this type into
/// `reader.value`. If the previous value had another type, all fields are 0 before they are read.
/// After a failed read of the value, `reader.type` is still its type.
///
/// After an unknown or empty name, the type is `MTYPE_END`, the value is unchanged, and the text up
/// to and including the next ")" is skipped. Failbit is set if there is no ")". An unknown
/// value that contains other values takes several reads, each with the type `MTYPE_END`.
std::istream& operator>>(std::istream& in, mtype_reader& reader);

}  // namespace libgr
