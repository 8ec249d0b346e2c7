// SPDX-License-Identifier: MIT
// A fake of GLFW without a screen or an OpenGL context. Tests send events and read the calls.
#pragma once

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <deque>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

struct GLFWwindow {
    std::string name;  ///< in the order of creation: "w1", "w2" and so on
    int x = 100, y = 80, width = 0, height = 0;
    int pixel_ratio = 1;  ///< framebuffer pixels for each unit of `width` and `height`
    double cursor_x = 0.0, cursor_y = 0.0;
    int key_down = 0;
    bool should_close = false;
    GLFWwindowrefreshfun refresh = nullptr;
    GLFWwindowsizefun size = nullptr;
    GLFWkeyfun key = nullptr;
    GLFWmousebuttonfun button = nullptr;
    GLFWscrollfun scroll = nullptr;
    GLFWcursorposfun cursor = nullptr;
    GLFWdropfun drop = nullptr;
};

/// The state of GLFW after glfwInit. glfwWaitEvents returns if an empty event was posted, or runs
/// the next function of `script`. At the script's end, it sets the close flag of all windows.
struct fake_glfw_t {
    fake_glfw_t() { current = this; }
    fake_glfw_t& operator=(fake_glfw_t&&) = delete;
    ~fake_glfw_t() { current = nullptr; }

    bool can_create = true;
    bool empty_event = false;
    bool has_ended = false;
    std::deque<std::function<void()>> script;
    std::vector<std::string> calls;  ///< those that change something: "glfwSwapBuffers(w1)"
    std::deque<GLFWwindow> windows;

    std::string take_calls() {
        std::string text;
        for (std::string const& line : std::exchange(calls, {})) {
            text += line + "\n";
        }
        return text;
    }

    GLFWwindow& window(std::size_t index = 0) { return windows.at(index); }

    /// Calls a callback of the first window, for example `fire(&GLFWwindow::scroll, 0.0, 1.0)`.
    template <typename F, typename... T>
    void fire(F GLFWwindow::*event, T... arguments) {
        (window().*event)(&window(), arguments...);
    }

    void fire_key(int key, int action, int mods = 0) {
        fire(&GLFWwindow::key, key, 0, action, mods);
    }
    void fire_cursor(double x, double y) {
        window().cursor_x = x;
        window().cursor_y = y;
        fire(&GLFWwindow::cursor, x, y);
    }
    void fire_size(int width, int height) {
        window().width = width;
        window().height = height;
        fire(&GLFWwindow::size, width, height);
    }
    void fire_drop(std::vector<char const*> paths) {
        fire(&GLFWwindow::drop, static_cast<int>(paths.size()), paths.data());
    }

    static inline fake_glfw_t* current = nullptr;
};

template <typename... T>
void record_call(char const* function, T const&... arguments) {
    std::ostringstream line;
    [[maybe_unused]] char const* separator = "";
    line << function << "(";
    ((line << separator << arguments, separator = ", "), ...);
    fake_glfw_t::current->calls.push_back(line.str() + ")");
}
