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
/// Everything here must be called from one thread. The flags allow calls of these functions:
///
///     no flag needed                       OpenGL 1.1
///     is_GL_EXT_texture3D_supported        the extension's, with its suffix: glTexImage3DEXT
///     is_GL_VERSION_1_3_supported          glActiveTexture and glMultiTexCoord3f
///     is_GL_VERSION_3_0_supported          glGenerateMipmap and glGetStringi
///     is_GL_VERSION_4_2_supported to 4_6   those that the version added: glTexStorage2D
///
/// The other functions that OpenGL 1.2 to 4.1 added have no pointers, so a flag such as
/// is_GL_VERSION_2_0_supported allows no calls. Use the functions of the extensions. To add an
/// extension, add it to glext/extension_names.txt and run tools/generate_glext.py.

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

/// The name of a core version, and its lowest GL_VERSION text in the order of `numdotstrcmp`.
struct addext_t {
    char const* name;
    char const* version;
};

/// A supported core version, which drivers don't list. `name` points into `addexts`.
struct extension_node_t {
    extension_node_t* next;
    char const* name;
};

/// The core versions from 1.2 to 4.6 in ascending order. The last row contains null pointers.
extern addext_t const addexts[];

/// The core versions that the context supports, newest first. The list is never freed.
extern extension_node_t* extension_linkedlist;

/// 1 after `gl_extloader_init` has returned, even if it failed, and 0 before.
extern std::int32_t is_gl_extloader_inited;

/// Resolves all entry points and sets the flags of the extensions that the current context
/// supports.
///
/// A context must be current. If there is none, all flags stay 0. If the OpenGL library can't be
/// opened, all functions stay null, too. There is no error report: test if `glGetString` is null.
/// The functions of unsupported extensions stay null.
///
/// A second call in the same context changes nothing. A second context isn't supported: the call
/// clears no flags, and the core versions stay those of the first context.
void gl_extloader_init();

/// Returns the address of an entry point in the system's OpenGL library, or null if it has none, in
/// which case the function's pointer stays null even if its flag is 1.
///
/// The library is libGL.so.1, on macOS the OpenGL framework. The first call opens it, and it stays
/// open. If it can't be opened, the function returns null and the next call tries again.
void* __gl_GetProcAddress(char const* symbol);

/// Returns 1 if the current context supports an extension ("GL_EXT_bgra") or has at least a core
/// version ("GL_VERSION_1_4"), otherwise 0.
///
/// Call `gl_extloader_init` first. A context must be current. The flags are faster, because each
/// call reads the driver's list again.
int isExtensionSupported(char const* name);

/// Adds the core versions up to `version`, a GL_VERSION text, to `extension_linkedlist`. If
/// `version` is null, adds nothing. `isExtensionSupported` calls it once. A second call adds the
/// names again.
void extension_string_init(char const* version);

/// Inserts `name` at the head of `extension_linkedlist`. The text isn't copied and must stay valid.
void addlist(char const* name);

/// Compares two version texts. Returns -1 if `a` is less than `b`, 1 if it is greater, 0 if they
/// are equal. Neither text may be empty.
///
/// The first different numbers decide. Any one character separates numbers, and text in place of a
/// number is 0. If all numbers are equal, the text that ends first is less:
///
///     a              b          result
///     "2.10"         "2.9"       1   10 is greater than 9
///     "2.1"          "2.1.0"    -1   `a` ends first
///     "2.1 Driver"   "2.1.0"     1   "Driver" is 0, and `b` ends first
///
/// `addexts` has "2.1.0" for GL_VERSION_2_1, so a context with the exact GL_VERSION "2.1" doesn't
/// have it, but usually text follows. The flags depend on this rule.
int numdotstrcmp(char const* a, char const* b);

// The steps of `gl_extloader_init`, in the order of its calls. Programs don't call them.

/// Resolves the 334 entry points of OpenGL 1.1 (glext/core_names.txt).
void AGL_init();

/// Resolves glActiveTexture, glGenerateMipmap, glGetStringi and glMultiTexCoord3f.
void AGL_init_additional();

/// Sets the flags of the supported extensions and core versions, and resolves their entry points,
/// in the order of glext/extension_names.txt.
void init_supported_extensions();
