// SPDX-License-Identifier: MIT
// The event loop and the translation of events, over a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/glfw/fakeglfw.h"

namespace {

std::string const current = "glfwMakeContextCurrent(w1)\n";

/// Puts what is reported among the calls, so that their order can be seen.
struct log_t : wenk::glutyAPI4 {
    void reshape(int w, int h) override { record_call("reshape", w, h); }
    void display() override { record_call("display"); }
    void keyboard(unsigned char key, int x, int y) override { record_call("char", +key, x, y); }
    void specialkey(int key, int x, int y) override { record_call("special", key, x, y); }
    void mouse(int n, int up, int x, int y) override { record_call("mouse", n, up, x, y); }
    void motion(int x, int y) override { record_call("motion", x, y); }
    void idle() override { record_call("idle"); }
    void init() override { record_call("init", wenk::glfwyMGR4::getSingleton()->win(this)->name); }
    void keyboardup(unsigned char key, int x, int y) override { record_call("charup", +key, x, y); }
    void specialkeyup(int key, int x, int y) override { record_call("specialup", key, x, y); }
    void mousewheel(int n, int d, int x, int y) override { record_call("wheel", n, d, x, y); }
    void drop(int n, char const** paths) override { record_call("drop", n, paths[n - 1]); }
};

struct GlfwMgr4 : testing::Test {
    fake_glfw_t glfw;
    wenk::glfwyMGR4 manager;
    log_t app;

    /// Compares the calls and the reports with the file of the test's name.
    void expect_calls() {
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        EXPECT_TRUE(matches_file(glfw.take_calls(), std::string(CALLS) + test->name() + ".txt"));
    }
};

TEST_F(GlfwMgr4, KeysBecomeCharactersAndSpecialCodes) {
    std::ifstream in(KEYS);
    in.ignore(100, '\n');
    manager.addWindow(&app, "view");
    glfw.fire_cursor(7.9, -3.9);
    int rows = 0;
    for (int key, mods, code; in >> key >> mods >> code; ++rows) {
        std::string const name = current + (code < 0 ? "special" : "char");
        std::string const values = std::to_string(std::abs(code)).append(", 7, -3)\n");
        std::string const pressed = name + "(" + values;
        for (bool const repeats : {false, true}) {
            manager.KeyRepeat(repeats);
            glfw.take_calls();
            for (int const action : {GLFW_PRESS, GLFW_REPEAT, GLFW_RELEASE}) {
                glfw.fire_key(key, action, mods);
            }
            EXPECT_EQ(glfw.take_calls(),
                      pressed + (repeats ? pressed : current) + name + "up(" + values)
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
    glfw.fire_cursor(5.99, 6.5);
    for (int button = 0; button < 6; ++button) {
        record_call("# button", button);
        glfw.fire(&GLFWwindow::button, button, GLFW_PRESS, 0);
        glfw.fire(&GLFWwindow::button, button, GLFW_RELEASE, 0);
    }
    for (double const dy : {-0.1, 0.0, 3.0}) {
        record_call("# scroll", dy);
        glfw.fire(&GLFWwindow::scroll, 9.0, dy);
    }
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    expect_calls();
}

TEST_F(GlfwMgr4, TheLoopDrawsOnceForAllRequestsBetweenTwoWaits) {
    manager.addWindow(&app, "view");
    manager.PostRedisplay();
    auto const ask_twice = [this] {
        record_call("# ask_twice");
        glfw.fire_size(300, 200);
        manager.PostRedisplay();
    };
    glfw.script = {ask_twice, [this] { manager.IdleOff(); }, [this] { manager.Exit(); }};
    glfw.take_calls();
    manager.MainLoop();
    expect_calls();
}

TEST_F(GlfwMgr4, ClosedWindowsGoAndTheLastEndsTheLoop) {
    log_t second;
    manager.addWindow(&app, "first");
    manager.addWindow(&second, "second");
    manager.IdleOff();
    glfw.script = {[this] { glfw.window(0).should_close = true; },
                   [this] { manager.PostRedisplay(); }};
    glfw.take_calls();
    manager.MainLoop();
    expect_calls();
}

}  // namespace
