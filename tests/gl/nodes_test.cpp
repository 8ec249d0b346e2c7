// SPDX-License-Identifier: MIT
// Tests of nodes, display lists, scope objects and the error report, on recorded calls.
#include <gtest/gtest.h>

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

TEST(Nodes, TreeDrawsInOrderAndChecksErrors) {
    gl_recorder_t gl;
    gl.muted.insert("glGetIntegerv");
    const leaf_t leaf;
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
    EXPECT_TRUE(container.getObject(0) == &translater && container.getObject(1) == nullptr);
    EXPECT_EQ(container.getObject(4), nullptr);
    gl.errors.assign(6, GL_INVALID_OPERATION);
    capture_t console;
    static_cast<grDrawable3D&>(container).Draw();
    EXPECT_EQ(gl.take(),
              "glPushMatrix()\nglTranslatef(1, 2, 3)\nglRotatef(90, 1, 0, 0)\nglScalef(4, 4, 1)\n"
              "glVertex2f(7, 0)\nglPopMatrix()\n"
              "glPushMatrix()\nglPopMatrix()\nglPushMatrix()\nglPopMatrix()\n"
              "glPushMatrix()\nglMultMatrixf({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1})\n"
              "glVertex2f(7, 0)\nglPopMatrix()\n");
    std::string labels;
    for (const char* label :
         {"grTranslater::Draw() - before translate.", "grTranslater::Draw() - after translate.",
          "grTranslater::Draw() - after m_object->Draw().",
          "grTransformer::Draw() - before MultMatrix()",
          "grTransformer::Draw() - after MultMatrix()",
          "grTransformer::Draw() - after m_object->Draw()"}) {
        labels += std::string(label) + ": Error 1282: invalid operation\n";
    }
    EXPECT_EQ(console.err(), labels);
}

TEST(DisplayList, SharesOneNameUntilTheLastHolder) {
    { const grDspList never_compiled{grDspList()}; }  // ends without an entry point to call
    gl_recorder_t gl;
    const leaf_t leaf;
    EXPECT_EQ(grDspListMgr().listname(), 1281U);
    {
        grDspList second;
        {
            grDspList first;
            first.Unload();
            first.Draw();
            EXPECT_EQ(gl.take(), "");
            EXPECT_TRUE(first.Preload(&leaf) && first.Preload(nullptr));
            second = first;
        }
        second.Draw();
        EXPECT_EQ(gl.take(),
                  "glGenLists(1)\nglNewList(1, GL_COMPILE)\nglVertex2f(7, 0)\nglEndList()\n"
                  "glNewList(1, GL_COMPILE)\nglEndList()\nglCallList(1)\n");
        second.Unload();
        second.Draw();
        EXPECT_EQ(gl.take(), "glDeleteLists(1, 1)\n");
        second.Preload(nullptr);
    }
    EXPECT_EQ(gl.take(),
              "glGenLists(1)\nglNewList(2, GL_COMPILE)\nglEndList()\nglDeleteLists(2, 1)\n");
}

TEST(ScopeObjects, ChangeOnlyWhatTheyBringBack) {
    gl_recorder_t gl;
    const std::string query = "glGetIntegerv(GL_MATRIX_MODE, ptr)\n";
    { const grMatrixModeKeeper same(GL_MODELVIEW), none(0); }
    EXPECT_EQ(gl.take(), query);
    { const grMatrixPusher pusher(GL_TEXTURE); }
    EXPECT_EQ(gl.take(), query + "glMatrixMode(GL_TEXTURE)\nglPushMatrix()\n" +
                             "glPopMatrix()\nglMatrixMode(GL_MODELVIEW)\n");
    gl.integers[GL_MAX_PROJECTION_STACK_DEPTH] = gl.integers[GL_PROJECTION_STACK_DEPTH] = {32};
    gl.integers[GL_MATRIX_MODE] = {GL_PROJECTION};
    gl.floats[GL_PROJECTION_MATRIX][12] = 9;
    grMatrixPusher::setEnhanceMode(true);
    { const grMatrixPusher overflow(0); }
    EXPECT_EQ(gl.take(),
              "glGetIntegerv(GL_MAX_MODELVIEW_STACK_DEPTH, ptr)\n"
              "glGetIntegerv(GL_MAX_PROJECTION_STACK_DEPTH, ptr)\n"
              "glGetIntegerv(GL_MAX_TEXTURE_STACK_DEPTH, ptr)\n"
              "glGetIntegerv(GL_MAX_COLOR_MATRIX_STACK_DEPTH, ptr)\n" +
                  query +
                  "glGetIntegerv(GL_PROJECTION_STACK_DEPTH, ptr)\n"
                  "glGetFloatv(GL_PROJECTION_MATRIX, ptr)\n"
                  "glLoadMatrixf({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 9, 0, 0, 1})\n");
    grMatrixPusher::setEnhanceMode(false);
    EXPECT_TRUE(grMatrixPusher::getMatrixManager(0).canPush());
    capture_t console;
    EXPECT_EQ(grMatrixPusher::getMatrixManager(0x1234).mode(), GLenum{GL_MODELVIEW});
    EXPECT_EQ(console.out(), "1234: unknown enum! fall back to modelview.\n");
    EXPECT_TRUE(std::cout.flags() & std::ios_base::hex);
}

TEST(PrintError, TakesOneErrorAndKeepsTheStream) {
    gl_recorder_t gl;
    gl.errors = {GL_INVALID_ENUM, 0x9999};
    capture_t console;
    std::cerr << std::hex;
    EXPECT_TRUE(grPrintError("after Draw()"));
    EXPECT_TRUE(std::cerr.flags() & std::ios_base::hex);
    EXPECT_TRUE(grPrintError(nullptr));
    EXPECT_FALSE(grPrintError("nothing"));
    EXPECT_EQ(console.err(),
              "after Draw(): Error 1280: invalid enumerant\nError 39321: unknown error\n");
}

}  // namespace
