// SPDX-License-Identifier: MIT
// A replacement of OpenGL that records the calls as lines of text and returns scripted answers.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "glext/glextloader.h"

/// Replaces the entry points of OpenGL and GLU that the program calls. The destructor restores
/// them. Only one may exist at a time. A line has the form of the call:
/// "glBindTexture(GL_TEXTURE_2D, 1)". Vectors are in braces. A pointer is "null", "ptr", or the
/// name of the region that starts there.
struct gl_recorder_t {
    gl_recorder_t();
    gl_recorder_t& operator=(gl_recorder_t&&) = delete;
    ~gl_recorder_t();

    /// Returns the lines since the last call, each with a line end.
    std::string take();

    std::vector<std::string> lines;
    /// Functions that are not recorded. They return their answers.
    std::set<std::string> muted{"glGetError", "gluErrorString"};

    struct region_t {
        unsigned char const* begin;
        std::size_t bytes;
        std::string name;
    };
    std::vector<region_t> regions;

    // The answers. Without an answer, the variable of the caller isn't changed.
    /// glGetIntegerv and the level parameters. GL_MATRIX_MODE, GL_READ_BUFFER, GL_VIEWPORT and the
    /// parameters of glPixelStorei are set by their calls.
    std::map<GLenum, std::vector<GLint>> integers;
    std::map<GLenum, std::vector<GLfloat>> floats;        ///< glGetFloatv, glGetLightfv
    std::map<GLenum, std::string> strings;                ///< glGetString, gluErrorString
    std::deque<GLenum> errors;                            ///< glGetError, first in first out
    std::map<GLenum, std::vector<unsigned char>> pixels;  ///< glReadPixels, by read buffer
    GLuint next_name = 1;                                 ///< the next texture, list or program
    /// glTexImage2D causes GL_OUT_OF_MEMORY if there are more textures.
    int most_textures = 10000;
    int textures = 0;
};

/// Returns the name of an enumerant. Values below 0x100 have several meanings: they are returned as
/// numbers.
std::string gl_enum_name(GLenum value);

/// Sets an extension flag. The destructor restores its previous value.
struct gl_flag_t {
    gl_flag_t(std::int32_t& changed_flag, std::int32_t value)
        : flag(changed_flag), former(std::exchange(changed_flag, value)) {}
    ~gl_flag_t() { flag = former; }

    std::int32_t& flag;
    std::int32_t former;
};
