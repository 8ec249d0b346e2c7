// SPDX-License-Identifier: MIT
// A stand-in for OpenGL: records the calls as lines of text and gives scripted answers.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "glext/glextloader.h"

/// Takes the place of the entry points that the program calls, GLU's too, until its end. One at a
/// time. A line reads like the call: "glBindTexture(GL_TEXTURE_2D, 1)". Vectors stand in braces,
/// bytes and floats alike; a pointer is "null", "ptr", or the name of a region and the bytes into
/// it.
class gl_recorder_t {
  public:
    gl_recorder_t();
    gl_recorder_t(const gl_recorder_t&) = delete;
    gl_recorder_t& operator=(const gl_recorder_t&) = delete;
    ~gl_recorder_t();

    /// The lines since the last take, each with a line end.
    std::string take();

    /// Has pointers into these bytes printed as "name" and "name+12".
    void name_region(const void* begin, std::size_t bytes, const std::string& name) {
        m_regions.push_back({static_cast<const char*>(begin), bytes, name});
    }

    std::vector<std::string> lines;
    /// Functions that are answered but not recorded.
    std::set<std::string> muted{"glGetError", "gluErrorString"};

    // The answers. What isn't here leaves the caller's value alone.

    /// glGetIntegerv and the level parameters. GL_MATRIX_MODE and GL_VIEWPORT follow their calls.
    std::map<GLenum, std::vector<GLint>> integers;
    std::map<GLenum, std::vector<GLfloat>> floats;  ///< glGetFloatv, glGetLightfv
    std::map<GLenum, std::string> strings;          ///< glGetString, gluErrorString
    std::vector<std::string> extensions;            ///< glGetStringi
    std::deque<GLenum> errors;                      ///< glGetError, first in first out
    /// What glReadPixels (by the read buffer) and glGetTexImage (by GL_TEXTURE) write.
    std::map<GLenum, std::vector<unsigned char>> pixels;
    GLenum read_buffer = GL_BACK;
    GLuint next_name = 1;  ///< the next texture, list or program
    GLboolean resident = 1;

    template <typename... A>
    void record(std::string name, std::string format, A... arguments) {
        if (muted.contains(name)) {
            return;
        }
        m_line = std::move(name) + "(";
        format.resize(sizeof...(A), '.');
        [[maybe_unused]] std::size_t n = 0;
        ((append(n == 0, format[n], arguments), ++n), ...);
        lines.push_back(m_line + ")");
    }

  private:
    struct region_t {
        const char* begin;
        std::size_t bytes;
        std::string name;
    };

    template <typename T>
    void append(bool first, char kind, T argument) {
        m_line += first ? "" : ", ";
        if constexpr (std::is_pointer_v<T> && !std::is_const_v<std::remove_pointer_t<T>>) {
            put(kind, static_cast<const void*>(argument));  // the call writes there
        } else {
            put(kind, argument);
        }
    }
    void put(char kind, GLuint value);
    void put(char kind, GLint value);
    void put(char, GLboolean value) { m_line += std::to_string(value); }
    void put(char, double value);
    void put(char kind, const GLfloat* values);
    void put(char, const GLubyte* values) { put_vector(values, 4); }
    void put(char, const GLuint* names) { put_vector(names, m_count); }
    void put(char, const void* pointer);
    template <typename T>
    void put_vector(const T* values, int count) {
        for (int i = 0; i < count; ++i) {
            m_line += i == 0 ? "{" : ", ";
            put('.', static_cast<double>(values[i]));
        }
        m_line += "}";
    }

    std::string m_line;
    GLint m_count = 0;  // the last signed integer printed: how many names follow
    std::vector<region_t> m_regions;
};

/// The name of an enumerant. Values below 0x100 mean something else in each call and stay numbers.
std::string gl_enum_name(GLenum value);

/// Whether a file holds this text; where it doesn't, the text is written into the working
/// directory under the file's name with ".new" behind it.
bool same_as_file(const std::string& text, const std::string& path);

/// Gives an extension flag a value for its lifetime.
class gl_flag_t {
  public:
    gl_flag_t(std::int32_t& flag, std::int32_t value) : m_flag(flag), m_former(flag) {
        flag = value;
    }
    gl_flag_t(const gl_flag_t&) = delete;
    gl_flag_t& operator=(const gl_flag_t&) = delete;
    ~gl_flag_t() { m_flag = m_former; }

  private:
    std::int32_t& m_flag;
    std::int32_t m_former;
};
