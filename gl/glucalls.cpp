// SPDX-License-Identifier: MIT
// Pointers to the functions of GLU.
#include "gl/glucalls.h"

#include <GL/glu.h>

namespace libgr {

GLubyte const* (*gluErrorString)(GLenum) = ::gluErrorString;
GLint (*gluBuild1DMipmaps)(GLenum, GLint, GLsizei, GLenum, GLenum,
                           void const*) = ::gluBuild1DMipmaps;
GLint (*gluBuild2DMipmaps)(GLenum, GLint, GLsizei, GLsizei, GLenum, GLenum,
                           void const*) = ::gluBuild2DMipmaps;
GLint (*gluBuild3DMipmaps)(GLenum, GLint, GLsizei, GLsizei, GLsizei, GLenum, GLenum,
                           void const*) = ::gluBuild3DMipmaps;

}  // namespace libgr
