// SPDX-License-Identifier: MIT
// The functions of GLFW that the project calls.
#include "tests/support/glfw/fakeglfw.h"

#include <stdexcept>
#include <utility>

GLFWwindow* glfwCreateWindow(int width, int height, char const* title, GLFWmonitor* monitor,
                             GLFWwindow* share) {
    record_call("glfwCreateWindow", width, height, title, monitor == nullptr ? "null" : "monitor",
                share == nullptr ? "null" : share->name.c_str());
    if (!fake_glfw_t::current->can_create) {
        return nullptr;
    }
    auto& windows = fake_glfw_t::current->windows;
    windows.push_back({.name = std::string("w").append(std::to_string(windows.size() + 1)),
                       .width = width,
                       .height = height});
    return &windows.back();
}

void glfwWaitEvents() {
    record_call("glfwWaitEvents");
    fake_glfw_t& glfw = *fake_glfw_t::current;
    if (std::exchange(glfw.empty_event, false)) {
        return;
    }
    if (!glfw.script.empty()) {
        glfw.script.front()();
        return glfw.script.pop_front();
    }
    if (std::exchange(glfw.has_ended, true)) {
        throw std::runtime_error("the program waits again after the last event");
    }
    for (GLFWwindow& window : glfw.windows) {
        window.should_close = true;
    }
}

void glfwPostEmptyEvent() {
    record_call("glfwPostEmptyEvent");
    fake_glfw_t::current->empty_event = true;
}

int glfwWindowShouldClose(GLFWwindow* window) {
    return window->should_close ? GLFW_TRUE : GLFW_FALSE;
}

#define RECORD(function)                      \
    void function(GLFWwindow* window) {       \
        record_call(#function, window->name); \
    }
#define BIND(function, type, event)                    \
    type function(GLFWwindow* window, type callback) { \
        return std::exchange(window->event, callback); \
    }
#define ASK(function, type, first, second)                      \
    void function(GLFWwindow* window, type* one, type* other) { \
        *one = window->first;                                   \
        *other = window->second;                                \
    }
RECORD(glfwDestroyWindow)
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
    record_call("glfwSetWindowTitle", window->name, title);
}

void glfwSetWindowSize(GLFWwindow* window, int width, int height) {
    record_call("glfwSetWindowSize", window->name, width, height);
    if (window->width != width || window->height != height) {
        fake_glfw_t::current->fire_size(width, height);
    }
}

void glfwSetWindowPos(GLFWwindow* window, int x, int y) {
    record_call("glfwSetWindowPos", window->name, x, y);
    window->x = x;
    window->y = y;
}

int glfwGetWindowAttrib(GLFWwindow*, int) {
    throw std::runtime_error("without a window manager, no window is iconified");
}

GLFWmonitor* glfwGetPrimaryMonitor() {
    return reinterpret_cast<GLFWmonitor*>(fake_glfw_t::current);
}

void glfwGetMonitorWorkarea(GLFWmonitor*, int*, int*, int* width, int* height) {
    *width = 1920;
    *height = 1056;
}

int glfwGetKey(GLFWwindow* window, int key) {
    return window->key_down == key ? GLFW_PRESS : GLFW_RELEASE;
}
