// SPDX-License-Identifier: MIT
// The event loop, and the translation of GLFW's callbacks to calls of the application.
#include "window/glfwymgr4.h"

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <array>
#include <cctype>

namespace wenk {

static glfwyMGR4 s_manager;

namespace {

constexpr int initial_width = 640;
constexpr int initial_height = 480;
constexpr int max_character = 127;

/// A GLFW key, and the character or key number that the application gets for it.
struct key_code_t {
    int key;
    int code;
};

constexpr std::array key_codes = {
    key_code_t{GLFW_KEY_ESCAPE, 27},
    key_code_t{GLFW_KEY_ENTER, 13},
    key_code_t{GLFW_KEY_TAB, 9},
    key_code_t{GLFW_KEY_BACKSPACE, 8},
    key_code_t{GLFW_KEY_KP_0, GLFW_KEY_INSERT},
    key_code_t{GLFW_KEY_KP_1, GLFW_KEY_END},
    key_code_t{GLFW_KEY_KP_2, GLFW_KEY_DOWN},
    key_code_t{GLFW_KEY_KP_3, GLFW_KEY_PAGE_DOWN},
    key_code_t{GLFW_KEY_KP_4, GLFW_KEY_LEFT},
    key_code_t{GLFW_KEY_KP_5, 255},
    key_code_t{GLFW_KEY_KP_6, GLFW_KEY_RIGHT},
    key_code_t{GLFW_KEY_KP_7, GLFW_KEY_HOME},
    key_code_t{GLFW_KEY_KP_8, GLFW_KEY_UP},
    key_code_t{GLFW_KEY_KP_9, GLFW_KEY_PAGE_UP},
    key_code_t{GLFW_KEY_KP_DECIMAL, '.'},
    key_code_t{GLFW_KEY_KP_DIVIDE, '/'},
    key_code_t{GLFW_KEY_KP_MULTIPLY, '*'},
    key_code_t{GLFW_KEY_KP_SUBTRACT, '-'},
    key_code_t{GLFW_KEY_KP_ADD, '+'},
    key_code_t{GLFW_KEY_KP_ENTER, 13},
    key_code_t{GLFW_KEY_KP_EQUAL, '='},
};

/// The position of the cursor in screen coordinates.
struct cursor_t {
    int x, y;
};

cursor_t cursor_of(GLFWwindow* window) {
    double x = 0.0;
    double y = 0.0;
    glfwGetCursorPos(window, &x, &y);
    return {static_cast<int>(x), static_cast<int>(y)};
}

glutyAPI4* current_api(GLFWwindow* window) {
    glfwMakeContextCurrent(window);
    return glfwyMGR4::getSingleton()->api(window);
}

int key_code(int key) {
    for (key_code_t const& row : key_codes) {
        if (row.key == key) {
            return row.code;
        }
    }
    return key;
}

/// Returns the character of a key. A letter is upper case if Shift or Caps Lock is on, but not
/// both.
unsigned char character_of(int code, int mods) {
    int const locks = mods & (GLFW_MOD_SHIFT | GLFW_MOD_CAPS_LOCK);
    bool const is_upper = locks == GLFW_MOD_SHIFT || locks == GLFW_MOD_CAPS_LOCK;
    return static_cast<unsigned char>(is_upper ? code : std::tolower(code));
}

bool is_press_or_repeat(int action) {
    return action == GLFW_PRESS ||
           (action == GLFW_REPEAT && glfwyMGR4::getSingleton()->isKeyRepeat());
}

// GLFW's callbacks. An exception must not leave them, since GLFW and the libraries below it are C:
// it ends the program in the terminate handler.

void display(GLFWwindow* window) noexcept {
    current_api(window)->display();
    glfwSwapBuffers(window);
}

void idle(GLFWwindow* window) {
    current_api(window)->idle();
}

void reshape(GLFWwindow* window, int width, int height) noexcept {
    current_api(window)->reshape(width, height);
    glfwyMGR4::getSingleton()->PostRedisplay();
}

void keyboard(GLFWwindow* window, int key, int, int action, int mods) noexcept {
    glutyAPI4* const api = current_api(window);
    cursor_t const cursor = cursor_of(window);
    int const code = key_code(key);
    if (code > max_character) {
        if (action == GLFW_RELEASE) {
            api->specialkeyup(code, cursor.x, cursor.y);
        } else if (is_press_or_repeat(action)) {
            api->specialkey(code, cursor.x, cursor.y);
        }
        return;
    }
    unsigned char const character = character_of(code, mods);
    if (action == GLFW_RELEASE) {
        api->keyboardup(character, cursor.x, cursor.y);
    } else if (is_press_or_repeat(action)) {
        api->keyboard(character, cursor.x, cursor.y);
    }
}

void mouse(GLFWwindow* window, int button, int action, int) noexcept {
    // GLFW's buttons are left, right, middle; the application's are left, middle, right.
    static constexpr std::array buttons = {0, 2, 1};
    glutyAPI4* const api = current_api(window);
    cursor_t const cursor = cursor_of(window);
    if (button < static_cast<int>(buttons.size())) {
        int const state = action == GLFW_PRESS ? 0 : 1;
        api->mouse(buttons[static_cast<std::size_t>(button)], state, cursor.x, cursor.y);
    } else if (action == GLFW_PRESS) {
        // The buttons from the fourth on are wheels: two buttons for each wheel.
        int const direction = button % 2 != 0 ? 1 : -1;
        api->mousewheel((button - 3) / 2, direction, cursor.x, cursor.y);
    }
}

void wheel(GLFWwindow* window, double, double dy) noexcept {
    glutyAPI4* const api = current_api(window);
    cursor_t const cursor = cursor_of(window);
    api->mousewheel(0, dy < 0.0 ? -1 : dy > 0.0 ? 1 : 0, cursor.x, cursor.y);
}

void motion(GLFWwindow* window, double x, double y) noexcept {
    current_api(window)->motion(static_cast<int>(x), static_cast<int>(y));
}

void drop(GLFWwindow* window, int count, char const** paths) noexcept {
    current_api(window)->drop(count, paths);
}

void setCallback(GLFWwindow* window) {
    glfwSetWindowRefreshCallback(window, display);
    glfwSetWindowSizeCallback(window, reshape);
    glfwSetKeyCallback(window, keyboard);
    glfwSetMouseButtonCallback(window, mouse);
    glfwSetScrollCallback(window, wheel);
    glfwSetCursorPosCallback(window, motion);
    glfwSetDropCallback(window, drop);
}

}  // namespace

GLFWwindow* glfwyMGR4::addWindow(glutyAPI4* api, char const* title) {
    if (api == nullptr) {
        return nullptr;
    }
    GLFWwindow* const window =
        glfwCreateWindow(initial_width, initial_height, title, nullptr, nullptr);
    if (window == nullptr) {
        return nullptr;
    }
    apis[window] = api;
    windows[api] = window;
    setCallback(window);
    glfwMakeContextCurrent(window);
    api->init();
    return window;
}

void glfwyMGR4::MainLoop() {
    while (!exit_requested) {
        for (auto pair = apis.begin(); pair != apis.end();) {
            if (glfwWindowShouldClose(pair->first) != GLFW_FALSE) {
                glfwDestroyWindow(pair->first);
                windows.erase(pair->second);
                pair = apis.erase(pair);
            } else {
                serve(pair->first);
                ++pair;
            }
        }
        if (apis.empty()) {
            return;
        }
        redisplay_requested = false;
        glfwWaitEvents();
    }
}

void glfwyMGR4::serve(GLFWwindow* window) const {
    if (idle_enabled) {
        idle(window);
    }
    if (redisplay_requested) {
        display(window);
    }
}

GLFWwindow* glfwyMGR4::win(glutyAPI4* api) const {
    return windows.find(api)->second;
}

glutyAPI4* glfwyMGR4::api(GLFWwindow* window) const {
    return apis.find(window)->second;
}

void glfwyMGR4::PostRedisplay() {
    redisplay_requested = true;
    glfwPostEmptyEvent();
}

void glfwyMGR4::SwapBuffers(glutyAPI4* api) const {
    glfwSwapBuffers(win(api));
}

}  // namespace wenk
