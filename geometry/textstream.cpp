// SPDX-License-Identifier: MIT
// The writers and readers of the text form, which share one list of fields for each type.
#include "geometry/textstream.h"

#include <array>
#include <istream>
#include <ostream>
#include <tuple>
#include <utility>

#include "utils/diagnostics.h"

namespace libgr {

namespace {

// The fields of each type, in the order in which they are written.
template <typename T>
constexpr auto members = std::tuple(&T::x, &T::y, &T::z);
template <>
constexpr auto members<position2_t> = std::tuple(&position2_t::x, &position2_t::y);
template <>
constexpr auto members<direction2_t> = std::tuple(&direction2_t::x, &direction2_t::y);
template <>
constexpr auto members<position2l_t> = std::tuple(&position2l_t::x, &position2l_t::y);
template <>
constexpr auto members<direction2l_t> = std::tuple(&direction2l_t::x, &direction2l_t::y);
template <>
constexpr auto members<quaternion_t> = std::tuple(&quaternion_t::x, &quaternion_t::y,
                                                  &quaternion_t::z, &quaternion_t::w);
template <>
constexpr auto members<rotation3_t> = std::tuple(&rotation3_t::angle, &rotation3_t::axis);
template <>
constexpr auto members<posture3w_t> = std::tuple(&posture3w_t::turn1, &posture3w_t::turn2,
                                                 &posture3w_t::position);
template <>
constexpr auto members<polarpos3_t> = std::tuple(&polarpos3_t::azimuth, &polarpos3_t::elevation,
                                                 &polarpos3_t::distance);
template <>
constexpr auto members<straight3_t> = std::tuple(&straight3_t::speed, &straight3_t::direction);
template <>
constexpr auto members<inertial3_t> = std::tuple(&inertial3_t::revolution, &inertial3_t::straight);
template <>
constexpr auto members<vector3w_t> = std::tuple(&vector3w_t::x, &vector3w_t::y, &vector3w_t::z,
                                                &vector3w_t::w);
template <>
constexpr auto members<color3_t> = std::tuple(&color3_t::r, &color3_t::g, &color3_t::b);
template <>
constexpr auto members<color3a_t> = std::tuple(&color3a_t::r, &color3a_t::g, &color3a_t::b,
                                               &color3a_t::a);
template <>
constexpr auto members<texcoord1_t> = std::tuple(&texcoord1_t::s);
template <>
constexpr auto members<texcoord2_t> = std::tuple(&texcoord2_t::s, &texcoord2_t::t);
template <>
constexpr auto members<texcoord2q_t> = std::tuple(&texcoord2q_t::s, &texcoord2q_t::t,
                                                  &texcoord2q_t::q);
template <>
constexpr auto members<texcoord3_t> = std::tuple(&texcoord3_t::s, &texcoord3_t::t, &texcoord3_t::r);
template <>
constexpr auto members<texcoord3q_t> = std::tuple(&texcoord3q_t::s, &texcoord3q_t::t,
                                                  &texcoord3q_t::r, &texcoord3q_t::q);
template <>
constexpr auto members<box2_t> = std::tuple(&box2_t::p0, &box2_t::p1);
template <>
constexpr auto members<box3_t> = std::tuple(&box3_t::p0, &box3_t::p1);
template <>
constexpr auto members<dim2_t> = std::tuple(&dim2_t::x, &dim2_t::y);
template <>
constexpr auto members<color3aub_t> = std::tuple(&color3aub_t::r, &color3aub_t::g, &color3aub_t::b,
                                                 &color3aub_t::a);
template <>
constexpr auto members<color3ub_t> = std::tuple(&color3ub_t::r, &color3ub_t::g, &color3ub_t::b);
template <>
constexpr auto members<color1aub_t> = std::tuple(&color1aub_t::gray, &color1aub_t::a);
template <>
constexpr auto members<color1ub_t> = std::tuple(&color1ub_t::gray);
template <>
constexpr auto members<surface_t> = std::tuple(&surface_t::a, &surface_t::b, &surface_t::c,
                                               &surface_t::d);
template <>
constexpr auto members<line2d_t> = std::tuple(&line2d_t::a, &line2d_t::b, &line2d_t::c);
template <>
constexpr auto members<line3d_t> = std::tuple(&line3d_t::direction, &line3d_t::transform1,
                                              &line3d_t::transform2);
template <>
constexpr auto members<projection_t> = std::tuple(&projection_t::left, &projection_t::right,
                                                  &projection_t::bottom, &projection_t::top,
                                                  &projection_t::znear, &projection_t::zfar);

/// Returns references to the fields of `value`.
template <typename T>
auto fields(T& value) {
    return std::apply([&value](auto... member) { return std::tie(value.*member...); },
                      members<std::remove_const_t<T>>);
}
template <>
auto fields(float const& value) {
    return std::tie(value);
}
auto fields(matrix3w_t& m) {
    return std::tuple_cat(fields(m[0]), fields(m[1]), fields(m[2]), fields(m[3]));
}

template <typename T>
constexpr bool is_byte_color = std::is_same_v<T, color3aub_t> || std::is_same_v<T, color3ub_t> ||
                               std::is_same_v<T, color1aub_t> || std::is_same_v<T, color1ub_t>;

template <typename T>
void write_fields(std::ostream& out, T const& value) {
    char const* separator = "";
    std::apply(
        [&](auto const&... field) { ((out << std::exchange(separator, ", ") << field), ...); },
        fields(value));
}

template <typename T>
void write_form(std::ostream& out, T const& value) {
    libutils::keepflag const keep(out);
    out << std::fixed << mtype_table[mtype_of<T>].name << '(';
    write_fields(out, value);
    out << ')';
}

void write_form(std::ostream& out, matrix3w_t const& m) {
    libutils::keepflag const keep(out);
    out << std::fixed << mtype_table[MTYPE_MTX3W].name;
    char const* separator = "(\t";
    for (vector3w_t const& row : m.rows) {
        out << std::exchange(separator, ",\n\t");
        write_fields(out, row);
    }
    out << ')';
}

template <typename T>
requires is_byte_color<T>
void write_form(std::ostream& out, T const& value) {
    libutils::keepflag const keep(out);
    // Without this, each channel would have the prefix.
    if ((out.flags() & std::ios_base::showbase) != 0) {
        out << "0x" << std::noshowbase;
    }
    out << mtype_table[mtype_of<T>].name << '(';
    std::apply(
        [&out](auto... channel) { ((out << libutils::_puthex<unsigned char>{channel}), ...); },
        fields(value));
    out << ')';
}

constexpr int end_of_stream = std::istream::traits_type::eof();

/// Skips blanks and returns the next character without extracting it. Returns `end_of_stream` if
/// nothing can be read.
int peek_item(std::istream& in) {
    if (in.good()) {
        in >> std::ws;
    }
    return in.good() ? in.peek() : end_of_stream;
}

/// Skips characters up to the next `wanted`. If the stream ends first, sets failbit and returns
/// false.
bool skip_to(std::istream& in, char wanted) {
    for (int next = peek_item(in); next != end_of_stream; next = peek_item(in)) {
        if (next == wanted) {
            return true;
        }
        in.get();
    }
    in.setstate(std::ios_base::failbit);
    return false;
}

template <typename T>
bool read_form(std::istream& in, T& value);

/// The name that must precede a nested record, or `MTYPE_END` if the name isn't read.
template <typename T, typename Field>
constexpr e_mtype_t expected_name = mtype_of<Field>;
template <>
constexpr e_mtype_t expected_name<posture3w_t, revolution3_t> = MTYPE_ROT3;
template <typename Field>
constexpr e_mtype_t expected_name<line3d_t, Field> = MTYPE_END;

/// Reads one field of a `T`. A failed read leaves a number unchanged.
template <typename T, typename Field>
bool read_field(std::istream& in, Field& field) {
    if constexpr (std::is_arithmetic_v<Field>) {
        Field number{};
        if (!(in >> number)) {
            return false;
        }
        field = number;
        return true;
    } else {
        constexpr e_mtype_t expected = expected_name<T, Field>;
        e_mtype_t name = expected;
        if (expected != MTYPE_END && !(in >> name)) {
            return false;
        }
        return name == expected && read_form(in, field);
    }
}

/// Reads the parentheses and the fields between them. Returns true if all fields were read.
template <typename T>
bool read_parenthesised(std::istream& in, T& value) {
    if (!skip_to(in, '(')) {
        return false;
    }
    in.get();
    bool first = true;
    char separator = 0;
    bool const complete = std::apply(
        [&](auto&... field) {
            return (
                ((std::exchange(first, false) || in >> separator) && read_field<T>(in, field)) &&
                ...);
        },
        fields(value));
    if (complete && peek_item(in) == ')') {
        in.get();
    }
    return complete;
}

template <typename T>
bool read_form(std::istream& in, T& value) {
    if constexpr (std::is_same_v<T, inertial3_t> || std::is_same_v<T, posture3w_t>) {
        T candidate = value;
        if (!read_parenthesised(in, candidate)) {
            return false;
        }
        value = candidate;
        return true;
    } else {
        return read_parenthesised(in, value);
    }
}

/// Reads a float between any two characters, which needn't be parentheses.
bool read_form(std::istream& in, float& value) {
    char parenthesis = 0;
    in >> parenthesis;
    bool const complete = read_field<float>(in, value);
    in >> parenthesis;
    return complete;
}

bool is_name_end(int c) {
    switch (c) {
        case end_of_stream:
        case '\0':
        case '\t':
        case '\n':
        case '\r':
        case '(':
        case ')':
        case ',':
            return true;
        default:
            return false;
    }
}

bool is_written_by_reader(e_mtype_t type) {
    return type < MTYPE_BOX2 || (type >= MTYPE_COL3AUB && type <= MTYPE_COL1UB) ||
           type == MTYPE_PROJECTION;
}

template <std::size_t... Index>
constexpr auto make_emplacers(std::index_sequence<Index...>) {
    return std::array{+[](mtype_value_t& value) { value.emplace<Index>(); }...};
}

/// Gives `value` the type `type`, with all fields 0, unless it has that type already.
void set_mtype(mtype_value_t& value, e_mtype_t type) {
    constexpr auto emplacers = make_emplacers(std::make_index_sequence<MTYPE_END>{});
    if (value.index() != type) {
        emplacers[type](value);
    }
}

}  // namespace

std::ostream& write_value(std::ostream& out, mtype_value_t const& value) {
    std::visit([&out](auto const& v) { write_form(out, v); }, value);
    return out;
}

void read_value(std::istream& in, mtype_value_t& value) {
    std::visit([&in](auto& v) { read_form(in, v); }, value);
}

std::ostream& operator<<(std::ostream& out, triangle_t const& value) {
    libutils::keepflag const keep(out);
    auto const& [l0, l1, l2] = value.lines;
    auto const& [p0, p1, p2] = value.corners;
    out << std::fixed << "s: " << value.surface << '\n'
        << value.matrix << '\n'
        << "l: " << l0 << ", " << l1 << ", " << l2 << '\n'
        << "p: " << p0 << ", " << p1 << ", " << p2 << '\n';
    for (auto const& [a, b, c] : value.values) {
        out << a << ", " << b << ", " << c << '\n';
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, e_mtype_t type) {
    if (type > MTYPE_END) {
        return out << "range over" << std::endl;
    }
    if (mtype_table[type].value != type) {
        return out << "table error" << std::endl;
    }
    if (type == MTYPE_END) {
        return out << "no type" << std::endl;
    }
    return out << mtype_table[type].name;
}

std::istream& operator>>(std::istream& in, e_mtype_t& type) {
    in >> std::skipws;
    char name[max_mtype_name_length + 1] = {};
    std::size_t length = 0;
    for (; length < max_mtype_name_length; ++length) {
        // Tabs and line ends end the name only where no blank precedes them.
        if (!in.good() || is_name_end(in.peek())) {
            break;
        }
        if (is_name_end(peek_item(in))) {
            break;
        }
        name[length] = static_cast<char>(in.get());
    }
    type = get_mtype(name);
    if (length == 0 && !in.good()) {
        in.setstate(std::ios_base::failbit);
    }
    return in;
}

std::ostream& operator<<(std::ostream& out, mtype_reader const& reader) {
    if (is_written_by_reader(reader.type) && reader.value.index() == reader.type) {
        write_value(out, reader.value);
    }
    return out;
}

std::istream& operator>>(std::istream& in, mtype_reader& reader) {
    in >> reader.type;
    if (reader.type == MTYPE_END) {
        if (skip_to(in, ')')) {
            in.get();
        }
        return in;
    }
    set_mtype(reader.value, reader.type);
    read_value(in, reader.value);
    return in;
}

}  // namespace libgr
