// SPDX-License-Identifier: MIT
// Tests of the event loop and of the translation of events, with a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

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

    /// Creates the window, with the cursor inside the pixel (7, -3).
    void open_window() {
        manager.addWindow(&app, "view");
        glfw.fire_cursor(7.9, -3.9);
        glfw.take_calls();
    }
};

/// The only call for an event that isn't reported.
std::string const nothing = "glfwMakeContextCurrent(w1)\n";

TEST_F(GlfwMgr4, ReportsKeysAsCharactersOrSpecialKeys) {
    open_window();
    using row_t = std::tuple<int, int, std::string, int>;
    for (auto const& [key, mods, event, code] :
         {row_t{GLFW_KEY_A, 0, "char", 'a'}, row_t{GLFW_KEY_A, GLFW_MOD_SHIFT, "char", 'A'},
          row_t{GLFW_KEY_A, GLFW_MOD_CAPS_LOCK | GLFW_MOD_CONTROL, "char", 'A'},
          row_t{GLFW_KEY_A, GLFW_MOD_SHIFT | GLFW_MOD_CAPS_LOCK, "char", 'a'},
          row_t{GLFW_KEY_1, GLFW_MOD_SHIFT, "char", '1'}, row_t{127, 0, "char", 127},
          row_t{128, 0, "special", 128}, row_t{GLFW_KEY_ESCAPE, 0, "char", 27},
          row_t{GLFW_KEY_TAB, 0, "char", 9}, row_t{GLFW_KEY_KP_0, 0, "special", GLFW_KEY_INSERT},
          row_t{GLFW_KEY_KP_DECIMAL, 0, "char", '.'}, row_t{GLFW_KEY_KP_ENTER, 0, "char", 13},
          row_t{GLFW_KEY_UNKNOWN, 0, "char", 255}}) {
        std::string const arguments = std::to_string(code).append(", 7, -3)\n");
        glfw.fire_key(key, GLFW_PRESS, mods);
        glfw.fire_key(key, GLFW_REPEAT, mods);
        glfw.fire_key(key, GLFW_RELEASE, mods);
        EXPECT_EQ(glfw.take_calls(), event + "(" + arguments + nothing + event + "up(" + arguments)
            << "key " << key << ", modifiers " << mods;
    }
    manager.KeyRepeat(true);
    glfw.fire_key(GLFW_KEY_A, GLFW_REPEAT, 0);
    glfw.fire_key(GLFW_KEY_LEFT, GLFW_REPEAT, 0);
    EXPECT_EQ(glfw.take_calls(), "char(97, 7, -3)\nspecial(263, 7, -3)\n");
}

TEST_F(GlfwMgr4, ReportsMouseButtonsAndWheels) {
    open_window();
    for (int const action : {GLFW_PRESS, GLFW_RELEASE}) {
        for (int button = GLFW_MOUSE_BUTTON_1; button <= GLFW_MOUSE_BUTTON_6; ++button) {
            glfw.fire(&GLFWwindow::button, button, action, 0);
        }
    }
    EXPECT_EQ(glfw.take_calls(),
              "mouse(0, 0, 7, -3)\nmouse(2, 0, 7, -3)\nmouse(1, 0, 7, -3)\n"
              "wheel(0, 1, 7, -3)\nwheel(0, -1, 7, -3)\nwheel(1, 1, 7, -3)\n"
              "mouse(0, 1, 7, -3)\nmouse(2, 1, 7, -3)\nmouse(1, 1, 7, -3)\n" +
                  nothing + nothing + nothing);
}

TEST_F(GlfwMgr4, CreatesAWindowAndReportsItsOtherEvents) {
    EXPECT_EQ(manager.addWindow(nullptr, "none"), nullptr);
    glfw.can_create = false;
    EXPECT_EQ(manager.addWindow(&app, "none"), nullptr);
    EXPECT_EQ(glfw.take_calls(), "glfwCreateWindow(640, 480, none, null, null)\n");
    glfw.can_create = true;
    manager.addWindow(&app, "view");
    EXPECT_TRUE(glfw.take_calls().ends_with("\ninit()\n"));
    glfw.fire_cursor(5.99, 6.5);
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    EXPECT_EQ(glfw.take_calls(), "motion(5, 6)\ndrop(2, b.png)\ndisplay()\nglfwSwapBuffers(w1)\n");
    manager.Exit();
    manager.MainLoop();
    EXPECT_EQ(glfw.take_calls(), "");
}

TEST_F(GlfwMgr4, DrawsOnceForAllRequestsAndReturnsAfterTheLastWindow) {
    log_t second;
    manager.addWindow(&app, "first");
    manager.addWindow(&second, "second");
    glfw.script = {[this] {
                       glfw.fire_size(300, 200);
                       manager.PostRedisplay();
                   },
                   [this] { manager.IdleOff(); }, [this] { glfw.window(0).should_close = true; }};
    glfw.take_calls();
    manager.MainLoop();
    EXPECT_EQ(glfw.take_calls(),
              "idle()\nidle()\nglfwWaitEvents()\n"
              "reshape(300, 200)\nglfwPostEmptyEvent()\nglfwPostEmptyEvent()\n"
              "idle()\ndisplay()\nglfwSwapBuffers(w1)\nidle()\ndisplay()\nglfwSwapBuffers(w2)\n"
              "glfwWaitEvents()\nidle()\nidle()\nglfwWaitEvents()\nglfwWaitEvents()\n"
              "glfwDestroyWindow(w1)\nglfwWaitEvents()\nglfwDestroyWindow(w2)\n");
}

}  // namespace
