// SPDX-License-Identifier: MIT
// Pointers to the functions of GLU, which tests can replace.
#pragma once

#include "glext/glextloader.h"

namespace libgr {

/// Returns the text of a GL error code, or null for an unknown code. Needs no context.
extern GLubyte const* (*gluErrorString)(GLenum error);

// Upload all mipmap levels of the bound texture from an image of any size, scaled on the CPU. GLU
// reads the image with the current unpack parameters, and may read past its end: use build_mipmaps
// (gl/glumipmaps.h). Return 0 or a GLU error code. Need a current context.
extern GLint (*gluBuild1DMipmaps)(GLenum target, GLint internalformat, GLsizei width, GLenum format,
                                  GLenum type, void const* data);
extern GLint (*gluBuild2DMipmaps)(GLenum target, GLint internalformat, GLsizei width,
                                  GLsizei height, GLenum format, GLenum type, void const* data);
extern GLint (*gluBuild3DMipmaps)(GLenum target, GLint internalformat, GLsizei width,
                                  GLsizei height, GLsizei depth, GLenum format, GLenum type,
                                  void const* data);

}  // namespace libgr
