// SPDX-License-Identifier: MIT
// Tests of nodes, display lists, scope objects and error reports, on recorded calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "gl/grdsplist.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"
#include "tests/support/files/testfiles.h"
#include "tests/support/gl/glrecorder.h"

using namespace libgr;

namespace {

struct leaf_t : grObject3D {
    using grObject3D::Draw;
    void Draw() const override { glVertex2f(7, 0); }
};

struct Nodes : testing::Test {
    Nodes() { gl.muted.insert("glGetIntegerv"); }
    gl_recorder_t gl;
    capture_t console;
    leaf_t const leaf;
};

TEST_F(Nodes, TreeDrawsInOrderAndChecksErrors) {
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
    EXPECT_EQ(container.getObject(0), &translater);
    EXPECT_EQ(container.getObject(4), nullptr);
    gl.errors.assign(9, GL_INVALID_OPERATION);
    static_cast<grDrawable3D&>(container).Draw();
    EXPECT_EQ(gl.take(),
              "glPushMatrix()\nglTranslatef(1, 2, 3)\nglRotatef(90, 1, 0, 0)\nglScalef(4, 4, 1)\n"
              "glVertex2f(7, 0)\nglPopMatrix()\n"
              "glPushMatrix()\nglPopMatrix()\nglPushMatrix()\nglPopMatrix()\n"
              "glPushMatrix()\nglMultMatrixf({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1})\n"
              "glVertex2f(7, 0)\nglPopMatrix()\n");
    EXPECT_EQ(std::ranges::count(console.err(), '\n'), 6) << "reported errors";
}

TEST_F(Nodes, CopiesOfAListShareOneName) {
    EXPECT_EQ(grDspListMgr().listname(), GLenum{GL_INVALID_VALUE});
    {
        grDspList second;
        {
            grDspList first;
            first.Unload();
            first.Draw();
            EXPECT_TRUE(first.Preload(&leaf));
            second = first;
        }
        second.Preload(nullptr);
        second.Draw();
        second.Unload();
        second.Draw();
        second.Preload(nullptr);
    }
    EXPECT_EQ(gl.take(),
              "glGenLists(1)\nglNewList(1, GL_COMPILE)\nglVertex2f(7, 0)\nglEndList()\n"
              "glNewList(1, GL_COMPILE)\nglEndList()\nglCallList(1)\nglDeleteLists(1, 1)\n"
              "glGenLists(1)\nglNewList(2, GL_COMPILE)\nglEndList()\nglDeleteLists(2, 1)\n");
}

TEST_F(Nodes, ScopeObjectsRestoreTheState) {
    { grMatrixModeKeeper const same(GL_MODELVIEW), none(0); }
    EXPECT_EQ(gl.take(), "");
    { grMatrixPusher const pusher(GL_TEXTURE); }
    EXPECT_EQ(
        gl.take(),
        "glMatrixMode(GL_TEXTURE)\nglPushMatrix()\nglPopMatrix()\nglMatrixMode(GL_MODELVIEW)\n");
    gl.integers[GL_MAX_PROJECTION_STACK_DEPTH] = gl.integers[GL_PROJECTION_STACK_DEPTH] = {32};
    gl.integers[GL_MATRIX_MODE] = {GL_PROJECTION};
    gl.floats[GL_PROJECTION_MATRIX][12] = 9;
    grMatrixPusher::setEnhanceMode(true);
    { grMatrixPusher const overflow(0); }
    grMatrixPusher::setEnhanceMode(false);
    EXPECT_EQ(gl.take(),
              "glGetFloatv(GL_PROJECTION_MATRIX, ptr)\n"
              "glLoadMatrixf({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 9, 0, 0, 1})\n");
    EXPECT_TRUE(grMatrixPusher::getMatrixManager(0).canPush());
    EXPECT_EQ(grMatrixPusher::getMatrixManager(0x1234).mode(), GLenum{GL_MODELVIEW});
    std::cout << 255;  // the stream is hexadecimal now
    EXPECT_EQ(console.out(), "1234: unknown enum! fall back to modelview.\nff");
}

TEST_F(Nodes, ReportPrintsOneErrorAndKeepsTheMode) {
    gl.errors = {GL_INVALID_ENUM, 0x9999};
    std::cerr << std::hex;
    EXPECT_TRUE(grPrintError("after Draw()"));
    EXPECT_TRUE(grPrintError(nullptr));
    EXPECT_FALSE(grPrintError("nothing"));
    std::cerr << 255;
    EXPECT_EQ(console.err(),
              "after Draw(): Error 1280: invalid enumerant\nError 39321: unknown error\nff");
}

}  // namespace
