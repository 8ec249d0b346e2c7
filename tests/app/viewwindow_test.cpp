// SPDX-License-Identifier: MIT
// Events of the viewer's window, without a screen: GLFW and OpenGL are replaced.
#include "app/viewwindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <memory>
#include <utility>

#include "app/zvwfile.h"
#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"
#include "tests/support/glfw/fakeglfw.h"
#include "window/glfwymgr4.h"

namespace {

using zanoview2::ViewWindow;

struct word_t {
    std::string text;
    std::string word;
};

/// Calls as the sessions show them. Without "(" at its end, `text` is followed by arguments to
/// show.
word_t const calls[] = {{"glDeleteLists(", "deletes list"},
                        {"glNewList(", "makes list"},
                        {"glClear(", "draws"},
                        {"glViewport(0, 0, ", "viewport "},
                        {"glfwSetWindowTitle(w1, ", "title "},
                        {"glfwSetWindowSize(w1, ", "window "},
                        {"glfwSetWindowPos(w1, ", "position "},
                        {"glfwIconifyWindow(", "iconifies"},
                        {"glfwRestoreWindow(", "restores"},
                        {"glfwSwapBuffers(", "swaps"},
                        {"glfwPostEmptyEvent(", "redisplay"}};

/// Returns "" for a call that the sessions don't show.
std::string words_for(std::string const& call) {
    for (word_t const& row : calls) {
        if (call.starts_with(row.text)) {
            std::size_t const begin = row.text.size();
            bool const has_arguments = !row.text.ends_with('(');
            return row.word + (has_arguments ? call.substr(begin, call.size() - begin - 1) : "");
        }
    }
    return "";
}

/// Returns GLFW's number of a key: a character, or a name in words.
int key_number(std::string const& name) {
    static std::map<std::string, int> const numbers{{"Space", GLFW_KEY_SPACE},
                                                    {"Backspace", GLFW_KEY_BACKSPACE},
                                                    {"Enter", GLFW_KEY_ENTER},
                                                    {"Home", GLFW_KEY_HOME},
                                                    {"End", GLFW_KEY_END},
                                                    {"Page Up", GLFW_KEY_PAGE_UP},
                                                    {"Left", GLFW_KEY_LEFT},
                                                    {"Right", GLFW_KEY_RIGHT},
                                                    {"Up", GLFW_KEY_UP},
                                                    {"Down", GLFW_KEY_DOWN},
                                                    {"Delete", GLFW_KEY_DELETE},
                                                    {"F5", GLFW_KEY_F5},
                                                    {"Keypad 0", GLFW_KEY_KP_0},
                                                    {"Keypad 3", GLFW_KEY_KP_3},
                                                    {"Keypad 5", GLFW_KEY_KP_5},
                                                    {"Keypad 8", GLFW_KEY_KP_8},
                                                    {"Keypad /", GLFW_KEY_KP_DIVIDE},
                                                    {"Keypad *", GLFW_KEY_KP_MULTIPLY},
                                                    {"unknown", GLFW_KEY_UNKNOWN}};
    return name.size() == 1 ? std::toupper(name[0]) : numbers.at(name);
}

/// Returns true for a line of the report on an OpenGL error, which tests/gl/ checks.
bool is_gl_report(std::string const& line) {
    return std::ranges::any_of(std::initializer_list<char const*>{"before-", "internalformat:",
                                                                  "m_border:", "format:", "type:"},
                               [&](char const* start) { return line.starts_with(start); });
}

/// A test is a session of steps. Its file in sessions/ has a line for each step: the different
/// calls in words, those to OpenGL first, and the view if it has changed. The lines that the viewer
/// printed follow after ">".
class ViewWindowTest : public testing::Test {
  protected:
    ViewWindowTest() {
        zanolib::g_option = zanolib::option_t{};
        setenv("HOME", m_folder.path().c_str(), 1);
        std::filesystem::current_path(m_folder.path());
        for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
            write_file(name, test_bmp(1200, 900));
        }
        write_file("bad.bmp", "BM");
        write_file("viewer.msg", "viewer\nno picture\n");
        write_file(".viewer", "-h+\n-maxsize 700x500\n-maxmargin 1x1\n");
        std::string words[] = {"/x/viewer.exe.EXE", "-maxmargin", "2x2", "none.bmp"};
        char* argv[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data()};
        int argc = 4;
        m_window = std::make_unique<ViewWindow>(&argc, argv);
        wenk::glfwyMGR4::getSingleton()->addWindow(m_window.get(), "test");
        m_recorder = std::make_unique<gl_recorder_t>();
        note("start");
        m_start = std::exchange(m_text, "");
    }
    ~ViewWindowTest() override {
        m_recorder.reset();
        m_glfw.script.clear();
        wenk::glfwyMGR4::getSingleton()->MainLoop();
        std::filesystem::current_path(m_before);
    }
    void TearDown() override {
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        EXPECT_TRUE(matches_file(m_text, std::string(SESSIONS) + test->name() + ".txt"));
    }

    /// Ends a step.
    void note(std::string const& step) {
        std::vector<std::string> parts;
        std::vector<std::string> made = m_recorder->lines;
        std::ranges::copy(m_glfw.calls, std::back_inserter(made));
        m_recorder->take();
        m_glfw.calls.clear();
        for (std::string const& call : made) {
            std::string const words = words_for(call);
            if (!words.empty() && std::ranges::find(parts, words) == parts.end()) {
                parts.push_back(words);
            }
        }
        std::string const view = view_text(m_window->getMatrix());
        if (std::exchange(m_view, view) != view) {
            parts.push_back(view);
        }
        std::string line = step + ":";
        for (std::string const& part : parts) {
            if (line.size() + part.size() > 116) {
                m_text += std::exchange(line, "   ") + "\n";
            }
            line += " " + part + (&part == &parts.back() ? "" : ";");
        }
        m_text += line + (parts.empty() ? " nothing\n" : "\n");
        std::istringstream printed(m_console.out() + m_console.err());
        while (std::getline(printed, line)) {
            m_text += line.empty() || is_gl_report(line) ? "" : "  > " + line + "\n";
        }
        for (std::size_t at = 0; (at = m_text.find(m_folder.path(), at)) != std::string::npos;) {
            m_text.erase(at, m_folder.path().size() + 1);
        }
    }
    void drop(std::vector<std::string> names) {
        std::string step = "drop";
        for (std::string& name : names) {
            step += " " + name;
            name = m_folder.file(name);
        }
        std::vector<char const*> paths;
        std::ranges::transform(names, std::back_inserter(paths), &std::string::c_str);
        m_glfw.fire_drop(paths);
        note(step);
    }
    /// Presses and releases keys, each with Shift if its name starts with "Shift+".
    void press(std::initializer_list<std::string> keys) {
        for (std::string const& key : keys) {
            bool const has_shift = key.starts_with("Shift+");
            int const number = key_number(has_shift ? key.substr(6) : key);
            int const mods = has_shift ? GLFW_MOD_SHIFT : 0;
            m_glfw.window().keys_down = has_shift ? std::set<int>{m_shift} : std::set<int>{};
            m_shift = has_shift ? GLFW_KEY_RIGHT_SHIFT : m_shift;  // the left one first
            m_glfw.fire_key(number, GLFW_PRESS, mods);
            m_glfw.fire_key(number, GLFW_RELEASE, mods);
            note(key);
        }
    }
    void resize(int width, int height) {
        m_glfw.fire_size(width, height);
        note("resize " + std::to_string(width) + "x" + std::to_string(height));
    }
    void drag(std::string const& name, std::initializer_list<int> buttons, double x, double y) {
        for (int const button : buttons) {
            m_glfw.fire(&GLFWwindow::button, button, GLFW_PRESS, 0);
        }
        m_glfw.fire_cursor(x, y);
        for (int const button : buttons) {
            m_glfw.fire(&GLFWwindow::button, button, GLFW_RELEASE, 0);
        }
        note("drag " + name);
    }
    void scroll(std::string const& name, double x, double y) {
        m_glfw.fire(&GLFWwindow::scroll, x, y);
        note("scroll " + name);
    }

    std::filesystem::path const m_before = std::filesystem::current_path();
    temp_dir_t m_folder;
    capture_t m_console;
    fake_glfw_t m_glfw;
    std::unique_ptr<ViewWindow> m_window;
    std::unique_ptr<gl_recorder_t> m_recorder;
    std::string m_start;
    std::string m_text;
    std::string m_view;
    int m_shift = GLFW_KEY_LEFT_SHIFT;
};

TEST_F(ViewWindowTest, FitsTheFirstPictureAndFollowsTheWindowsHeight) {
    EXPECT_EQ(m_start,
              "start: title viewer - no picture; window 800, 600; redisplay; "
              "turned 0, scaled 1, at 0, 0\n  > none.bmp: image file not found.\n");
    EXPECT_EQ(zanolib::g_option.maxsize.x, 700) << "from the user default file";
    EXPECT_EQ(zanolib::g_option.maxmargin.x, 2) << "from the command line";
    drop({"a.bmp", "b.bmp"});
    resize(800, 600);
    resize(1000, 600);
    resize(1000, 300);
    resize(0, 0);
    resize(1000, 600);
}

TEST_F(ViewWindowTest, HandlesEveryKeyThatChangesTheView) {
    drop({"a.bmp"});
    press({"0", "2", "9", "0", "Page Up", "Keypad 3", "Right", "Keypad 8", "Left", "Down"});
    press({"/", "Keypad /", "Keypad *", "\\", "Keypad /", "-", "G"});
    press({"=", "Keypad 5", "Delete", "unknown", "Enter"});
    zanolib::g_option.cursor_movement = 0;
    press({"Right"});
}

TEST_F(ViewWindowTest, DragsInFramebufferPixels) {
    drop({"a.bmp"});
    m_glfw.window().pixel_ratio = 2;
    resize(800, 600);
    press({"0"});
    drag("no button", {}, 10, 10);
    drag("left", {GLFW_MOUSE_BUTTON_LEFT}, 15, 13);
    drag("middle", {GLFW_MOUSE_BUTTON_MIDDLE}, 15, -37);
    drag("right and left", {GLFW_MOUSE_BUTTON_RIGHT, GLFW_MOUSE_BUTTON_LEFT}, 195, -37);
    drag("sixth", {5}, 0, 0);
    scroll("forward", 0, 1);
    scroll("backward", 0, -3);
    scroll("sideways", 1, 0);
}

TEST_F(ViewWindowTest, PagesAndKeepsTheOldPlaceIfNothingLoads) {
    std::vector<std::string> eleven(11, "a.bmp");
    eleven.back() = "c.bmp";
    drop(eleven);
    press({"Shift+Space", "Shift+Backspace"});
    drop({"a.bmp", "bad.bmp", "b.bmp", "c.bmp"});
    press({"Shift+Space", "Space", "Space", "Space", "Backspace", "Shift+Backspace"});
    press({"Shift+Backspace", "Backspace", "End", "Home"});
    for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
        std::filesystem::remove(name);
    }
    press({"Space", "End"});
    drop({"gone.bmp", "x.gif"});
    press({"Home", "0", "Keypad 0", "S"});
}

TEST_F(ViewWindowTest, SkipsPicturesWithoutTextureMemory) {
    gl_flag_t const modern(is_GL_VERSION_3_0_supported, 1);
    zanolib::g_option.verbose = true;
    m_recorder->most_textures = 20;  // as many as a.bmp has tiles
    write_file("big.bmp", test_bmp(1201, 1100));
    drop({"a.bmp", "big.bmp", "c.bmp"});
    press({"Space", "Backspace"});
    m_recorder->most_textures = 3;
    press({"F5", "Home"});
    m_recorder->most_textures = 20;
    press({"Home"});
}

TEST_F(ViewWindowTest, PrintsWhyPicturesAreSkipped) {
    std::filesystem::create_directories("folder.png/b.jpg");
    write_file("folder.png/a.tga", "");
    write_file("row.bmp", bmp(7, 1, 8, 0, "1234"));
    drop({"a.bmp", "bad.bmp", "gone.tga", "folder.png", "row.bmp"});
    zanolib::g_option.verbose = true;
    press({"Space"});  // tries each of them twice
    drop({"bad.bmp", "x.gif"});
    drop({"bad.bmp"});
}

TEST_F(ViewWindowTest, StoresViewsAndRestoresThem) {
    drop({"a.bmp", "b.bmp"});
    press({"0", "Right", "Keypad 0"});
    EXPECT_EQ(read_file("a.zvw"),
              "dir2l(800, 600)\nmtx3w(\t1.000000, 0.000000, 0.000000, 0.000000,\n"
              "\t0.000000, 1.000000, 0.000000, 0.000000,\n"
              "\t0.000000, 0.000000, 1.000000, 0.000000,\n"
              "\t-10.000000, 0.000000, 0.000000, 1.000000)\n");
    press({"Space"});
    resize(800, 300);
    press({"Backspace"});
    // Values that can't be read are not changed. The size is then 0, 0, and the view isn't
    // restored.
    for (std::string const& text : {std::string(), std::string("dir2l(800"), std::string("words"),
                                    std::string("\0\xff(\x80(", 5), std::string(5000, '(')}) {
        write_file("a.zvw", text);
        press({"Home"});
    }
    press({"D"});
    EXPECT_FALSE(std::filesystem::exists("a.zvw"));
    press({"D"});
    zanolib::g_option.resetview = false;
    press({"Home"});
}

TEST_F(ViewWindowTest, FitsTheWindowToThePicture) {
    zanolib::g_option.resizetype = 2;
    zanolib::g_option.sizelimit = 0;
    zanolib::g_option.verbose = true;
    drop({"a.bmp"});
    resize(100, 100);
    zanolib::g_option.resize_magnify = false;
    drop({"a.bmp"});
    zanolib::g_option.resize_magnify = true;
    zanolib::g_option.window_ratio_of_image = 20;
    drop({"a.bmp"});
}

TEST_F(ViewWindowTest, RestoresAViewByEachResizeType) {
    write_turned_jpeg("turned.jpg", 600, 400);
    for (unsigned int const type : {0u, 1u, 2u}) {
        zanolib::g_option.resizetype = type;
        zanolib::g_option.image_ratio_of_image = 2;
        drop({"turned.jpg"});
        press({"2", "Up", "Keypad 0"});
        resize(640, 480);
        press({"Home"});
        zanolib::g_option.reproduce = false;
        press({"Home", "F5"});
        zanolib::g_option.reproduce = true;
        std::filesystem::remove("turned.zvw");
    }
}

TEST_F(ViewWindowTest, PrintsItsStepsUnderDebug) {
    drop({"a.bmp"});
    zanolib::g_option.debug = true;
    press({"3"});
    drag("middle", {GLFW_MOUSE_BUTTON_MIDDLE}, 0, 0);
    scroll("backward", 0, -1);
    scroll("sideways", 1, 0);
    resize(800, 600);
    resize(800, 300);
    zanolib::g_option.verbose = true;
    press({"W"});
    zanoview2::zvwfile_t{}.load("a.bmp");
    note("load");
}

TEST_F(ViewWindowTest, CoversTheWorkAreaAndRestoresTheWindow) {
    drop({"a.bmp"});
    press({"F"});
    EXPECT_EQ(zanolib::g_option.wintype, 2u);
    press({"F", "F5", "Shift+R", "Shift+W"});
    EXPECT_NE(read_file(".viewer").find("\n-wintype 0\n-winsize 800x600\n"), std::string::npos);
}

}  // namespace
