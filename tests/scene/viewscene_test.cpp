// SPDX-License-Identifier: MIT
// The view as numbers, the list of pictures, and the GL calls of the scene in their order.
#include "scene/viewscene.h"

#include <algorithm>
#include <map>

#include "codecs/jpegobject.h"
#include "options/option.h"
#include "tests/gl/recordedtest.h"
#include "tests/scene/scenefiles.h"

namespace {

using zanolib::ViewScene;

class SceneTest : public recorded_test {
  protected:
    SceneTest() {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {16384};
        gl.integers[GL_MAX_VIEWPORT_DIMS] = {1600, 1200};
        gl.muted.insert("glGetIntegerv");
    }
    ~SceneTest() override { zanolib::g_option = {}; }

    bool add(ViewScene& scene, std::string const& bytes, std::string const& name = "a.bmp") {
        return scene.addImage(write_file(dir.file(name), bytes).c_str(), "");
    }

    /// Forgets the calls that haven't these words in them.
    void keep(char const* words) {
        std::erase_if(gl.lines, [words](std::string const& line) {
            return line.find(words) == std::string::npos;
        });
    }

    gl_flag_t modern{is_GL_VERSION_3_0_supported, 1};
    temp_dir_t dir;
};

/// Carries out a list of operations like "R90 Z1 r0": letters, each with a number.
void change(ViewScene& scene, std::string const& operations) {
    static std::map<char, void (*)(ViewScene&, float)> const table{
        {'R', [](ViewScene& target, float n) { target.Rotate(n, 0); }},
        {'Z', [](ViewScene& target, float n) { target.Zoom(n, 0); }},
        {'S', [](ViewScene& target, float n) { target.Scale(n, 0); }},
        {'M',
         [](ViewScene& target, float n) {
             target.Move({n, 0, 0}, 0);
         }},
        {'T', [](ViewScene& target,
                 float n) { target.Matrix(libgr::getTranslateMatrix(libgr::position3(n, 0, 0))); }},
        {'r', [](ViewScene& target, float) { target.clrRotate(); }},
        {'z', [](ViewScene& target, float) { target.clrZoom(); }},
        {'m', [](ViewScene& target, float) { target.clrMove(); }},
        {'o', [](ViewScene& target, float) { target.Origin(); }}};
    std::istringstream in(operations);
    char letter = 0;
    for (float n = 0; in >> letter >> n;) {
        table.at(letter)(scene, n);
    }
}

TEST_F(SceneTest, EveryViewOperationHasItsNumbers) {
    for (char const* operations :
         {"R30 R-30", "R90", "Z1 Z1", "S3 S0.5", "M10 R90", "R90 M10", "S2 T3", "T3 S2", "Z2 z0",
          "Z2 M8 z0", "R80 r0", "R80 r0 r0", "Z1 R80 r0", "M1 r0", "M10 R60 r0", "R90 M5 m0",
          "R20 Z3 M5 o0"}) {
        ViewScene scene, empty;
        ASSERT_TRUE(add(scene, test_bmp(2, 2)));
        change(scene, operations);
        note(operations, ":", view_text(scene.getMatrix()));
        change(empty, operations);
        EXPECT_EQ(empty.getMatrix(), libgr::Imtx) << operations << " without a picture";
    }
}

TEST_F(SceneTest, PicturesComeUprightByTheirOrientation) {
    ViewScene scene;
    ASSERT_TRUE(scene.addImage(write_turned_jpeg(dir.file("b.jpg"), 16, 8).c_str(), ""));
    note("loaded:", view_text(scene.getMatrix()));
    change(scene, "R20 Z1 M5 o0");
    note("put back:", view_text(scene.getMatrix()));
    EXPECT_EQ(scene.getCurrentImageSize(), libgr::direction2l(16, 8)) << "as stored";
}

TEST_F(SceneTest, ReshapePutsPictureAndWindowPixelsOnTopOfEachOther) {
    using row_t = std::array<unsigned, 3>;  // the picture's width or 0; the window
    for (auto const& [picture, columns, rows] :
         {row_t{8, 800, 601}, row_t{8, 801, 600}, row_t{7, 801, 600}, row_t{0, 801, 601},
          row_t{8, 5001, 4001}, row_t{8, 0, 600}}) {
        ViewScene scene;
        ASSERT_TRUE(picture == 0 || add(scene, test_bmp(picture, 9)));
        scene.Reshape(columns, rows);
        note(picture, "in", columns, "x", rows);
    }
}

TEST_F(SceneTest, TheCurrentPictureFollowsTheList) {
    ViewScene scene;
    auto const width = [&scene] { return scene.getCurrentImageSize().x; };
    EXPECT_FALSE(scene.addImage("/none.bmp", ""));
    EXPECT_FALSE(scene.toggleSmooth() || scene.saveImage("a.bmp") || scene.delImage());
    EXPECT_TRUE(add(scene, test_bmp(1, 1)) && add(scene, test_bmp(2, 2)));
    EXPECT_EQ(width(), 1) << "the first stays current";
    scene.setCurrent(1);
    EXPECT_TRUE(add(scene, test_bmp(3, 3)) && scene.delImage());
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
    using row_t = std::pair<char const*, std::string>;
    for (auto const& [name, bytes] :
         {row_t{"x.Bmp", test_bmp(3, 2)}, row_t{"x.bmp", bmp(2, 2, 8, 8, palette + pixels)},
          row_t{"x.bmp", bmp(2, 2, 8, 0, pixels)},
          row_t{"x.bmp", bmp(2, 2, 24, 0, pixels)},  // ends early
          row_t{"x.TGA", tga}, row_t{"x.tga", test_bmp(3, 2)}, row_t{"x.gif", test_bmp(3, 2)},
          row_t{"bmp", test_bmp(3, 2)}, row_t{"x.bmp", bmp(3, 0, 24, 0, pixels)},
          row_t{"x.bmp", bmp(3, 0U - 2U, 24, 0, pixels + pixels)}}) {
        ViewScene scene;
        bool const added = add(scene, bytes, name);
        scene.make_graph("");
        keep("glTexSubImage2D");
        std::string const lines = console.err();
        note(name, (added ? "is shown" : "is refused") +
                       lines.substr(std::min(lines.size(), dir.file(name).size())));
    }
}

TEST_F(SceneTest, TilesFollowTheGlUpTo256AndMeet) {
    zanolib::g_option.debug = true;
    for (int const limit : {16384, 128}) {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {limit};
        ViewScene scene;
        ASSERT_TRUE(add(scene, test_bmp(300, 5)));
        note("limit", limit);
        scene.make_graph("");
        keep(", 2.5)");
    }
}

TEST_F(SceneTest, OnlyTilesThatGluWouldStretchAreCopied) {
    libgr::image2d_t picture;
    picture.desc = {libgr::IMAGE_FORMAT_GRAYSCALE, libgr::IMAGE_TYPE_UINT, libgr::IMAGE_BITS_8};
    picture.m_width = 300;
    picture.m_height = 256;
    ASSERT_TRUE(picture.resize(4 * 300 * 256, 0));  // with room for what GLU reads past the end
    gl.regions = {{picture.begin(), picture.size(), "picture"}};
    for (int const version : {3, 2}) {
        is_GL_VERSION_3_0_supported = version == 3;
        zanolib::multi_square_image_t tiles;
        zanolib::multi_texture_object_t textures;
        ASSERT_TRUE(zanolib::rectangle_to_squares(tiles, picture, 256, true));
        ASSERT_TRUE(zanolib::squares_to_texobjs(textures, tiles));
        textures.Preload();
        keep("GL_UNSIGNED_BYTE, p");  // calls with pixels
        note("OpenGL", version);
    }
}

TEST_F(SceneTest, OnePictureIsLoadedDrawnAndFreedInOrder) {
    gl.muted = {"glGetIntegerv", "glGetError"};
    ViewScene scene;
    scene.Init("");
    note("initialised");
    ASSERT_TRUE(add(scene, test_bmp(3, 2)));
    scene.Move({5, 0, 0}, 0);
    note("added and moved");
    for (int twice = 0; twice < 2; ++twice) {
        scene.make_graph("");
        note("made");
    }
    scene.Display();
    note("drawn");
    for (int twice = 0; twice < 2; ++twice) {
        scene.free_graph();
        note("freed");
    }
    scene.make_graph("");
    scene.Display();
    note("made and drawn again");
}

TEST_F(SceneTest, APictureWithoutTextureMemoryLeavesTheScene) {
    ViewScene scene;
    std::string const path = write_file(dir.file("a.bmp"), test_bmp(700, 3));  // three tiles
    auto const count = [this](char const* call) {
        return std::count_if(gl.lines.begin(), gl.lines.end(),
                             [call](std::string const& line) { return line.starts_with(call); });
    };
    // How many checks for errors go well from the first upload on.
    for (std::size_t const checks : {1U, 3U, 6U, 7U, 8U, 99U}) {
        ASSERT_TRUE(scene.addImage(path.c_str(), ""));
        gl.lines.clear();
        gl.errors.assign(checks, GL_NO_ERROR);
        gl.errors.push_back(GL_OUT_OF_MEMORY);
        bool const made = scene.make_graph("");
        gl.errors.clear();
        std::string const told = path + ": not enough texture memory.\n";
        EXPECT_EQ(console.err().ends_with(told), !made) << checks;
        scene.Display();
        auto const uploads = count("glTexSubImage2D"), lists = count("glNewList(");
        auto const drawn = count("glCallList"), deleted = count("glDeleteLists");
        gl.lines.clear();
        note(checks, "checks, uploads", uploads, "textures", gl.textures, "lists", lists - deleted,
             "drawn", drawn);
        EXPECT_EQ(scene.delImage(), made) << checks;
    }
    gl.lines.clear();
}

TEST_F(SceneTest, EachStepChecksForErrorsUnderItsLabel) {
    zanolib::g_option.frametype = 0;
    gl.errors.assign(100, GL_INVALID_OPERATION);
    ViewScene scene;
    scene.Init("");
    ASSERT_TRUE(add(scene, test_bmp(1, 1)));
    scene.make_graph("");
    scene.Display();
    gl.take();
}

}  // namespace
