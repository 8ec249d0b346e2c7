// SPDX-License-Identifier: MIT
// OpenGL without libGL at link time: every type, enumerant, entry point and extension flag.
#pragma once

#include <cstdint>

// The prototypes of the system's header have the names of our pointers. A later include of it, by
// way of GL/glu.h for one, finds these guards set and adds nothing.
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

/// A name that stands for a core version, and the version text from which it counts as present.
struct addext_t {
    char const* name;
    char const* version;
};

/// One name added to the driver's own list; `name` points to a row's text of `addexts`.
struct extension_node_t {
    extension_node_t* next;
    char const* name;
};

/// Core versions in ascending order; the last row is of null pointers.
extern addext_t const addexts[];

/// The versions that the context reaches, newest first; built once and never freed.
extern extension_node_t* extension_linkedlist;

/// 1 once gl_extloader_init has ended.
extern std::int32_t is_gl_extloader_inited;

/// Resolves all entry points and sets the flags of the extensions that the current context has.
///
/// Needs a current context, and describes that context from then on: a second one isn't supported.
/// What the library lacks stays null without a word, so callers test the flag of an extension
/// before they call its entry points.
void gl_extloader_init();

/// Address of an entry point in the system's OpenGL library, or null. The library is opened on
/// first use, and stays open; while it can't be opened each call tries again.
void* __gl_GetProcAddress(char const* symbol);

/// Tells (1 or 0) whether the current context has an extension ("GL_EXT_bgra") or reaches a core
/// version ("GL_VERSION_1_4"). Needs `glGetString`, and from version 3.0 on `glGetIntegerv` and
/// `glGetStringi`, to be resolved; without them or without a context the answer is 0.
int isExtensionSupported(char const* name);

/// Adds to `extension_linkedlist` each row of `addexts` that `version`, a GL_VERSION text, reaches.
/// Null adds nothing.
void extension_string_init(char const* version);

/// Puts a node with `name`, whose text must live on, at the head of `extension_linkedlist`.
void addlist(char const* name);

/// Compares dotted numbers field by field, for example "4.5 (Compatibility Profile)" with "4.5.0",
/// and returns -1, 0 or 1. A number that ends earlier is less ("2.1" is less than "2.1.0"), text
/// behind a number counts as the field 0. Neither string may be empty.
int numdotstrcmp(char const* a, char const* b);

/// Resolves the 334 entry points of OpenGL 1.1.
void AGL_init();

/// Resolves the later entry points that the program calls by their core names.
void AGL_init_additional();

/// Asks for each extension in turn, sets the flags of those that are there and resolves their entry
/// points; the middle part of gl_extloader_init.
void init_supported_extensions();
