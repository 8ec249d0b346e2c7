// SPDX-License-Identifier: MIT
// Pictures drawn by a real OpenGL and read back pixel by pixel, and a scene that outlives its
// context.
#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <tuple>
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
    int left, bottom;        // where the picture's first pixel comes to stand
    int scale;
};

screen_row_t const screen_rows[] = {
    {8, 6, 64, 64, 0, 28, 29, 1},
    {7, 5, 64, 64, 0, 29, 30, 1},
    {8, 6, 63, 61, 0, 28, 28, 1},
    {7, 5, 63, 61, 0, 28, 28, 1},
    {300, 257, 64, 64, -100, -218, -196, 1},  // a seam between two tiles in sight
    {8, 6, 64, 64, 0, 24, 26, 2},             // blocky
};

/// The frame's colour three pixels around the picture, the background's beyond.
std::vector<int> expected(screen_row_t const& row, int x, int y) {
    int const px = x - row.left;
    int const py = y - row.bottom;
    auto const within = [&](int margin) {
        return px >= -margin && px < static_cast<int>(row.width) * row.scale + margin &&
               py >= -margin && py < static_cast<int>(row.height) * row.scale + margin;
    };
    if (!within(0)) {
        return within(3 * row.scale) ? std::vector{10, 200, 30} : std::vector{46, 46, 46};
    }
    auto const channel = [&](unsigned n) {
        return test_channel(static_cast<unsigned>(px / row.scale),
                            static_cast<unsigned>(py / row.scale), n);
    };
    return {channel(0), channel(1), channel(2)};
}

/// Tests that run once for each way of building mipmaps.
class SceneMipmapTest : public SceneScreenTest, public testing::WithParamInterface<std::string> {
  protected:
    gl_flag_t gl3{is_GL_VERSION_3_0_supported, GetParam() == "GL30"};
    gl_flag_t sgis{is_GL_SGIS_generate_mipmap_supported, GetParam() == "SGIS"};
};

INSTANTIATE_TEST_SUITE_P(Mipmaps, SceneMipmapTest, testing::Values("GL30", "SGIS", "GLU"),
                         [](auto const& test) { return test.param; });

TEST_P(SceneMipmapTest, EveryTexelLiesOnItsWindowPixel) {
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
        bool same = true;
        for (int i = 0; i < row.columns * row.rows && same; ++i) {
            unsigned char const* const pixel = &seen[static_cast<std::size_t>(i) * 4];
            std::vector<int> const got{pixel[0], pixel[1], pixel[2]};
            std::vector<int> const wanted = expected(row, i % row.columns, i / row.columns);
            same = got == wanted;
            EXPECT_EQ(got, wanted) << row.width << " in " << row.columns << ", pixel " << i;
        }
    }
}

/// The state that the next drawing depends on, as found and again for texture unit 1. Unit 0 is
/// active afterwards.
std::string drawing_state() {
    std::ostringstream text;
    for (GLenum const next_unit : std::initializer_list<GLenum>{GL_TEXTURE1, GL_TEXTURE0}) {
        for (GLenum const name : std::initializer_list<GLenum>{GL_ACTIVE_TEXTURE,
                                                               GL_CLIENT_ACTIVE_TEXTURE,
                                                               GL_MATRIX_MODE,
                                                               GL_MODELVIEW_MATRIX,
                                                               GL_MODELVIEW_STACK_DEPTH,
                                                               GL_PROJECTION_MATRIX,
                                                               GL_TEXTURE_MATRIX,
                                                               GL_BLEND,
                                                               GL_LIGHTING,
                                                               GL_NORMALIZE,
                                                               GL_RESCALE_NORMAL,
                                                               GL_VERTEX_PROGRAM_ARB,
                                                               GL_FRAGMENT_PROGRAM_ARB,
                                                               GL_VERTEX_ARRAY,
                                                               GL_TEXTURE_COORD_ARRAY,
                                                               GL_TEXTURE_2D,
                                                               GL_TEXTURE_CUBE_MAP,
                                                               GL_TEXTURE_GEN_S,
                                                               GL_TEXTURE_GEN_T,
                                                               GL_TEXTURE_GEN_R}) {
            std::array<GLfloat, 16> values{};
            glGetFloatv(name, values.data());
            text << "\n" << gl_enum_name(name);
            std::ranges::for_each(values, [&text](GLfloat value) { text << " " << value; });
        }
        glActiveTexture(next_unit);
    }
    GLfloat emission[4];
    glGetMaterialfv(GL_FRONT, GL_EMISSION, emission);
    text << "\nemission";
    std::ranges::for_each(emission, [&text](GLfloat value) { text << " " << value; });
    return text.str();
}

TEST_F(SceneScreenTest, AFrameLeavesTheStateThatItFound) {
    ViewScene scene;
    load(scene, 8, 6);
    scene.Display();
    std::string const before = drawing_state();
    for (auto const& [type, programs, combiners] :
         {std::tuple{1U, 1, 1}, {2U, 1, 1}, {2U, 0, 1}, {3U, 0, 0}, {4U, 1, 1}}) {
        gl_flag_t const vertex(is_GL_ARB_vertex_program_supported, programs);
        gl_flag_t const combine(is_GL_ARB_texture_env_combine_supported, combiners);
        zanolib::ViewFrame frame;
        frame.setFrameType(static_cast<zanolib::e_frametype_t>(type));
        frame.setSize({8, 6}, 3);
        frame.make_graph(DATA);
        frame.Draw();
        EXPECT_EQ(before, drawing_state()) << "type " << type << " " << programs << combiners;
        frame.free_graph();
    }
}

// The last of the suite: there is no window after it.
TEST_F(SceneScreenTest, ASceneMayGoAfterItsContext) {
    auto scene = std::make_unique<ViewScene>();
    load(*scene, 300, 3);
    scene->Reshape(64, 64);
    scene->Display();
    TearDownTestSuite();
    scene.reset();
}

}  // namespace
