// SPDX-License-Identifier: MIT
// A stand-in for GLFW: the functions that the system calls, over one scripted state.
#include "tests/support/glfw/fakeglfw.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <utility>

namespace {

fake_glfw_t* s_fake = nullptr;

GLFWwindow& live(GLFWwindow* window) {
    EXPECT_FALSE(window->destroyed) << window->name << " is used after its end";
    return *window;
}

template <typename... T>
void record(char const* function, T const&... arguments) {
    std::ostringstream line;
    [[maybe_unused]] char const* separator = "";
    line << function << "(";
    ((line << separator << arguments, separator = ", "), ...);
    s_fake->calls.push_back(line.str() + ")");
}

}  // namespace

fake_glfw_t::fake_glfw_t() {
    s_fake = this;
}

fake_glfw_t::~fake_glfw_t() {
    s_fake = nullptr;
}

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

int glfwInit() {
    record("glfwInit");
    return s_fake->can_start ? GLFW_TRUE : GLFW_FALSE;
}

void glfwTerminate() {
    record("glfwTerminate");
    for (auto const& window : s_fake->windows) {
        window->destroyed = true;
    }
}

GLFWwindow* glfwCreateWindow(int width, int height, char const* title, GLFWmonitor* monitor,
                             GLFWwindow* share) {
    record("glfwCreateWindow", width, height, title, monitor == nullptr ? "null" : "monitor",
           share == nullptr ? "null" : share->name.c_str());
    if (!s_fake->can_create) {
        return nullptr;
    }
    auto& windows = s_fake->windows;
    GLFWwindow& window = *windows.emplace_back(std::make_unique<GLFWwindow>());
    window.name.push_back('w');
    window.name += std::to_string(windows.size());
    window.title = title;
    window.width = width;
    window.height = height;
    return &window;
}

void glfwDestroyWindow(GLFWwindow* window) {
    record("glfwDestroyWindow", live(window).name);
    window->destroyed = true;
}

void glfwMakeContextCurrent(GLFWwindow* window) {
    record("glfwMakeContextCurrent", window == nullptr ? "null" : live(window).name.c_str());
}

void glfwSwapBuffers(GLFWwindow* window) {
    record("glfwSwapBuffers", live(window).name);
}

void glfwWaitEvents() {
    record("glfwWaitEvents");
    for (auto const& arrive : std::exchange(s_fake->sizes_under_way, {})) {
        arrive();
    }
    if (std::exchange(s_fake->empty_event, false)) {
        return;
    }
    if (!s_fake->script.empty()) {
        auto const step = std::move(s_fake->script.front());
        s_fake->script.pop_front();
        step();
        return;
    }
    for (auto const& window : s_fake->windows) {
        window->should_close = true;
    }
    if (++s_fake->waits_past_script > 100) {
        std::cerr << "the program goes on waiting behind its last event" << std::endl;
        std::abort();
    }
}

void glfwPostEmptyEvent() {
    record("glfwPostEmptyEvent");
    s_fake->empty_event = true;
}

int glfwWindowShouldClose(GLFWwindow* window) {
    return live(window).should_close ? GLFW_TRUE : GLFW_FALSE;
}

#define BIND(function, type, event)                    \
    type function(GLFWwindow* window, type callback) { \
        record(#function, live(window).name);          \
        return std::exchange(window->event, callback); \
    }
BIND(glfwSetWindowRefreshCallback, GLFWwindowrefreshfun, refresh)
BIND(glfwSetWindowSizeCallback, GLFWwindowsizefun, size)
BIND(glfwSetKeyCallback, GLFWkeyfun, key)
BIND(glfwSetMouseButtonCallback, GLFWmousebuttonfun, button)
BIND(glfwSetScrollCallback, GLFWscrollfun, scroll)
BIND(glfwSetCursorPosCallback, GLFWcursorposfun, cursor)
BIND(glfwSetDropCallback, GLFWdropfun, drop)
#undef BIND

void glfwSetWindowTitle(GLFWwindow* window, char const* title) {
    record("glfwSetWindowTitle", live(window).name, title);
    window->title = title;
}

void glfwGetWindowSize(GLFWwindow* window, int* width, int* height) {
    *width = live(window).width;
    *height = window->height;
}

void glfwSetWindowSize(GLFWwindow* window, int width, int height) {
    record("glfwSetWindowSize", live(window).name, width, height);
    if (window->width == width && window->height == height) {
        return;
    }
    auto const arrive = [window, width, height] {
        window->width = width;
        window->height = height;
        if (window->size != nullptr && !window->destroyed) {
            window->size(window, width, height);
        }
    };
    s_fake->sizes_at_once ? arrive() : s_fake->sizes_under_way.push_back(arrive);
}

void glfwGetWindowPos(GLFWwindow* window, int* x, int* y) {
    *x = live(window).x;
    *y = window->y;
}

void glfwSetWindowPos(GLFWwindow* window, int x, int y) {
    record("glfwSetWindowPos", live(window).name, x, y);
    window->x = x;
    window->y = y;
}

void glfwGetFramebufferSize(GLFWwindow* window, int* width, int* height) {
    *width = live(window).width * window->pixel_ratio;
    *height = window->height * window->pixel_ratio;
}

void glfwIconifyWindow(GLFWwindow* window) {
    record("glfwIconifyWindow", live(window).name);
}

int glfwGetWindowAttrib(GLFWwindow*, int) {
    return GLFW_TRUE;  // iconified, as it was told to be
}

void glfwRestoreWindow(GLFWwindow* window) {
    record("glfwRestoreWindow", live(window).name);
}

GLFWmonitor* glfwGetPrimaryMonitor() {
    static char monitor;
    return s_fake->has_monitor ? reinterpret_cast<GLFWmonitor*>(&monitor) : nullptr;
}

void glfwGetMonitorWorkarea(GLFWmonitor*, int* x, int* y, int* width, int* height) {
    *x = s_fake->area_x;
    *y = s_fake->area_y;
    *width = s_fake->area_width;
    *height = s_fake->area_height;
}

void glfwGetCursorPos(GLFWwindow* window, double* x, double* y) {
    *x = live(window).cursor_x;
    *y = window->cursor_y;
}

int glfwGetKey(GLFWwindow* window, int key) {
    return live(window).keys_down.contains(key) ? GLFW_PRESS : GLFW_RELEASE;
}
