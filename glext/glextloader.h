// SPDX-License-Identifier: MIT
// OpenGL's types, enumerants, entry points and extension flags, loaded at run time.
#pragma once

/// Loads OpenGL and uses an extension. The order of calls is:
///
///   1. Create a context and make it current.
///   2. Call `gl_extloader_init`, once.
///   3. Before a call to a function of an extension, test the extension's flag.
///
/// ```cpp
/// #include "glext/glextloader.h"
///
/// void bind_first_program() {
///     gl_extloader_init();
///     if (is_GL_ARB_vertex_program_supported != 0) {
///         glBindProgramARB(GL_VERTEX_PROGRAM_ARB, 1);
///     }
/// }
/// ```
///
/// Everything here must be called from one thread. The OpenGL 1.1 functions need no flag. The
/// functions of OpenGL 1.2 to 4.1 have no pointers of their own, with four exceptions (see
/// `AGL_init_additional`): use the functions of the extensions, for example `glTexImage3DEXT`.
/// The flag of an extension or core version has its name: `is_GL_EXT_bgra_supported`. To add one,
/// add it to glext/extension_names.txt and run tools/generate_glext.py.

#include <cstdint>

// GL/gl.h declares functions with the names of our pointers. These guards make a later include of
// that header empty, for example the one in GL/glu.h.
#ifdef __gl_h_
#error "include glext/glextloader.h instead of GL/gl.h"
#endif
#define __gl_h_
#define __GL_H__
#define __gl_glext_h_

#include "glext/glenums.gen.h"
#include "glext/glextensions.gen.h"
#include "glext/glfunctions.gen.h"
#include "glext/gltypes.gen.h"

/// The name of a core version, and the lowest GL_VERSION text that has it.
struct addext_t {
    char const* name;
    char const* version;
};

/// A name that supplements the driver's list of extensions. `name` points into `addexts`.
struct extension_node_t {
    extension_node_t* next;
    char const* name;
};

/// The core versions from 1.2 to 4.6 in ascending order. The last row contains null pointers.
extern addext_t const addexts[];

/// The core versions of the context, newest first. The list is built once and never freed.
extern extension_node_t* extension_linkedlist;

/// 1 after `gl_extloader_init` has returned, 0 before.
extern std::int32_t is_gl_extloader_inited;

/// Resolves all entry points and sets the flags of the extensions that the current context
/// supports.
///
/// A context must be current. The pointers and flags describe that context; a second context isn't
/// supported. The functions of unsupported extensions stay null. If the OpenGL library can't be
/// opened, all functions stay null and all flags 0. There is no error report.
void gl_extloader_init();

/// Returns the address of an entry point in the system's OpenGL library, or null if it has none.
///
/// The library is libGL.so.1, on macOS the OpenGL framework. The first call opens it, and it stays
/// open. If it can't be opened, the function returns null and the next call tries again.
void* __gl_GetProcAddress(char const* symbol);

/// Returns 1 if the current context supports an extension ("GL_EXT_bgra") or has at least a core
/// version ("GL_VERSION_1_4"), otherwise 0.
///
/// A context must be current. Uses `glGetString`, and on version 3.0 and later `glGetIntegerv` and
/// `glGetStringi`. Returns 0 if they aren't resolved.
int isExtensionSupported(char const* name);

/// Adds the core versions up to `version`, a GL_VERSION text, to `extension_linkedlist`. If
/// `version` is null, adds nothing.
void extension_string_init(char const* version);

/// Inserts `name` at the head of `extension_linkedlist`. The text isn't copied and must stay valid.
void addlist(char const* name);

/// Compares two version texts number by number. Returns -1 if `a` is less than `b`, 1 if it is
/// greater, 0 if they are equal. Neither text may be empty.
///
/// If one text ends first, it is less: "2.1" is less than "2.1.0". Text after a number counts as a
/// number 0: "2.1 Mesa" is greater than "2.1.0". So a context with the exact version text "2.1"
/// doesn't have `GL_VERSION_2_1`. The flags depend on this rule.
int numdotstrcmp(char const* a, char const* b);

/// Resolves the 334 entry points of OpenGL 1.1 (glext/core_names.txt).
void AGL_init();

/// Resolves glActiveTexture, glGenerateMipmap, glGetStringi and glMultiTexCoord3f.
void AGL_init_additional();

/// Sets the flags of the supported extensions and resolves their entry points, in the order of
/// glext/extension_names.txt. `gl_extloader_init` calls it.
void init_supported_extensions();
