// SPDX-License-Identifier: MIT
// Tests of the scene with recorded OpenGL calls: views, the list of pictures, and drawing.
#include "scene/viewscene.h"

#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <set>
#include <string>

#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

namespace {

using zanolib::g_option;
using zanolib::ViewScene;

class SceneTest : public testing::Test {
  protected:
    SceneTest() {
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

TEST_F(SceneTest, ViewOperationsAreAppliedInScreenAxes) {
    std::pair<void (*)(ViewScene&), char const*> const steps[] = {
        {[](auto& scene) { scene.Move(libgr::IdirX * 10, 0); }, "turned -90, scaled 1, at 10, 0"},
        {[](auto& scene) { scene.Rotate(120, 0); }, "turned 30, scaled 1, at -5, 8.66"},
        {[](auto& scene) { scene.Zoom(1, 0); }, "turned 30, scaled 2, at -10, 17.321"},
        {[](auto& scene) { scene.Scale(0.5, 0); }, "turned 30, scaled 1, at -5, 8.66"},
        {[](auto& scene) { scene.Zoom(2, 0); }, "turned 30, scaled 4, at -20, 34.641"},
        {[](auto& scene) { scene.clrRotate(); }, "turned 15, scaled 4, at -10.353, 38.637"},
        {[](auto& scene) { scene.clrZoom(); }, "turned 15, scaled 1, at -2.588, 9.659"},
        {[](auto& scene) { scene.clrMove(); }, "turned 15, scaled 1, at 0, 0"},
        {[](auto& scene) { scene.Matrix(libgr::getTranslateMatrix(libgr::position3(2, 3, 0))); },
         "turned 15, scaled 1, at 2, 3"},
        {[](auto& scene) { scene.Origin(); }, "turned -90, scaled 1, at 0, 0"}};
    ViewScene scene, empty;
    EXPECT_EQ(empty.rightrotatecount(), 0U);
    ASSERT_TRUE(scene.addImage(write_turned_jpeg(dir.file("b.jpg"), 16, 8).c_str(), ""));
    EXPECT_EQ(scene.getCurrentImageSize(), libgr::direction2l(16, 8)) << "as in the file";
    for (auto const& [apply, view] : steps) {
        apply(scene);
        EXPECT_EQ(view_text(scene.getMatrix()), view);
        apply(empty);
        EXPECT_EQ(empty.getMatrix(), libgr::Imtx) << "without a picture, before " << view;
    }
}

TEST_F(SceneTest, ReshapeAlignsThePixelsOfPictureAndWindow) {
    struct {
        bool has_picture;
        unsigned int width, height;
        std::string viewport, projection;
    } const rows[] = {{true, 800, 601, "800, 601", "-400, 400, -300.5, 300.5, 0, 10000"},
                      {true, 801, 600, "801, 600", "-401, 400, -300.5, 299.5, 0, 10000"},
                      {false, 801, 601, "801, 601", "-400.5, 400.5, -300.5, 300.5, 0, 10000"},
                      {true, 5001, 4001, "1600, 1200", "-800, 800, -600.5, 599.5, 0, 10000"},
                      {true, 0, 600, "0, 600", ""},
                      {true, 600, 0, "600, 0", ""}};
    for (auto const& row : rows) {
        ViewScene scene;
        ASSERT_TRUE(!row.has_picture || add(scene, test_bmp(8, 9)));
        scene.Reshape(row.width, row.height);
        EXPECT_EQ(gl.take(),
                  "glViewport(0, 0, " + row.viewport +
                      ")\nglMatrixMode(GL_PROJECTION)\nglLoadIdentity()\n" +
                      (row.projection.empty() ? "" : "glOrtho(" + row.projection + ")\n"));
    }
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
    scene.Reshape(0, 8);
    errno = 0;
    EXPECT_FALSE(scene.saveImage("a.bmp"));
    EXPECT_EQ(errno, ENODATA) << "of the empty window";
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
    std::string const pixels("\0\1\0\0\1\0\0\0", 8);
    std::string const palette("\x30\x20\x10\0\x33\x22\x11\0", 8);
    struct {
        char const* name;
        std::string bytes, upload;  ///< the upload is empty if the picture is rejected
    } const rows[] = {{"x.Bmp", test_bmp(3, 2), "3, 2, GL_BGR"},
                      {"palette.bmp", bmp(2, 2, 8, 8, palette + pixels), "2, 2, GL_RGB"},
                      {"gray.bmp", bmp(2, 2, 8, 0, pixels), "2, 2, GL_LUMINANCE"},
                      {"cut.bmp", bmp(2, 2, 24, 0, pixels), "2, 2, GL_BGR"},
                      {"x.tga", test_bmp(3, 2), ""},
                      {"bmp", test_bmp(3, 2), ""},
                      {"no-width.bmp", bmp(0, 3, 24, 0, pixels), ""},
                      {"no-height.bmp", bmp(3, 0, 24, 0, pixels), ""}};
    for (auto const& row : rows) {
        ViewScene scene;
        EXPECT_EQ(add(scene, row.bytes, row.name), !row.upload.empty()) << row.name;
        scene.make_graph("");
        EXPECT_EQ(gl.textures, row.upload.empty() ? 0 : 1) << row.name;
        EXPECT_NE((take("SubImage") + row.name).find(row.upload), std::string::npos) << row.name;
    }
    EXPECT_EQ(console.err(), "");
}

TEST_F(SceneTest, APictureWithoutMemoryForItsConversionIsRejected) {
    // 16 MB of indices, which become 48 MB of colours.
    std::string const picture = bmp(4096, 4096, 8, 8, std::string((1 << 20) + 8, '\0'));
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &limit), 0);
    rlim_t pages = 0;
    ASSERT_TRUE(std::ifstream("/proc/self/statm") >> pages);
    rlim_t const former = std::exchange(limit.rlim_cur, pages * 4096 + (40 << 20));
    ViewScene scene;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &limit), 0);
    bool const added = add(scene, picture);
    limit.rlim_cur = former;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &limit), 0);
    EXPECT_FALSE(added);
    EXPECT_TRUE(add(scene, picture));
}

TEST_F(SceneTest, TilesAreAsLargeAsTexturesMayBe) {
    for (auto const& [maxsize, textures] : {std::pair{0, 1500}, {255, 2}, {300, 2}}) {
        gl.integers[GL_MAX_TEXTURE_SIZE] = {maxsize};
        ViewScene scene;
        ASSERT_TRUE(add(scene, test_bmp(300, 5)));
        EXPECT_TRUE(scene.is_resident());
        EXPECT_TRUE(scene.make_graph(""));
        EXPECT_EQ(gl.textures, textures) << maxsize;
    }
}

TEST_F(SceneTest, MakesDrawsAndFreesAPicture) {
    // The screen tests check these calls.
    gl.muted.insert({"glVertex2f", "glTexCoord2f", "glPixelStorei", "glBegin", "glEnd", "glEndList",
                     "glMatrixMode", "glPushMatrix", "glPopMatrix"});
    g_option.frametype = 0;
    ViewScene scene;
    scene.Init("");
    ASSERT_TRUE(add(scene, test_bmp(3, 2)));
    scene.Move({5, 0, 0}, 0);
    gl.lines.emplace_back("-- made");
    EXPECT_TRUE(scene.make_graph(""));
    gl.lines.emplace_back("-- drawn");
    EXPECT_TRUE(scene.make_graph(""));
    scene.Display();
    gl.lines.emplace_back("-- freed");
    scene.free_graph();
    scene.free_graph();
    EXPECT_TRUE(matches_file(gl.take(), SCENE_CALLS));
    scene.Display();
    EXPECT_EQ(take("glCallList"), "") << "without OpenGL objects";
    EXPECT_TRUE(scene.make_graph(""));
    EXPECT_FALSE(scene.toggleSmooth());
    EXPECT_EQ(take("MAG_FILTER, GL_NEAREST"),
              "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST)\n");
    EXPECT_TRUE(scene.toggleSmooth());
}

TEST_F(SceneTest, ARedrawCallsOneListAndWaitsForNothing) {
    gl.muted.erase("glGetIntegerv");
    ViewScene scene;
    scene.Init("");
    ASSERT_TRUE(add(scene, test_bmp(700, 3)));  // three tiles
    ASSERT_TRUE(scene.make_graph(""));
    gl.lines.clear();
    scene.Zoom(1, 0);
    scene.Display();
    std::multiset<std::string> calls;
    for (std::string const& line : gl.lines) {
        calls.insert(line.substr(0, line.find(line.starts_with("glGet") ? ',' : '(')));
    }
    EXPECT_EQ(calls.count("glCallList"), 1U);
    calls.erase("glGetIntegerv(GL_MATRIX_MODE");  // a variable of the library, not of the driver
    for (std::string const& call : calls) {
        for (char const* slow : {"glGet", "glTex", "glGen", "glNewList", "glRead", "glFinish"}) {
            EXPECT_FALSE(call.starts_with(slow)) << call;
        }
    }
}

TEST_F(SceneTest, TexturesWithoutColumnsAreNotDrawn) {
    zanolib::multi_texture_object_t textures;
    textures.m_texobjs.resize(1);
    textures.draw_image({}, {});
    EXPECT_EQ(take("glBegin"), "");
}

TEST_F(SceneTest, APictureWithoutTextureMemoryIsRemoved) {
    ViewScene scene;
    std::string const path = write_file(dir.file("a.bmp"), test_bmp(700, 3));  // three tiles
    auto const count = [this](char const* call) {
        return std::ranges::count_if(
            gl.lines, [call](std::string const& line) { return line.starts_with(call); });
    };
    for (std::size_t const checks : {1U, 3U, 6U, 7U, 8U, 99U}) {  // without an error
        SCOPED_TRACE(checks);
        ASSERT_TRUE(scene.addImage(path.c_str(), ""));
        gl.lines.clear();
        gl.errors.assign(checks, GL_NO_ERROR);
        gl.errors.push_back(GL_OUT_OF_MEMORY);
        bool const is_made = scene.make_graph("");
        gl.errors.clear();
        EXPECT_EQ(is_made, checks > 8);
        EXPECT_EQ(console.err().ends_with(path + ": not enough texture memory.\n"), !is_made);
        EXPECT_EQ(count("glTexSubImage2D"), checks == 1 ? 1 : checks == 3 ? 2 : 3);
        EXPECT_EQ(gl.textures, is_made ? 3 : 0);
        EXPECT_EQ(count("glNewList(") - count("glDeleteLists"), is_made ? 1 : 0);
        EXPECT_EQ(scene.delImage(), is_made);
    }
}

TEST_F(SceneTest, EachStepPrintsItsErrorsAndItsTrace) {
    g_option.frametype = 0;
    g_option.debug = true;
    gl.errors.assign(100, GL_INVALID_OPERATION);
    ViewScene scene;
    scene.Init("");
    ASSERT_TRUE(add(scene, test_bmp(1, 1)));
    scene.make_graph("");
    scene.Display();
    std::string const printed = console.out() + console.err();
    EXPECT_EQ(std::ranges::count(printed, '\n'), 49) << printed;
}

}  // namespace
