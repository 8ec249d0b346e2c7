// SPDX-License-Identifier: MIT
// The table of replacements: each entry point with the kinds of its arguments and its answer.
#include "tests/support/gl/glrecorder.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <type_traits>
#include <utility>

#include "gl/glucalls.h"

namespace {

gl_recorder_t* g_recorder = nullptr;

/// Returns the names by value: the first name of each value in the header, except for these. Some
/// values are numbers in the expectation files.
std::map<GLenum, std::string> const& names() {
    static auto const table = [] {
#define NAMED(value) {value, #value}
        std::map<GLenum, std::string> names = {
            NAMED(GL_GENERATE_MIPMAP_SGIS), NAMED(GL_RESCALE_NORMAL_EXT),
            NAMED(GL_TEXTURE_MAX_ANISOTROPY_EXT), NAMED(GL_DEPTH_BUFFER_BIT | GL_COLOR_BUFFER_BIT)};
        for (int const number : {GL_EMISSION, GL_REFLECTION_MAP}) {
            names[static_cast<GLenum>(number)] = std::to_string(number);
        }
        std::ifstream header(GL_ENUMS);
        for (std::string word, name, value; header >> word;) {
            if (word == "#define" && header >> name >> value && value.starts_with("0x")) {
                names.emplace(static_cast<GLenum>(std::stoull(value, nullptr, 16)), name);
            }
        }
        return names;
    }();
    return table;
}

/// The line of a call, while it is built.
struct line_t {
    std::ostringstream text;
    GLint count = 0;  // the last signed integer: the number of names that follow

    void put(char kind, GLuint value) {
        if (kind == 'b' && value < 2) {
            text << (value == 0 ? "GL_ZERO" : "GL_ONE");
        } else {
            text << (kind == 'm' ? names().at(value) : gl_enum_name(value));
        }
    }
    void put(char kind, GLint value) {
        count = value;
        text << (kind == 'e' ? gl_enum_name(static_cast<GLenum>(value)) : std::to_string(value));
    }
    void put(char, GLboolean value) { text << +value; }
    void put(char, double value) { text << value; }
    void put(char kind, GLfloat const* values) { put_all(values, kind == 'M' ? 16 : 4); }
    void put(char, GLubyte const* values) { put_all(values, 4); }
    void put(char, GLuint const* values) { put_all(values, count); }
    void put_all(auto const* values, int n) {
        for (int i = 0; i < n; ++i) {
            text << (i == 0 ? "{" : ", ") << +values[i];
        }
        text << "}";
    }
    void put(char, void const* pointer) {
        for (auto const& [begin, bytes, name] : g_recorder->regions) {
            if (pointer == begin && bytes != 0) {
                text << name;
                return;
            }
        }
        text << (pointer == nullptr ? "null" : "ptr");
    }
    template <typename T>
    requires(!std::is_const_v<T>) void put(char kind, T* out) {  // the function writes there
        put(kind, static_cast<void const*>(out));
    }
};

/// The replacement of the entry point `Slot`. `other` is the function that isn't in use.
template <auto& Slot, typename Answer, typename F = std::remove_cvref_t<decltype(Slot)>>
struct stand_in_t;
template <auto& Slot, typename Answer, typename R, typename... A>
struct stand_in_t<Slot, Answer, R (*)(A...)> {
    static inline std::string name;
    static inline std::string kinds;
    static R call(A... arguments) {
        if (!g_recorder->muted.contains(name)) {
            line_t line;
            [[maybe_unused]] std::size_t n = 0;
            ((line.text << (n == 0 ? "" : ", "), line.put(kinds[n], arguments), ++n), ...);
            g_recorder->lines.push_back(name + "(" + line.text.str() + ")");
        }
        if constexpr (std::is_invocable_v<Answer, A...>) {
            return Answer{}(arguments...);
        } else {
            return R();
        }
    }
    static inline R (*other)(A...) = &stand_in_t::call;
    /// `names` starts with the name of the entry point.
    static void swap(std::istream& names, std::string const& kinds_of_arguments) {
        std::getline(names >> std::ws, name, ',');
        name.erase(0, name.rfind(':') + 1);
        kinds = kinds_of_arguments + std::string(16, '.');
        std::swap(Slot, other);
    }
};

template <auto&... Slots, typename Answer>
void swap_group(std::string const& kinds, Answer, std::string const& list) {
    std::istringstream names(list);
    (stand_in_t<Slots, Answer>::swap(names, kinds), ...);
}

/// Returns the values of the name that is the argument before the last.
struct give_values_t {
    void operator()(GLenum name, GLint* out) const {
        std::ranges::copy(g_recorder->integers[name], out);
    }
    void operator()(GLenum name, GLfloat* out) const {
        std::ranges::copy(g_recorder->floats[name], out);
    }
    void operator()(auto, auto... rest) const { (*this)(rest...); }
};
constexpr auto give_pixels = [](GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void* out) {
    auto const buffer = static_cast<GLenum>(g_recorder->integers[GL_READ_BUFFER].at(0));
    std::ranges::copy(g_recorder->pixels[buffer], static_cast<unsigned char*>(out));
};
constexpr auto give_string = [](GLenum name) {
    std::string const& text = g_recorder->strings[name];
    return text.empty() ? nullptr : reinterpret_cast<GLubyte const*>(text.c_str());
};
constexpr auto give_error = [] {
    g_recorder->errors.push_back(GL_NO_ERROR);
    GLenum const error = g_recorder->errors.front();
    g_recorder->errors.pop_front();
    return error;
};
constexpr auto give_lists = [](GLsizei range) {
    return std::exchange(g_recorder->next_name, g_recorder->next_name + static_cast<GLuint>(range));
};
constexpr auto give_names = [](GLsizei count, GLuint* out) {
    std::generate_n(out, count, [] { return g_recorder->next_name++; });
};
constexpr auto give_textures = [](GLsizei count, GLuint* out) {
    g_recorder->textures += count;
    give_names(count, out);
};
constexpr auto take_textures = [](GLsizei count, GLuint const*) { g_recorder->textures -= count; };
constexpr auto fill_texture = [](auto...) {
    if (g_recorder->textures > g_recorder->most_textures) {
        g_recorder->errors.push_front(GL_OUT_OF_MEMORY);
    }
};
template <GLenum Name>
constexpr auto keep =
    [](GLenum value) { g_recorder->integers[Name] = {static_cast<GLint>(value)}; };
constexpr auto keep_value = [](GLenum name, GLint value) { g_recorder->integers[name] = {value}; };
constexpr auto keep_viewport = [](GLint x, GLint y, GLsizei w, GLsizei h) {
    g_recorder->integers[GL_VIEWPORT] = {x, y, w, h};
};

// The kinds of arguments in order: e is an integer that is an enumerant, m a primitive, b a blend
// factor, M 16 floats. Other arguments are printed by their type.
#define GROUP(kinds, answer, ...) swap_group<__VA_ARGS__>(kinds, answer, #__VA_ARGS__)
void swap_all() {
    GROUP("", nullptr, glActiveTexture, glActiveTextureARB, glAreTexturesResidentEXT,
          glBindImageTexture, glBindProgramARB, glBindTexture, glBlendEquationEXT, glCallList,
          glClear, glClearColor, glClearDepth, glClientActiveTextureARB, glColor4fv, glColor4ubv,
          glCompressedTexImage1DARB, glCompressedTexImage2DARB, glCompressedTexImage3DARB,
          glCompressedTexSubImage2DARB, glCullFace, glDeleteLists, glDisable, glDisableClientState,
          glEnable, glEnableClientState, glEnd, glEndList, glFrontFace, glGenerateMipmap,
          glGetTexImage, glGetTextureImage, glHint, glLightfv, glLoadIdentity, glMaterialf,
          glMaterialfv, glMultiTexCoord3f, glNewList, glNormal3f, glOrtho, glPixelMapusv,
          glPixelTransferi, glPolygonMode, glPopMatrix, glProgramLocalParameter4fARB,
          glProgramLocalParameter4fvARB, glProgramStringARB, glPushMatrix, glRotatef, glScalef,
          glShadeModel, glTexCoord2f, glTexCoordPointer, glTexEnvf, glTexEnvfv, glTexImage3DEXT,
          glTexParameterf, glTexParameterfv, glTexSubImage1D, glTexSubImage2D, glTexSubImage3DEXT,
          glTranslatef, glVertex2f, glVertexPointer, glDeleteProgramsARB);
    GROUP("m", nullptr, glBegin, glDrawElements);
    GROUP("bb", nullptr, glBlendFunc);
    GROUP("M", nullptr, glLoadMatrixf, glMultMatrixf);
    GROUP("..e", nullptr, glTexEnvi, glTexGeni, glTexImage1D, glTexParameteri);
    GROUP("..e", fill_texture, glTexImage2D);
    GROUP("", take_textures, glDeleteTextures);
    GROUP(".e", nullptr, libgr::gluBuild1DMipmaps, libgr::gluBuild2DMipmaps,
          libgr::gluBuild3DMipmaps);
    GROUP("", give_names, glGenProgramsARB);
    GROUP("", give_textures, glGenTextures);
    GROUP("", give_lists, glGenLists);
    GROUP("", give_error, glGetError);
    GROUP("", give_values_t{}, glGetFloatv, glGetIntegerv, glGetLightfv, glGetTexLevelParameteriv,
          glGetTextureLevelParameteriv);
    GROUP("", give_string, glGetString, libgr::gluErrorString);
    GROUP("", give_pixels, glReadPixels);
    GROUP("", keep<GL_MATRIX_MODE>, glMatrixMode);
    GROUP("", keep_value, glPixelStorei);
    GROUP("", keep<GL_READ_BUFFER>, glReadBuffer);
    GROUP("", keep_viewport, glViewport);
}

}  // namespace

std::string gl_enum_name(GLenum value) {
    auto const found = names().find(value);
    return value >= 0x100 && found != names().end() ? found->second : std::to_string(value);
}

gl_recorder_t::gl_recorder_t() {
    integers = {{GL_MATRIX_MODE, {GL_MODELVIEW}},
                {GL_READ_BUFFER, {GL_BACK}},
                {GL_VIEWPORT, {0, 0, 640, 480}},
                {GL_MAX_TEXTURE_SIZE, {16384}},
                {GL_MAX_VIEWPORT_DIMS, {16384, 16384}}};
    std::vector<GLfloat> const identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    floats = {{GL_MODELVIEW_MATRIX, identity}, {GL_PROJECTION_MATRIX, identity}};
    strings = {{GL_OUT_OF_MEMORY, "out of memory"},
               {GL_INVALID_ENUM, "invalid enumerant"},
               {GL_INVALID_VALUE, "invalid value"},
               {GL_INVALID_OPERATION, "invalid operation"}};
    g_recorder = this;
    swap_all();
}

gl_recorder_t::~gl_recorder_t() {
    swap_all();
    g_recorder = nullptr;
}

std::string gl_recorder_t::take() {
    std::string text;
    for (std::string const& line : std::exchange(lines, {})) {
        text += line + "\n";
    }
    return text;
}
