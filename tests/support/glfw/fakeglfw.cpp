// SPDX-License-Identifier: MIT
// The functions of GLFW that the project calls.
#include "tests/support/glfw/fakeglfw.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace {

GLFWwindow& live(GLFWwindow* window) {
    EXPECT_FALSE(window->destroyed) << window->name << " is used after it was destroyed";
    return *window;
}

}  // namespace

std::string fake_glfw_t::take_calls(std::string const& prefix) {
    std::string text;
    for (std::string const& line : std::exchange(calls, {})) {
        text += line.starts_with(prefix) ? line + "\n" : "";
    }
    return text;
}

void fake_glfw_t::fire_key(int key, int action, int mods) {
    window().keys_down.erase(key);
    if (action != GLFW_RELEASE) {
        window().keys_down.insert(key);
    }
    fire(&GLFWwindow::key, key, 0, action, mods);
}

void fake_glfw_t::fire_cursor(double x, double y) {
    window().cursor_x = x;
    window().cursor_y = y;
    fire(&GLFWwindow::cursor, x, y);
}

void fake_glfw_t::fire_size(int width, int height) {
    window().width = width;
    window().height = height;
    fire(&GLFWwindow::size, width, height);
}

void fake_glfw_t::fire_drop(std::vector<char const*> paths) {
    fire(&GLFWwindow::drop, static_cast<int>(paths.size()), paths.data());
}

GLFWwindow* glfwCreateWindow(int width, int height, char const* title, GLFWmonitor* monitor,
                             GLFWwindow* share) {
    record_call("glfwCreateWindow", width, height, title, monitor == nullptr ? "null" : "monitor",
                share == nullptr ? "null" : share->name.c_str());
    if (!fake_glfw_t::current->can_create) {
        return nullptr;
    }
    auto& windows = fake_glfw_t::current->windows;
    GLFWwindow& window = windows.emplace_back();
    window.name.append("w").append(std::to_string(windows.size()));
    window.title = title;
    window.width = width;
    window.height = height;
    return &window;
}

void glfwDestroyWindow(GLFWwindow* window) {
    record_call("glfwDestroyWindow", live(window).name);
    window->destroyed = true;
}

void glfwWaitEvents() {
    record_call("glfwWaitEvents");
    fake_glfw_t& glfw = *fake_glfw_t::current;
    if (std::exchange(glfw.empty_event, false)) {
        return;
    }
    if (!glfw.script.empty()) {
        auto const step = std::move(glfw.script.front());
        glfw.script.pop_front();
        return step();
    }
    for (GLFWwindow& window : glfw.windows) {
        if (std::exchange(window.should_close, true) && !window.destroyed) {
            throw std::runtime_error("the program waits again after the last event");
        }
    }
}

void glfwPostEmptyEvent() {
    record_call("glfwPostEmptyEvent");
    fake_glfw_t::current->empty_event = true;
}

int glfwWindowShouldClose(GLFWwindow* window) {
    return live(window).should_close ? GLFW_TRUE : GLFW_FALSE;
}

// Functions that are only recorded, that set a callback, and that return two numbers.
#define RECORD(function)                           \
    void function(GLFWwindow* window) {            \
        record_call(#function, live(window).name); \
    }
#define BIND(function, type, event)                    \
    type function(GLFWwindow* window, type callback) { \
        record_call(#function, live(window).name);     \
        return std::exchange(window->event, callback); \
    }
#define ASK(function, type, first, second)                      \
    void function(GLFWwindow* window, type* one, type* other) { \
        *one = live(window).first;                              \
        *other = window->second;                                \
    }
RECORD(glfwMakeContextCurrent)
RECORD(glfwSwapBuffers)
RECORD(glfwIconifyWindow)
RECORD(glfwRestoreWindow)
BIND(glfwSetWindowRefreshCallback, GLFWwindowrefreshfun, refresh)
BIND(glfwSetWindowSizeCallback, GLFWwindowsizefun, size)
BIND(glfwSetKeyCallback, GLFWkeyfun, key)
BIND(glfwSetMouseButtonCallback, GLFWmousebuttonfun, button)
BIND(glfwSetScrollCallback, GLFWscrollfun, scroll)
BIND(glfwSetCursorPosCallback, GLFWcursorposfun, cursor)
BIND(glfwSetDropCallback, GLFWdropfun, drop)
ASK(glfwGetWindowSize, int, width, height)
ASK(glfwGetFramebufferSize, int, width * window->pixel_ratio, height * window->pixel_ratio)
ASK(glfwGetWindowPos, int, x, y)
ASK(glfwGetCursorPos, double, cursor_x, cursor_y)

void glfwSetWindowTitle(GLFWwindow* window, char const* title) {
    record_call("glfwSetWindowTitle", live(window).name, title);
    window->title = title;
}

void glfwSetWindowSize(GLFWwindow* window, int width, int height) {
    record_call("glfwSetWindowSize", live(window).name, width, height);
    if (window->width != width || window->height != height) {
        window->width = width;
        window->height = height;
        window->size(window, width, height);
    }
}

void glfwSetWindowPos(GLFWwindow* window, int x, int y) {
    record_call("glfwSetWindowPos", live(window).name, x, y);
    window->x = x;
    window->y = y;
}

int glfwGetWindowAttrib(GLFWwindow*, int) {
    return GLFW_TRUE;  // iconified
}

GLFWmonitor* glfwGetPrimaryMonitor() {
    return reinterpret_cast<GLFWmonitor*>(fake_glfw_t::current);
}

void glfwGetMonitorWorkarea(GLFWmonitor*, int*, int*, int* width, int* height) {
    *width = 1920;
    *height = 1056;
}

int glfwGetKey(GLFWwindow* window, int key) {
    return live(window).keys_down.contains(key) ? GLFW_PRESS : GLFW_RELEASE;
}
