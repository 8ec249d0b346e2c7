// SPDX-License-Identifier: MIT
// A node that draws a compiled GL display list.
#include "gl/grdsplist.h"

#include "glext/glextloader.h"

namespace libgr {

void grDspListMgr::Generate() {
    if (!m_generated) {
        m_listname = glGenLists(1);
        m_generated = true;
    }
}

void grDspListMgr::Release() {
    if (m_generated) {
        glDeleteLists(m_listname, 1);
        m_generated = false;
    }
}

unsigned int grDspListMgr::listname() const {
    // Callers depend on this value for a missing name.
    return m_generated ? m_listname : static_cast<unsigned int>(GL_INVALID_VALUE);
}

bool grDspList::Preload(grObject3D const* object) {
    grDspListMgr& list = m_list ? *m_list : m_list.create();
    list.Generate();
    glNewList(list.listname(), GL_COMPILE);
    if (object != nullptr) {
        object->Draw();
    }
    glEndList();
    return true;
}

void grDspList::Unload() {
    if (m_list) {
        m_list->Release();
    }
}

void grDspList::Draw() const {
    if (m_list && m_list->is_generated()) {
        glCallList(m_list->listname());
    }
}

}  // namespace libgr
