// SPDX-License-Identifier: MIT
// The types of OpenGL's interface.
// Made by tools/generate_glext.py from OpenGL headers of 20220530; don't edit.
// clang-format off

#pragma once

#include <cstddef>
#include <cstdint>

typedef unsigned int GLenum;
typedef unsigned char GLboolean;
typedef unsigned int GLbitfield;
typedef void GLvoid;
typedef signed char GLbyte;
typedef short GLshort;
typedef int GLint;
typedef unsigned char GLubyte;
typedef unsigned short GLushort;
typedef unsigned int GLuint;
typedef int GLsizei;
typedef float GLfloat;
typedef float GLclampf;
typedef double GLdouble;
typedef double GLclampd;
typedef void *GLeglImageOES;
typedef std::ptrdiff_t GLsizeiptr;
typedef std::intptr_t GLintptr;
typedef char GLchar;
typedef std::uint16_t GLhalf;
typedef struct __GLsync *GLsync;
typedef std::uint64_t GLuint64;
typedef std::int64_t GLint64;
typedef void (*GLDEBUGPROC)(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length, const GLchar *message, const void *userParam);
typedef std::uint64_t GLuint64EXT;
struct _cl_context;
struct _cl_event;
typedef void (*GLDEBUGPROCARB)(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length, const GLchar *message, const void *userParam);
typedef std::uint16_t GLhalfARB;
#ifdef __APPLE__
typedef void *GLhandleARB;
#else
typedef unsigned int GLhandleARB;
#endif
typedef char GLcharARB;
typedef std::ptrdiff_t GLsizeiptrARB;
typedef std::intptr_t GLintptrARB;
typedef std::int32_t GLfixed;
typedef void (*GLDEBUGPROCAMD)(GLuint id, GLenum category, GLenum severity, GLsizei length, const GLchar *message, void *userParam);
typedef std::int64_t GLint64EXT;
typedef void *GLeglClientBufferEXT;
typedef void (*GLVULKANPROCNV)(void);
typedef unsigned short GLhalfNV;
typedef GLintptr GLvdpauSurfaceNV;
