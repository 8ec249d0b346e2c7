// SPDX-License-Identifier: MIT
// Turns about an axis, and the records of attitude and motion that exist for their text form.
#pragma once

#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace libgr {

/// A turn by `angle` degrees about `axis`, counter-clockwise when seen from the axis's tip.
struct rotation3_t {
    float angle;
    direction3_t axis;
    bool operator==(rotation3_t const&) const = default;
};

struct quaternion_t {
    float x, y, z, w;
};

/// Turn rates or angles about the three axes.
struct revolution3_t {
    float x, y, z;
};

struct angles3_t {
    float x, y, z;
};

struct polarpos3_t {
    float azimuth, elevation, distance;
};

/// Speed along a direction.
struct straight3_t {
    float speed;
    direction3_t direction;
};

/// A state of motion.
struct inertial3_t {
    revolution3_t revolution;
    straight3_t straight;
};

/// A pose.
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

/// The matrix that glRotatef(angle, x, y, z) multiplies with. A null axis gives the diagonal
/// (cos, cos, cos, 1).
matrix3w_t getRotateMatrix(rotation3_t const& r);

/// The axis of the turn in `m` (scale 1), and HALF its angle, 0 to 90 degrees: taking that off
/// again and again closes in on the upright position. A symmetric upper 3x3 has a null axis; a
/// trace out of range gives `Irot`.
rotation3_t getRotation3(matrix3w_t const& m);

/// The turn that takes direction `a` to direction `b`, both of length 1. Parallel and opposite
/// directions give `Irot`.
rotation3_t calcRotation3(direction3_t const& a, direction3_t const& b);

/// The same axis, the angle negated.
constexpr rotation3_t Invert(rotation3_t const& r) {
    return {-r.angle, r.axis};
}

}  // namespace libgr
