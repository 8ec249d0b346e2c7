// SPDX-License-Identifier: MIT
// Tests of nodes, display lists, scope objects and error reports, on recorded calls.
#include "gl/grdsplist.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"
#include "tests/gl/recordedtest.h"

using namespace libgr;

namespace {

struct leaf_t : grObject3D {
    using grObject3D::Draw;
    void Draw() const override { glVertex2f(7, 0); }
};

using Nodes = recorded_test;

TEST_F(Nodes, TreeDrawsInOrderAndChecksErrors) {
    gl.muted.insert("glGetIntegerv");
    leaf_t const leaf;
    grTranslater translater;
    grRotater rotater;
    grZoomer zoomer;
    grTransformer transformer, childless;
    translater.m_position = position3(1, 2, 3);
    translater.setObject(&rotater);
    rotater.m_rotation = rotation3(90, IdirX);
    rotater.setObject(&zoomer);
    zoomer.setZoom(direction3(1, 2, 0));
    zoomer.addZoom(direction3(1, 0, 0));
    zoomer.setObject(&leaf);
    transformer.m_matrix[3][0] = 5;
    transformer.setObject(&leaf);
    grContainer container;
    container.addObject(&translater);
    container.resize(2);
    container.addObject(&childless);
    container.addObject(&transformer);
    note("children:", container.getObject(0) == &translater, container.getObject(1),
         container.getObject(4));
    gl.errors.assign(6, GL_INVALID_OPERATION);
    static_cast<grDrawable3D&>(container).Draw();
}

TEST_F(Nodes, CopiesOfAListShareOneName) {
    leaf_t const leaf;
    note("without a name:", grDspListMgr().listname());
    grDspList second;
    {
        grDspList first;
        first.Unload();
        first.Draw();
        note("compiled:", first.Preload(&leaf));
        note("compiled without a child:", first.Preload(nullptr));
        second = first;
    }
    second.Draw();
    second.Unload();
    second.Draw();
    note("unloaded");
    second.Preload(nullptr);
}

TEST_F(Nodes, ScopeObjectsRestoreTheState) {
    { grMatrixModeKeeper const same(GL_MODELVIEW), none(0); }
    note("nothing to restore");
    { grMatrixPusher const pusher(GL_TEXTURE); }
    note("pushed");
    gl.integers[GL_MAX_PROJECTION_STACK_DEPTH] = gl.integers[GL_PROJECTION_STACK_DEPTH] = {32};
    gl.integers[GL_MATRIX_MODE] = {GL_PROJECTION};
    gl.floats[GL_PROJECTION_MATRIX][12] = 9;
    grMatrixPusher::setEnhanceMode(true);
    { grMatrixPusher const overflow(0); }
    grMatrixPusher::setEnhanceMode(false);
    note("saved in memory; room again:", grMatrixPusher::getMatrixManager(0).canPush());
    note("mode:", gl_enum_name(grMatrixPusher::getMatrixManager(0x1234).mode()));
    note("hexadecimal:", std::cout.flags() & std::ios_base::hex);
}

TEST_F(Nodes, ReportPrintsOneErrorAndKeepsTheMode) {
    gl.errors = {GL_INVALID_ENUM, 0x9999};
    std::cerr << std::hex;
    for (char const* label : {"after Draw()", static_cast<char const*>(nullptr), "nothing"}) {
        note("reported:", grPrintError(label));
    }
    note("hexadecimal:", std::cerr.flags() & std::ios_base::hex);
}

}  // namespace
