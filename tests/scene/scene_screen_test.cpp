// SPDX-License-Identifier: MIT
// Pictures drawn by a real OpenGL and read back pixel by pixel, and a scene that outlives its
// context.
#include <cstdlib>
#include <memory>
#include <vector>

#include "scene/viewscene.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glcontext.h"

namespace {

using zanolib::g_option;
using zanolib::ViewScene;

class SceneScreenTest : public gl_context_test {
  protected:
    void load(ViewScene& scene, unsigned width, unsigned height) {
        ASSERT_TRUE(
            scene.addImage(write_file(dir.file("a.bmp"), test_bmp(width, height)).c_str(), ""));
        scene.make_graph("");
    }

    options_guard_t options;
    temp_dir_t dir;
};

struct screen_row_t {
    char const* name;
    unsigned width, height;  // the picture
    int columns, rows;       // the viewport
    float move_x;            // pixels
    int left, bottom;        // where the picture's first pixel comes to stand
    bool doubled, framed;
};

screen_row_t const screen_rows[] = {
    {"even in even", 8, 6, 64, 64, 0, 28, 29, false, false},
    {"odd in even", 7, 5, 64, 64, 0, 29, 30, false, false},
    {"even in odd", 8, 6, 63, 61, 0, 28, 28, false, false},
    {"odd in odd", 7, 5, 63, 61, 0, 28, 28, false, false},
    {"larger than the window", 100, 99, 64, 63, 0, -18, -18, false, false},
    {"the seam between two tiles", 300, 257, 64, 64, -100, -218, -96, false, false},
    {"blocky magnification", 8, 6, 64, 64, 0, 24, 26, true, false},
    {"the frame around it", 8, 6, 64, 64, 0, 28, 29, false, true},
};

/// The colour expected at a window pixel.
std::vector<int> expected(screen_row_t const& row, int x, int y) {
    int const scale = row.doubled ? 2 : 1;
    int const width = static_cast<int>(row.width) * scale;
    int const height = static_cast<int>(row.height) * scale;
    int const px = x - row.left;
    int const py = y - row.bottom;
    auto const within = [&](int margin) {
        return px >= -margin && px < width + margin && py >= -margin && py < height + margin;
    };
    if (!within(0)) {
        return row.framed && within(3) ? std::vector{10, 200, 30} : std::vector{46, 46, 46};
    }
    std::vector<int> channels;
    for (unsigned const channel : {0U, 1U, 2U}) {
        channels.push_back(test_channel(static_cast<unsigned>(px / scale),
                                        static_cast<unsigned>(py / scale), channel));
    }
    return channels;
}

TEST_F(SceneScreenTest, EveryTexelLiesOnItsWindowPixel) {
    for (screen_row_t const& row : screen_rows) {
        g_option.frametype = row.framed ? 1 : 0;
        g_option.framewidth = 3;
        g_option.framecolor = {10, 200, 30, 255};
        ViewScene scene;
        scene.Init("");
        load(scene, row.width, row.height);
        if (row.doubled) {
            scene.Zoom(1, 0);
            EXPECT_FALSE(scene.toggleSmooth());
        }
        scene.Move({row.move_x, 0, 0}, 0);
        scene.Reshape(static_cast<unsigned long>(row.columns),
                      static_cast<unsigned long>(row.rows));
        scene.Display();
        std::vector<unsigned char> seen(static_cast<std::size_t>(row.columns * row.rows) * 4);
        glPixelStorei(GL_PACK_ALIGNMENT, 4);
        glReadBuffer(GL_BACK);
        glReadPixels(0, 0, row.columns, row.rows, GL_RGBA, GL_UNSIGNED_BYTE, seen.data());
        bool same = true;
        for (int i = 0; i < row.columns * row.rows && same; ++i) {
            unsigned char const* const pixel = &seen[static_cast<std::size_t>(i) * 4];
            std::vector<int> const got{pixel[0], pixel[1], pixel[2]};
            std::vector<int> const wanted = expected(row, i % row.columns, i / row.columns);
            same = got == wanted;
            EXPECT_EQ(got, wanted)
                << row.name << " at " << i % row.columns << ", " << i / row.columns;
        }
        EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR}) << row.name;
    }
}

TEST_F(SceneScreenTest, FreedPicturesLeaveNoNamesBehind) {
    ViewScene scene;
    scene.Init("");
    load(scene, 300, 300);
    GLuint const list = glGenLists(1);
    scene.delImage();
    for (GLuint name = 1; name < list; ++name) {
        EXPECT_FALSE(glIsList(name)) << name;
    }
    for (GLuint name = 1; name < 64; ++name) {
        EXPECT_FALSE(glIsTexture(name)) << name;
    }
    glDeleteLists(list, 1);
}

class SceneAfterTheEndTest : public SceneScreenTest {};

TEST_F(SceneAfterTheEndTest, ASceneMayGoAfterItsContext) {
    auto scene = std::make_unique<ViewScene>();
    scene->Init("");
    load(*scene, 300, 3);
    scene->Reshape(64, 64);
    scene->Display();
    TearDownTestSuite();
    scene.reset();
}

}  // namespace
