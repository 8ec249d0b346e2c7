// SPDX-License-Identifier: MIT
// A stand-in for OpenGL: records the calls as lines of text and gives scripted answers.
#pragma once

#include <cstdint>
#include <deque>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "glext/glextloader.h"

/// Takes the place of the entry points that the program calls, GLU's too, until its end. One at a
/// time. A line reads like the call: "glBindTexture(GL_TEXTURE_2D, 1)". Vectors stand in braces,
/// bytes and floats alike; a pointer is "null", "ptr", or the name of a region and the bytes into
/// it.
struct gl_recorder_t {
    gl_recorder_t();
    gl_recorder_t& operator=(gl_recorder_t&&) = delete;
    ~gl_recorder_t();

    /// The lines since the last take, each with a line end.
    std::string take();

    std::vector<std::string> lines;
    /// Functions that are answered but not recorded.
    std::set<std::string> muted{"glGetError", "gluErrorString"};

    /// Bytes into which pointers are printed as "name" and "name+12".
    struct region_t {
        unsigned char const* begin;
        std::size_t bytes;
        std::string name;
    };
    std::vector<region_t> regions;

    // The answers. What isn't here leaves the caller's value alone.

    /// glGetIntegerv and the level parameters. GL_MATRIX_MODE and GL_VIEWPORT follow their calls.
    std::map<GLenum, std::vector<GLint>> integers;
    std::map<GLenum, std::vector<GLfloat>> floats;        ///< glGetFloatv, glGetLightfv
    std::map<GLenum, std::string> strings;                ///< glGetString, gluErrorString
    std::deque<GLenum> errors;                            ///< glGetError, first in first out
    std::map<GLenum, std::vector<unsigned char>> pixels;  ///< glReadPixels, by the read buffer
    GLenum read_buffer = GL_BACK;
    GLuint next_name = 1;  ///< the next texture, list or program
    /// glTexImage2D gives GL_OUT_OF_MEMORY while there are more textures than that.
    int most_textures = std::numeric_limits<int>::max();
    int textures = 0;
};

/// The name of an enumerant. Values below 0x100 mean something else in each call and stay numbers.
std::string gl_enum_name(GLenum value);

/// Gives an extension flag a value for its lifetime.
class gl_flag_t {
  public:
    gl_flag_t(std::int32_t& flag, std::int32_t value) : m_flag(flag), m_former(flag) {
        flag = value;
    }
    gl_flag_t& operator=(gl_flag_t&&) = delete;
    ~gl_flag_t() { m_flag = m_former; }

  private:
    std::int32_t& m_flag;
    std::int32_t m_former;
};
