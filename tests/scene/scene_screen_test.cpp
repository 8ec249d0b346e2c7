// SPDX-License-Identifier: MIT
// Tests of the scene that compare the pixels that OpenGL draws.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "options/option.h"
#include "scene/viewscene.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glcontext.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::g_option;
using zanolib::ViewScene;

class SceneScreenTest : public gl_context_test {
  protected:
    SceneScreenTest() {
        g_option.framewidth = 3;
        g_option.framecolor = {10, 200, 30, 255};
    }
    ~SceneScreenTest() override { g_option = {}; }

    void load(ViewScene& scene, unsigned width, unsigned height) {
        scene.Init(DATA);
        write_file(dir.file("a.bmp"), test_bmp(width, height));
        ASSERT_TRUE(scene.addImage(dir.file("a.bmp").c_str(), ""));
        scene.make_graph("");
    }

    temp_dir_t dir;
};

struct screen_row_t {
    unsigned width, height;  // the picture
    int columns, rows;       // the viewport
    float move;              // to the right and up, in pixels
    int left, bottom;        // the expected position of the first pixel
    int scale;
};

screen_row_t const screen_rows[] = {
    {7, 5, 64, 64, 0, 29, 30, 1},
    {8, 6, 63, 61, 0, 28, 28, 1},
    {300, 257, 64, 64, -100, -218, -196, 1},  // shows the edges of four tiles
    {8, 6, 64, 64, 0, 24, 26, 2},             // not smooth
};

/// The expected colour: the picture, three pixels of the frame around it, or the background.
std::vector<int> expected(screen_row_t const& row, int x, int y) {
    int const px = x - row.left;
    int const py = y - row.bottom;
    int const distance = std::max({-px, px - static_cast<int>(row.width) * row.scale + 1, -py,
                                   py - static_cast<int>(row.height) * row.scale + 1});
    if (distance > 0) {
        return distance <= 3 * row.scale ? std::vector{10, 200, 30} : std::vector{46, 46, 46};
    }
    auto const channel = [&](unsigned n) {
        return test_channel(static_cast<unsigned>(px / row.scale),
                            static_cast<unsigned>(py / row.scale), n);
    };
    return {channel(0), channel(1), channel(2)};
}

/// These tests run once for each way to build mipmaps.
class SceneMipmapTest : public SceneScreenTest, public testing::WithParamInterface<std::string> {
  protected:
    gl_flag_t gl3{is_GL_VERSION_3_0_supported, GetParam() == "GL30"};
    gl_flag_t sgis{is_GL_SGIS_generate_mipmap_supported, GetParam() == "SGIS"};
};

INSTANTIATE_TEST_SUITE_P(Mipmaps, SceneMipmapTest, testing::Values("GL30", "SGIS", "GLU"),
                         [](auto const& test) { return test.param; });

TEST_P(SceneMipmapTest, EachTexelIsDrawnOnOnePixel) {
    for (screen_row_t const& row : screen_rows) {
        ViewScene scene;
        load(scene, row.width, row.height);
        scene.Scale(static_cast<float>(row.scale), 0);
        scene.Move({row.move, row.move, 0}, 0);
        EXPECT_TRUE(row.scale == 1 || !scene.toggleSmooth());
        scene.Reshape(static_cast<unsigned>(row.columns), static_cast<unsigned>(row.rows));
        scene.Display();
        std::vector<unsigned char> seen(std::size_t{64} * 64 * 4);
        glReadPixels(0, 0, row.columns, row.rows, GL_RGBA, GL_UNSIGNED_BYTE, seen.data());
        for (int i = 0; i < row.columns * row.rows; ++i) {
            unsigned char const* const pixel = &seen[static_cast<std::size_t>(i) * 4];
            std::vector<int> const got{pixel[0], pixel[1], pixel[2]};
            ASSERT_EQ(got, expected(row, i % row.columns, i / row.columns))
                << row.width << " in " << row.columns << ", pixel " << i;
        }
    }
}

// This test must be the last one of the suite: it destroys the window.
TEST_F(SceneScreenTest, ASceneMayOutliveItsContext) {
    auto scene = std::make_unique<ViewScene>();
    load(*scene, 300, 3);
    scene->Reshape(64, 64);
    scene->Display();
    TearDownTestSuite();
    scene.reset();
}

}  // namespace
