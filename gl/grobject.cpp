// SPDX-License-Identifier: MIT
// Draws the node tree.
#include "gl/grobject.h"

#include "gl/grcalls.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"

namespace libgr {

void grObject3D::Draw() {
    static_cast<grObject3D const*>(this)->Draw();
}

void grRotater::Draw() const {
    if (m_object == nullptr) {
        return;
    }
    grRotate(m_rotation);
    m_object->Draw();
}

void grZoomer::Draw() const {
    if (m_object == nullptr) {
        return;
    }
    grScale(m_scale);
    m_object->Draw();
}

void grZoomer::addZoom(direction3_t const& d) {
    direction3_t sum = m_zoom;
    sum += d;
    setZoom(sum);
}

void grZoomer::setZoom(direction3_t const& d) {
    m_zoom = d;
    m_scale = pow(direction3(2.0f), m_zoom);
}

void grTranslater::Draw() const {
    if (m_object == nullptr) {
        return;
    }
    grPrintError("grTranslater::Draw() - before translate.");
    grTranslate(m_position);
    grPrintError("grTranslater::Draw() - after translate.");
    m_object->Draw();
    grPrintError("grTranslater::Draw() - after m_object->Draw().");
}

void grTransformer::Draw() const {
    if (m_object == nullptr) {
        return;
    }
    grPrintError("grTransformer::Draw() - before MultMatrix()");
    grMultMatrix(m_matrix);
    grPrintError("grTransformer::Draw() - after MultMatrix()");
    m_object->Draw();
    grPrintError("grTransformer::Draw() - after m_object->Draw()");
}

void grContainer::Draw() const {
    for (grObject3D const* object : m_objects) {
        grMatrixPusher const pusher(GL_MODELVIEW);
        if (object != nullptr) {
            object->Draw();
        }
    }
}

grObject3D const* grContainer::getObject(unsigned long n) const {
    return n < m_objects.size() ? m_objects[n] : nullptr;
}

}  // namespace libgr
