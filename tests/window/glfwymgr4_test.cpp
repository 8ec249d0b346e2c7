// SPDX-License-Identifier: MIT
// Tests of the event loop and of the translation of events, with a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

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
};

struct key_row_t {
    int key;
    int mods;
    char const* event;  ///< without "up" for a release
    int code;
};
constexpr int no_mods = 0;
constexpr key_row_t key_rows[] = {
    {GLFW_KEY_A, no_mods, "char", 'a'},
    {GLFW_KEY_A, GLFW_MOD_SHIFT, "char", 'A'},
    {GLFW_KEY_A, GLFW_MOD_CAPS_LOCK, "char", 'A'},
    {GLFW_KEY_A, GLFW_MOD_SHIFT | GLFW_MOD_CAPS_LOCK, "char", 'a'},
    {GLFW_KEY_A, GLFW_MOD_SHIFT | GLFW_MOD_CONTROL, "char", 'A'},
    {GLFW_KEY_1, GLFW_MOD_SHIFT, "char", '1'},
    {127, no_mods, "char", 127},
    {128, no_mods, "special", 128},
    {GLFW_KEY_ESCAPE, no_mods, "char", 27},
    {GLFW_KEY_ENTER, no_mods, "char", 13},
    {GLFW_KEY_TAB, no_mods, "char", 9},
    {GLFW_KEY_BACKSPACE, no_mods, "char", 8},
    {GLFW_KEY_KP_0, no_mods, "special", GLFW_KEY_INSERT},
    {GLFW_KEY_KP_5, no_mods, "special", 255},
    {GLFW_KEY_KP_9, no_mods, "special", GLFW_KEY_PAGE_UP},
    {GLFW_KEY_KP_DECIMAL, no_mods, "char", '.'},
    {GLFW_KEY_KP_ENTER, no_mods, "char", 13},
    {GLFW_KEY_UNKNOWN, no_mods, "char", 255},
};

TEST_F(GlfwMgr4, ReportsKeysAsCharactersOrSpecialKeys) {
    manager.addWindow(&app, "view");
    glfw.fire_cursor(7.9, -3.9);
    EXPECT_FALSE(manager.isKeyRepeat());
    for (auto const& [key, mods, event, code] : key_rows) {
        std::string const name = event;
        std::string const values = std::to_string(code).append(", 7, -3) ");
        for (bool const repeats : {false, true}) {
            manager.KeyRepeat(repeats);
            take();
            glfw.fire_key(key, GLFW_PRESS, mods);
            EXPECT_EQ(take(), name + "(" + values) << "key " << key << ", modifiers " << mods;
            glfw.fire_key(key, GLFW_REPEAT, mods);
            EXPECT_EQ(take(), repeats ? name + "(" + values : "glfwMakeContextCurrent(w1) ") << key;
            glfw.fire_key(key, GLFW_RELEASE, mods);
            EXPECT_EQ(take(), name + "up(" + values) << key;
        }
    }
}

TEST_F(GlfwMgr4, ReportsMouseButtonsAndWheels) {
    manager.addWindow(&app, "view");
    glfw.fire_cursor(5.99, 6.5);
    struct {
        int button;
        char const *pressed, *released;
    } const rows[] = {
        {GLFW_MOUSE_BUTTON_LEFT, "mouse(0, 0, 5, 6) ", "mouse(0, 1, 5, 6) "},
        {GLFW_MOUSE_BUTTON_RIGHT, "mouse(2, 0, 5, 6) ", "mouse(2, 1, 5, 6) "},
        {GLFW_MOUSE_BUTTON_MIDDLE, "mouse(1, 0, 5, 6) ", "mouse(1, 1, 5, 6) "},
        {GLFW_MOUSE_BUTTON_4, "wheel(0, 1, 5, 6) ", "glfwMakeContextCurrent(w1) "},
        {GLFW_MOUSE_BUTTON_5, "wheel(0, -1, 5, 6) ", "glfwMakeContextCurrent(w1) "},
        {GLFW_MOUSE_BUTTON_6, "wheel(1, 1, 5, 6) ", "glfwMakeContextCurrent(w1) "},
    };
    for (auto const& [button, pressed, released] : rows) {
        take();
        glfw.fire(&GLFWwindow::button, button, GLFW_PRESS, 0);
        EXPECT_EQ(take(), pressed) << "button " << button;
        glfw.fire(&GLFWwindow::button, button, GLFW_RELEASE, 0);
        EXPECT_EQ(take(), released) << "button " << button;
    }
    for (double const dy : {-0.1, 0.0, 3.0}) {
        glfw.fire(&GLFWwindow::scroll, 9.0, dy);
    }
    EXPECT_EQ(take(), "wheel(0, -1, 5, 6) wheel(0, 0, 5, 6) wheel(0, 1, 5, 6) ");
}

TEST_F(GlfwMgr4, CreatesAWindowAndReportsItsOtherEvents) {
    EXPECT_EQ(manager.addWindow(nullptr, "none"), nullptr);
    EXPECT_EQ(take(), "");
    glfw.can_create = false;
    EXPECT_EQ(manager.addWindow(&app, "none"), nullptr);
    EXPECT_EQ(take(), "glfwCreateWindow(640, 480, none, null, null) ");
    glfw.can_create = true;
    GLFWwindow* const window = manager.addWindow(&app, "view");
    EXPECT_EQ(manager.win(&app), window);
    EXPECT_EQ(manager.api(window), &app);
    EXPECT_EQ(take(),
              "glfwCreateWindow(640, 480, view, null, null) glfwSetWindowRefreshCallback(w1) "
              "glfwSetWindowSizeCallback(w1) glfwSetKeyCallback(w1) "
              "glfwSetMouseButtonCallback(w1) glfwSetScrollCallback(w1) "
              "glfwSetCursorPosCallback(w1) glfwSetDropCallback(w1) init() ");
    glfw.fire_cursor(5.99, 6.5);
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    EXPECT_EQ(take(), "motion(5, 6) drop(2, b.png) display() glfwSwapBuffers(w1) ");
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
