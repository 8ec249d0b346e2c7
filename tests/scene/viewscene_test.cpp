// SPDX-License-Identifier: MIT
// Tests of the scene with recorded OpenGL calls: views, the list of pictures, and drawing.
#include "scene/viewscene.h"

#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <map>

#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using libgr::direction2l;
using zanolib::g_option;
using zanolib::ViewScene;

class SceneTest : public testing::Test {
  protected:
    SceneTest() {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {16384};
        gl.integers[GL_MAX_VIEWPORT_DIMS] = {1600, 1200};
        gl.muted.insert("glGetIntegerv");
    }
    ~SceneTest() override { g_option = {}; }

    bool add(ViewScene& scene, std::string const& bytes, std::string const& name = "a.bmp") {
        return scene.addImage(write_file(dir.file(name), bytes).c_str(), "");
    }

    /// Takes the recorded calls, and returns those with these words.
    std::string take(std::string const& words) {
        std::erase_if(gl.lines, [&words](std::string const& line) {
            return line.find(words) == std::string::npos;
        });
        return gl.take();
    }

    gl_recorder_t gl;
    capture_t console;
    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    temp_dir_t dir;
};

/// Applies a list of operations like "rotate 90, zoom 1, reset-move".
void change(ViewScene& scene, std::string const& operations) {
    static std::map<std::string, void (*)(ViewScene&, float)> const table{
        {"rotate", [](ViewScene& target, float n) { target.Rotate(n, 0); }},
        {"zoom", [](ViewScene& target, float n) { target.Zoom(n, 0); }},
        {"scale", [](ViewScene& target, float n) { target.Scale(n, 0); }},
        {"move", [](ViewScene& target, float n) { target.Move(libgr::IdirX * n, 0); }},
        {"matrix",
         [](ViewScene& target, float n) {
             target.Matrix(libgr::getTranslateMatrix(libgr::position3(n, 0, 0)));
         }},
        {"reset-rotation", [](ViewScene& target, float) { target.clrRotate(); }},
        {"reset-zoom", [](ViewScene& target, float) { target.clrZoom(); }},
        {"reset-move", [](ViewScene& target, float) { target.clrMove(); }},
        {"reset", [](ViewScene& target, float) { target.Origin(); }}};
    std::istringstream in(operations);
    for (std::string operation; std::getline(in >> std::ws, operation, ',');) {
        std::istringstream words(operation);
        std::string name;
        float number = 0;
        words >> name >> number;
        table.at(name)(scene, number);
    }
}

TEST_F(SceneTest, ViewOperationsAreAppliedInScreenAxes) {
    std::pair<char const*, char const*> const rows[] = {
        {"rotate 30, rotate -30", "turned 0, scaled 1, at 0, 0"},
        {"zoom 1, zoom 1", "turned 0, scaled 4, at 0, 0"},
        {"scale 3, scale 0.5", "turned 0, scaled 1.5, at 0, 0"},
        {"move 10, rotate 90", "turned 90, scaled 1, at 0, 10"},
        {"rotate 90, move 10", "turned 90, scaled 1, at 10, 0"},
        {"matrix 3, scale 2", "turned 0, scaled 2, at 6, 0"},
        {"zoom 2, move 8, reset-zoom", "turned 0, scaled 1, at 2, 0"},
        {"rotate 80, reset-rotation", "turned 40, scaled 1, at 0, 0"},
        {"zoom 1, rotate 80, reset-rotation, reset-rotation", "turned 20, scaled 2, at 0, 0"},
        {"move 10, rotate 60, reset-rotation", "turned 30, scaled 1, at 8.66, 5"},
        {"rotate 90, move 5, reset-move", "turned 90, scaled 1, at 0, 0"},
        {"rotate 20, zoom 3, move 5, reset", "turned 0, scaled 1, at 0, 0"}};
    for (auto const& [operations, view] : rows) {
        ViewScene scene, empty;
        ASSERT_TRUE(add(scene, test_bmp(2, 2)));
        change(scene, operations);
        EXPECT_EQ(view_text(scene.getMatrix()), view) << operations;
        change(empty, operations);
        EXPECT_EQ(empty.getMatrix(), libgr::Imtx) << operations << " without a picture";
    }
}

TEST_F(SceneTest, PicturesAreRotatedByTheirOrientation) {
    ViewScene scene;
    EXPECT_EQ(scene.rightrotatecount(), 0U);
    ASSERT_TRUE(scene.addImage(write_turned_jpeg(dir.file("b.jpg"), 16, 8).c_str(), ""));
    EXPECT_EQ(view_text(scene.getMatrix()), "turned -90, scaled 1, at 0, 0");
    change(scene, "rotate 20, zoom 1, move 5, reset");
    EXPECT_EQ(view_text(scene.getMatrix()), "turned -90, scaled 1, at 0, 0");
    EXPECT_EQ(scene.getCurrentImageSize(), direction2l(16, 8)) << "as in the file";
}

TEST_F(SceneTest, ReshapeAlignsThePixelsOfPictureAndWindow) {
    struct {
        unsigned int picture_width, width, height;
        std::string viewport, projection;
    } const rows[] = {{8, 800, 601, "800, 601", "-400, 400, -300.5, 300.5, 0, 10000"},
                      {8, 801, 600, "801, 600", "-401, 400, -300.5, 299.5, 0, 10000"},
                      {7, 801, 600, "801, 600", "-400.5, 400.5, -300.5, 299.5, 0, 10000"},
                      {0, 801, 601, "801, 601", "-400.5, 400.5, -300.5, 300.5, 0, 10000"},
                      {8, 5001, 4001, "1600, 1200", "-800, 800, -600.5, 599.5, 0, 10000"},
                      {8, 0, 600, "0, 600", ""},
                      {8, 600, 0, "600, 0", ""}};
    for (auto const& row : rows) {
        ViewScene scene;
        ASSERT_TRUE(row.picture_width == 0 || add(scene, test_bmp(row.picture_width, 9)));
        scene.Reshape(row.width, row.height);
        EXPECT_EQ(gl.take(),
                  "glViewport(0, 0, " + row.viewport +
                      ")\nglMatrixMode(GL_PROJECTION)\nglLoadIdentity()\n" +
                      (row.projection.empty() ? "" : "glOrtho(" + row.projection + ")\n"));
    }
    EXPECT_EQ(console.out(), "");
    g_option.debug = g_option.verbose = true;
    ViewScene().Reshape(7, 7);
    EXPECT_EQ(console.out(), "ViewScene::Reshape()\nviewofs: dir2(0.000000, 0.000000)\n");
}

TEST_F(SceneTest, TheCurrentPictureFollowsTheList) {
    ViewScene scene;
    auto const width = [&scene] { return scene.getCurrentImageSize().x; };
    EXPECT_FALSE(scene.addImage("/none.bmp", ""));
    EXPECT_EQ(console.err(), "/none.bmp: image file not found.\n");
    EXPECT_FALSE(scene.addImage("/dev/null", ""));
    EXPECT_FALSE(scene.toggleSmooth());
    EXPECT_FALSE(scene.saveImage("a.bmp"));
    EXPECT_EQ(errno, ENODATA);
    EXPECT_FALSE(scene.delImage());
    EXPECT_TRUE(add(scene, test_bmp(1, 1)));
    EXPECT_TRUE(add(scene, test_bmp(2, 2)));
    EXPECT_EQ(width(), 1) << "the first stays current";
    scene.setCurrent(1);
    EXPECT_TRUE(add(scene, test_bmp(3, 3)));
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 3) << "the next one";
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(width(), 1) << "the last one";
    scene.setCurrent(5);
    EXPECT_EQ(width(), 0) << "none";
    EXPECT_FALSE(scene.delImage());
    EXPECT_TRUE(add(scene, test_bmp(4, 4)));
    EXPECT_EQ(width(), 1) << "the first";
}

TEST_F(SceneTest, TheExtensionSelectsTheCodec) {
    std::string const tga("\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x18\0\1\2\3\0", 22);
    std::string const pixels("\0\1\0\0\1\0\0\0", 8);
    std::string const palette("\x30\x20\x10\0\x33\x22\x11\0", 8);
    struct {
        char const* name;
        std::string bytes;
        char const* upload;  ///< sizes and format, or null if the picture is rejected
    } const rows[] = {{"x.Bmp", test_bmp(3, 2), "3, 2, GL_BGR"},
                      {"palette.bmp", bmp(2, 2, 8, 8, palette + pixels), "2, 2, GL_RGB"},
                      {"gray.bmp", bmp(2, 2, 8, 0, pixels), "2, 2, GL_LUMINANCE"},
                      {"cut.bmp", bmp(2, 2, 24, 0, pixels), "2, 2, GL_BGR"},
                      {"x.TGA", tga, "1, 1, GL_BGR"},
                      {"x.tga", test_bmp(3, 2), nullptr},
                      {"x.gif", test_bmp(3, 2), nullptr},
                      {"bmp", test_bmp(3, 2), nullptr},
                      {"no-width.bmp", bmp(0, 3, 24, 0, pixels), nullptr},
                      {"no-height.bmp", bmp(3, 0, 24, 0, pixels), nullptr}};
    for (auto const& row : rows) {
        ViewScene scene;
        EXPECT_EQ(add(scene, row.bytes, row.name), row.upload != nullptr) << row.name;
        scene.make_graph("");
        std::string const expected = std::string("glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, ") +
                                     (row.upload != nullptr ? row.upload : "") +
                                     ", GL_UNSIGNED_BYTE, ptr)\n";
        EXPECT_EQ(take("SubImage"), row.upload != nullptr ? expected : "") << row.name;
    }
    EXPECT_EQ(console.err(), "");
}

TEST_F(SceneTest, APictureWithoutMemoryForItsConversionIsRejected) {
    // 16 MB of indices, which become 48 MB of colours.
    std::string const picture = bmp(4096, 4096, 8, 8, std::string((1 << 20) + 8, '\0'));
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    std::ifstream statm("/proc/self/statm");
    rlim_t pages = 0;
    ASSERT_TRUE(statm >> pages);
    rlimit const limit{pages * 4096 + (40 << 20), before.rlim_max};
    ViewScene scene;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &limit), 0);
    bool const added = add(scene, picture);
    ASSERT_EQ(setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_FALSE(added);
    EXPECT_TRUE(add(scene, picture));
}

TEST_F(SceneTest, SnapshotsAreSavedBesideThePicture) {
    ViewScene scene;
    ASSERT_TRUE(add(scene, test_bmp(2, 2)));
    scene.Reshape(0, 8);
    EXPECT_FALSE(scene.saveImage("a.bmp"));
    EXPECT_EQ(errno, ENODATA);
    scene.Reshape(8, 8);
    gl.pixels[GL_FRONT] = std::vector<unsigned char>(8 * 8 * 3, 200);
    EXPECT_TRUE(scene.saveImage(dir.file("a.bmp").c_str()));
    EXPECT_TRUE(read_file(dir.file("a.zvw.jpg")).starts_with("\xff\xd8"));
    EXPECT_EQ(console.err(), "");
    g_option.debug = true;
    EXPECT_FALSE(scene.saveImage("/none/a.bmp"));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_TRUE(console.err().ends_with("/none/a.zvw.jpg: jpeg1 save fail.\n"));
}

TEST_F(SceneTest, TilesAreDrawnSideBySide) {
    struct {
        unsigned int width, height;
        int maxsize;
        char const* edge;           ///< the coordinate of one edge
        std::vector<int> vertices;  ///< the other coordinates of the vertices on this edge
    } const rows[] = {{300, 5, 16384, ", 2.5)", {106, -150, 150, 106}},
                      {5, 300, 128, "(2.5, ", {-150, -22, -22, 106, 106, 150}}};
    for (auto const& row : rows) {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {row.maxsize};
        ViewScene scene;
        ASSERT_TRUE(add(scene, test_bmp(row.width, row.height)));
        EXPECT_TRUE(scene.make_graph(""));
        std::string expected;
        for (int const vertex : row.vertices) {
            std::string const other = std::to_string(vertex);
            expected += "glVertex2f" +
                        (row.edge[0] == '(' ? row.edge + other + ")" : "(" + other + row.edge) +
                        "\n";
        }
        EXPECT_EQ(take(row.edge), expected) << row.maxsize;
    }
    EXPECT_EQ(console.out() + console.err(), "");
    g_option.debug = true;
    ViewScene scene;
    ASSERT_TRUE(add(scene, test_bmp(300, 5)));
    EXPECT_TRUE(scene.is_resident());
    EXPECT_TRUE(scene.make_graph(""));
    EXPECT_EQ(console.out(), "frametype: 1\nViewScene::make_graph() count= 0\n");
    EXPECT_EQ(console.err(),
              "max_tex_size: 128\nrectangle_to_squares()\ninimg: 300, 5\nmaxsize: 128\n"
              "rectangle_to_square() complete.\nViewObject::setImage() end\nViewObject::Draw()\n"
              "multi_texture_object_t::draw_image()\nbtm_lft: pos2(-150.000000, -2.500000)\n"
              "top_rit: pos2(150.000000, 2.500000)\n");
}

TEST_F(SceneTest, OnlyTilesThatGluWouldStretchAreCopied) {
    libgr::image2d_t picture;
    picture.desc = {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    picture.m_width = 300;
    picture.m_height = 256;
    ASSERT_TRUE(picture.resize(4 * 300 * 256, 0));  // GLU reads past the end
    gl.regions = {{picture.begin(), picture.size(), "picture"}};
    for (int const version : {3, 2}) {
        is_GL_VERSION_3_0_supported = version == 3;
        zanolib::multi_square_image_t tiles;
        zanolib::multi_texture_object_t textures;
        ASSERT_TRUE(zanolib::rectangle_to_squares(tiles, picture, 256, true));
        ASSERT_TRUE(zanolib::squares_to_texobjs(textures, tiles));
        EXPECT_TRUE(textures.Preload());
        std::string const uploads = take("GL_LUMINANCE, GL_UNSIGNED_BYTE, p");
        EXPECT_NE(uploads.find("256, 256, GL_LUMINANCE, GL_UNSIGNED_BYTE, picture)"), uploads.npos);
        EXPECT_TRUE(uploads.ends_with(version == 3
                                          ? "44, 256, GL_LUMINANCE, GL_UNSIGNED_BYTE, picture)\n"
                                          : "256, 256, GL_LUMINANCE, GL_UNSIGNED_BYTE, ptr)\n"))
            << uploads;
    }
}

TEST_F(SceneTest, MakesDrawsAndFreesAPicture) {
    gl.muted.insert("glGetError");
    ViewScene scene;
    scene.Init("");
    std::string text = gl.take() + "-- added and moved\n";
    ASSERT_TRUE(add(scene, test_bmp(3, 2)));
    scene.Move({5, 0, 0}, 0);
    text += gl.take() + "-- made\n";
    EXPECT_TRUE(scene.make_graph(""));
    text += gl.take() + "-- drawn\n";
    EXPECT_TRUE(scene.make_graph(""));
    scene.Display();
    text += gl.take() + "-- freed\n";
    scene.free_graph();
    scene.free_graph();
    text += gl.take();
    EXPECT_TRUE(matches_file(text, SCENE_CALLS));
    scene.Display();
    EXPECT_EQ(take("glCallList"), "") << "without OpenGL objects";
    EXPECT_TRUE(scene.make_graph(""));
    EXPECT_FALSE(scene.toggleSmooth());
    EXPECT_EQ(take("MAG_FILTER, GL_NEAREST"),
              "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST)\n");
    EXPECT_TRUE(scene.toggleSmooth());
    scene.Display();
    EXPECT_EQ(take("glCallList"), "glCallList(4)\n");
    EXPECT_TRUE(scene.delImage());
    EXPECT_EQ(gl.textures, 0);
}

TEST_F(SceneTest, APictureWithoutTextureMemoryIsRemoved) {
    ViewScene scene;
    std::string const path = write_file(dir.file("a.bmp"), test_bmp(700, 3));  // three tiles
    auto const count = [this](char const* call) {
        return std::ranges::count_if(
            gl.lines, [call](std::string const& line) { return line.starts_with(call); });
    };
    struct {
        std::size_t checks;  ///< the number of checks for errors without an error
        int uploads, textures, lists;
    } const rows[] = {{1, 1, 0, 0}, {3, 2, 0, 0}, {6, 3, 0, 0},
                      {7, 3, 0, 0}, {8, 3, 0, 0}, {99, 3, 3, 1}};
    for (auto const& row : rows) {
        SCOPED_TRACE(row.checks);
        ASSERT_TRUE(scene.addImage(path.c_str(), ""));
        gl.lines.clear();
        gl.errors.assign(row.checks, GL_NO_ERROR);
        gl.errors.push_back(GL_OUT_OF_MEMORY);
        bool const is_made = scene.make_graph("");
        gl.errors.clear();
        EXPECT_EQ(is_made, row.lists == 1);
        EXPECT_EQ(console.err().ends_with(path + ": not enough texture memory.\n"), !is_made);
        scene.Display();
        EXPECT_EQ(count("glTexSubImage2D"), row.uploads);
        EXPECT_EQ(gl.textures, row.textures);
        EXPECT_EQ(count("glNewList(") - count("glDeleteLists"), row.lists);
        EXPECT_EQ(count("glCallList"), row.lists);
        EXPECT_EQ(scene.delImage(), is_made);
    }
}

TEST_F(SceneTest, EachStepChecksForErrorsUnderItsLabel) {
    g_option.frametype = 0;
    gl.errors.assign(100, GL_INVALID_OPERATION);
    ViewScene scene;
    scene.Init("");
    ASSERT_TRUE(add(scene, test_bmp(1, 1)));
    scene.make_graph("");
    scene.Display();
    std::string const errors = console.err();
    std::istringstream words(errors);
    EXPECT_EQ(std::count(std::istream_iterator<std::string>(words), {}, "operation"), 28) << errors;
}

}  // namespace
