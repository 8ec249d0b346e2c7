// SPDX-License-Identifier: MIT
// The value types that have a text form: their numbers, their names, and a variant of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <type_traits>
#include <variant>

#include "geometry/color.h"
#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/shape.h"
#include "geometry/vector.h"

namespace libgr {

/// The number of a value type: its row in `mtype_table` and its alternative in `mtype_value_t`.
enum e_mtype_t : std::uint32_t {
    MTYPE_FLOAT,
    MTYPE_POS3,
    MTYPE_DIR3,
    MTYPE_POS2,
    MTYPE_DIR2,
    MTYPE_POS2L,
    MTYPE_DIR2L,
    MTYPE_QUA,
    MTYPE_ROT3,
    MTYPE_PST3W,
    MTYPE_PLR3,
    MTYPE_ANG3,
    MTYPE_REV3,
    MTYPE_SRT3,
    MTYPE_IRT3,
    MTYPE_VEC3W,
    MTYPE_COL3,
    MTYPE_COL3A,
    MTYPE_TXC1,
    MTYPE_TXC2,
    MTYPE_TXC2Q,
    MTYPE_TXC3,
    MTYPE_TXC3Q,
    MTYPE_MTX3W,
    MTYPE_BOX2,
    MTYPE_BOX3,
    MTYPE_DIM2,
    MTYPE_DIM3,
    MTYPE_COL3AUB,
    MTYPE_COL3UB,
    MTYPE_COL1AUB,
    MTYPE_COL1UB,
    MTYPE_SURFACE,
    MTYPE_LINE2D,
    MTYPE_LINE3D,
    MTYPE_PROJECTION,
    MTYPE_END,  ///< No type.
};

struct mtype_name_t {
    e_mtype_t value;
    char const* name;
};

/// The names of all types, in the order of their numbers, and a last row with an empty name.
inline constexpr mtype_name_t mtype_table[] = {
    {MTYPE_FLOAT, "float"},
    {MTYPE_POS3, "pos3"},
    {MTYPE_DIR3, "dir3"},
    {MTYPE_POS2, "pos2"},
    {MTYPE_DIR2, "dir2"},
    {MTYPE_POS2L, "pos2l"},
    {MTYPE_DIR2L, "dir2l"},
    {MTYPE_QUA, "qua"},
    {MTYPE_ROT3, "rot3"},
    {MTYPE_PST3W, "pst3w"},
    {MTYPE_PLR3, "plr3"},
    {MTYPE_ANG3, "ang3"},
    {MTYPE_REV3, "rev3"},
    {MTYPE_SRT3, "srt3"},
    {MTYPE_IRT3, "irt3"},
    {MTYPE_VEC3W, "vec3w"},
    {MTYPE_COL3, "col3"},
    {MTYPE_COL3A, "col3a"},
    {MTYPE_TXC1, "txc1"},
    {MTYPE_TXC2, "txc2"},
    {MTYPE_TXC2Q, "txc2q"},
    {MTYPE_TXC3, "txc3"},
    {MTYPE_TXC3Q, "txc3q"},
    {MTYPE_MTX3W, "mtx3w"},
    {MTYPE_BOX2, "box2"},
    {MTYPE_BOX3, "box3"},
    {MTYPE_DIM2, "dim2"},
    {MTYPE_DIM3, "dim3"},
    {MTYPE_COL3AUB, "col3aub"},
    {MTYPE_COL3UB, "col3ub"},
    {MTYPE_COL1AUB, "col1aub"},
    {MTYPE_COL1UB, "col1ub"},
    {MTYPE_SURFACE, "surface"},
    {MTYPE_LINE2D, "line2d"},
    {MTYPE_LINE3D, "line3d"},
    {MTYPE_PROJECTION, "projection"},
    {MTYPE_END, ""},
};
static_assert(std::size(mtype_table) == MTYPE_END + 1);

/// The readers read at most this number of characters as a name.
inline constexpr std::size_t max_mtype_name_length = 16;

/// Returns the type with this name in `mtype_table`, or `MTYPE_END` if the name is unknown or
/// empty. Case matters. `name` must not be null.
e_mtype_t get_mtype(char const* name);

/// A value of any type in `mtype_table`. `value.index()` is the number of its type.
using mtype_value_t =
    std::variant<float, position3_t, direction3_t, position2_t, direction2_t, position2l_t,
                 direction2l_t, quaternion_t, rotation3_t, posture3w_t, polarpos3_t, angles3_t,
                 revolution3_t, straight3_t, inertial3_t, vector3w_t, color3_t, color3a_t,
                 texcoord1_t, texcoord2_t, texcoord2q_t, texcoord3_t, texcoord3q_t, matrix3w_t,
                 box2_t, box3_t, dim2_t, dim3_t, color3aub_t, color3ub_t, color1aub_t, color1ub_t,
                 surface_t, line2d_t, line3d_t, projection_t>;
static_assert(std::variant_size_v<mtype_value_t> == MTYPE_END);
static_assert(std::is_trivially_copyable_v<mtype_value_t>);

/// A value whose type is read from text: see the second example in `geometry/textstream.h`. If
/// `type` is `MTYPE_END`, the name was unknown or empty, and no value was read.
struct mtype_reader {
    e_mtype_t type = MTYPE_END;
    mtype_value_t value;
};

template <typename T, typename... Ts>
consteval e_mtype_t find_mtype(std::variant<Ts...> const*) {
    std::uint32_t index = 0;
    static_cast<void>(((std::is_same_v<T, Ts> ? true : (++index, false)) || ...));
    return static_cast<e_mtype_t>(index);
}

/// The number of the type T, or `MTYPE_END` if T isn't in `mtype_table`.
template <typename T>
inline constexpr e_mtype_t mtype_of = find_mtype<T>(static_cast<mtype_value_t*>(nullptr));

}  // namespace libgr
