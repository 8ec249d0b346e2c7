// SPDX-License-Identifier: MIT
// Calls GLFW.
#include "app/nativewindow.h"

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "app/windowmanager.h"
#include "utils/diagnostics.h"
#include "utils/limits.h"

namespace zanoview2::native {

namespace {

constexpr int max_window_side = static_cast<int>(libutils::limits::window_side.value);

/// Waits until the condition is true, at most 0.1 seconds.
template <typename Condition>
void await(Condition is_true) {
    using namespace std::chrono_literals;
    auto const deadline = std::chrono::steady_clock::now() + 100ms;
    while (!is_true() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(1ms);
    }
}

}  // namespace

bool start() {
    return glfwInit() == GLFW_TRUE;
}

void stop() {
    glfwTerminate();
}

libgr::direction2l_t window_size(GLFWwindow* window) {
    libgr::direction2l_t size{};
    glfwGetWindowSize(window, &size.x, &size.y);
    return size;
}

libgr::direction2l_t framebuffer_size(GLFWwindow* window) {
    libgr::direction2l_t size{};
    glfwGetFramebufferSize(window, &size.x, &size.y);
    return size;
}

libgr::position2l_t window_position(GLFWwindow* window) {
    libgr::position2l_t position{};
    glfwGetWindowPos(window, &position.x, &position.y);
    return position;
}

libgr::direction2l_t work_area() {
    int x = 0;
    int y = 0;
    libgr::direction2l_t size{};
    if (GLFWmonitor* monitor = glfwGetPrimaryMonitor()) {
        glfwGetMonitorWorkarea(monitor, &x, &y, &size.x, &size.y);
    }
    return size;
}

libgr::direction2l_t clamped_window_size(libgr::direction2l_t const& size) {
    return libgr::direction2l(std::clamp(size.x, 1, max_window_side),
                              std::clamp(size.y, 1, max_window_side));
}

void set_window_size(GLFWwindow* window, libgr::direction2l_t const& size) {
    if (size.x > max_window_side || size.y > max_window_side) {
        libutils::report_limit(libutils::limits::window_side);
    }
    libgr::direction2l_t const clamped = clamped_window_size(size);
    glfwSetWindowSize(window, clamped.x, clamped.y);
}

void set_window_position(GLFWwindow* window, libgr::position2l_t const& position) {
    glfwSetWindowPos(window, position.x, position.y);
}

void set_title(GLFWwindow* window, std::string const& title) {
    glfwSetWindowTitle(window, libutils::escape_controls(title, false).c_str());
}

void await_window_size(GLFWwindow* window, libgr::direction2l_t const& size) {
    libgr::direction2l_t const wanted = clamped_window_size(size);
    await([&] { return !(window_size(window) != wanted); });
}

void iconify(GLFWwindow* window) {
    glfwIconifyWindow(window);
    if (!is_managed(window)) {
        return;
    }
    await([&] { return glfwGetWindowAttrib(window, GLFW_ICONIFIED) == GLFW_TRUE; });
}

void restore(GLFWwindow* window) {
    glfwRestoreWindow(window);
}

bool is_shift_down(GLFWwindow* window) {
    return glfwGetKey(window, GLFW_KEY_LEFT_SHIFT) == GLFW_PRESS ||
           glfwGetKey(window, GLFW_KEY_RIGHT_SHIFT) == GLFW_PRESS;
}

}  // namespace zanoview2::native
