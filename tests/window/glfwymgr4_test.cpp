// SPDX-License-Identifier: MIT
// The event loop and the translation of events, over a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/support/glfw/fakeglfw.h"

namespace {

std::string const current = "glfwMakeContextCurrent(w1)\n";
std::string const draw = current + "display\nglfwSwapBuffers(w1)\n";
std::string const wait = "glfwWaitEvents()\n";

/// Puts what is reported among the calls, so that their order can be seen.
struct log_t : wenk::glutyAPI4 {
    explicit log_t(fake_glfw_t& fake) : glfw(fake) {}

    template <typename... T>
    void add(char const* name, T... numbers) {
        std::string line = name;
        ((line += " ", line += std::to_string(numbers)), ...);
        glfw.calls.push_back(line);
    }
    void reshape(int w, int h) override { add("reshape", w, h); }
    void display() override { add("display"); }
    void keyboard(unsigned char key, int x, int y) override { add("char", key, x, y); }
    void specialkey(int key, int x, int y) override { add("special", key, x, y); }
    void mouse(int button, int state, int x, int y) override { add("mouse", button, state, x, y); }
    void motion(int x, int y) override { add("motion", x, y); }
    void idle() override { add("idle"); }
    void init() override { add("init", wenk::glfwyMGR4::getSingleton()->win(this) != nullptr); }
    void keyboardup(unsigned char key, int x, int y) override { add("charup", key, x, y); }
    void specialkeyup(int key, int x, int y) override { add("specialup", key, x, y); }
    void mousewheel(int wheel, int d, int x, int y) override { add("wheel", wheel, d, x, y); }
    void drop(int count, char const** paths) override {
        add("drop", count);
        glfw.calls.back().append(" ").append(paths[count - 1]);
    }

    fake_glfw_t& glfw;
};

struct GlfwMgr4 : testing::Test {
    fake_glfw_t glfw;
    wenk::glfwyMGR4 manager;
    log_t app{glfw};
};

TEST_F(GlfwMgr4, AWindowIsBoundBeforeTheApplicationStarts) {
    EXPECT_EQ(manager.addWindow(nullptr, "none"), nullptr);
    glfw.can_create = false;
    EXPECT_EQ(manager.addWindow(&app, "none"), nullptr);
    glfw.can_create = true;
    glfw.take_calls();
    GLFWwindow* const window = manager.addWindow(&app, "view");
    EXPECT_EQ(glfw.take_calls(),
              "glfwCreateWindow(640, 480, view, null, null)\n"
              "glfwSetWindowRefreshCallback(w1)\nglfwSetWindowSizeCallback(w1)\n"
              "glfwSetKeyCallback(w1)\nglfwSetMouseButtonCallback(w1)\nglfwSetScrollCallback(w1)\n"
              "glfwSetCursorPosCallback(w1)\nglfwSetDropCallback(w1)\n"
              "glfwMakeContextCurrent(w1)\ninit 1\n");
    EXPECT_EQ(manager.win(&app), window);
    EXPECT_EQ(manager.api(window), &app);
}

TEST_F(GlfwMgr4, KeysBecomeCharactersAndSpecialCodes) {
    constexpr int shift = GLFW_MOD_SHIFT, caps = GLFW_MOD_CAPS_LOCK, control = GLFW_MOD_CONTROL;
    // clang-format off
    static int const rows[][3] = {  // key, modifiers, character or, negative, special code
        {'A', 0, 'a'}, {'A', shift, 'A'}, {'A', caps, 'A'}, {'A', shift | caps, 'a'},
        {'A', shift | control, 'A'}, {'A', control, 'a'}, {'1', shift, '1'}, {127, 0, 127},
        {128, 0, -128}, {162, 0, -162}, {256, 0, 27}, {257, shift, 13}, {258, 0, 9}, {259, 0, 8},
        {260, 0, -260}, {261, 0, -261}, {294, 0, -294}, {320, 0, -260}, {321, 0, -269},
        {322, 0, -264}, {323, 0, -267}, {324, 0, -263}, {325, 0, -255}, {326, 0, -262},
        {327, 0, -268}, {328, 0, -265}, {329, 0, -266}, {330, 0, '.'}, {331, 0, '/'},
        {332, 0, '*'}, {333, 0, '-'}, {334, 0, '+'}, {335, 0, 13}, {336, 0, '='},
        {340, shift, -340}, {GLFW_KEY_UNKNOWN, 0, 255}, {GLFW_KEY_UNKNOWN, shift, 255},
    };
    // clang-format on
    manager.addWindow(&app, "view");
    glfw.fire_cursor(7.9, -3.9);
    for (auto const& [key, mods, code] : rows) {
        std::string const name = current + (code < 0 ? "special" : "char");
        std::string const rest = std::to_string(std::abs(code)) + " 7 -3\n";
        std::string const pressed = name + " " + rest;
        for (bool const repeats : {false, true}) {
            manager.KeyRepeat(repeats);
            glfw.take_calls();
            for (int const action : {GLFW_PRESS, GLFW_REPEAT, GLFW_RELEASE}) {
                glfw.fire_key(key, action, mods);
            }
            EXPECT_EQ(glfw.take_calls(),
                      pressed + (repeats ? pressed : current) + name + "up " + rest)
                << key;
        }
    }
}

TEST_F(GlfwMgr4, PointerEventsReachTheApplication) {
    manager.addWindow(&app, "view");
    glfw.take_calls();
    glfw.fire_cursor(5.99, 6.5);
    EXPECT_EQ(glfw.take_calls(), current + "motion 5 6\n");
    // clang-format off
    static int const buttons[][5] = {  // button, action; whether a wheel, which, state or direction
        {0, GLFW_PRESS, 0, 0, 0}, {0, GLFW_RELEASE, 0, 0, 1}, {1, GLFW_PRESS, 0, 2, 0},
        {2, GLFW_RELEASE, 0, 1, 1}, {3, GLFW_PRESS, 1, 0, 1}, {4, GLFW_PRESS, 1, 0, -1},
        {5, GLFW_PRESS, 1, 1, 1}, {7, GLFW_PRESS, 1, 2, 1},
    };
    // clang-format on
    for (auto const& [button, action, wheel, which, how] : buttons) {
        glfw.fire(&GLFWwindow::button, button, action, 0);
        EXPECT_EQ(glfw.take_calls(), current + (wheel ? "wheel " : "mouse ") +
                                         std::to_string(which) + " " + std::to_string(how) +
                                         " 5 6\n");
    }
    glfw.fire(&GLFWwindow::button, 3, GLFW_RELEASE, 0);
    for (double const dy : {-0.1, 0.0, 3.0}) {
        glfw.fire(&GLFWwindow::scroll, 9.0, dy);
    }
    EXPECT_EQ(glfw.take_calls("wheel"), "wheel 0 -1 5 6\nwheel 0 0 5 6\nwheel 0 1 5 6\n");
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    EXPECT_EQ(glfw.take_calls(), current + "drop 2 b.png\n" + draw);
}

TEST_F(GlfwMgr4, TheLoopDrawsOnceForAllRequestsBetweenTwoWaits) {
    manager.addWindow(&app, "view");
    manager.PostRedisplay();
    glfw.script = {[this] {
                       glfw.fire_size(300, 200);
                       manager.PostRedisplay();
                   },
                   [this] { manager.IdleOff(); }, [this] { manager.Exit(); }};
    glfw.take_calls();
    manager.MainLoop();
    std::string const idle = current + "idle\n";
    EXPECT_EQ(glfw.take_calls(),
              idle + draw + wait +  // the request made before the loop
                  idle + wait +     // its empty event; now the step that asks twice
                  "glfwMakeContextCurrent(w1)\nreshape 300 200\n"
                  "glfwPostEmptyEvent()\nglfwPostEmptyEvent()\n" +
                  idle + draw + wait +  // their empty event
                  idle + wait +         // idle goes off
                  wait);                // the exit, with the window left standing
    EXPECT_FALSE(glfw.window().destroyed);
}

TEST_F(GlfwMgr4, ClosedWindowsGoAndTheLastEndsTheLoop) {
    log_t second(glfw);
    manager.addWindow(&app, "first");
    manager.addWindow(&second, "second");
    manager.IdleOff();
    glfw.script = {[this] { glfw.window(0).should_close = true; },
                   [this] { manager.PostRedisplay(); }};
    glfw.take_calls();
    manager.MainLoop();
    EXPECT_EQ(glfw.take_calls(),
              "glfwWaitEvents()\nglfwDestroyWindow(w1)\n"
              "glfwWaitEvents()\nglfwPostEmptyEvent()\n"
              "glfwMakeContextCurrent(w2)\ndisplay\nglfwSwapBuffers(w2)\n"
              "glfwWaitEvents()\nglfwWaitEvents()\nglfwDestroyWindow(w2)\n");
}

}  // namespace
