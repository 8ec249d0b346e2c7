// SPDX-License-Identifier: MIT
// The event loop and the translation of events, over a scripted GLFW.
#include "window/glfwymgr4.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/glfw/fakeglfw.h"

namespace {

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
    void passivemotion(int, int) override { add("passivemotion"); }
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
    constexpr int shift = GLFW_MOD_SHIFT;
    constexpr int caps = GLFW_MOD_CAPS_LOCK;
    static struct {
        int key, mods;
        char const* pressed;  // the event without the cursor's position
    } const rows[] = {
        {GLFW_KEY_A, 0, "char 97"},
        {GLFW_KEY_A, shift, "char 65"},
        {GLFW_KEY_A, caps, "char 65"},
        {GLFW_KEY_A, shift | caps, "char 97"},
        {GLFW_KEY_A, shift | GLFW_MOD_CONTROL, "char 65"},
        {GLFW_KEY_1, shift, "char 49"},
        {GLFW_KEY_BACKSLASH, 0, "char 92"},
        {GLFW_KEY_ESCAPE, 0, "char 27"},
        {GLFW_KEY_ENTER, shift, "char 13"},
        {GLFW_KEY_TAB, 0, "char 9"},
        {GLFW_KEY_BACKSPACE, 0, "char 8"},
        {GLFW_KEY_UNKNOWN, 0, "char 255"},
        {GLFW_KEY_UNKNOWN, shift, "char 255"},
        {127, 0, "char 127"},
        {128, 0, "special 128"},
        {GLFW_KEY_WORLD_2, 0, "special 162"},
        {GLFW_KEY_INSERT, 0, "special 260"},
        {GLFW_KEY_DELETE, 0, "special 261"},
        {GLFW_KEY_F5, 0, "special 294"},
        {GLFW_KEY_LEFT_SHIFT, shift, "special 340"},
        {GLFW_KEY_KP_0, 0, "special 260"},
        {GLFW_KEY_KP_1, 0, "special 269"},
        {GLFW_KEY_KP_2, 0, "special 264"},
        {GLFW_KEY_KP_3, 0, "special 267"},
        {GLFW_KEY_KP_4, 0, "special 263"},
        {GLFW_KEY_KP_5, 0, "special 255"},
        {GLFW_KEY_KP_6, 0, "special 262"},
        {GLFW_KEY_KP_7, 0, "special 268"},
        {GLFW_KEY_KP_8, 0, "special 265"},
        {GLFW_KEY_KP_9, 0, "special 266"},
        {GLFW_KEY_KP_DECIMAL, 0, "char 46"},
        {GLFW_KEY_KP_DIVIDE, 0, "char 47"},
        {GLFW_KEY_KP_MULTIPLY, 0, "char 42"},
        {GLFW_KEY_KP_SUBTRACT, 0, "char 45"},
        {GLFW_KEY_KP_ADD, 0, "char 43"},
        {GLFW_KEY_KP_ENTER, 0, "char 13"},
        {GLFW_KEY_KP_EQUAL, 0, "char 61"},
    };
    manager.addWindow(&app, "view");
    glfw.fire_cursor(7.9, -3.9);
    for (auto const& row : rows) {
        SCOPED_TRACE(row.key);
        std::string const current = "glfwMakeContextCurrent(w1)\n";
        std::string const pressed = row.pressed + std::string(" 7 -3\n");
        std::string released = pressed;
        released.insert(released.find(' '), "up");
        for (bool const repeats : {false, true}) {
            manager.KeyRepeat(repeats);
            glfw.take_calls();
            for (int const action : {GLFW_PRESS, GLFW_REPEAT, GLFW_RELEASE}) {
                glfw.fire_key(row.key, action, row.mods);
            }
            EXPECT_EQ(glfw.take_calls(),
                      current + pressed + current + (repeats ? pressed : "") + current + released);
        }
    }
}

TEST_F(GlfwMgr4, PointerEventsReachTheApplication) {
    static struct {
        int button, action;
        char const* event;
    } const buttons[] = {
        {GLFW_MOUSE_BUTTON_LEFT, GLFW_PRESS, "mouse 0 0 5 6\n"},
        {GLFW_MOUSE_BUTTON_LEFT, GLFW_RELEASE, "mouse 0 1 5 6\n"},
        {GLFW_MOUSE_BUTTON_RIGHT, GLFW_PRESS, "mouse 2 0 5 6\n"},
        {GLFW_MOUSE_BUTTON_MIDDLE, GLFW_RELEASE, "mouse 1 1 5 6\n"},
        {3, GLFW_PRESS, "wheel 0 1 5 6\n"},
        {4, GLFW_PRESS, "wheel 0 -1 5 6\n"},
        {5, GLFW_PRESS, "wheel 1 1 5 6\n"},
        {7, GLFW_PRESS, "wheel 2 1 5 6\n"},
        {3, GLFW_RELEASE, ""},
    };
    manager.addWindow(&app, "view");
    glfw.take_calls();
    glfw.fire_cursor(5.99, 6.5);
    std::string const current = "glfwMakeContextCurrent(w1)\n";
    EXPECT_EQ(glfw.take_calls(), current + "motion 5 6\n");
    for (auto const& row : buttons) {
        glfw.fire(&GLFWwindow::button, row.button, row.action, 0);
        EXPECT_EQ(glfw.take_calls(), current + row.event) << row.button;
    }
    for (double const dy : {-0.1, 0.0, 3.0}) {
        glfw.fire(&GLFWwindow::scroll, 9.0, dy);
    }
    EXPECT_EQ(glfw.take_calls("wheel"), "wheel 0 -1 5 6\nwheel 0 0 5 6\nwheel 0 1 5 6\n");
    glfw.fire_drop({"a.png", "b.png"});
    glfw.fire(&GLFWwindow::refresh);
    EXPECT_EQ(glfw.take_calls(),
              current + "drop 2 b.png\n" + current + "display\nglfwSwapBuffers(w1)\n");
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
    std::string const idle = "glfwMakeContextCurrent(w1)\nidle\n";
    std::string const draw = "glfwMakeContextCurrent(w1)\ndisplay\nglfwSwapBuffers(w1)\n";
    std::string const wait = "glfwWaitEvents()\n";
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
