// SPDX-License-Identifier: MIT
// The view as numbers, the list of pictures, and the GL calls of the scene in their order.
#include "scene/viewscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "codecs/jpegobject.h"
#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::ViewScene;

class SceneTest : public testing::Test {
  protected:
    SceneTest() {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {16384};
        gl.integers[GL_MAX_VIEWPORT_DIMS] = {1600, 1200};
        gl.muted.insert({"glPixelStorei", "glGetIntegerv", "glTexParameteri"});
    }
    ~SceneTest() override { zanolib::g_option = {}; }

    bool add(ViewScene& scene, std::string const& bytes, std::string const& name = "a.bmp") {
        return scene.addImage(write_file(dir.file(name), bytes).c_str(), "");
    }

    /// The calls that begin so since the last time, without the prefixes.
    std::string calls(std::string const& begin = "gl") {
        std::string text;
        for (std::string const& line : gl.lines) {
            text += line.starts_with(begin) ? line.substr(2) + " " : "";
        }
        gl.take();
        for (std::size_t at = 0; (at = text.find("GL_", at)) != std::string::npos;) {
            text.erase(at, 3);
        }
        return text;
    }

    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    gl_recorder_t gl;
    temp_dir_t dir;
};

/// Carries out a list of operations like "R90 Z1 r": letters, most with a number.
void change(ViewScene& scene, std::string const& operations) {
    static std::map<char, void (ViewScene::*)(float, float)> const numbered{
        {'R', &ViewScene::Rotate}, {'Z', &ViewScene::Zoom}, {'S', &ViewScene::Scale}};
    static std::map<char, void (ViewScene::*)()> const resets{{'r', &ViewScene::clrRotate},
                                                              {'z', &ViewScene::clrZoom},
                                                              {'m', &ViewScene::clrMove},
                                                              {'o', &ViewScene::Origin}};
    std::istringstream in(operations);
    char letter = 0;
    for (float n = 0; in >> letter;) {
        if (resets.contains(letter)) {
            (scene.*resets.at(letter))();
        } else if (in >> n; numbered.contains(letter)) {
            (scene.*numbered.at(letter))(n, 0);
        } else if (letter == 'x') {
            scene.Move({n, 0, 0}, 0);
        } else {
            scene.Matrix(libgr::getTranslateMatrix(libgr::position3(n, 0, 0)));
        }
    }
}

struct view_row_t {
    char const* operations;
    float x, y;         // where the picture's centre goes
    float turn, scale;  // degrees and factor about it
};

view_row_t const view_rows[] = {
    {"R30 R-30", 0, 0, 0, 1},  {"R90", 0, 0, 90, 1},       {"Z1 Z1", 0, 0, 0, 4},
    {"S3 S0.5", 0, 0, 0, 1.5}, {"x10 R90", 0, 10, 90, 1},  {"R90 x10", 10, 0, 90, 1},
    {"S2 X3", 3, 0, 0, 2},     {"X3 S2", 6, 0, 0, 2},      {"Z2 z", 0, 0, 0, 1},
    {"Z2 x8 z", 2, 0, 0, 1},   {"R80 r", 0, 0, 40, 1},     {"R80 r r", 0, 0, 20, 1},
    {"Z1 R80 r", 0, 0, 40, 2}, {"x1 r", 1, 0, 0, 1},       {"x10 R60 r", 8.660254f, 5, 30, 1},
    {"R90 x5 m", 0, 0, 90, 1}, {"R20 Z3 x5 o", 0, 0, 0, 1}};

TEST_F(SceneTest, EveryViewOperationHasItsNumbers) {
    for (view_row_t const& row : view_rows) {
        ViewScene scene, empty;
        ASSERT_TRUE(add(scene, test_bmp(2, 2)));
        change(scene, row.operations);
        libgr::vector3w_t const centre = libgr::vector3w(0, 0, 0, 1) * scene.getMatrix();
        libgr::vector3w_t const right = libgr::vector3w(1, 0, 0, 1) * scene.getMatrix();
        float const radians = row.turn * 3.14159265f / 180.0f;
        EXPECT_NEAR(centre.x, row.x, 1e-5f) << row.operations;
        EXPECT_NEAR(centre.y, row.y, 1e-5f) << row.operations;
        EXPECT_NEAR(right.x - centre.x, row.scale * std::cos(radians), 1e-5f) << row.operations;
        EXPECT_NEAR(right.y - centre.y, row.scale * std::sin(radians), 1e-5f) << row.operations;
        change(empty, row.operations);
        EXPECT_EQ(empty.getMatrix(), libgr::Imtx) << row.operations << " without a picture";
    }
}

TEST_F(SceneTest, PicturesComeUprightByTheirOrientation) {
    libgr::image2d_t image;
    image.desc = {libgr::IMAGE_FORMAT_RGB, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    image.m_width = 16;
    image.m_height = 8;
    std::string const path = dir.file("a.jpg");
    ASSERT_TRUE(image.allocate() && libgr::image_jpeg1_t().save(image, path.c_str()));
    // An Exif block with the tag Orientation at 6, behind the start of the image.
    std::string const exif(
        "\xff\xe1\0\x22"
        "Exif\0\0MM\0*\0\0\0\x8\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0",
        36);
    ViewScene scene;
    ASSERT_TRUE(add(scene, read_file(path).insert(2, exif), "b.jpg"));
    libgr::matrix3w_t const upright = scene.getMatrix();
    EXPECT_EQ(upright, libgr::getRotateMatrix(libgr::rotation3(-90, libgr::IdirZ)));
    change(scene, "R20 Z1 x5 o");
    EXPECT_EQ(scene.getMatrix(), upright);
    EXPECT_EQ(scene.getCurrentImageSize(), libgr::direction2l(16, 8)) << "as stored";
}

TEST_F(SceneTest, ReshapePutsPictureAndWindowPixelsOnTopOfEachOther) {
    struct {
        unsigned picture, columns, rows;
        char const* calls;
    } const rows[] = {{8, 800, 601, "800, 601) Ortho(-400, 400, -300.5, 300.5"},
                      {8, 801, 600, "801, 600) Ortho(-401, 400, -300.5, 299.5"},
                      {7, 801, 600, "801, 600) Ortho(-400.5, 400.5, -300.5, 299.5"},
                      {0, 801, 601, "801, 601) Ortho(-400.5, 400.5, -300.5, 300.5"},  // no picture
                      {8, 5001, 4001, "1600, 1200) Ortho(-800, 800, -600.5, 599.5"}};
    gl.muted.insert({"glMatrixMode", "glLoadIdentity"});
    for (auto const& row : rows) {
        ViewScene scene;
        ASSERT_TRUE(row.picture == 0 || add(scene, test_bmp(row.picture, 9)));
        scene.Reshape(row.columns, row.rows);
        EXPECT_EQ(calls(), "Viewport(0, 0, " + std::string(row.calls) + ", 0, 10000) ");
    }
}

TEST_F(SceneTest, TheCurrentPictureFollowsTheList) {
    ViewScene scene;
    auto const width = [&scene] { return scene.getCurrentImageSize().x; };
    capture_t streams;
    EXPECT_FALSE(scene.addImage("/none.bmp", ""));
    EXPECT_EQ(streams.err(), "/none.bmp: image file not found.\n");
    EXPECT_FALSE(scene.toggleSmooth() || scene.saveImage("a.bmp") || scene.delImage());
    EXPECT_TRUE(add(scene, test_bmp(1, 1)) && add(scene, test_bmp(2, 2)));
    EXPECT_TRUE(add(scene, test_bmp(3, 3)));
    EXPECT_EQ(width(), 1) << "the first stays current";
    scene.setCurrent(1);
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 3) << "the one behind it";
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 1) << "the last that is left";
    scene.setCurrent(5);
    EXPECT_EQ(width(), 0);
    EXPECT_TRUE(!scene.delImage() && add(scene, test_bmp(4, 4)));
    EXPECT_EQ(width(), 1) << "from the end to the start";
    EXPECT_TRUE(scene.delImage() && scene.delImage() && !scene.delImage());
}

TEST_F(SceneTest, TheExtensionAloneChoosesTheCodec) {
    std::string const tga("\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x18\0\1\2\3\0", 22);
    std::string const pixels("\0\1\0\0\1\0\0\0", 8);
    std::string const palette("\x30\x20\x10\0\x33\x22\x11\0", 8);
    struct {
        char const* name;
        std::string bytes;
        std::string upload;  // size, format and type of the tile; nothing where the load fails
    } const rows[] = {
        {"x.Bmp", test_bmp(3, 2), "3, 2, BGR, UNSIGNED_BYTE"},
        {"x.bmp", bmp(2, 2, 8, 8, palette + pixels), "2, 2, RGB, UNSIGNED_BYTE"},
        {"x.bmp", bmp(2, 2, 8, 0, pixels), "2, 2, LUMINANCE, UNSIGNED_BYTE"},
        {"x.bmp", bmp(2, 2, 24, 0, pixels), "2, 2, BGR, UNSIGNED_BYTE"},  // ends early
        {"x.TGA", tga, "1, 1, BGR, UNSIGNED_BYTE"},
        {"x.tga", test_bmp(3, 2), ""},
        {"x.gif", test_bmp(3, 2), ""},
        {"bmp", test_bmp(3, 2), ""},
        {"x.bmp", bmp(3, 0, 24, 0, pixels), ""},
        {"x.bmp", bmp(3, 0U - 2U, 24, 0, pixels + pixels), ""},
    };
    for (auto const& row : rows) {
        ViewScene scene;
        EXPECT_EQ(add(scene, row.bytes, row.name), !row.upload.empty()) << row.name;
        scene.make_graph("");
        std::string const upload = "TexSubImage2D(TEXTURE_2D, 0, 0, 0, " + row.upload + ", ptr) ";
        EXPECT_EQ(calls("glTexSubImage2D"), row.upload.empty() ? "" : upload) << row.name;
    }
}

TEST_F(SceneTest, TilesFollowTheGlUpTo256AndMeet) {
    zanolib::g_option.debug = true;
    struct {
        int limit;
        char const* told;
        char const* edges;
    } const rows[] = {
        {16384, "16384\nrectangle_to_squares()\ninimg: 300, 5\nmaxsize: 256\n",
         "Vertex2f(106, 2.5) Vertex2f(-150, 2.5) Vertex2f(150, 2.5) Vertex2f(106, 2.5) "},
        {128, "128\nrectangle_to_squares()\ninimg: 300, 5\nmaxsize: 128\n",
         "Vertex2f(-22, 2.5) Vertex2f(-150, 2.5) Vertex2f(106, 2.5) Vertex2f(-22, 2.5) "
         "Vertex2f(150, 2.5) Vertex2f(106, 2.5) "}};
    for (auto const& row : rows) {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {row.limit};
        ViewScene scene;
        capture_t streams;
        ASSERT_TRUE(add(scene, test_bmp(300, 5)));
        EXPECT_TRUE(streams.err().starts_with("max_tex_size: " + std::string(row.told)));
        scene.make_graph("");
        std::erase_if(gl.lines, [](std::string const& line) { return !line.ends_with(", 2.5)"); });
        EXPECT_EQ(calls("glVertex2f"), row.edges);
    }
}

TEST_F(SceneTest, OnePictureIsLoadedDrawnAndFreedInOrder) {
    gl.muted = {"glGetIntegerv", "glGetError"};
    std::string text;
    auto const told = [&](char const* step) { text += gl.take() + "-- " + step + "\n"; };
    {
        ViewScene scene;
        scene.Init("");
        told("initialised");
        ASSERT_TRUE(add(scene, test_bmp(3, 2)));
        scene.Move({5, 0, 0}, 0);
        told("added and moved");
        for (int twice = 0; twice < 2; ++twice) {
            scene.make_graph("");
            told("made");
        }
        scene.Display();
        told("drawn");
        for (int twice = 0; twice < 2; ++twice) {
            scene.free_graph();
            told("freed");
        }
        scene.make_graph("");
        scene.Display();
        told("made and drawn again");
    }
    told("destroyed");
    EXPECT_TRUE(same_as_file(text, SCENE_CALLS));
}

TEST_F(SceneTest, EachStepChecksForErrorsUnderItsLabel) {
    zanolib::g_option.frametype = 0;
    ViewScene scene;
    ASSERT_TRUE(add(scene, test_bmp(1, 1)));
    gl.errors.assign(100, GL_INVALID_OPERATION);
    capture_t streams;
    scene.make_graph("");
    scene.Display();
    std::string labels;
    std::istringstream lines(streams.err());
    for (std::string line; std::getline(lines, line);) {
        std::size_t const end = line.find(": Error 1282: ");
        labels += end == std::string::npos ? "" : line.substr(0, end) + "\n";
    }
    EXPECT_TRUE(same_as_file(labels, SCENE_LABELS));
}

}  // namespace
