// SPDX-License-Identifier: MIT
// The functions of the GL utility library, as pointers that another implementation can stand in
// for.
#pragma once

#include "glext/glextloader.h"

namespace libgr {

/// The text of a GL error code, or null for an unknown one. Needs no context.
extern GLubyte const* (*gluErrorString)(GLenum error);

// Build and load all mipmap levels of the bound texture on the CPU, from an image of any size under
// the present unpack state. They give 0 or a GLU error code, and need a current context.
extern GLint (*gluBuild1DMipmaps)(GLenum target, GLint internalformat, GLsizei width, GLenum format,
                                  GLenum type, void const* data);
extern GLint (*gluBuild2DMipmaps)(GLenum target, GLint internalformat, GLsizei width,
                                  GLsizei height, GLenum format, GLenum type, void const* data);
extern GLint (*gluBuild3DMipmaps)(GLenum target, GLint internalformat, GLsizei width,
                                  GLsizei height, GLsizei depth, GLenum format, GLenum type,
                                  void const* data);

}  // namespace libgr
