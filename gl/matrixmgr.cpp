// SPDX-License-Identifier: MIT
// Scope objects for the matrix mode and the matrix stacks.
#include "gl/matrixmgr.h"

#include <iostream>

namespace libgr {

namespace {

GLenum current_mode() {
    GLint mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    return static_cast<GLenum>(mode);
}

}  // namespace

grMatrixModeKeeper::grMatrixModeKeeper(GLenum mode) {
    if (mode == 0) {
        return;
    }
    GLenum const current = current_mode();
    if (current != mode) {
        glMatrixMode(mode);
        m_savedmode = current;
    }
}

grMatrixModeKeeper::~grMatrixModeKeeper() {
    if (m_savedmode != 0) {
        glMatrixMode(m_savedmode);
    }
}

bool grMatrixPusher::grMatrixManager::canPush() const {
    if (m_limit == 0) {
        return true;
    }
    GLint depth = 0;
    glGetIntegerv(m_depth_name, &depth);
    return depth < m_limit;
}

void grMatrixPusher::grMatrixManager::set_limit(bool on) {
    m_limit = 0;
    if (on) {
        glGetIntegerv(m_maxdepth_name, &m_limit);
    }
}

void grMatrixPusher::grMatrixManager::save() {
    glGetFloatv(m_matrix_name, m_overflow.emplace_back().data());
}

void grMatrixPusher::grMatrixManager::restore() {
    glLoadMatrixf(m_overflow.back().data());
    m_overflow.pop_back();
}

grMatrixPusher::grMatrixManager grMatrixPusher::g_modelview_matrix(GL_MODELVIEW,
                                                                   GL_MAX_MODELVIEW_STACK_DEPTH,
                                                                   GL_MODELVIEW_STACK_DEPTH,
                                                                   GL_MODELVIEW_MATRIX);
grMatrixPusher::grMatrixManager grMatrixPusher::g_projection_matrix(GL_PROJECTION,
                                                                    GL_MAX_PROJECTION_STACK_DEPTH,
                                                                    GL_PROJECTION_STACK_DEPTH,
                                                                    GL_PROJECTION_MATRIX);
grMatrixPusher::grMatrixManager grMatrixPusher::g_texture_matrix(GL_TEXTURE,
                                                                 GL_MAX_TEXTURE_STACK_DEPTH,
                                                                 GL_TEXTURE_STACK_DEPTH,
                                                                 GL_TEXTURE_MATRIX);
grMatrixPusher::grMatrixManager grMatrixPusher::g_color_matrix(GL_COLOR,
                                                               GL_MAX_COLOR_MATRIX_STACK_DEPTH,
                                                               GL_COLOR_MATRIX_STACK_DEPTH,
                                                               GL_COLOR_MATRIX);
bool grMatrixPusher::g_enhance = false;

grMatrixPusher::grMatrixPusher(GLenum mode)
    : grMatrixModeKeeper(mode), m_manager(&getMatrixManager(mode)) {
    if (m_manager->canPush()) {
        glPushMatrix();
        m_pushed = true;
    } else {
        m_manager->save();
    }
}

grMatrixPusher::~grMatrixPusher() {
    if (m_pushed) {
        glPopMatrix();
    } else {
        m_manager->restore();
    }
}

void grMatrixPusher::setEnhanceMode(bool on) {
    g_enhance = on;
    for (grMatrixManager* manager :
         {&g_modelview_matrix, &g_projection_matrix, &g_texture_matrix, &g_color_matrix}) {
        manager->set_limit(on);
    }
}

grMatrixPusher::grMatrixManager& grMatrixPusher::getMatrixManager(GLenum mode) {
    GLenum const wanted = mode != 0 ? mode : current_mode();
    for (grMatrixManager* manager :
         {&g_modelview_matrix, &g_projection_matrix, &g_texture_matrix, &g_color_matrix}) {
        if (manager->mode() == wanted) {
            return *manager;
        }
    }
    std::cout << std::hex << wanted << ": unknown enum! fall back to modelview." << std::endl;
    return g_modelview_matrix;
}

}  // namespace libgr
