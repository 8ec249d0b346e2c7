// SPDX-License-Identifier: MIT
// Boxes, lines, planes, triangles and projections. Only their text form has functions.
#pragma once

#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace libgr {

/// Two opposite corners of a rectangle, in any order.
struct box2_t {
    position2_t p0, p1;
};

/// Two opposite corners of a box, in any order.
struct box3_t {
    position3_t p0, p1;
};

/// A size in two dimensions.
struct dim2_t {
    unsigned long x, y;
};

/// A size in three dimensions.
struct dim3_t {
    unsigned long x, y, z;
};

/// The plane ax + by + cz + d = 0 with the normal (a, b, c), of any length.
struct surface_t {
    float a, b, c, d;
};

/// The line ax + by + c = 0 in two dimensions.
struct line2d_t {
    float a, b, c;
};

/// The direction of a line in three dimensions, and two transformations that the caller defines.
struct line3d_t {
    direction3_t direction;
    matrix3w_t transform1, transform2;
};

/// A triangle, and values that the caller computes from its corners. Its text can't be read.
struct triangle_t {
    matrix3w_t matrix;
    surface_t surface;
    line2d_t lines[3];
    position3_t corners[3];
    float values[3][3];
};

/// The bounds of a view volume, in the order of glOrtho's arguments.
struct projection_t {
    double left, right, bottom, top, znear, zfar;
};

constexpr box2_t box2(position2_t p0, position2_t p1) {
    return {p0, p1};
}
constexpr box3_t box3(position3_t const& p0, position3_t const& p1) {
    return {p0, p1};
}
constexpr dim2_t dim2(unsigned long x, unsigned long y) {
    return {x, y};
}
constexpr dim3_t dim3(unsigned long x, unsigned long y, unsigned long z) {
    return {x, y, z};
}
constexpr surface_t surface(float a, float b, float c, float d) {
    return {a, b, c, d};
}
constexpr line2d_t line2d(float a, float b, float c) {
    return {a, b, c};
}
constexpr line3d_t line3d(direction3_t const& direction, matrix3w_t const& transform1,
                          matrix3w_t const& transform2) {
    return {direction, transform1, transform2};
}
constexpr projection_t projection(double left, double right, double bottom, double top,
                                  double znear, double zfar) {
    return {left, right, bottom, top, znear, zfar};
}

}  // namespace libgr
