// SPDX-License-Identifier: MIT
// Rotations about an axis, and records of attitude and motion.
#pragma once

#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace libgr {

/// A rotation by `angle` degrees about `axis`, counter-clockwise seen from the tip of the axis. The
/// axis may have any length.
struct rotation3_t {
    float angle;
    direction3_t axis;
    bool operator==(rotation3_t const&) const = default;
};

// The records up to `posture3w_t` have no arithmetic. They exist for the text form.

/// A quaternion with the scalar part `w`.
struct quaternion_t {
    float x, y, z, w;
};

/// Angles or angular speeds about the three axes.
struct revolution3_t {
    float x, y, z;
};

/// Angles about the three axes.
struct angles3_t {
    float x, y, z;
};

/// A point in polar coordinates.
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

/// A pose: two rotations and a position.
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

/// Returns the matrix that glRotatef(angle, x, y, z) multiplies by. For an axis of length 0 the
/// result is the diagonal (cos(angle), cos(angle), cos(angle), 1), not the identity.
matrix3w_t getRotateMatrix(rotation3_t const& r);

/// Returns the axis of the rotation in `m`, and HALF of its angle: 0 to 90 degrees. The command
/// that turns a view upright depends on this: each use undoes half of the rotation that is left.
///
/// `m` must have the scale 1. The axis is (0, 0, 0) if the upper left 3x3 matrix is symmetric, for
/// example in the identity. The result is `Irot` if the trace doesn't belong to a rotation.
rotation3_t getRotation3(matrix3w_t const& m);

/// Returns the rotation from direction `a` to direction `b`, which both must have length 1. For
/// parallel and for opposite directions the result is `Irot`.
rotation3_t calcRotation3(direction3_t const& a, direction3_t const& b);

/// Returns the rotation by the negated angle about the same axis.
constexpr rotation3_t Invert(rotation3_t const& r) {
    return {-r.angle, r.axis};
}

}  // namespace libgr
