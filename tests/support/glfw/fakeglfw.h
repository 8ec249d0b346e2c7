// SPDX-License-Identifier: MIT
// A fake of GLFW without a screen or an OpenGL context. Tests send events and read the calls.
#pragma once

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <deque>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

/// The state of a window. It can still be read after the window was destroyed.
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

/// The state of GLFW after glfwInit. Create it before other calls; GLFW's functions use it until it
/// is destroyed. The work area is 1920 by 1056.
///
/// glfwSetWindowSize changes the size and calls the size callback before it returns. glfwWaitEvents
/// never blocks: it returns if an empty event was posted, or runs the next function of `script`. At
/// the script's end, it sets the close flag of all windows. If the program then waits again with
/// open windows, it throws.
struct fake_glfw_t {
    fake_glfw_t() { current = this; }
    fake_glfw_t& operator=(fake_glfw_t&&) = delete;
    ~fake_glfw_t() { current = nullptr; }

    bool can_create = true;
    bool empty_event = false;
    std::deque<std::function<void()>> script;

    /// A line for each call that changes something, like "glfwSetWindowSize(w1, 800, 600)".
    std::vector<std::string> calls;
    std::deque<GLFWwindow> windows;

    /// Returns and forgets the calls, a line for each one that starts with `prefix`.
    std::string take_calls(std::string const& prefix = "");

    GLFWwindow& window(std::size_t index = 0) { return windows.at(index); }

    /// Calls a callback of the first window, for example `fire(&GLFWwindow::scroll, 0.0, 1.0)`.
    template <typename F, typename... T>
    void fire(F GLFWwindow::*event, T... arguments) {
        if (window().*event != nullptr) {
            (window().*event)(&window(), arguments...);
        }
    }

    // Change the state of the first window and call its callback.
    void fire_key(int key, int action, int mods = 0);
    void fire_cursor(double x, double y);
    void fire_size(int width, int height);
    void fire_drop(std::vector<char const*> paths);

    static inline fake_glfw_t* current = nullptr;
};

/// Adds a line to the calls. Tests add the calls of their own callbacks.
template <typename... T>
void record_call(char const* function, T const&... arguments) {
    std::ostringstream line;
    [[maybe_unused]] char const* separator = "";
    line << function << "(";
    ((line << separator << arguments, separator = ", "), ...);
    fake_glfw_t::current->calls.push_back(line.str() + ")");
}
