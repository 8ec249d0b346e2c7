// SPDX-License-Identifier: MIT
// Tests of the event loop and of the translation of events, with a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "tests/support/glfw/fakeglfw.h"

namespace {

/// Records the events among the calls of GLFW. Each one must come with the window's context
/// current.
struct log_t : wenk::glutyAPI4 {
    template <typename... T>
    void record(char const* event, T const&... arguments) {
        std::vector<std::string>& calls = fake_glfw_t::current->calls;
        std::string const window = wenk::glfwyMGR4::getSingleton()->win(this)->name;
        ASSERT_FALSE(calls.empty()) << event;
        EXPECT_EQ(calls.back(), "glfwMakeContextCurrent(" + window + ")") << event;
        calls.pop_back();
        record_call(event, arguments...);
    }

    void reshape(int w, int h) override { record("reshape", w, h); }
    void display() override { record("display"); }
    void keyboard(unsigned char key, int x, int y) override { record("char", +key, x, y); }
    void specialkey(int key, int x, int y) override { record("special", key, x, y); }
    void mouse(int n, int up, int x, int y) override { record("mouse", n, up, x, y); }
    void motion(int x, int y) override { record("motion", x, y); }
    void idle() override { record("idle"); }
    void init() override { record("init"); }
    void keyboardup(unsigned char key, int x, int y) override { record("charup", +key, x, y); }
    void specialkeyup(int key, int x, int y) override { record("specialup", key, x, y); }
    void mousewheel(int n, int d, int x, int y) override { record("wheel", n, d, x, y); }
    void drop(int n, char const** paths) override { record("drop", n, paths[n - 1]); }
};

struct GlfwMgr4 : testing::Test {
    fake_glfw_t glfw;
    wenk::glfwyMGR4 manager;
    log_t app;

    /// Returns the calls and events since the last time, each followed by a blank.
    std::string take() {
        std::string calls = glfw.take_calls();
        std::ranges::replace(calls, '\n', ' ');
        return calls;
    }

    /// Creates the window, with the cursor inside the pixel (7, -3).
    void open_window() {
        manager.addWindow(&app, "view");
        glfw.fire_cursor(7.9, -3.9);
        take();
    }
};

/// The only call for an event that isn't reported.
std::string const nothing = "glfwMakeContextCurrent(w1) ";

TEST_F(GlfwMgr4, ReportsKeysAsCharactersOrSpecialKeys) {
    open_window();
    using row_t = std::tuple<int, int, std::string, int>;
    for (auto const& [key, mods, event, code] :
         {row_t{GLFW_KEY_A, 0, "char", 'a'}, row_t{GLFW_KEY_A, GLFW_MOD_SHIFT, "char", 'A'},
          row_t{GLFW_KEY_A, GLFW_MOD_CAPS_LOCK | GLFW_MOD_CONTROL, "char", 'A'},
          row_t{GLFW_KEY_A, GLFW_MOD_SHIFT | GLFW_MOD_CAPS_LOCK, "char", 'a'},
          row_t{GLFW_KEY_1, GLFW_MOD_SHIFT, "char", '1'}, row_t{127, 0, "char", 127},
          row_t{128, 0, "special", 128}, row_t{GLFW_KEY_ESCAPE, 0, "char", 27},
          row_t{GLFW_KEY_ENTER, 0, "char", 13}, row_t{GLFW_KEY_TAB, 0, "char", 9},
          row_t{GLFW_KEY_BACKSPACE, 0, "char", 8},
          row_t{GLFW_KEY_KP_0, 0, "special", GLFW_KEY_INSERT},
          row_t{GLFW_KEY_KP_5, 0, "special", 255}, row_t{GLFW_KEY_KP_DECIMAL, 0, "char", '.'},
          row_t{GLFW_KEY_KP_ENTER, 0, "char", 13}, row_t{GLFW_KEY_UNKNOWN, 0, "char", 255}}) {
        std::string const arguments = std::to_string(code).append(", 7, -3) ");
        glfw.fire_key(key, GLFW_PRESS, mods);
        glfw.fire_key(key, GLFW_REPEAT, mods);
        glfw.fire_key(key, GLFW_RELEASE, mods);
        EXPECT_EQ(take(), event + "(" + arguments + nothing + event + "up(" + arguments)
            << "key " << key << ", modifiers " << mods;
    }
    manager.KeyRepeat(true);
    glfw.fire_key(GLFW_KEY_A, GLFW_REPEAT, 0);
    glfw.fire_key(GLFW_KEY_LEFT, GLFW_REPEAT, 0);
    EXPECT_EQ(take(), "char(97, 7, -3) special(263, 7, -3) ");
}

TEST_F(GlfwMgr4, ReportsMouseButtonsAndWheels) {
    open_window();
    for (int const action : {GLFW_PRESS, GLFW_RELEASE}) {
        for (int button = GLFW_MOUSE_BUTTON_1; button <= GLFW_MOUSE_BUTTON_6; ++button) {
            glfw.fire(&GLFWwindow::button, button, action, 0);
        }
    }
    EXPECT_EQ(take(),
              "mouse(0, 0, 7, -3) mouse(2, 0, 7, -3) mouse(1, 0, 7, -3) "
              "wheel(0, 1, 7, -3) wheel(0, -1, 7, -3) wheel(1, 1, 7, -3) "
              "mouse(0, 1, 7, -3) mouse(2, 1, 7, -3) mouse(1, 1, 7, -3) " +
                  nothing + nothing + nothing);
    for (double const dy : {-0.1, 0.0, 3.0}) {
        glfw.fire(&GLFWwindow::scroll, 9.0, dy);
    }
    EXPECT_EQ(take(), "wheel(0, -1, 7, -3) wheel(0, 0, 7, -3) wheel(0, 1, 7, -3) ");
}

TEST_F(GlfwMgr4, CreatesAWindowAndReportsItsOtherEvents) {
    EXPECT_EQ(manager.addWindow(nullptr, "none"), nullptr);
    glfw.can_create = false;
    EXPECT_EQ(manager.addWindow(&app, "none"), nullptr);
    EXPECT_EQ(take(), "glfwCreateWindow(640, 480, none, null, null) ");
    glfw.can_create = true;
    GLFWwindow* const window = manager.addWindow(&app, "view");
    EXPECT_EQ(manager.win(&app), window);
    EXPECT_EQ(manager.api(window), &app);
    EXPECT_TRUE(take().ends_with(" init() "));
    glfw.fire_cursor(5.99, 6.5);
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    EXPECT_EQ(take(), "motion(5, 6) drop(2, b.png) display() glfwSwapBuffers(w1) ");
    manager.SwapBuffers(&app);
    EXPECT_EQ(take(), "glfwSwapBuffers(w1) ");
}

TEST_F(GlfwMgr4, DrawsOnceForAllRequestsBetweenTwoWaits) {
    manager.addWindow(&app, "view");
    manager.PostRedisplay();
    auto const request_twice = [this] {
        glfw.fire_size(300, 200);
        manager.PostRedisplay();
    };
    glfw.script = {request_twice, [this] { manager.IdleOff(); }, [this] { manager.Exit(); }};
    take();
    manager.MainLoop();
    EXPECT_EQ(take(),
              "idle() display() glfwSwapBuffers(w1) glfwWaitEvents() "
              "idle() glfwWaitEvents() reshape(300, 200) glfwPostEmptyEvent() glfwPostEmptyEvent() "
              "idle() display() glfwSwapBuffers(w1) glfwWaitEvents() "
              "idle() glfwWaitEvents() glfwWaitEvents() ");
}

TEST_F(GlfwMgr4, DestroysClosedWindowsAndReturnsAfterTheLast) {
    log_t second;
    manager.addWindow(&app, "first");
    manager.addWindow(&second, "second");
    manager.IdleOff();
    glfw.script = {[this] { glfw.window(0).should_close = true; },
                   [this] { manager.PostRedisplay(); }};
    take();
    manager.MainLoop();
    EXPECT_EQ(take(),
              "glfwWaitEvents() glfwDestroyWindow(w1) glfwWaitEvents() glfwPostEmptyEvent() "
              "display() glfwSwapBuffers(w2) glfwWaitEvents() glfwWaitEvents() "
              "glfwDestroyWindow(w2) ");
}

}  // namespace
