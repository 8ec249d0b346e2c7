// SPDX-License-Identifier: MIT
// The table of stand-ins: each entry point with the kinds of its arguments and its answer.
#include "tests/support/gl/glrecorder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <type_traits>
#include <utility>

#include "gl/glucalls.h"

namespace {

gl_recorder_t* g_recorder = nullptr;

struct no_answer_t {};

/// The stand-in of the entry point `Slot`; `other` is what isn't in the slot now.
template <auto& Slot, typename Answer, typename F = std::remove_cvref_t<decltype(Slot)>>
struct stand_in_t;
template <auto& Slot, typename Answer, typename R, typename... A>
struct stand_in_t<Slot, Answer, R (*)(A...)> {
    // In functions, since the table below is filled before the statics of templates are made.
    static std::string& name() {
        static std::string text;
        return text;
    }
    static std::string& format() {
        static std::string text;
        return text;
    }
    static R call(A... arguments) {
        g_recorder->record(name(), format(), arguments...);
        if constexpr (!std::is_same_v<Answer, no_answer_t>) {
            return Answer{}(*g_recorder, arguments...);
        } else {
            return R();
        }
    }
    static inline R (*other)(A...) = &stand_in_t::call;
    static void swap() { std::swap(Slot, other); }
};

using swap_t = void (*)();

template <auto& Slot, typename Answer>
swap_t entry(const std::string& name, const std::string& format, Answer) {
    using stand_in = stand_in_t<Slot, Answer>;
    stand_in::name() = name.substr(name.rfind(':') + 1);
    stand_in::format() = format;
    return &stand_in::swap;
}

/// "a, b" as its words.
std::vector<std::string> split(const std::string& list) {
    std::istringstream words(list);
    std::vector<std::string> names;
    for (std::string word; words >> word; names.push_back(word)) {
        word.resize(word.find_last_not_of(',') + 1);
    }
    return names;
}

template <auto&... Slots>
std::vector<swap_t> group(const std::string& format, const std::vector<std::string>& names) {
    std::size_t n = 0;
    return {entry<Slots>(names[n++], format, no_answer_t{})...};
}

template <typename K, typename T>
void give(const std::map<K, std::vector<T>>& answers, K key, T* out) {
    if (const auto found = answers.find(key); found != answers.end()) {
        std::ranges::copy(found->second, out);
    }
}

void give_pixels(const gl_recorder_t& gl, GLenum source, void* out) {
    give(gl.pixels, source, static_cast<unsigned char*>(out));
}

const GLubyte* bytes(const std::string& text) {
    return reinterpret_cast<const GLubyte*>(text.c_str());
}

constexpr auto give_string = [](gl_recorder_t& gl, GLenum name) {
    return gl.strings.contains(name) ? bytes(gl.strings[name]) : nullptr;
};
constexpr auto give_integers = [](gl_recorder_t& gl, auto... arguments) {
    const auto last = std::get<sizeof...(arguments) - 1>(std::tuple(arguments...));
    const auto name = std::get<sizeof...(arguments) - 2>(std::tuple(arguments...));
    give(gl.integers, name, last);
};
constexpr auto give_names = [](gl_recorder_t& gl, GLsizei count, GLuint* names) {
    std::generate_n(names, count, [&gl] { return gl.next_name++; });
};

// The kinds of arguments in order: e an integer that is an enumerant, m a primitive, b a blend
// factor, c a mask for glClear, M 16 floats; all else goes by its type.
#define GROUP(format, ...) group<__VA_ARGS__>(format, split(#__VA_ARGS__))
#define ENTRY(function, ...) entry<function>(#function, "", __VA_ARGS__)
const std::vector<std::vector<swap_t>> g_entries = {
    GROUP("", glActiveTexture, glActiveTextureARB, glBindImageTexture, glBindProgramARB,
          glBindTexture, glBlendEquationEXT, glCallList, glClearColor, glClearDepth,
          glClientActiveTextureARB, glColor4fv, glColor4ubv, glCompressedTexImage1DARB,
          glCompressedTexImage2DARB, glCompressedTexImage3DARB, glCompressedTexSubImage2DARB,
          glCullFace, glDeleteLists, glDisable, glDisableClientState, glEnable, glEnableClientState,
          glEnd, glEndList, glFrontFace, glGenerateMipmap, glHint, glLightfv, glLoadIdentity,
          glMaterialf, glMaterialfv, glMultiTexCoord3f, glNewList, glNormal3f, glOrtho,
          glPixelMapusv, glPixelStorei, glPixelTransferi, glPolygonMode, glPopMatrix,
          glProgramLocalParameter4fARB, glProgramLocalParameter4fvARB, glProgramStringARB,
          glPushMatrix, glRotatef, glScalef, glShadeModel, glTexCoord2f, glTexCoordPointer,
          glTexEnvf, glTexEnvfv, glTexImage3DEXT, glTexParameterf, glTexParameterfv,
          glTexSubImage1D, glTexSubImage2D, glTexSubImage3DEXT, glTranslatef, glVertex2f,
          glVertexPointer, glDeleteProgramsARB, glDeleteTextures),
    GROUP("m", glBegin, glDrawElements),
    GROUP("bb", glBlendFunc),
    GROUP("c", glClear),
    GROUP("M", glLoadMatrixf, glMultMatrixf),
    GROUP("..e", glTexEnvi, glTexGeni, glTexImage1D, glTexImage2D, glTexParameteri),
    GROUP(".e", libgr::gluBuild1DMipmaps, libgr::gluBuild2DMipmaps, libgr::gluBuild3DMipmaps),
    {ENTRY(glAreTexturesResidentEXT,
           [](gl_recorder_t& gl, GLsizei n, const GLuint*, GLboolean* out) {
               std::fill_n(out, n, gl.resident);
               return gl.resident;
           }),
     ENTRY(glGenLists,
           [](gl_recorder_t& gl, GLsizei range) {
               return std::exchange(gl.next_name, gl.next_name + static_cast<GLuint>(range));
           }),
     ENTRY(glGenProgramsARB, give_names), ENTRY(glGenTextures, give_names),
     ENTRY(glGetError,
           [](gl_recorder_t& gl) {
               const GLenum error = gl.errors.empty() ? GLenum{GL_NO_ERROR} : gl.errors.front();
               if (!gl.errors.empty()) {
                   gl.errors.pop_front();
               }
               return error;
           }),
     ENTRY(glGetFloatv,
           [](gl_recorder_t& gl, GLenum name, GLfloat* out) { give(gl.floats, name, out); }),
     ENTRY(glGetIntegerv, give_integers),
     ENTRY(glGetLightfv, [](gl_recorder_t& gl, GLenum, GLenum name,
                            GLfloat* out) { give(gl.floats, name, out); }),
     ENTRY(glGetString, give_string),
     ENTRY(glGetStringi,
           [](gl_recorder_t& gl, GLenum, GLuint i) {
               return i < gl.extensions.size() ? bytes(gl.extensions[i]) : nullptr;
           }),
     ENTRY(glGetTexImage, [](gl_recorder_t& gl, GLenum, GLint, GLenum, GLenum,
                             void* out) { give_pixels(gl, GL_TEXTURE, out); }),
     ENTRY(glGetTextureImage, [](gl_recorder_t& gl, GLuint, GLint, GLenum, GLenum, GLsizei,
                                 void* out) { give_pixels(gl, GL_TEXTURE, out); }),
     ENTRY(glGetTexLevelParameteriv, give_integers),
     ENTRY(glGetTextureLevelParameteriv, give_integers),
     ENTRY(glMatrixMode,
           [](gl_recorder_t& gl, GLenum mode) {
               gl.integers[GL_MATRIX_MODE] = {static_cast<GLint>(mode)};
           }),
     ENTRY(glReadBuffer, [](gl_recorder_t& gl, GLenum buffer) { gl.read_buffer = buffer; }),
     ENTRY(glReadPixels, [](gl_recorder_t& gl, GLint, GLint, GLsizei, GLsizei, GLenum, GLenum,
                            void* out) { give_pixels(gl, gl.read_buffer, out); }),
     ENTRY(glViewport,
           [](gl_recorder_t& gl, GLint x, GLint y, GLsizei w, GLsizei h) {
               gl.integers[GL_VIEWPORT] = {x, y, w, h};
           }),
     ENTRY(libgr::gluErrorString, give_string)}};

void swap_all() {
    for (const auto& group : g_entries) {
        for (const swap_t swap : group) {
            swap();
        }
    }
}

#define NAMED(...) with_names({__VA_ARGS__}, split(#__VA_ARGS__))
std::map<GLenum, std::string> with_names(const std::vector<GLenum>& values,
                                         const std::vector<std::string>& names) {
    std::map<GLenum, std::string> table;
    for (std::size_t i = 0; i < values.size(); ++i) {
        table.emplace(values[i], names[i]);
    }
    return table;
}

/// The names by value, the first that the header of the enumerants gives, but for these.
std::map<GLenum, std::string> read_names() {
    auto names =
        NAMED(GL_GENERATE_MIPMAP_SGIS, GL_RESCALE_NORMAL_EXT, GL_TEXTURE_MAX_ANISOTROPY_EXT);
    std::ifstream header(GL_ENUMS);
    for (std::string word, name, value; header >> word;) {
        if (word == "#define" && header >> name >> value && value.starts_with("0x")) {
            names.emplace(static_cast<GLenum>(std::stoull(value, nullptr, 16)), name);
        }
    }
    for (const int number : {GL_EMISSION, GL_REFLECTION_MAP, GL_PROGRAM_ERROR_POSITION_ARB,
                             GL_PROGRAM_ERROR_STRING_ARB}) {
        names.erase(static_cast<GLenum>(number));  // numbers in the transcripts on file
    }
    return names;
}
constexpr const char* g_primitives[] = {
    "GL_POINTS",         "GL_LINES",        "GL_LINE_LOOP", "GL_LINE_STRIP", "GL_TRIANGLES",
    "GL_TRIANGLE_STRIP", "GL_TRIANGLE_FAN", "GL_QUADS",     "GL_QUAD_STRIP", "GL_POLYGON"};

std::string mask_name(GLbitfield mask) {
    static const auto bits = NAMED(GL_COLOR_BUFFER_BIT, GL_DEPTH_BUFFER_BIT, GL_STENCIL_BUFFER_BIT);
    std::string text;
    for (const auto& [bit, name] : bits) {
        if ((mask & bit) != 0) {
            text += text.empty() ? "" : " | ";
            text += name;
        }
    }
    return text;
}

}  // namespace

std::string gl_enum_name(GLenum value) {
    static const auto names = read_names();
    const auto found = names.find(value);
    return value >= 0x100 && found != names.end() ? found->second : std::to_string(value);
}

gl_recorder_t::gl_recorder_t() {
    integers = {{GL_MATRIX_MODE, {GL_MODELVIEW}},
                {GL_VIEWPORT, {0, 0, 640, 480}},
                {GL_MAX_TEXTURE_SIZE, {16384}},
                {GL_MAX_VIEWPORT_DIMS, {16384, 16384}}};
    const std::vector<GLfloat> identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    floats = {{GL_MODELVIEW_MATRIX, identity}, {GL_PROJECTION_MATRIX, identity}};
    strings = {{GL_INVALID_ENUM, "invalid enumerant"},
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
    for (const std::string& line : std::exchange(lines, {})) {
        text += line + "\n";
    }
    return text;
}

void gl_recorder_t::put(char kind, GLuint value) {
    if (kind == 'm' && value < std::size(g_primitives)) {
        m_line += g_primitives[value];
    } else if (kind == 'b' && value < 2) {
        m_line += value == 0 ? "GL_ZERO" : "GL_ONE";
    } else {
        m_line += kind == 'c' ? mask_name(value) : gl_enum_name(value);
    }
}

void gl_recorder_t::put(char kind, GLint value) {
    m_count = value;
    m_line += kind == 'e' ? gl_enum_name(static_cast<GLenum>(value)) : std::to_string(value);
}

void gl_recorder_t::put(char, double value) {
    std::ostringstream text;
    text << value;
    m_line += text.str();
}

void gl_recorder_t::put(char kind, const GLfloat* values) {
    put_vector(values, kind == 'M' ? 16 : 4);
}

void gl_recorder_t::put(char, const void* pointer) {
    const auto* const address = static_cast<const char*>(pointer);
    const auto found = std::ranges::find_if(m_regions, [address](const region_t& region) {
        return address >= region.begin && address < region.begin + region.bytes;
    });
    if (found == m_regions.end()) {
        m_line += pointer == nullptr ? "null" : "ptr";
    } else {
        m_line += found->name;
        if (address != found->begin) {
            m_line += '+';
            m_line += std::to_string(address - found->begin);
        }
    }
}

bool same_as_file(const std::string& text, const std::string& path) {
    std::ostringstream expected;
    expected << std::ifstream(path, std::ios::binary).rdbuf();
    if (text != expected.str()) {
        std::ofstream(std::filesystem::path(path).filename().string() + ".new") << text;
    }
    return text == expected.str();
}
