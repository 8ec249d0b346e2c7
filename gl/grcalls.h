// SPDX-License-Identifier: MIT
// GL calls with the types of geometry/.
#pragma once

#include "geometry/color.h"
#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"
#include "glext/glextloader.h"

namespace libgr {

// Each function makes one GL call, unless its comment says otherwise, and needs a current context.

/// Multiplies the current matrix by a rotation. The angle is in degrees.
inline void grRotate(rotation3_t const& r) {
    glRotatef(r.angle, r.axis.x, r.axis.y, r.axis.z);
}
inline void grScale(direction3_t const& d) {
    glScalef(d.x, d.y, d.z);
}
inline void grTranslate(position3_t const& p) {
    glTranslatef(p.x, p.y, p.z);
}
/// Multiplies the current matrix by `m`. OpenGL and geometry/matrix.h use the same memory order, so
/// `m` isn't transposed. OpenGL calls the rows `m[0]` to `m[3]` columns.
inline void grMultMatrix(matrix3w_t const& m) {
    glMultMatrixf(m.data());
}
/// Reads a matrix, for example GL_MODELVIEW_MATRIX. `m` has the memory order of grMultMatrix.
inline void grGet(GLenum pname, matrix3w_t& m) {
    glGetFloatv(pname, m.data());
}

inline void grColor(color3a_t const& c) {
    glColor4fv(&c.r);
}
inline void grColor(color3aub_t const& c) {
    glColor4ubv(&c.r);
}
inline void grClearColor(color3a_t const& c) {
    glClearColor(c.r, c.g, c.b, c.a);
}

inline void grLight(GLenum light, GLenum pname, color3a_t const& c) {
    glLightfv(light, pname, &c.r);
}
/// Sets the position of a light in the coordinates of the current modelview matrix.
inline void grLightPos(GLenum light, position3_t const& p) {
    vector3w_t const v = Generalize(p);
    glLightfv(light, GL_POSITION, &v.x);
}
/// Reads the position of a light in eye coordinates.
inline void grGetLightPos(GLenum light, vector3w_t& v) {
    glGetLightfv(light, GL_POSITION, &v.x);
}
inline void grGetLightPos(GLenum light, position3_t& p) {
    vector3w_t v{};
    grGetLightPos(light, v);
    p = SpecializeToPos(v);
}
/// Reads the direction from the eye to a light, in eye coordinates. The vector has length 1.
inline void grGetLightPos(GLenum light, direction3_t& d) {
    vector3w_t v{};
    grGetLightPos(light, v);
    d = SpecializeToDir(v);
}

inline void grMaterial(GLenum face, GLenum pname, color3a_t const& c) {
    glMaterialfv(face, pname, &c.r);
}
inline void grMaterial(GLenum face, GLenum pname, float value) {
    glMaterialf(face, pname, value);
}
inline void grTexEnv(GLenum target, GLenum pname, color3a_t const& c) {
    glTexEnvfv(target, pname, &c.r);
}

/// Sets the local parameters `index` to `index` + 3 of the program that is bound to `target` to
/// `m[0]`, `m[1]`, `m[2]` and `m[3]`. Makes four GL calls. Needs ARB_vertex_program.
///
/// The DP4 of a vector and these four parameters is `m * v`. To transform `v` as grMultMatrix(m)
/// does, which is `v * m` in geometry/matrix.h, pass `Transpose(m)`.
inline void grProgramLocalParameterARB(GLenum target, GLuint index, matrix3w_t const& m) {
    for (unsigned int row = 0; row < 4; ++row) {
        glProgramLocalParameter4fvARB(target, index + row, &m[row].x);
    }
}

// Vertex arrays. `stride` is the distance, in bytes, from one element to the next, or 0 if there is
// no padding. OpenGL keeps the pointer and reads the elements in grDrawElements.
inline void grVertexPointer(position2_t const* pointer, int stride) {
    glVertexPointer(2, GL_FLOAT, stride, pointer);
}
inline void grTexCoordPointer(texcoord2_t const* pointer, int stride) {
    glTexCoordPointer(2, GL_FLOAT, stride, pointer);
}
/// Draws the elements with the `count` numbers in `indices`.
inline void grDrawElements(GLenum mode, int count, unsigned char const* indices) {
    glDrawElements(mode, count, GL_UNSIGNED_BYTE, indices);
}

}  // namespace libgr
