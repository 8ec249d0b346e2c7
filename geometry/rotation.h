// SPDX-License-Identifier: MIT
// Rotations about an axis, and records of attitude and motion.
#pragma once

#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace libgr {

/// A rotation by `angle` degrees about `axis`, counter-clockwise seen from the tip of the axis. The
/// axis may have any length except 0.
struct rotation3_t {
    float angle;
    direction3_t axis;
    bool operator==(rotation3_t const&) const = default;
};

// No function computes with the records from `quaternion_t` to `posture3w_t`: they are only written
// and read as text. So the units, the signs and the order of their angles are the caller's choice.

/// A quaternion with the scalar part `w`.
struct quaternion_t {
    float x, y, z, w;
};

/// Angles, or angular speeds, about the x, y and z axes.
struct revolution3_t {
    float x, y, z;
};

/// Angles about the x, y and z axes.
struct angles3_t {
    float x, y, z;
};

/// A point in polar coordinates: two angles and a distance.
struct polarpos3_t {
    float azimuth, elevation, distance;
};

/// A speed and its direction.
struct straight3_t {
    float speed;
    direction3_t direction;
};

/// A state of motion: an angular and a linear speed.
struct inertial3_t {
    revolution3_t revolution;
    straight3_t straight;
};

/// A position and two rotations. Its text can't be read back: see `read_value`.
struct posture3w_t {
    revolution3_t turn1, turn2;
    position3_t position;
};

constexpr rotation3_t rotation3(float angle, direction3_t const& axis) {
    return {angle, axis};
}
constexpr quaternion_t quaternion(float x, float y, float z, float w) {
    return {x, y, z, w};
}
constexpr revolution3_t revolution3(float x, float y, float z) {
    return {x, y, z};
}
constexpr angles3_t angles3(float x, float y, float z) {
    return {x, y, z};
}
constexpr polarpos3_t polarpos3(float azimuth, float elevation, float distance) {
    return {azimuth, elevation, distance};
}
constexpr straight3_t straight3(float speed, direction3_t const& direction) {
    return {speed, direction};
}
constexpr inertial3_t inertial3(revolution3_t const& revolution, straight3_t const& straight) {
    return {revolution, straight};
}
constexpr posture3w_t posture3w(revolution3_t const& turn1, revolution3_t const& turn2,
                                position3_t const& position) {
    return {turn1, turn2, position};
}

/// Returns the matrix that glRotatef(angle, x, y, z) multiplies by. The axis should have a nonzero
/// length. For an axis of length 0 the result is the diagonal (c, c, c, 1) with c = cos(angle).
matrix3w_t getRotateMatrix(rotation3_t const& r);

/// Returns the axis of the rotation in `m`, and HALF of its angle. The rotation is
/// `{2 * r.angle, r.axis}`. Callers depend on the half: each use of the command that turns a view
/// upright undoes half of the remaining rotation. `m` must not contain a scale.
///
///   rotation in `m`            angle       axis
///   none                       0           (0, 0, 0)
///   between 0 and 180 degrees  0 to 90     length 1
///   180 degrees                90          (0, 0, 0), or a wrong axis because of rounding
///   no valid trace             0           (0, 0, 1), which is `Irot`
///
/// For 180 degrees the axis is unknown. So test for an angle near 90 before you pass the result to
/// `getRotateMatrix`. The trace is valid if m[0][0] + m[1][1] + m[2][2] is from -1 to 3. Rounding
/// can make it invalid near 0 and near 180 degrees.
rotation3_t getRotation3(matrix3w_t const& m);

/// Returns the rotation that takes direction `a` to direction `b`. Both must have length 1.
///
/// Returns `Irot` if `a` and `b` are parallel, or opposite, because opposite directions have no
/// unique axis: ScalarProduct(a, b) is then negative. The angle is NaN if rounding makes
/// ScalarProduct(a, b) greater than 1 or less than -1.
rotation3_t calcRotation3(direction3_t const& a, direction3_t const& b);

/// Returns the rotation by the negated angle about the same axis.
constexpr rotation3_t Invert(rotation3_t const& r) {
    return {-r.angle, r.axis};
}

}  // namespace libgr
