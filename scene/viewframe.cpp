// SPDX-License-Identifier: MIT
// Draws the photo frame.
#include "scene/viewframe.h"

#include <iostream>

#include "geometry/constants.h"
#include "geometry/textstream.h"
#include "gl/grcalls.h"
#include "gl/grerror.h"
#include "options/option.h"
#include "options/trace.h"
#include "scene/framegeometry.h"

namespace zanolib {

namespace {

struct texenv_row_t {
    GLenum pname;
    GLint value;
};

constexpr texenv_row_t cube_map_unit[] = {
    {GL_TEXTURE_ENV_MODE, GL_COMBINE}, {GL_COMBINE_RGB, GL_REPLACE},
    {GL_SOURCE0_RGB, GL_TEXTURE},      {GL_SOURCE1_RGB, GL_PREVIOUS},
    {GL_OPERAND0_RGB, GL_SRC_COLOR},   {GL_OPERAND1_RGB, GL_SRC_COLOR},
};

constexpr texenv_row_t normal_map_unit[] = {
    {GL_TEXTURE_ENV_MODE, GL_COMBINE}, {GL_COMBINE_RGB, GL_DOT3_RGB},
    {GL_SOURCE0_RGB, GL_PREVIOUS},     {GL_SOURCE1_RGB, GL_TEXTURE},
    {GL_OPERAND0_RGB, GL_SRC_COLOR},   {GL_OPERAND1_RGB, GL_SRC_COLOR},
};

constexpr GLenum texgen_coordinates[] = {GL_S, GL_T, GL_R};
constexpr GLenum texgen_switches[] = {GL_TEXTURE_GEN_S, GL_TEXTURE_GEN_T, GL_TEXTURE_GEN_R};

template <std::size_t N>
void set_texenv(texenv_row_t const (&rows)[N]) {
    for (texenv_row_t const& row : rows) {
        glTexEnvi(GL_TEXTURE_ENV, row.pname, row.value);
    }
    glTexEnvf(GL_TEXTURE_ENV, GL_RGB_SCALE, 1.0f);
}

void set_material(libgr::color3a_t const& color, libgr::color3a_t const& specular) {
    constexpr float shininess = 100.0f;
    libgr::grMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE, color);
    libgr::grMaterial(GL_FRONT, GL_EMISSION, libgr::black);
    libgr::grMaterial(GL_FRONT, GL_SPECULAR, specular);
    libgr::grMaterial(GL_FRONT, GL_SHININESS, shininess);
}

GLenum normal_switch() {
    return is_GL_EXT_rescale_normal_supported ? GL_RESCALE_NORMAL : GL_NORMALIZE;
}

void begin_texcoords() {
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    libgr::grTexCoordPointer(texcoords_frame.data(), 0);
    glNormal3f(0.0f, 0.0f, 1.0f);
}

}  // namespace

void ViewFrame::setFrameType(e_frametype_t type) {
    if (type == m_frametype) {
        return;
    }
    trace(std::cout, "frametype: ", static_cast<unsigned int>(type));
    m_frametype = type;
}

void ViewFrame::setSize(libgr::direction2_t size, unsigned int width) {
    m_size = size;
    m_width = static_cast<float>(width);
}

bool ViewFrame::has_programs() {
    return is_GL_ARB_vertex_program_supported && is_GL_ARB_fragment_program_supported;
}

bool ViewFrame::has_combiners() {
    return is_GL_ARB_texture_env_combine_supported && is_GL_ARB_texture_env_dot3_supported &&
           is_GL_ARB_texture_cube_map_supported && is_GL_ARB_multitexture_supported;
}

ViewFrame::path_t ViewFrame::bump_path() {
    if (has_programs() && s_vertex_program_loaded && s_fragment_program_loaded) {
        return path_t::programs;
    }
    return has_combiners() ? path_t::combiners : path_t::plain;
}

libgr::color3a_t ViewFrame::bump_color() const {
    return m_frametype == FRAMETYPE_BUMP_BROWN ? libgr::brown
                                               : libgr::color3a(g_option.framecolor) * 0.75f;
}

void ViewFrame::begin_flower() {
    libgr::grColor(libgr::white);
    glEnable(GL_LIGHTING);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    if (is_GL_ARB_imaging_supported) {
        glBlendEquationEXT(GL_FUNC_ADD);
    }
    glEnable(normal_switch());
    glEnable(GL_TEXTURE_2D);
    s_flowertexobj.Load();
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    // The light of the scene is too far away to make the texture visible.
    libgr::grMaterial(GL_FRONT, GL_EMISSION, libgr::white);
    begin_texcoords();
}

void ViewFrame::end_flower() {
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_BLEND);
    glDisable(GL_LIGHTING);
    glDisable(normal_switch());
    libgr::grMaterial(GL_FRONT, GL_EMISSION, libgr::black);
}

void ViewFrame::begin_programs() {
    libgr::matrix3w_t mv;
    libgr::matrix3w_t proj;
    libgr::grGet(GL_MODELVIEW_MATRIX, mv);
    libgr::grGet(GL_PROJECTION_MATRIX, proj);
    glBindProgramARB(GL_VERTEX_PROGRAM_ARB, s_vertex_program);
    libgr::position3_t light{};
    libgr::grGetLightPos(GL_LIGHT0, light);
    trace(std::cout, light);
    glProgramLocalParameter4fARB(GL_VERTEX_PROGRAM_ARB, 0, light.x, light.y, light.z, 1.0f);
    libgr::grProgramLocalParameterARB(GL_VERTEX_PROGRAM_ARB, 1, libgr::Transpose(mv));
    trace(std::cout, mv);
    libgr::grProgramLocalParameterARB(GL_VERTEX_PROGRAM_ARB, 5,
                                      libgr::Transpose(libgr::Invert(mv)));
    libgr::grProgramLocalParameterARB(GL_VERTEX_PROGRAM_ARB, 9, libgr::Transpose(proj));
    glBindProgramARB(GL_FRAGMENT_PROGRAM_ARB, s_fragment_program);
    glProgramLocalParameter4fARB(GL_FRAGMENT_PROGRAM_ARB, 0, 10.0f, 0.0f, 0.0f, 0.0f);
    glProgramLocalParameter4fARB(GL_FRAGMENT_PROGRAM_ARB, 1, 0.0f, 0.0f, 0.0f, 0.0f);
    glEnable(GL_VERTEX_PROGRAM_ARB);
    glEnable(GL_FRAGMENT_PROGRAM_ARB);
    glActiveTexture(GL_TEXTURE0);
    glEnable(GL_TEXTURE_2D);
    s_hairlinetexobj.Load();
}

void ViewFrame::end_programs() {
    glBindProgramARB(GL_VERTEX_PROGRAM_ARB, 0);
    glBindProgramARB(GL_FRAGMENT_PROGRAM_ARB, 0);
    glDisable(GL_VERTEX_PROGRAM_ARB);
    glDisable(GL_FRAGMENT_PROGRAM_ARB);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_NORMALIZE);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
}

void ViewFrame::begin_combiners(libgr::color3a_t const& color) {
    libgr::direction3_t light{};
    libgr::grGetLightPos(GL_LIGHT0, light);
    glActiveTextureARB(GL_TEXTURE0);
    glEnable(GL_TEXTURE_CUBE_MAP);
    libgr::grTexEnv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR,
                    libgr::color3a(light.x, light.y, light.z, 1.0f));
    set_texenv(cube_map_unit);
    for (GLenum const coordinate : texgen_coordinates) {
        glTexGeni(coordinate, GL_TEXTURE_GEN_MODE, GL_REFLECTION_MAP);
    }
    for (GLenum const generation : texgen_switches) {
        glEnable(generation);
    }
    s_normaltexobj.Load();
    glActiveTextureARB(GL_TEXTURE1);
    glClientActiveTextureARB(GL_TEXTURE1);
    glEnable(GL_TEXTURE_2D);
    set_texenv(normal_map_unit);
    s_hairlinetexobj.Load();
    glEnable(GL_LIGHTING);
    set_material(color, libgr::black);
}

void ViewFrame::end_combiners() {
    glDisable(GL_TEXTURE_2D);  // unit 1
    glActiveTextureARB(GL_TEXTURE0);
    glClientActiveTextureARB(GL_TEXTURE0);
    glDisable(GL_TEXTURE_CUBE_MAP);
    for (GLenum const generation : texgen_switches) {
        glDisable(generation);
    }
    glDisable(GL_LIGHTING);
    glDisable(GL_NORMALIZE);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
}

void ViewFrame::begin_plain(libgr::color3a_t const& color) {
    glEnable(GL_TEXTURE_2D);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    glEnable(GL_LIGHTING);
    set_material(color, libgr::white);
    s_monotexobj.Load();
}

void ViewFrame::end_plain() {
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_LIGHTING);
    glDisable(GL_NORMALIZE);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
}

void ViewFrame::begin_look() const {
    if (m_frametype == FRAMETYPE_FLAT) {
        libgr::grColor(g_option.framecolor);
    } else if (m_frametype == FRAMETYPE_FLOWER) {
        begin_flower();
    } else if (is_bump_mapped()) {
        libgr::color3a_t const color = bump_color();
        libgr::grColor(color);
        switch (bump_path()) {
            case path_t::programs:
                begin_programs();
                break;
            case path_t::combiners:
                begin_combiners(color);
                break;
            case path_t::plain:
                begin_plain(color);
                break;
        }
        glEnable(GL_NORMALIZE);
        begin_texcoords();
        glMultiTexCoord3f(GL_TEXTURE1, 1.0f, 0.0f, 0.0f);
    }
}

/// Disables everything that `begin_look` enabled, because the picture is drawn next.
void ViewFrame::end_look() const {
    if (m_frametype == FRAMETYPE_FLOWER) {
        end_flower();
    } else if (is_bump_mapped()) {
        switch (bump_path()) {
            case path_t::programs:
                end_programs();
                break;
            case path_t::combiners:
                end_combiners();
                break;
            case path_t::plain:
                end_plain();
                break;
        }
    }
}

void ViewFrame::Draw() const {
    if (m_frametype == FRAMETYPE_NONE || m_frametype > FRAMETYPE_FLOWER) {
        return;
    }
    frame_vertices_t const vertices = frame_vertices(m_size, m_width);
    begin_look();
    libgr::grPrintError("ViewFrame::Draw() - before vertex array.");
    glEnableClientState(GL_VERTEX_ARRAY);
    libgr::grVertexPointer(vertices.data(), 0);
    libgr::grDrawElements(GL_QUAD_STRIP, static_cast<int>(elements.size()), elements.data());
    glDisableClientState(GL_VERTEX_ARRAY);
    libgr::grPrintError("ViewFrame::Draw() - after vertex array.");
    end_look();
}

}  // namespace zanolib
