// SPDX-License-Identifier: MIT
// Tests of the OpenGL calls of each look and path of the photo frame.
#include "scene/viewframe.h"

#include <gtest/gtest.h>

#include <regex>

#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::ViewFrame;

/// The shared textures are deleted when the program ends, after the recorder.
[[maybe_unused]] bool const g_outlived = [] {
    glDeleteTextures = [](GLsizei, GLuint const*) {};
    return true;
}();

class ViewFrameTest : public testing::Test {
  protected:
    ViewFrameTest() {
        gl.floats[GL_MODELVIEW_MATRIX] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 30, 0, -1000, 1};
        gl.floats[GL_PROJECTION_MATRIX] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 7, 0, 0, 1};
        gl.floats[GL_POSITION] = {-50, 50, 50, 1};
        write_file(dir.file("hairline.bmp"), bmp(4, 4, 8, 0, "sixteen pixels.."));
        write_file(dir.file("flower.bmp"), test_bmp(4, 4));
        write_file(dir.file("bumpmapv.vp1"), "!!ARBvp1.0");
        write_file(dir.file("bumpmapf.fp1"), "!!ARBfp1.0");
        ViewFrame::init(data.c_str());
        zanolib::g_option.framecolor = {255, 0, 255, 255};
    }
    ~ViewFrameTest() override {
        ViewFrame::destroy();
        zanolib::g_option = {};
    }

    /// Returns the number of calls that make, draw and free a frame, and those that no frame made
    /// before, except getters, new names, pixel storage, disabled states, and repeated parts.
    std::string calls(unsigned int type) {
        ViewFrame frame;
        frame.setFrameType(static_cast<zanolib::e_frametype_t>(type));
        frame.setSize({100, 50}, 32);
        gl.lines.clear();
        frame.make_graph(data.c_str());
        frame.Draw();
        frame.free_graph();
        auto const count = [this](char const* words) {
            return std::ranges::count_if(
                gl.lines, [&](std::string const& line) { return line.starts_with(words); });
        };
        EXPECT_EQ(count("glEnable"), count("glDisable")) << "the states of look " << type;
        std::string text = std::to_string(gl.lines.size()) + " calls\n";
        for (std::string const& line : gl.lines) {
            static std::regex const hidden(
                "gl(Disable|Gen|Get|Pixel).*|glBindProgram.*[5-9].|.*CUBE_MAP_[NP].*|"
                "glProgramLocalParameter4fv.* ([234678]|1[012]), .*");
            if (!std::regex_match(line, hidden) && shown.insert(line).second) {
                text += line + "\n";
            }
        }
        return text;
    }

    gl_recorder_t gl;
    temp_dir_t dir;
    std::string data = dir.path() + "/";
    std::set<std::string> shown;
    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    gl_flag_t bgra{is_GL_EXT_bgra_supported, 1};
    gl_flag_t rescale{is_GL_EXT_rescale_normal_supported, 1};
    gl_flag_t vertex{is_GL_ARB_vertex_program_supported, 1};
    gl_flag_t fragment{is_GL_ARB_fragment_program_supported, 1};
    gl_flag_t combine{is_GL_ARB_texture_env_combine_supported, 1};
    gl_flag_t dot3{is_GL_ARB_texture_env_dot3_supported, 1};
    gl_flag_t cube{is_GL_ARB_texture_cube_map_supported, 1};
    gl_flag_t imaging{is_GL_ARB_imaging_supported, 0};
    gl_flag_t units{is_GL_ARB_multitexture_supported, 1};
};

TEST_F(ViewFrameTest, MakesTheCallsOfItsLookAndPath) {
    capture_t captured;
    EXPECT_EQ(calls(0), "0 calls\n");
    EXPECT_EQ(calls(99), "0 calls\n");
    std::string text = "flat: " + calls(1);
    text += "flower: " + calls(4);
    text += "brown by programs: " + calls(2);
    EXPECT_EQ(captured.out() + captured.err(), "");
    std::filesystem::remove(dir.file("bumpmapf.fp1"));
    std::filesystem::create_directory(dir.file("bumpmapf.fp1"));
    text += "coloured by combiners, without a program: " + calls(3);
    EXPECT_EQ(captured.err(), "/usr/site/share/zanolib/bumpmapf.fp1: read error.\n");
    std::filesystem::remove(dir.file("bumpmapf.fp1"));
    write_file(dir.file("bumpmapf.fp1"), "!!ARBfp1.0");
    gl.errors = {GL_INVALID_OPERATION};
    gl.integers[GL_PROGRAM_ERROR_POSITION_ARB] = {7};
    gl.strings[GL_PROGRAM_ERROR_STRING_ARB] = "no such word";
    is_GL_ARB_texture_env_dot3_supported = 0;
    text += "coloured, plain, with a rejected program: " + calls(3);
    EXPECT_EQ(captured.err(), "bumpmapv.vp1: 7: no such word\n");
    EXPECT_TRUE(matches_file(text, FRAME_CALLS));
}

TEST_F(ViewFrameTest, UsesTheExtensionsOfTheContext) {
    gl_flag_t const no_bgra{is_GL_EXT_bgra_supported, 0};
    gl_flag_t const no_rescale{is_GL_EXT_rescale_normal_supported, 0};
    gl_flag_t const with_imaging{is_GL_ARB_imaging_supported, 1};
    ViewFrame::destroy();
    ViewFrame::init(data.c_str());
    std::string const text = calls(4);
    for (char const* call : {"4, 4, 0, GL_RGB, GL_UNSIGNED_BYTE, ptr)",
                             "glBlendEquationEXT(GL_FUNC_ADD)", "glEnable(GL_NORMALIZE)"}) {
        EXPECT_NE(text.find(call), std::string::npos) << call;
    }
    zanolib::g_option.debug = true;
    capture_t captured;
    calls(2);
    EXPECT_TRUE(captured.out().starts_with(
        "frametype: 2\npos3(-50.000000, 50.000000, 50.000000)\nmtx3w(\t2.0"));
}

TEST_F(ViewFrameTest, IsDrawnWithoutItsFiles) {
    ViewFrame::destroy();
    for (char const* name : {"hairline.bmp", "flower.bmp"}) {
        write_file(dir.file(name), "BM\x36");
    }
    ViewFrame::init(data.c_str());
    capture_t captured;
    for (unsigned int type : {2U, 4U}) {
        EXPECT_EQ(calls(type).find("glTexImage2D(GL_TEXTURE_2D"), std::string::npos) << type;
    }
    EXPECT_EQ(captured.out() + captured.err(), "");
}

}  // namespace
