// SPDX-License-Identifier: MIT
// The drawing of the photo frame.
#include "scene/viewframe.h"

#include <iostream>

#include "gl/grcalls.h"
#include "gl/grerror.h"
#include "options/option.h"
#include "scene/framegeometry.h"

namespace zanolib {

bool ViewFrame::s_inited = false;

void ViewFrame::init(char const* /*datapath*/) {
    s_inited = true;
}

void ViewFrame::destroy() {
    s_inited = false;
}

void ViewFrame::setFrameType(e_frametype_t type) {
    if (type == m_frametype) {
        return;
    }
    if (g_option.debug) {
        std::cout << "frametype: " << static_cast<unsigned int>(type) << std::endl;
    }
    m_frametype = type;
}

void ViewFrame::setSize(libgr::direction2_t size, unsigned int width) {
    m_size = size;
    m_width = static_cast<float>(width);
}

void ViewFrame::make_graph(char const* /*datapath*/) {}

void ViewFrame::free_graph() {}

void ViewFrame::Draw() const {
    if (m_frametype == FRAMETYPE_NONE) {
        return;
    }
    const frame_vertices_t vertices = frame_vertices(m_size, m_width);
    libgr::grColor(g_option.framecolor);
    libgr::grPrintError("ViewFrame::Draw() - before vertex array.");
    glEnableClientState(GL_VERTEX_ARRAY);
    libgr::grVertexPointer(vertices.data(), 0);
    libgr::grDrawElements(GL_QUAD_STRIP, static_cast<int>(elements.size()), elements.data());
    glDisableClientState(GL_VERTEX_ARRAY);
    libgr::grPrintError("ViewFrame::Draw() - after vertex array.");
}

}  // namespace zanolib
