// SPDX-License-Identifier: MIT
// Keeps the list of pictures, changes views, and draws the current picture.
#include "scene/viewscene.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <initializer_list>
#include <iostream>
#include <iterator>
#include <new>

#include "geometry/color.h"
#include "geometry/constants.h"
#include "geometry/textstream.h"
#include "gl/grcalls.h"
#include "gl/grerror.h"
#include "options/option.h"
#include "options/trace.h"
#include "scene/viewmatrix.h"
#include "utils/diagnostics.h"

namespace zanolib {

bool ViewScene::obj_t::load(char const* path, char const* datapath) {
    // A large picture may use up the memory. Then an exception must not end the program: the caller
    // frees the picture.
    try {
        if (!viewobj.setImage(path, datapath)) {
            return false;
        }
        viewframe.setFrameType(static_cast<e_frametype_t>(g_option.frametype));
        viewframe.setSize(libgr::direction2(viewobj.getImageSize()), g_option.framewidth);
        objcontainer.addObject(&viewframe);
        objcontainer.addObject(&objdspl);
        objtransformer.setObject(&objcontainer);
    } catch (std::bad_alloc const&) {
        return libutils::reject("not enough memory");
    }
    return true;
}

bool ViewScene::obj_t::make_graph(char const* datapath) {
    if (graph_made) {
        return true;
    }
    libgr::grPrintError("ViewScene::obj_t::make_graph() - before viewobj.load_texture().");
    libgr::grMemoryWatch const memory;
    graph_made = viewobj.load_texture();
    libgr::grPrintError("ViewScene::obj_t::make_graph() - after viewobj.load_texture().");
    // Drivers may crash in these calls if they have no memory.
    if (graph_made && !memory.is_exhausted()) {
        objdspl.Preload(&viewobj);
        libgr::grPrintError("ViewScene::obj_t::make_graph() - after objdspl.Preload().");
        viewframe.make_graph(datapath);
        libgr::grPrintError("ViewScene::obj_t::make_graph() - after viewframe.make_graph().");
    }
    if (memory.is_exhausted()) {
        free_graph();
    }
    return graph_made;
}

void ViewScene::obj_t::free_graph() {
    if (!graph_made) {
        return;
    }
    viewframe.free_graph();
    objdspl.Unload();
    viewobj.free_texture();
    graph_made = false;
}

void ViewScene::Init(char const* datapath) {
    trace(std::cout, "gl_init");
    // Without a depth test, the picture covers the frame because it is drawn later.
    for (GLenum const test : std::initializer_list<GLenum>{
             GL_DEPTH_TEST, GL_LIGHTING, GL_ALPHA_TEST, GL_STENCIL_TEST, GL_BLEND}) {
        glDisable(test);
    }
    for (GLenum const hint : std::initializer_list<GLenum>{
             GL_POINT_SMOOTH_HINT, GL_LINE_SMOOTH_HINT, GL_POLYGON_SMOOTH_HINT}) {
        glHint(hint, GL_FASTEST);
    }
    glShadeModel(GL_SMOOTH);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glFrontFace(GL_CCW);
    glCullFace(GL_BACK);
    glEnable(GL_CULL_FACE);
    libgr::grClearColor(libgr::gray18);
    glClearDepth(1.0);
    libgr::grPrintError("end ViewScene::Init()");
    ViewFrame::init(datapath);
    libgr::grPrintError("end ViewFrame::init()");
}

void ViewScene::Destroy() {
    ViewFrame::destroy();
}

bool ViewScene::addImage(char const* path, char const* datapath) {
    struct stat status {};
    if (stat(path, &status) != 0) {
        libutils::reject_errno(errno);
        return libutils::report_error(libutils::putname(path), ": image file not found.");
    }
    if (!S_ISREG(status.st_mode)) {
        return libutils::reject("not a regular file");  // opening a pipe would wait for its writer
    }
    obj_t& added = m_objlist.emplace_back();
    if (!added.load(path, datapath)) {
        m_objlist.pop_back();
        return false;
    }
    m_container.addObject(&added.objtransformer);
    if (!has_current()) {
        m_current = m_objlist.begin();
    }
    turn_upright();
    return true;
}

bool ViewScene::delImage() {
    if (!has_current()) {
        return false;
    }
    remove(m_current);
    return true;
}

std::list<ViewScene::obj_t>::iterator ViewScene::remove(std::list<obj_t>::iterator place) {
    bool const is_current = place == m_current;
    auto const next = m_objlist.erase(place);
    if (is_current) {
        m_current = next;
        if (m_current == m_objlist.end() && m_current != m_objlist.begin()) {
            --m_current;
        }
    }
    return next;
}

void ViewScene::setCurrent(unsigned long n) {
    auto const steps = std::min<unsigned long>(n, m_objlist.size());
    m_current = std::next(m_objlist.begin(), static_cast<std::ptrdiff_t>(steps));
}

bool ViewScene::make_graph(char const* datapath) {
    bool all_made = true;
    unsigned long count = 0;
    for (auto place = m_objlist.begin(); place != m_objlist.end(); ++count) {
        trace(std::cout, "ViewScene::make_graph() count= ", count);
        if (place->make_graph(datapath)) {
            ++place;
        } else {
            all_made = libutils::report_error(libutils::putname(place->viewobj.path()),
                                              ": not enough texture memory.");
            place = remove(place);
        }
    }
    return all_made;
}

void ViewScene::free_graph() {
    for (obj_t& object : m_objlist) {
        object.free_graph();
    }
}

bool ViewScene::is_resident() const {
    return std::ranges::all_of(m_objlist,
                               [](obj_t const& object) { return object.viewobj.is_resident(); });
}

void ViewScene::append(libgr::matrix3w_t const& transform) {
    if (has_current()) {
        libgr::matrix3w_t& view = m_current->objtransformer.m_matrix;
        view = view * transform;
    }
}

void ViewScene::turn_upright() {
    Rotate(static_cast<float>(rightrotatecount()) * -90.0f, 0.0f);
}

void ViewScene::Rotate(float degrees, float) {
    append(libgr::getRotateMatrix(libgr::rotation3(degrees, libgr::IdirZ)));
}

void ViewScene::Zoom(float zoom, float) {
    Scale(std::pow(2.0f, zoom), 0.0f);
}

void ViewScene::Scale(float factor, float) {
    append(libgr::getScaleMatrix(libgr::direction3(factor)));
}

void ViewScene::Move(libgr::direction3_t const& d, float) {
    append(libgr::getTranslateMatrix(d));
}

void ViewScene::Matrix(libgr::matrix3w_t const& m) {
    append(m);
}

void ViewScene::clrRotate() {
    if (!has_current()) {
        return;
    }
    libgr::rotation3_t const inverse = half_turn_back(getMatrix());
    libgr::matrix3w_t const turn = libgr::getRotateMatrix(inverse);
    trace(std::cout, "inv_rot: ", inverse);
    trace(std::cout, "inv_mtx: ");
    trace(std::cout, turn);
    append(turn);
}

void ViewScene::clrZoom() {
    if (has_current()) {
        m_current->objtransformer.m_matrix = without_scale(getMatrix());
    }
}

void ViewScene::clrMove() {
    append(libgr::getTranslateMatrix(-libgr::getTranslateVector(getMatrix())));
}

void ViewScene::Origin() {
    if (has_current()) {
        m_current->objtransformer.m_matrix = libgr::Imtx;
        turn_upright();
    }
}

libgr::matrix3w_t const& ViewScene::getMatrix() const {
    return has_current() ? m_current->objtransformer.m_matrix : libgr::Imtx;
}

bool ViewScene::toggleSmooth() {
    if (!has_current()) {
        return false;
    }
    ViewObject& viewobj = m_current->viewobj;
    viewobj.setMagSmooth(!viewobj.getMagSmooth());
    // The magnification filter is recorded in the display list.
    m_current->objdspl.Preload(&viewobj);
    return viewobj.getMagSmooth();
}

libgr::direction2l_t ViewScene::getCurrentImageSize() const {
    return has_current() ? m_current->viewobj.getImageSize() : libgr::datum2l;
}

unsigned long ViewScene::rightrotatecount() const {
    return has_current() ? m_current->viewobj.rightrotatecount() : 0;
}

bool ViewScene::saveImage(char const* path) {
    if (!has_current()) {
        errno = ENODATA;
        return false;
    }
    return m_current->viewobj.saveImage(path);
}

void ViewScene::Display() const {
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    // Only the frame enables lighting. The position is in eye coordinates, because the matrix is
    // the identity.
    glEnable(GL_LIGHT0);
    libgr::grLightPos(GL_LIGHT0, libgr::position3(-50.0f, 50.0f, 50.0f));
    for (GLenum const property :
         std::initializer_list<GLenum>{GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR}) {
        libgr::grLight(GL_LIGHT0, property, libgr::gray18);
    }
    libgr::grLight(GL_LIGHT0, GL_LINEAR_ATTENUATION, libgr::white);
    glTranslatef(0.0f, 0.0f, -1000.0f);
    if (has_current()) {
        libgr::grPrintError("before Draw()");
        m_current->objtransformer.Draw();
        libgr::grPrintError("after Draw()");
    }
}

void ViewScene::Reshape(unsigned long width, unsigned long height) {
    trace(std::cout, "ViewScene::Reshape()");
    GLint limit[2] = {0, 0};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, limit);
    auto const clamp = [](unsigned long side, GLint most) {
        return static_cast<GLsizei>(
            std::min<unsigned long>(side, static_cast<unsigned long>(std::max(most, 0))));
    };
    libgr::direction2l_t const window =
        libgr::direction2l(clamp(width, limit[0]), clamp(height, limit[1]));
    glViewport(0, 0, window.x, window.y);
    libgr::direction2_t const half = libgr::direction2(window) * 0.5f;
    libgr::direction2_t offset = libgr::datum2;
    if (has_current()) {
        offset = parity_offset(window, getCurrentImageSize());
    }
    report("viewofs: ", offset);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    // glOrtho would fail for an empty window.
    if (window.x > 0 && window.y > 0) {
        glOrtho(offset.x - half.x, offset.x + half.x, offset.y - half.y, offset.y + half.y, 0.0,
                10000.0);
    }
}

}  // namespace zanolib
