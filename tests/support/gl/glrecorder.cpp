// SPDX-License-Identifier: MIT
// The table of stand-ins: each entry point with the kinds of its arguments and its answer.
#include "tests/support/gl/glrecorder.h"

#include <algorithm>
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

// Values below 0x100 mean something else in each call and stay numbers.
const std::map<GLenum, std::string> g_names = NAMED(
    GL_ADD, GL_ADD_SIGNED, GL_ALPHA, GL_ALPHA12, GL_ALPHA16, GL_ALPHA4, GL_ALPHA8, GL_ALPHA_TEST,
    GL_AMBIENT, GL_AMBIENT_AND_DIFFUSE, GL_BACK, GL_BGR, GL_BGRA, GL_BITMAP, GL_BLEND, GL_BLUE,
    GL_BYTE, GL_CCW, GL_CLAMP, GL_CLAMP_TO_EDGE, GL_COLOR, GL_COLOR_INDEX, GL_COLOR_MATRIX,
    GL_COLOR_MATRIX_STACK_DEPTH, GL_COMBINE, GL_COMBINE_ALPHA, GL_COMBINE_RGB, GL_COMPILE,
    GL_COMPRESSED_ALPHA, GL_CONSTANT, GL_CULL_FACE, GL_DECAL, GL_DEPTH_COMPONENT,
    GL_DEPTH_COMPONENT16, GL_DEPTH_COMPONENT24, GL_DEPTH_COMPONENT32, GL_DEPTH_TEST, GL_DIFFUSE,
    GL_DOT3_RGB, GL_DOUBLE, GL_EXTENSIONS, GL_FASTEST, GL_FILL, GL_FLOAT, GL_FRAGMENT_PROGRAM_ARB,
    GL_FRONT, GL_FRONT_AND_BACK, GL_FUNC_ADD, GL_GENERATE_MIPMAP_SGIS, GL_GREEN, GL_HALF_FLOAT,
    GL_INT, GL_INTENSITY, GL_INTENSITY12, GL_INTENSITY16, GL_INTENSITY4, GL_INTENSITY8,
    GL_INTERPOLATE, GL_INVALID_ENUM, GL_INVALID_OPERATION, GL_INVALID_VALUE, GL_LIGHT0, GL_LIGHTING,
    GL_LINEAR, GL_LINEAR_ATTENUATION, GL_LINEAR_MIPMAP_LINEAR, GL_LINE_SMOOTH_HINT, GL_LUMINANCE,
    GL_LUMINANCE12, GL_LUMINANCE16, GL_LUMINANCE16_ALPHA16, GL_LUMINANCE4, GL_LUMINANCE8,
    GL_LUMINANCE8_ALPHA8, GL_LUMINANCE_ALPHA, GL_MAP_COLOR, GL_MATRIX_MODE,
    GL_MAX_COLOR_MATRIX_STACK_DEPTH, GL_MAX_MODELVIEW_STACK_DEPTH, GL_MAX_PROJECTION_STACK_DEPTH,
    GL_MAX_TEXTURE_SIZE, GL_MAX_TEXTURE_STACK_DEPTH, GL_MAX_VIEWPORT_DIMS, GL_MODELVIEW,
    GL_MODELVIEW_MATRIX, GL_MODELVIEW_STACK_DEPTH, GL_MODULATE, GL_NEAREST, GL_NICEST, GL_NORMALIZE,
    GL_NUM_EXTENSIONS, GL_OBJECT_LINEAR, GL_ONE_MINUS_SRC_ALPHA, GL_OPERAND0_ALPHA, GL_OPERAND0_RGB,
    GL_OPERAND1_ALPHA, GL_OPERAND1_RGB, GL_PACK_ALIGNMENT, GL_PACK_IMAGE_HEIGHT, GL_PACK_ROW_LENGTH,
    GL_PACK_SKIP_IMAGES, GL_PACK_SKIP_PIXELS, GL_PACK_SKIP_ROWS, GL_PACK_SWAP_BYTES,
    GL_PIXEL_MAP_I_TO_B, GL_PIXEL_MAP_I_TO_G, GL_PIXEL_MAP_I_TO_R, GL_POINT_SMOOTH_HINT,
    GL_POLYGON_SMOOTH_HINT, GL_POSITION, GL_PREVIOUS, GL_PRIMARY_COLOR, GL_PROGRAM_FORMAT_ASCII_ARB,
    GL_PROJECTION, GL_PROJECTION_MATRIX, GL_PROJECTION_STACK_DEPTH, GL_R8, GL_READ_ONLY, GL_RED,
    GL_REPEAT, GL_REPLACE, GL_RESCALE_NORMAL_EXT, GL_RGB, GL_RGB10_A2, GL_RGB12, GL_RGB16,
    GL_RGB16F, GL_RGB32F, GL_RGB4, GL_RGB5, GL_RGB5_A1, GL_RGB8, GL_RGBA, GL_RGBA12, GL_RGBA16,
    GL_RGBA16F, GL_RGBA32F, GL_RGBA4, GL_RGBA8, GL_RGB_SCALE, GL_SHININESS, GL_SHORT,
    GL_SIGNED_NORMALIZED, GL_SMOOTH, GL_SOURCE0_ALPHA, GL_SOURCE0_RGB, GL_SOURCE1_ALPHA,
    GL_SOURCE1_RGB, GL_SPECULAR, GL_SRC_ALPHA, GL_SRC_COLOR, GL_STENCIL_TEST, GL_SUBTRACT,
    GL_TEXTURE, GL_TEXTURE0, GL_TEXTURE1, GL_TEXTURE_1D, GL_TEXTURE_2D, GL_TEXTURE_3D,
    GL_TEXTURE_BORDER_COLOR, GL_TEXTURE_COORD_ARRAY, GL_TEXTURE_CUBE_MAP,
    GL_TEXTURE_CUBE_MAP_NEGATIVE_X, GL_TEXTURE_CUBE_MAP_NEGATIVE_Y, GL_TEXTURE_CUBE_MAP_NEGATIVE_Z,
    GL_TEXTURE_CUBE_MAP_POSITIVE_X, GL_TEXTURE_CUBE_MAP_POSITIVE_Y, GL_TEXTURE_CUBE_MAP_POSITIVE_Z,
    GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, GL_TEXTURE_ENV_MODE, GL_TEXTURE_GEN_MODE,
    GL_TEXTURE_GEN_Q, GL_TEXTURE_GEN_R, GL_TEXTURE_GEN_S, GL_TEXTURE_GEN_T, GL_TEXTURE_HEIGHT,
    GL_TEXTURE_MAG_FILTER, GL_TEXTURE_MATRIX, GL_TEXTURE_MAX_ANISOTROPY_EXT, GL_TEXTURE_MIN_FILTER,
    GL_TEXTURE_RECTANGLE, GL_TEXTURE_RED_SIZE, GL_TEXTURE_RED_TYPE, GL_TEXTURE_STACK_DEPTH,
    GL_TEXTURE_WIDTH, GL_TEXTURE_WRAP_R, GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T, GL_UNPACK_ALIGNMENT,
    GL_UNPACK_IMAGE_HEIGHT, GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_IMAGES, GL_UNPACK_SKIP_PIXELS,
    GL_UNPACK_SKIP_ROWS, GL_UNPACK_SWAP_BYTES, GL_UNSIGNED_BYTE, GL_UNSIGNED_BYTE_2_3_3_REV,
    GL_UNSIGNED_INT, GL_UNSIGNED_INT_2_10_10_10_REV, GL_UNSIGNED_NORMALIZED, GL_UNSIGNED_SHORT,
    GL_UNSIGNED_SHORT_1_5_5_5_REV, GL_UNSIGNED_SHORT_5_6_5_REV, GL_VERSION, GL_VERTEX_ARRAY,
    GL_VERTEX_PROGRAM_ARB, GL_VIEWPORT, GL_S, GL_T, GL_R);
constexpr const char* g_primitives[] = {
    "GL_POINTS",         "GL_LINES",        "GL_LINE_LOOP", "GL_LINE_STRIP", "GL_TRIANGLES",
    "GL_TRIANGLE_STRIP", "GL_TRIANGLE_FAN", "GL_QUADS",     "GL_QUAD_STRIP", "GL_POLYGON"};

std::string name_of(GLenum value) {
    const auto found = g_names.find(value);
    return found != g_names.end() ? found->second : std::to_string(value);
}

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
        m_line += kind == 'c' ? mask_name(value) : name_of(value);
    }
}

void gl_recorder_t::put(char kind, GLint value) {
    m_count = value;
    m_line += kind == 'e' ? name_of(static_cast<GLenum>(value)) : std::to_string(value);
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
