// SPDX-License-Identifier: MIT
// The application with stand-ins for the windowing library and for OpenGL: what each event does.
#include "app/viewwindow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "app/zvwfile.h"
#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/gl/glrecorder.h"
#include "tests/support/glfw/fakeglfw.h"
#include "window/glfwymgr4.h"

namespace {

using zanoview2::ViewWindow;

class ViewWindowTest : public ::testing::Test {
  protected:
    ViewWindowTest() {
        zanolib::g_option = zanolib::option_t{};
        setenv("HOME", m_folder.path().c_str(), 1);
        for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
            write_file(m_folder.file(name), test_bmp(1200, 900));
        }
        write_file(m_folder.file("bad.bmp"), "BM");
        write_file(m_folder.file(".test_viewer"), "-h+\n-maxsize 700x500\n-maxmargin 1x1\n");
    }
    ~ViewWindowTest() override {
        m_recorder.reset();
        m_glfw.script.clear();
        wenk::glfwyMGR4::getSingleton()->MainLoop();
    }

    /// Brings the window up without pictures, then drops these on it.
    void open(std::vector<std::string> const& names = {}) {
        std::string words[] = {"/x/test_viewer.exe", "-maxmargin", "2x2", "nothing.bmp"};
        char* argv[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data()};
        int argc = 4;
        capture_t const quiet;
        m_window = std::make_unique<ViewWindow>(&argc, argv);
        wenk::glfwyMGR4::getSingleton()->addWindow(m_window.get(), "test");
        m_recorder = std::make_unique<gl_recorder_t>();
        m_recorder->integers[GL_MAX_TEXTURE_SIZE] = {16384};
        m_recorder->integers[GL_MAX_VIEWPORT_DIMS] = {16384, 16384};
        std::vector<std::string> paths;
        for (std::string const& name : names) {
            paths.push_back(m_folder.file(name));
        }
        std::vector<char const*> dropped;
        for (std::string const& path : paths) {
            dropped.push_back(path.c_str());
        }
        m_glfw.fire_drop(dropped);
        m_glfw.calls.clear();
    }

    /// The turn in degrees, the scale and the move of the present view.
    void expect_view(float turn, float scale, float x, float y) {
        libgr::matrix3w_t const& m = m_window->getMatrix();
        EXPECT_NEAR(std::atan2(m[0][1], m[0][0]) * 57.29578f, turn, 1e-3f);
        EXPECT_NEAR(std::hypot(m[0][0], m[0][1]), scale, 1e-4f);
        EXPECT_NEAR(m[3][0], x, 1e-2f);
        EXPECT_NEAR(m[3][1], y, 1e-2f);
    }

    temp_dir_t m_folder;
    fake_glfw_t m_glfw;
    std::unique_ptr<ViewWindow> m_window;
    std::unique_ptr<gl_recorder_t> m_recorder;
};

TEST_F(ViewWindowTest, FitsTheFirstPictureAndFollowsTheWindowsHeight) {
    open({"a.bmp", "b.bmp"});
    EXPECT_EQ(zanolib::g_option.maxsize.x, 700);  // from the user's default file
    EXPECT_EQ(zanolib::g_option.maxmargin.x, 2);  // from the command line
    EXPECT_EQ(m_glfw.window().title, m_folder.file("a.bmp") + " (1/2) - message not loaded.");
    float const fit = 0.875f * 800.0f / 1200.0f;
    expect_view(0, fit, 0, 0);
    m_glfw.fire_size(800, 600);
    expect_view(0, fit, 0, 0);
    m_glfw.fire_size(1000, 600);
    expect_view(0, fit, 0, 0);
    m_glfw.fire_size(1000, 300);
    expect_view(0, fit / 2, 0, 0);
    m_glfw.fire_size(0, 0);
    m_glfw.fire_size(1000, 600);
    expect_view(0, fit / 2, 0, 0);
}

TEST_F(ViewWindowTest, ServesEveryViewKey) {
    struct row_t {
        int key;
        int mods;
        float turn, scale, x, y;
        bool draws;
    };
    row_t const rows[] = {
        {GLFW_KEY_0, 0, 0, 1, 0, 0, true},
        {GLFW_KEY_2, 0, 0, 0.5f, 0, 0, true},
        {GLFW_KEY_9, 0, 0, std::exp2(-4.5f), 0, 0, true},
        {GLFW_KEY_0, 0, 0, 1, 0, 0, true},
        {GLFW_KEY_PAGE_UP, 0, 0, std::exp2(0.25f), 0, 0, true},
        {GLFW_KEY_KP_3, 0, 0, 1, 0, 0, true},
        {GLFW_KEY_RIGHT, 0, 0, 1, -10, 0, true},  // the camera moves, so the picture goes left
        {GLFW_KEY_KP_8, 0, 0, 1, -10, -10, true},
        {GLFW_KEY_LEFT, 0, 0, 1, 0, -10, true},
        {GLFW_KEY_DOWN, 0, 0, 1, 0, 0, true},
        {GLFW_KEY_SLASH, 0, 5, 1, 0, 0, true},
        {GLFW_KEY_KP_DIVIDE, 0, 10, 1, 0, 0, true},
        {GLFW_KEY_KP_MULTIPLY, 0, 5, 1, 0, 0, true},
        {GLFW_KEY_BACKSLASH, 0, 0, 1, 0, 0, true},
        {GLFW_KEY_KP_DIVIDE, 0, 5, 1, 0, 0, true},
        {GLFW_KEY_MINUS, 0, 2.5f, 1, 0, 0, true},
        {GLFW_KEY_EQUAL, 0, 2.5f, 1, 0, 0, false},
        {GLFW_KEY_KP_5, 0, 2.5f, 1, 0, 0, false},
        {GLFW_KEY_DELETE, 0, 2.5f, 1, 0, 0, false},
        {GLFW_KEY_UNKNOWN, 0, 2.5f, 1, 0, 0, false},
        {GLFW_KEY_G, 0, 2.5f, 1, 0, 0, true},
        {GLFW_KEY_ENTER, 0, 0, 0.875f * 800 / 1200, 0, 0, true},
    };
    open({"a.bmp"});
    for (row_t const& row : rows) {
        SCOPED_TRACE(row.key);
        m_glfw.empty_event = false;
        m_glfw.fire_key(row.key, GLFW_PRESS, row.mods);
        EXPECT_EQ(m_glfw.empty_event, row.draws);
        expect_view(row.turn, row.scale, row.x, row.y);
        m_glfw.fire_key(row.key, GLFW_RELEASE, row.mods);
    }
    zanolib::g_option.cursor_movement = 0;
    m_glfw.fire_key(GLFW_KEY_RIGHT, GLFW_REPEAT);
    expect_view(0, 0.875f * 800 / 1200, 10, 0);
}

TEST_F(ViewWindowTest, DragsTogetherInFramebufferPixels) {
    open({"a.bmp"});
    m_glfw.fire_key(GLFW_KEY_0, GLFW_PRESS);
    m_glfw.window().pixel_ratio = 2;
    m_glfw.fire_size(800, 600);
    m_glfw.fire_key(GLFW_KEY_ENTER, GLFW_PRESS);
    m_glfw.fire_key(GLFW_KEY_0, GLFW_PRESS);
    m_glfw.take_calls();
    m_glfw.empty_event = false;
    m_glfw.fire_cursor(10, 10);
    EXPECT_FALSE(m_glfw.empty_event);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_LEFT, GLFW_PRESS, 0);
    m_glfw.fire_cursor(15, 13);
    expect_view(0, 1, 10, -6);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_LEFT, GLFW_RELEASE, 0);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_MIDDLE, GLFW_PRESS, 0);
    m_glfw.fire_cursor(15, -37);
    expect_view(0, 2, 20, -12);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_MIDDLE, GLFW_RELEASE, 0);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_RIGHT, GLFW_PRESS, 0);
    m_glfw.fire(&GLFWwindow::button, GLFW_MOUSE_BUTTON_LEFT, GLFW_PRESS, 0);
    // Moved to 40, 0 first, then the whole turned by a quarter.
    m_glfw.fire_cursor(195, -37);
    expect_view(90, 2, 12, 380);
    m_glfw.fire(&GLFWwindow::scroll, 0.0, 1.0);
    expect_view(90, 2 * std::exp2(-0.25f), 12 * std::exp2(-0.25f), 380 * std::exp2(-0.25f));
    m_glfw.fire(&GLFWwindow::scroll, 0.0, -3.0);
    m_glfw.empty_event = false;
    m_glfw.fire(&GLFWwindow::scroll, 1.0, 0.0);
    m_glfw.fire(&GLFWwindow::button, 5, GLFW_PRESS, 0);  // another wheel
    EXPECT_FALSE(m_glfw.empty_event);
    expect_view(90, 2, 12, 380);
}

TEST_F(ViewWindowTest, PagesTitlesAndComesBack) {
    open({"a.bmp", "bad.bmp", "b.bmp", "c.bmp"});
    struct row_t {
        int key;
        bool shift;
        char const* place;
        bool draws;  ///< at once, with a swap of its own
    };
    row_t const rows[] = {
        {GLFW_KEY_SPACE, false, "b.bmp (3/4)", true},
        {GLFW_KEY_SPACE, true, "b.bmp (3/4)", false},
        {GLFW_KEY_SPACE, false, "c.bmp (4/4)", true},
        {GLFW_KEY_SPACE, false, "c.bmp (4/4)", false},
        {GLFW_KEY_BACKSPACE, false, "b.bmp (3/4)", true},
        {GLFW_KEY_BACKSPACE, true, "a.bmp (1/4)", true},
        {GLFW_KEY_BACKSPACE, false, "a.bmp (1/4)", false},
        {GLFW_KEY_END, false, "c.bmp (4/4)", false},
        {GLFW_KEY_HOME, false, "a.bmp (1/4)", false},
    };
    for (row_t const& row : rows) {
        SCOPED_TRACE(row.place);
        m_glfw.window().keys_down =
            row.shift ? std::set<int>{GLFW_KEY_RIGHT_SHIFT} : std::set<int>{};
        m_glfw.take_calls();
        m_glfw.fire_key(row.key, GLFW_PRESS);
        EXPECT_EQ(m_glfw.window().title, m_folder.file(row.place) + " - message not loaded.");
        EXPECT_EQ(m_glfw.take_calls("glfwSwapBuffers") != "", row.draws);
        expect_view(0, 0.875f * 800 / 1200, 0, 0);
    }
    // Nothing loads any more: the old place stays, and the window lives on.
    for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
        std::filesystem::remove(m_folder.file(name));
    }
    capture_t const quiet;
    m_glfw.fire_key(GLFW_KEY_SPACE, GLFW_PRESS);
    m_glfw.fire_key(GLFW_KEY_END, GLFW_PRESS);
    EXPECT_EQ(m_glfw.window().title, m_folder.file("a.bmp (1/4)") + " - message not loaded.");
    m_glfw.fire_drop({"gone.bmp", "x.gif"});
    EXPECT_EQ(m_window->getCurrentTitleName(), "");
    m_glfw.fire_key(GLFW_KEY_HOME, GLFW_PRESS);
    EXPECT_EQ(m_glfw.window().title, "message not loaded. - message not loaded.");
}

TEST_F(ViewWindowTest, StoresViewsAndBringsThemBack) {
    open({"a.bmp", "b.bmp"});
    std::string const path = m_folder.file("a.zvw");
    for (int key : {GLFW_KEY_0, GLFW_KEY_RIGHT}) {
        m_glfw.fire_key(key, GLFW_PRESS);
    }
    m_glfw.fire_key(GLFW_KEY_KP_0, GLFW_PRESS);
    EXPECT_EQ(read_file(path),
              "dir2l(800, 600)\n"
              "mtx3w(\t1.000000, 0.000000, 0.000000, 0.000000,\n"
              "\t0.000000, 1.000000, 0.000000, 0.000000,\n"
              "\t0.000000, 0.000000, 1.000000, 0.000000,\n"
              "\t-10.000000, 0.000000, 0.000000, 1.000000)\n");
    m_glfw.fire_key(GLFW_KEY_SPACE, GLFW_PRESS);
    m_glfw.fire_size(800, 300);
    m_glfw.fire_key(GLFW_KEY_BACKSPACE, GLFW_PRESS);
    expect_view(0, 0.5f, -5, 0);

    // What can't be read leaves the values as they were: no size, so that the view stays.
    for (std::string const& text : {std::string(), std::string("dir2l(800"), std::string("words"),
                                    std::string("\0\xff(\x80(", 5), std::string(5000, '(')}) {
        write_file(path, text);
        m_glfw.fire_key(GLFW_KEY_HOME, GLFW_PRESS);
        libgr::matrix3w_t const& m = m_window->getMatrix();
        EXPECT_TRUE(std::isfinite(m[0][0]) && m[0][0] > 0) << text;
    }
    m_glfw.fire_key(GLFW_KEY_D, GLFW_PRESS);
    EXPECT_FALSE(std::filesystem::exists(path));
    m_glfw.fire_key(GLFW_KEY_D, GLFW_PRESS);

    zanolib::g_option.resetview = false;
    m_glfw.fire_key(GLFW_KEY_HOME, GLFW_PRESS);
    expect_view(0, 1, 0, 0);
}

TEST_F(ViewWindowTest, TheWindowFollowsThePicture) {
    zanolib::g_option.resizetype = 2;
    zanolib::g_option.sizelimit = 0;
    open();
    capture_t captured;
    zanolib::g_option.verbose = true;
    std::string const path = m_folder.file("a.bmp");
    m_glfw.fire_drop({path.c_str()});
    EXPECT_EQ(m_glfw.take_calls("glfwSetWindowSize"), "glfwSetWindowSize(w1, 1440, 1080)\n");
    EXPECT_NE(
        captured.out().find("imagesize: dir2l(1200, 900)\nset window size to: dir2l(1440, 1080)\n"),
        std::string::npos)
        << captured.out();
    expect_view(0, 1, 0, 0);
    m_glfw.fire_size(100, 100);
    expect_view(0, 1, 0, 0);
}

TEST_F(ViewWindowTest, CoversTheWorkAreaAndComesBack) {
    open({"a.bmp"});
    m_glfw.fire_key(GLFW_KEY_F, GLFW_PRESS);
    EXPECT_EQ(m_glfw.take_calls("glfwSetWindow"),
              "glfwSetWindowPos(w1, 0, 0)\nglfwSetWindowSize(w1, 1920, 1056)\n");
    EXPECT_EQ(zanolib::g_option.wintype, 2u);
    m_glfw.fire_key(GLFW_KEY_F, GLFW_PRESS);
    EXPECT_EQ(m_glfw.take_calls("glfwSetWindow"),
              "glfwSetWindowSize(w1, 800, 600)\nglfwSetWindowPos(w1, 100, 80)\n");
    EXPECT_EQ(zanolib::g_option.wintype, 0u);
    m_glfw.fire_key(GLFW_KEY_R, GLFW_PRESS, GLFW_MOD_SHIFT);
    m_glfw.fire_key(GLFW_KEY_F5, GLFW_PRESS);
    std::string const calls = m_glfw.take_calls();
    std::size_t const down = calls.find("glfwIconifyWindow(w1)\nglfwRestoreWindow(w1)\n");
    EXPECT_NE(calls.find("glfwIconifyWindow(w1)\nglfwRestoreWindow(w1)\n", down + 1),
              std::string::npos)
        << calls;
    m_glfw.fire_key(GLFW_KEY_W, GLFW_PRESS, GLFW_MOD_SHIFT);
    EXPECT_NE(read_file(m_folder.file(".test_viewer")).find("\n-wintype 0\n-winsize 800x600\n"),
              std::string::npos);
}

}  // namespace
