// SPDX-License-Identifier: MIT
// A stand-in for GLFW: no screen, no context; tests script the events and read the calls.
#pragma once

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <deque>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

/// One window, open to the test. A destroyed window's record stays.
struct GLFWwindow {
    std::string name;  ///< "w1", "w2" and so on in the order of creation, as the calls name it
    std::string title;
    int x = 100, y = 80, width = 0, height = 0;
    int pixel_ratio = 1;  ///< framebuffer pixels for each unit of `width` and `height`
    double cursor_x = 0.0, cursor_y = 0.0;
    std::set<int> keys_down;
    bool should_close = false;
    bool destroyed = false;
    GLFWwindowrefreshfun refresh = nullptr;
    GLFWwindowsizefun size = nullptr;
    GLFWkeyfun key = nullptr;
    GLFWmousebuttonfun button = nullptr;
    GLFWscrollfun scroll = nullptr;
    GLFWcursorposfun cursor = nullptr;
    GLFWdropfun drop = nullptr;
};

/// The library's whole state behind glfwInit, with a work area of 1920 by 1056. A test makes one
/// first; GLFW's functions act on it until its block ends. A size that the program sets arrives,
/// with its event, within the call. glfwWaitEvents never blocks: it returns for an empty event that
/// was posted, or runs the next step of the script. When the script has run out it sets the close
/// flag of all windows; a program that waits with open windows after that gets an exception.
struct fake_glfw_t {
    fake_glfw_t() { current = this; }
    fake_glfw_t& operator=(fake_glfw_t&&) = delete;
    ~fake_glfw_t() { current = nullptr; }

    bool can_create = true;
    bool empty_event = false;
    std::deque<std::function<void()>> script;

    /// One line for each call that is no mere question: "glfwSetWindowSize(w1, 800, 600)".
    std::vector<std::string> calls;
    std::deque<GLFWwindow> windows;

    /// The calls since the last time, one a line; only those that begin with `prefix`.
    std::string take_calls(std::string const& prefix = "");

    GLFWwindow& window(std::size_t index = 0) { return windows.at(index); }

    /// Reports an event as it stands, like `fire(&GLFWwindow::scroll, 0.0, 1.0)`.
    template <typename F, typename... T>
    void fire(F GLFWwindow::*event, T... arguments) {
        if (window().*event != nullptr) {
            (window().*event)(&window(), arguments...);
        }
    }

    // Events of the first window that change its state before the program hears of them.
    void fire_key(int key, int action, int mods = 0);
    void fire_cursor(double x, double y);
    void fire_size(int width, int height);
    void fire_drop(std::vector<char const*> paths);

    static inline fake_glfw_t* current = nullptr;
};

/// Puts a line among the calls; tests do so with what is reported to them.
template <typename... T>
void record_call(char const* function, T const&... arguments) {
    std::ostringstream line;
    [[maybe_unused]] char const* separator = "";
    line << function << "(";
    ((line << separator << arguments, separator = ", "), ...);
    fake_glfw_t::current->calls.push_back(line.str() + ")");
}
