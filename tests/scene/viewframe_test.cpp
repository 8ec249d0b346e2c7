// SPDX-License-Identifier: MIT
// Every look and path of the photo frame by its calls, which stand in frame_calls.txt.
#include "scene/viewframe.h"

#include <gtest/gtest.h>

#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::ViewFrame;

/// The frames' shared textures go at the program's end, when no recorder listens any more.
[[maybe_unused]] bool const g_outlived = [] {
    glDeleteTextures = [](GLsizei, GLuint const*) {};
    return true;
}();

class ViewFrameTest : public testing::Test {
  protected:
    ViewFrameTest() {
        gl.muted.insert({"glPixelStorei"});
        gl.floats[GL_MODELVIEW_MATRIX] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, -1000, 1};
        gl.floats[GL_POSITION] = {-50, 50, 50, 1};
        std::string gray = bmp(4, 4, 8, 0, words({0x10203040, 0x50607080, 0x90a0b0c0, 0xd0e0f000}));
        write_file(dir.file("hairline.bmp"), gray);
        write_file(dir.file("flower.bmp"), test_bmp(4, 4));
        write_file(dir.file("bumpmapv.vp1"), "!!ARBvp1.0");
        write_file(dir.file("bumpmapf.fp1"), "!!ARBfp1.0");
        ViewFrame::init((dir.path() + "/").c_str());
        zanolib::g_option.framecolor = {255, 0, 255, 255};
    }
    ~ViewFrameTest() override {
        ViewFrame::destroy();
        zanolib::g_option = {};
    }

    /// The calls of a frame's life: made, drawn, freed.
    std::string life(unsigned int type) {
        ViewFrame frame;
        frame.setFrameType(static_cast<zanolib::e_frametype_t>(type));
        frame.setSize({100, 50}, 32);
        gl.take();
        frame.make_graph((dir.path() + "/").c_str());
        std::string text = gl.take() + "-- draw\n";
        frame.Draw();
        text += gl.take() + "-- free\n";
        frame.free_graph();
        return text + gl.take();
    }

    gl_recorder_t gl;
    temp_dir_t dir;
    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    gl_flag_t bgra{is_GL_EXT_bgra_supported, 1};
    gl_flag_t rescale{is_GL_EXT_rescale_normal_supported, 1};
    gl_flag_t vertex{is_GL_ARB_vertex_program_supported, 1};
    gl_flag_t fragment{is_GL_ARB_fragment_program_supported, 1};
    gl_flag_t combine{is_GL_ARB_texture_env_combine_supported, 1};
    gl_flag_t cube{is_GL_ARB_texture_cube_map_supported, 1};
    gl_flag_t imaging{is_GL_ARB_imaging_supported, 0};
    gl_flag_t units{is_GL_ARB_multitexture_supported, 1};
};

TEST_F(ViewFrameTest, MakesTheCallsOfItsLookAndPath) {
    std::string text;
    for (unsigned int type : {0u, 1u, 4u, 99u}) {
        text += "== type " + std::to_string(type) + "\n" + life(type);
    }
    gl_flag_t dot3{is_GL_ARB_texture_env_dot3_supported, 1};
    text += "== type 2 by programs\n" + life(2);
    is_GL_EXT_bgra_supported = is_GL_EXT_rescale_normal_supported = 0;
    is_GL_ARB_imaging_supported = 1;
    ViewFrame::destroy();
    ViewFrame::init((dir.path() + "/").c_str());
    text += "== type 4 with what else a GL may have\n" + life(4);
    is_GL_EXT_bgra_supported = is_GL_EXT_rescale_normal_supported = 1;
    std::filesystem::remove(dir.file("bumpmapf.fp1"));
    capture_t captured;
    text += "== type 3 by combiners, a program missing\n" + life(3);
    EXPECT_EQ(captured.err(), "/usr/site/share/zanolib/bumpmapf.fp1: read error.\n");
    gl.errors = {GL_INVALID_OPERATION};
    gl.integers[GL_PROGRAM_ERROR_POSITION_ARB] = {7};
    gl.strings[GL_PROGRAM_ERROR_STRING_ARB] = "no such word";
    write_file(dir.file("bumpmapf.fp1"), "!!ARBfp1.0");
    is_GL_ARB_texture_env_dot3_supported = 0;
    text += "== type 3 plain, a program rejected\n" + life(3);
    EXPECT_EQ(captured.err(), "bumpmapv.vp1: 7: no such word\n");
    EXPECT_TRUE(matches_file(text, FRAME_CALLS));
}

TEST_F(ViewFrameTest, DoesWithoutItsFiles) {
    ViewFrame::destroy();
    for (char const* broken : {"", "BM", "BM\x36"}) {
        for (char const* name : {"hairline.bmp", "flower.bmp"}) {
            write_file(dir.file(name), broken);
        }
        ViewFrame::init((dir.path() + "/").c_str());
        capture_t quiet;
        for (unsigned int type : {2u, 4u}) {
            std::string const calls = life(type);
            EXPECT_NE(calls.find("glDrawElements"), std::string::npos);
            EXPECT_EQ(calls.find("glTexImage2D(GL_TEXTURE_2D"), std::string::npos);
        }
        EXPECT_EQ(quiet.out() + quiet.err(), "");
        ViewFrame::destroy();
    }
}

}  // namespace
