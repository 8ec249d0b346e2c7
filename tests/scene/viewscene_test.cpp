// SPDX-License-Identifier: MIT
// The view as numbers, the list of pictures, and the GL calls of the scene in their order.
#include "scene/viewscene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::g_option;
using zanolib::ViewScene;

class SceneTest : public testing::Test {
  protected:
    SceneTest() {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {16384};
        gl.integers[GL_MAX_VIEWPORT_DIMS] = {1600, 1200};
    }

    bool add(ViewScene& scene, unsigned width, unsigned height) {
        return scene.addImage(write_file(dir.file("a.bmp"), test_bmp(width, height)).c_str(), "");
    }

    /// GL errors for the next checks to find, so that their labels show.
    void plant_errors(std::size_t count) { gl.errors.assign(count, GL_INVALID_OPERATION); }

    options_guard_t options;
    gl_recorder_t gl;
    temp_dir_t dir;
};

libgr::matrix3w_t move(float x, float y) {
    return libgr::getTranslateMatrix(libgr::direction3(x, y, 0.0f));
}

/// A picture's centre and the pixel to the right of it, as the view shows them.
struct view_row_t {
    char const* name;
    std::function<void(ViewScene&)> change;
    float x, y, right_x, right_y;
};

float const cos40 = std::cos(40.0f * 3.14159265f / 180.0f);
float const sin40 = std::sin(40.0f * 3.14159265f / 180.0f);
float const cos20 = std::cos(20.0f * 3.14159265f / 180.0f);
float const half_root = std::sqrt(0.5f);

view_row_t const view_rows[] = {
    {"a turn and back", [](ViewScene& s) { s.Rotate(30, 0), s.Rotate(-30, 0); }, 0, 0, 1, 0},
    {"a turn is counter-clockwise", [](ViewScene& s) { s.Rotate(90, 0); }, 0, 0, 0, 1},
    {"zoom is an exponent", [](ViewScene& s) { s.Zoom(1, 0), s.Zoom(1, 0); }, 0, 0, 4, 0},
    {"scale is a factor", [](ViewScene& s) { s.Scale(3, 0), s.Scale(0.5f, 0); }, 0, 0, 1.5f, 0},
    {"a turn swings the offset",
     [](ViewScene& s) {
         s.Move({10, 0, 0}, 0), s.Rotate(90, 0);
     },
     0, 10, 0, 11},
    {"a move goes in screen directions",
     [](ViewScene& s) {
         s.Rotate(90, 0), s.Move({10, 0, 0}, 0);
     },
     10, 0, 10, 1},
    {"a matrix composes", [](ViewScene& s) { s.Scale(2, 0), s.Matrix(move(3, 4)); }, 3, 4, 5, 4},
    {"and acts last", [](ViewScene& s) { s.Matrix(move(3, 4)), s.Scale(2, 0); }, 6, 8, 8, 8},
    {"clrZoom", [](ViewScene& s) { s.Zoom(2, 0), s.clrZoom(); }, 0, 0, 1, 0},
    {"clrZoom scales the offset",
     [](ViewScene& s) {
         s.Zoom(2, 0), s.Move({8, 0, 0}, 0), s.clrZoom();
     },
     2, 0, 3, 0},
    {"clrRotate takes half", [](ViewScene& s) { s.Rotate(80, 0), s.clrRotate(); }, 0, 0, cos40,
     sin40},
    {"again half", [](ViewScene& s) { s.Rotate(80, 0), s.clrRotate(), s.clrRotate(); }, 0, 0, cos20,
     std::sqrt(1 - cos20 * cos20)},
    {"clrRotate leaves the zoom",
     [](ViewScene& s) { s.Zoom(1, 0), s.Rotate(80, 0), s.clrRotate(); }, 0, 0, 2 * cos40,
     2 * sin40},
    {"clrRotate turns the offset",
     [](ViewScene& s) {
         s.Move({10, 0, 0}, 0), s.Rotate(90, 0), s.clrRotate();
     },
     10 * half_root, 10 * half_root, 11 * half_root, 11 * half_root},
    {"clrRotate of an upright view",
     [](ViewScene& s) {
         s.Move({1, 2, 0}, 0), s.clrRotate();
     },
     1, 2, 2, 2},
    {"clrMove",
     [](ViewScene& s) {
         s.Rotate(90, 0), s.Move({5, 6, 0}, 0), s.clrMove();
     },
     0, 0, 0, 1},
    {"Origin",
     [](ViewScene& s) {
         s.Rotate(20, 0), s.Zoom(3, 0), s.Move({5, 6, 0}, 0), s.Origin();
     },
     0, 0, 1, 0},
};

TEST_F(SceneTest, EveryViewOperationHasItsNumbers) {
    for (view_row_t const& row : view_rows) {
        ViewScene scene;
        ASSERT_TRUE(add(scene, 2, 2));
        EXPECT_EQ(scene.getMatrix(), libgr::Imtx);
        row.change(scene);
        libgr::vector3w_t const centre = libgr::vector3w(0, 0, 0, 1) * scene.getMatrix();
        libgr::vector3w_t const right = libgr::vector3w(1, 0, 0, 1) * scene.getMatrix();
        EXPECT_NEAR(centre.x, row.x, 1e-5f) << row.name;
        EXPECT_NEAR(centre.y, row.y, 1e-5f) << row.name;
        EXPECT_NEAR(right.x, row.right_x, 1e-5f) << row.name;
        EXPECT_NEAR(right.y, row.right_y, 1e-5f) << row.name;
    }
    ViewScene empty;
    for (view_row_t const& row : view_rows) {
        row.change(empty);
        EXPECT_EQ(empty.getMatrix(), libgr::Imtx) << row.name << " without a picture";
    }
}

TEST_F(SceneTest, ReshapePutsPictureAndWindowPixelsOnTopOfEachOther) {
    struct {
        unsigned picture_width, picture_height;  // 0: no picture
        unsigned long width, height;
        char const* viewport;
        char const* ortho;
        char const* offset;
    } const rows[] = {
        {8, 6, 800, 600, "800, 600", "-400, 400, -300, 300", "0.000000, 0.000000"},
        {8, 6, 801, 600, "801, 600", "-401, 400, -300, 300", "-0.500000, 0.000000"},
        {8, 6, 801, 601, "801, 601", "-401, 400, -301, 300", "-0.500000, -0.500000"},
        {7, 5, 801, 600, "801, 600", "-400.5, 400.5, -300.5, 299.5", "0.000000, -0.500000"},
        {0, 0, 801, 601, "801, 601", "-400.5, 400.5, -300.5, 300.5", "0.000000, 0.000000"},
        {8, 6, 5001, 4001, "1600, 1200", "-800, 800, -600, 600", "0.000000, 0.000000"},
        {8, 6, 0, 600, "0, 600", nullptr, "0.000000, 0.000000"},
    };
    g_option.verbose = true;
    for (auto const& row : rows) {
        ViewScene scene;
        if (row.picture_width != 0) {
            ASSERT_TRUE(add(scene, row.picture_width, row.picture_height));
        }
        gl.take();
        capture_t streams;
        scene.Reshape(row.width, row.height);
        std::string const ortho =
            row.ortho != nullptr ? "glOrtho(" + std::string(row.ortho) + ", 0, 10000)\n" : "";
        EXPECT_EQ(gl.take(), "glGetIntegerv(GL_MAX_VIEWPORT_DIMS, ptr)\nglViewport(0, 0, " +
                                 std::string(row.viewport) +
                                 ")\nglMatrixMode(GL_PROJECTION)\nglLoadIdentity()\n" + ortho);
        EXPECT_EQ(streams.out(), "viewofs: dir2(" + std::string(row.offset) + ")\n");
    }
}

TEST_F(SceneTest, TheCurrentPictureFollowsTheList) {
    ViewScene scene;
    auto const width = [&scene] { return scene.getCurrentImageSize().x; };
    capture_t streams;
    EXPECT_FALSE(scene.addImage(dir.file("none.bmp").c_str(), ""));
    EXPECT_EQ(streams.err(), dir.file("none.bmp") + ": image file not found.\n");
    EXPECT_FALSE(scene.addImage(write_file(dir.file("a.gif"), test_bmp(1, 1)).c_str(), ""));
    EXPECT_FALSE(scene.delImage());
    EXPECT_EQ(width(), 0);
    EXPECT_EQ(scene.rightrotatecount(), 0UL);
    EXPECT_FALSE(scene.toggleSmooth() || scene.saveImage("a.bmp"));
    EXPECT_TRUE(scene.is_resident());
    for (unsigned const side : {1U, 2U, 3U}) {
        ASSERT_TRUE(add(scene, side, side));
        EXPECT_EQ(width(), 1) << "the first stays current";
    }
    EXPECT_FALSE(add(scene, 0, 3)) << "a picture without pixels";
    scene.setCurrent(1);
    EXPECT_EQ(width(), 2);
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 3) << "the one behind it";
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 1) << "the last that is left";
    scene.setCurrent(5);
    EXPECT_EQ(width(), 0);
    EXPECT_FALSE(scene.delImage()) << "none is current";
    ASSERT_TRUE(add(scene, 4, 4));
    EXPECT_EQ(width(), 1) << "from the end to the start";
    EXPECT_TRUE(scene.delImage() && scene.delImage());
    EXPECT_FALSE(scene.delImage());
    EXPECT_EQ(streams.err(), "");
}

TEST_F(SceneTest, InitSetsTheStateOnce) {
    plant_errors(2);
    capture_t streams;
    ViewScene scene;
    scene.Init("");
    EXPECT_EQ(gl.take(), R"(glDisable(GL_DEPTH_TEST)
glDisable(GL_LIGHTING)
glDisable(GL_ALPHA_TEST)
glDisable(GL_STENCIL_TEST)
glDisable(GL_BLEND)
glHint(GL_POINT_SMOOTH_HINT, GL_FASTEST)
glHint(GL_LINE_SMOOTH_HINT, GL_FASTEST)
glHint(GL_POLYGON_SMOOTH_HINT, GL_FASTEST)
glShadeModel(GL_SMOOTH)
glPolygonMode(GL_FRONT_AND_BACK, GL_FILL)
glFrontFace(GL_CCW)
glCullFace(GL_BACK)
glEnable(GL_CULL_FACE)
glClearColor(0.18, 0.18, 0.18, 1)
glClearDepth(1)
)");
    EXPECT_EQ(streams.err(),
              "end ViewScene::Init(): Error 1282: invalid operation\n"
              "end ViewFrame::init(): Error 1282: invalid operation\n");
    scene.Destroy();
}

TEST_F(SceneTest, OnePictureIsLoadedDrawnAndFreedInOrder) {
    g_option.framecolor = {1, 2, 3, 4};
    gl_flag_t const modern(is_GL_VERSION_3_0_supported, 1);
    {
        ViewScene scene;
        ASSERT_TRUE(add(scene, 3, 2));
        scene.Move({5, 0, 0}, 0);
        EXPECT_EQ(gl.take(), "glGetIntegerv(GL_MAX_TEXTURE_SIZE, ptr)\n") << "no GL object yet";
        gl.muted.insert({"glPixelStorei", "glGetIntegerv"});
        scene.make_graph("");
        scene.make_graph("");
        EXPECT_EQ(gl.take(), R"(glGenTextures(1, ptr)
glBindTexture(GL_TEXTURE_2D, 1)
glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 4, 4, 0, GL_BGR, GL_UNSIGNED_BYTE, null)
glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 3, 2, GL_BGR, GL_UNSIGNED_BYTE, ptr)
glGenerateMipmap(GL_TEXTURE_2D)
glGenLists(1)
glNewList(2, GL_COMPILE)
glEnable(GL_TEXTURE_2D)
glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE)
glBindTexture(GL_TEXTURE_2D, 1)
glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR)
glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR)
glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE)
glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE)
glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAX_ANISOTROPY_EXT, 1)
glBegin(GL_TRIANGLE_FAN)
glTexCoord2f(0, 0)
glVertex2f(-1.5, -1)
glTexCoord2f(0.75, 0)
glVertex2f(1.5, -1)
glTexCoord2f(0.75, 0.5)
glVertex2f(1.5, 1)
glTexCoord2f(0, 0.5)
glVertex2f(-1.5, 1)
glEnd()
glDisable(GL_TEXTURE_2D)
glEndList()
)");
        EXPECT_TRUE(scene.is_resident());
        gl.resident = 0;
        EXPECT_FALSE(scene.is_resident());
        gl.take();
        scene.Display();
        EXPECT_EQ(gl.take(), R"(glClear(GL_DEPTH_BUFFER_BIT | GL_COLOR_BUFFER_BIT)
glMatrixMode(GL_MODELVIEW)
glLoadIdentity()
glEnable(GL_LIGHT0)
glLightfv(GL_LIGHT0, GL_POSITION, {-50, 50, 50, 1})
glLightfv(GL_LIGHT0, GL_AMBIENT, {0.18, 0.18, 0.18, 1})
glLightfv(GL_LIGHT0, GL_DIFFUSE, {0.18, 0.18, 0.18, 1})
glLightfv(GL_LIGHT0, GL_SPECULAR, {0.18, 0.18, 0.18, 1})
glLightfv(GL_LIGHT0, GL_LINEAR_ATTENUATION, {1, 1, 1, 1})
glTranslatef(0, 0, -1000)
glMultMatrixf({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1})
glPushMatrix()
glColor4ubv({1, 2, 3, 4})
glEnableClientState(GL_VERTEX_ARRAY)
glVertexPointer(2, GL_FLOAT, 0, ptr)
glDrawElements(GL_QUAD_STRIP, 10, GL_UNSIGNED_BYTE, ptr)
glDisableClientState(GL_VERTEX_ARRAY)
glPopMatrix()
glPushMatrix()
glCallList(2)
glPopMatrix()
)");
        EXPECT_FALSE(scene.toggleSmooth());
        EXPECT_NE(gl.take().find("GL_TEXTURE_MAG_FILTER, GL_NEAREST"), std::string::npos);
        EXPECT_TRUE(scene.toggleSmooth());
        gl.take();
        scene.free_graph();
        scene.free_graph();
        EXPECT_EQ(
            gl.take(),
            "glDeleteLists(2, 1)\nglBindTexture(GL_TEXTURE_2D, 0)\nglDeleteTextures(1, {1})\n");
        EXPECT_EQ(scene.getMatrix(), move(5, 0)) << "the view survives";
        scene.make_graph("");
        gl.take();
    }
    EXPECT_EQ(gl.take(),
              "glDeleteLists(4, 1)\nglBindTexture(GL_TEXTURE_2D, 0)\nglDeleteTextures(1, {3})\n")
        << "a scene that goes frees its pictures";
}

TEST_F(SceneTest, EachStepChecksForErrorsUnderItsLabel) {
    g_option.frametype = 0;
    ViewScene scene;
    ASSERT_TRUE(add(scene, 1, 1));
    gl_flag_t const modern(is_GL_VERSION_3_0_supported, 1);
    plant_errors(100);
    capture_t streams;
    scene.make_graph("");
    scene.Display();
    std::string labels;
    std::istringstream lines(streams.err());
    for (std::string line; std::getline(lines, line);) {
        if (std::size_t const end = line.find(": Error 1282: "); end != std::string::npos) {
            labels += line.substr(0, end) + "\n";
        }
    }
    EXPECT_EQ(labels, R"(ViewScene::obj_t::make_graph() - before viewobj.load_texture().
before-tex-sub-image2d
after-tex-sub-image2d
ViewScene::obj_t::make_graph() - after viewobj.load_texture().
before-ViewObject::Draw()
before-glenable-tex2d
after-glenable-tex2d
after-gltexenv
before m_texobjs[n].Load().
grTextureObject::Load(0)
grTextureObject::Load(2)
after m_texobjs[n].Load().
after grTexParameter().
before-gldisable-tex2d
after-gldisable-tex2d
after-ViewObject::Draw()
ViewScene::obj_t::make_graph() - after objdspl.Preload().
ViewScene::obj_t::make_graph() - after viewframe.make_graph().
before Draw()
grTransformer::Draw() - before MultMatrix()
grTransformer::Draw() - after MultMatrix()
grTransformer::Draw() - after m_object->Draw()
after Draw()
)");
}

}  // namespace
