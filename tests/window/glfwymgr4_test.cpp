// SPDX-License-Identifier: MIT
// The event loop and the translation of events, over a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
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

TEST_F(GlfwMgr4, KeysBecomeCharactersAndSpecialCodes) {
    std::ifstream in(KEYS);
    std::string heading;
    std::getline(in, heading);
    manager.addWindow(&app, "view");
    glfw.fire_cursor(7.9, -3.9);
    int rows = 0;
    for (int key, mods, code; in >> key >> mods >> code; ++rows) {
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
    EXPECT_EQ(rows, 37);
}

TEST_F(GlfwMgr4, EventsReachTheApplicationOfABoundWindow) {
    EXPECT_EQ(manager.addWindow(nullptr, "none"), nullptr);
    glfw.can_create = false;
    EXPECT_EQ(manager.addWindow(&app, "none"), nullptr);
    glfw.can_create = true;
    manager.addWindow(&app, "view");
    EXPECT_TRUE(glfw.take_calls().ends_with(current + "init 1\n"));
    glfw.fire_cursor(5.99, 6.5);
    EXPECT_EQ(glfw.take_calls(), current + "motion 5 6\n");
    std::string const reports[] = {"mouse 0 0",  "mouse 0 1", "mouse 2 0", "mouse 2 1",
                                   "mouse 1 0",  "mouse 1 1", "wheel 0 1", "",
                                   "wheel 0 -1", "",          "wheel 1 1"};
    for (int n = 0; n < 11; ++n) {  // each button is pressed and let go
        glfw.fire(&GLFWwindow::button, n / 2, n % 2 == 0 ? GLFW_PRESS : GLFW_RELEASE, 0);
        EXPECT_EQ(glfw.take_calls(), current + (reports[n].empty() ? "" : reports[n] + " 5 6\n"));
    }
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
    glfw.script = {[this] { glfw.fire_size(300, 200), manager.PostRedisplay(); },
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
