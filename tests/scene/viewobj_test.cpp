// SPDX-License-Identifier: MIT
// The way of one picture: codec by extension, tiles by the GL's limit, textures and quads.
#include "scene/viewobj.h"

#include <gtest/gtest.h>

#include <string_view>

#include "scene/framegeometry.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::g_option;
using zanolib::ViewObject;

class ViewObjectTest : public testing::Test {
  protected:
    ViewObjectTest() { gl.integers[GL_MAX_TEXTURE_SIZE] = {16384}; }

    bool set(ViewObject& object, std::string const& name, std::string const& bytes) {
        return object.setImage(write_file(dir.file(name), bytes).c_str(), "");
    }

    /// What was called of one function since the last take.
    std::string taken(std::string_view function) {
        std::string calls;
        for (std::string const& line : gl.lines) {
            if (line.starts_with(function)) {
                calls += line.substr(function.size()) + "\n";
            }
        }
        gl.take();
        return calls;
    }

    options_guard_t options;
    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    gl_recorder_t gl;
    temp_dir_t dir;
};

TEST_F(ViewObjectTest, TheExtensionAloneChoosesTheCodec) {
    std::string const tga =
        bytes_of({0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 24, 0, 1, 2, 3, 0});
    struct {
        char const* name;
        std::string bytes;
        bool loads;
    } const rows[] = {
        {"x.Bmp", test_bmp(3, 2), true},
        {".bmp", test_bmp(3, 2), true},
        {"x.TGA", tga, true},
        {"x.tga", test_bmp(3, 2), false},
        {"x.png", test_bmp(3, 2), false},
        {"x.bmp", "BM", false},
        {"x.gif", test_bmp(3, 2), false},
        {"bmp", test_bmp(3, 2), false},
        {"x.bmp.txt", test_bmp(3, 2), false},
        {"x.bmp", bmp(3, 0, 24, 0, ""), false},
        {"x.bmp", bmp(0, 3, 24, 0, ""), false},
        {"x.bmp", bmp(3, 0U - 2U, 24, 0, std::string(24, '.')), false},
        {"x.bmp", bmp(0x7fffffff, 0x7fffffff, 24, 0, std::string(24, '.')), false},
    };
    for (auto const& row : rows) {
        ViewObject object;
        capture_t streams;
        EXPECT_EQ(set(object, row.name, row.bytes), row.loads) << row.name;
        if (!row.loads) {
            object.load_texture();
            EXPECT_EQ(taken("glTexImage2D"), "") << row.name << ": no tiles";
        }
    }
}

TEST_F(ViewObjectTest, TilesFollowTheGlUpTo256) {
    g_option.debug = true;
    for (int const limit : {16384, 128}) {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {limit};
        ViewObject object;
        capture_t streams;
        ASSERT_TRUE(set(object, "x.bmp", test_bmp(257, 2)));
        EXPECT_EQ(streams.err(),
                  "max_tex_size: " + std::to_string(limit) +
                      "\nrectangle_to_squares()\ninimg: 257, 2\nmaxsize: " +
                      (limit == 128 ? "128" : "256") +
                      "\nrectangle_to_square() complete.\nViewObject::setImage() end\n");
        gl.take();
        object.load_texture();
        object.load_texture();
        std::string const tail = ", 0, GL_BGR, GL_UNSIGNED_BYTE, null)\n";
        std::string const large = "(GL_TEXTURE_2D, 0, GL_RGB, 256, 256" + tail;
        std::string const small = "(GL_TEXTURE_2D, 0, GL_RGB, 128, 128" + tail;
        EXPECT_EQ(taken("glTexImage2D"), limit == 128 ? small + small + small : large + large);
        object.free_texture();
        object.free_texture();
        EXPECT_EQ(taken("glDeleteTextures").find("{0}"), std::string::npos);
    }
}

TEST_F(ViewObjectTest, PalettesAreResolvedAndGrayStaysGray) {
    std::string const palette = bytes_of({30, 20, 10, 0, 33, 22, 11, 0});
    std::string const pixels = bytes_of({0, 1, 1, 0, 1, 0, 0, 0});
    ViewObject indexed;
    ASSERT_TRUE(set(indexed, "x.bmp", bmp(2, 2, 8, 8, palette + pixels)));
    indexed.load_texture();
    EXPECT_EQ(taken("glTexSubImage2D"),
              "(GL_TEXTURE_2D, 0, 0, 0, 2, 2, GL_RGB, GL_UNSIGNED_BYTE, ptr)\n");
    ViewObject gray;
    ASSERT_TRUE(set(gray, "x.bmp", bmp(2, 2, 8, 0, pixels)));
    gray.load_texture();
    EXPECT_EQ(taken("glTexSubImage2D"),
              "(GL_TEXTURE_2D, 0, 0, 0, 2, 2, GL_LUMINANCE, GL_UNSIGNED_BYTE, ptr)\n");
}

TEST_F(ViewObjectTest, TheQuadsMeetAndStopWhereThePictureStops) {
    ViewObject object;
    ASSERT_TRUE(set(object, "x.bmp", test_bmp(300, 300)));
    gl.take();
    object.Draw();
    EXPECT_EQ(gl.take(), "") << "not loaded";
    object.load_texture();
    gl.take();
    object.Draw();
    std::vector<std::string> const lines = gl.lines;
    EXPECT_EQ(taken("glVertex2f"),
              "(-150, -150)\n(106, -150)\n(106, 106)\n(-150, 106)\n"
              "(106, -150)\n(150, -150)\n(150, 106)\n(106, 106)\n"
              "(-150, 106)\n(106, 106)\n(106, 150)\n(-150, 150)\n"
              "(106, 106)\n(150, 106)\n(150, 150)\n(106, 150)\n");
    gl.lines = lines;
    EXPECT_EQ(taken("glTexCoord2f"),
              "(0, 0)\n(1, 0)\n(1, 1)\n(0, 1)\n"
              "(0, 0)\n(0.171875, 0)\n(0.171875, 1)\n(0, 1)\n"
              "(0, 0)\n(1, 0)\n(1, 0.171875)\n(0, 0.171875)\n"
              "(0, 0)\n(0.171875, 0)\n(0.171875, 0.171875)\n(0, 0.171875)\n");
}

TEST(FrameGeometry, TheBandLiesAroundThePicture) {
    zanolib::frame_vertices_t const corners = zanolib::frame_vertices({100, 50}, 32);
    float const outer[4][2] = {{-82, -57}, {82, -57}, {82, 57}, {-82, 57}};
    float const inner[4][2] = {{-50, -25}, {50, -25}, {50, 25}, {-50, 25}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(corners[2 * i], libgr::position2(outer[i][0], outer[i][1]));
        EXPECT_EQ(corners[2 * i + 1], libgr::position2(inner[i][0], inner[i][1]));
    }
    // Each quad of the strip, taken as a, b, d, c, must turn counter-clockwise to face the viewer.
    for (std::size_t i = 0; i + 3 < zanolib::elements.size(); i += 2) {
        auto const corner = [&](std::size_t n) { return corners[zanolib::elements[i + n]]; };
        libgr::direction2_t const across = corner(1) - corner(0);
        libgr::direction2_t const along = corner(2) - corner(0);
        EXPECT_GT(across.x * along.y - across.y * along.x, 0.0f) << i;
    }
}

}  // namespace
