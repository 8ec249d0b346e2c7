// SPDX-License-Identifier: MIT
// The application with stand-ins for the windowing library and for OpenGL: what each event does.
#include "app/viewwindow.h"

#include <gtest/gtest.h>

#include <memory>

#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"
#include "tests/support/glfw/fakeglfw.h"
#include "window/glfwymgr4.h"

namespace {

using zanoview2::ViewWindow;

/// Each test is a session of steps. At its end, what they printed, what they asked of the windowing
/// library and the views that they led to are compared with the file of the test's name.
class ViewWindowTest : public testing::Test {
  protected:
    ViewWindowTest() {
        zanolib::g_option = zanolib::option_t{};
        setenv("HOME", m_folder.path().c_str(), 1);
        for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
            write_file(m_folder.file(name), test_bmp(1200, 900));
        }
        write_file(m_folder.file("bad.bmp"), "BM");
        write_file(m_folder.file(".test_viewer"), "-h+\n-maxsize 700x500\n-maxmargin 1x1\n");
        std::string words[] = {"/x/test_viewer.exe.EXE", "-maxmargin", "2x2", "nothing.bmp"};
        char* argv[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data()};
        int argc = 4;
        m_window = std::make_unique<ViewWindow>(&argc, argv);
        wenk::glfwyMGR4::getSingleton()->addWindow(m_window.get(), "test");
        m_recorder = std::make_unique<gl_recorder_t>();
        note("start");
    }
    ~ViewWindowTest() override {
        m_recorder.reset();
        m_glfw.script.clear();
        wenk::glfwyMGR4::getSingleton()->MainLoop();
    }
    void TearDown() override {
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        EXPECT_TRUE(matches_file(m_text, std::string(SESSIONS) + test->name() + ".txt"));
    }

    /// Ends a step.
    void note(std::string const& step) {
        m_text += "# " + step + "\n" + m_console.out() + m_console.err();
        std::erase(m_glfw.calls, "glfwMakeContextCurrent(w1)");
        for (std::string const& call : m_recorder->lines) {
            for (char const* told : {"glNewList", "glDeleteLists", "glClear(", "glViewport"}) {
                m_text += call.starts_with(told) ? call + "\n" : "";
            }
        }
        m_recorder->take();
        m_text += m_glfw.take_calls() + view_text(m_window->getMatrix()) + "\n";
        for (std::size_t at = 0; (at = m_text.find(m_folder.path(), at)) != std::string::npos;) {
            m_text.erase(at, m_folder.path().size());
        }
    }
    void drop(std::vector<std::string> paths) {
        std::vector<char const*> dropped;
        for (std::string& path : paths) {
            path = m_folder.file(path);
            dropped.push_back(path.c_str());
        }
        m_glfw.fire_drop(dropped);
        note("drop of " + std::to_string(dropped.size()));
    }
    void press(std::initializer_list<int> keys, int mods = 0) {
        m_glfw.window().keys_down =
            mods == GLFW_MOD_SHIFT ? std::set<int>{m_shift} : std::set<int>{};
        m_shift = GLFW_KEY_RIGHT_SHIFT;  // the left one first
        for (int const key : keys) {
            m_glfw.fire_key(key, GLFW_PRESS, mods);
            m_glfw.fire_key(key, GLFW_RELEASE, mods);
            note("key " + std::to_string(key) + (mods == GLFW_MOD_SHIFT ? " with shift" : ""));
        }
    }
    void resize(int width, int height) {
        m_glfw.fire_size(width, height);
        note("size " + std::to_string(width) + "x" + std::to_string(height));
    }
    void drag(std::initializer_list<int> buttons, double x, double y) {
        for (int const button : buttons) {
            m_glfw.fire(&GLFWwindow::button, button, GLFW_PRESS, 0);
        }
        m_glfw.fire_cursor(x, y);
        for (int const button : buttons) {
            m_glfw.fire(&GLFWwindow::button, button, GLFW_RELEASE, 0);
        }
        note("drag with " + std::to_string(buttons.size()));
    }
    void scroll(double x, double y) {
        m_glfw.fire(&GLFWwindow::scroll, x, y);
        note("scroll");
    }

    temp_dir_t m_folder;
    capture_t m_console;
    fake_glfw_t m_glfw;
    std::unique_ptr<ViewWindow> m_window;
    std::unique_ptr<gl_recorder_t> m_recorder;
    std::string m_text;
    int m_shift = GLFW_KEY_LEFT_SHIFT;
};

TEST_F(ViewWindowTest, FitsTheFirstPictureAndFollowsTheWindowsHeight) {
    EXPECT_EQ(zanolib::g_option.maxsize.x, 700) << "from the user's default file";
    EXPECT_EQ(zanolib::g_option.maxmargin.x, 2) << "from the command line";
    drop({"a.bmp", "b.bmp"});
    resize(800, 600);
    resize(1000, 600);
    resize(1000, 300);
    resize(0, 0);
    resize(1000, 600);
}

TEST_F(ViewWindowTest, ServesEveryViewKey) {
    drop({"a.bmp"});
    press({GLFW_KEY_0, GLFW_KEY_2, GLFW_KEY_9, GLFW_KEY_0, GLFW_KEY_PAGE_UP, GLFW_KEY_KP_3});
    // The camera moves, so that the picture goes the other way.
    press({GLFW_KEY_RIGHT, GLFW_KEY_KP_8, GLFW_KEY_LEFT, GLFW_KEY_DOWN});
    press({GLFW_KEY_SLASH, GLFW_KEY_KP_DIVIDE, GLFW_KEY_KP_MULTIPLY, GLFW_KEY_BACKSLASH});
    press({GLFW_KEY_KP_DIVIDE, GLFW_KEY_MINUS, GLFW_KEY_G, GLFW_KEY_EQUAL, GLFW_KEY_KP_5,
           GLFW_KEY_DELETE, GLFW_KEY_UNKNOWN, GLFW_KEY_ENTER});
    zanolib::g_option.cursor_movement = 0;
    press({GLFW_KEY_RIGHT});
}

TEST_F(ViewWindowTest, DragsTogetherInFramebufferPixels) {
    drop({"a.bmp"});
    m_glfw.window().pixel_ratio = 2;
    resize(800, 600);
    press({GLFW_KEY_ENTER, GLFW_KEY_0});
    drag({}, 10, 10);
    drag({GLFW_MOUSE_BUTTON_LEFT}, 15, 13);
    drag({GLFW_MOUSE_BUTTON_MIDDLE}, 15, -37);
    drag({GLFW_MOUSE_BUTTON_RIGHT, GLFW_MOUSE_BUTTON_LEFT}, 195, -37);  // moves before it turns
    drag({5}, 0, 0);
    scroll(0, 1);
    scroll(0, -3);
    scroll(1, 0);
}

TEST_F(ViewWindowTest, PagesTitlesAndComesBack) {
    drop({"a.bmp", "bad.bmp", "b.bmp", "c.bmp"});
    press({GLFW_KEY_SPACE}, GLFW_MOD_SHIFT);
    press({GLFW_KEY_SPACE, GLFW_KEY_SPACE, GLFW_KEY_SPACE, GLFW_KEY_BACKSPACE});
    press({GLFW_KEY_BACKSPACE}, GLFW_MOD_SHIFT);
    press({GLFW_KEY_BACKSPACE, GLFW_KEY_END, GLFW_KEY_HOME});
    for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
        std::filesystem::remove(m_folder.file(name));
    }
    // Nothing loads any more: the old place stays, and the window lives on.
    press({GLFW_KEY_SPACE, GLFW_KEY_END});
    drop({"gone.bmp", "x.gif"});
    press({GLFW_KEY_HOME});
}

TEST_F(ViewWindowTest, PassesOverPicturesWithoutTextureMemory) {
    gl_flag_t const modern(is_GL_VERSION_3_0_supported, 1);
    zanolib::g_option.verbose = true;
    m_recorder->most_textures = 20;  // as many as one of the others has tiles
    write_file(m_folder.file("big.bmp"), test_bmp(1201, 1100));
    drop({"a.bmp", "big.bmp", "c.bmp"});
    press({GLFW_KEY_SPACE, GLFW_KEY_BACKSPACE});
    m_recorder->most_textures = 3;
    press({GLFW_KEY_F5, GLFW_KEY_HOME});
    m_recorder->most_textures = 20;
    press({GLFW_KEY_HOME});
}

TEST_F(ViewWindowTest, PrintsWhyPicturesAreSkipped) {
    std::filesystem::create_directories(m_folder.file("folder.png/b.jpg"));
    write_file(m_folder.file("folder.png/a.tga"), "");
    write_file(m_folder.file("row.bmp"), bmp(7, 1, 8, 0, "1234"));
    drop({"a.bmp", "bad.bmp", "gone.tga", "folder.png", "row.bmp"});
    zanolib::g_option.verbose = true;
    press({GLFW_KEY_SPACE});  // tries each of them twice
    drop({"bad.bmp", "x.gif"});
    drop({"bad.bmp"});
}

TEST_F(ViewWindowTest, StoresViewsAndBringsThemBack) {
    drop({"a.bmp", "b.bmp"});
    press({GLFW_KEY_0, GLFW_KEY_RIGHT, GLFW_KEY_KP_0});
    std::string const path = m_folder.file("a.zvw");
    note("stored:\n" + read_file(path));
    press({GLFW_KEY_SPACE});
    resize(800, 300);
    press({GLFW_KEY_BACKSPACE});
    // What can't be read leaves the values as they were: no size, so that the view stays.
    for (std::string const& text : {std::string(), std::string("dir2l(800"), std::string("words"),
                                    std::string("\0\xff(\x80(", 5), std::string(5000, '(')}) {
        write_file(path, text);
        press({GLFW_KEY_HOME});
    }
    press({GLFW_KEY_D});
    EXPECT_FALSE(std::filesystem::exists(path));
    press({GLFW_KEY_D});
    zanolib::g_option.resetview = false;
    press({GLFW_KEY_HOME});
}

TEST_F(ViewWindowTest, TheWindowFollowsThePicture) {
    zanolib::g_option.resizetype = 2;
    zanolib::g_option.sizelimit = 0;
    zanolib::g_option.verbose = true;
    drop({"a.bmp"});
    resize(100, 100);
    zanolib::g_option.resize_magnify = false;  // and it shrinks by no means
    drop({"a.bmp"});
    zanolib::g_option.resize_magnify = true;
    zanolib::g_option.window_ratio_of_image = 20;
    drop({"a.bmp"});  // 24000 by 18000 pixels
}

TEST_F(ViewWindowTest, ComesBackByEveryPolicy) {
    write_turned_jpeg(m_folder.file("turned.jpg"), 600, 400);
    zanolib::g_option.verbose = true;
    zanolib::g_option.debug = true;
    for (unsigned int const policy : {0u, 1u, 2u}) {
        zanolib::g_option.resizetype = policy;
        zanolib::g_option.image_ratio_of_image = 2;
        drop({"turned.jpg"});
        press({GLFW_KEY_2, GLFW_KEY_UP, GLFW_KEY_KP_0});
        resize(640, 480);
        press({GLFW_KEY_HOME});
        zanolib::g_option.reproduce = false;
        press({GLFW_KEY_HOME, GLFW_KEY_F5});
        zanolib::g_option.reproduce = true;
        std::filesystem::remove(m_folder.file("turned.zvw"));
    }
}

TEST_F(ViewWindowTest, CoversTheWorkAreaAndComesBack) {
    drop({"a.bmp"});
    press({GLFW_KEY_F});
    EXPECT_EQ(zanolib::g_option.wintype, 2u);
    press({GLFW_KEY_F, GLFW_KEY_F5});
    press({GLFW_KEY_R, GLFW_KEY_W}, GLFW_MOD_SHIFT);
    EXPECT_NE(read_file(m_folder.file(".test_viewer")).find("\n-wintype 0\n-winsize 800x600\n"),
              std::string::npos);
}

}  // namespace
