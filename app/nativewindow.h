// SPDX-License-Identifier: MIT
// Sizes, positions, titles and other properties of a GLFW window.
#pragma once

#include <string>

#include "geometry/vector.h"

struct GLFWwindow;

/// Call all functions from the main thread, `start` first. Windows belong to the caller, who
/// creates them with GLFW. They must be visible.
namespace zanoview2::native {

/// Initializes GLFW. Returns false on failure, for example if there is no display.
bool start();
/// Destroys all windows and terminates GLFW.
void stop();

/// Returns the window's size in screen coordinates.
libgr::direction2l_t window_size(GLFWwindow* window);
/// Returns the framebuffer's size in pixels.
libgr::direction2l_t framebuffer_size(GLFWwindow* window);
/// Returns the position of the window's upper left corner in screen coordinates.
libgr::position2l_t window_position(GLFWwindow* window);
/// Returns the size, in screen coordinates, of the primary monitor without its panels, or 0, 0 if
/// there is no monitor.
libgr::direction2l_t work_area();

/// Returns the nearest size that a window can have. A side is at least 1, because the X server
/// rejects 0 with an error that ends the program, and at most the limit window-side
/// (utils/limits.h).
libgr::direction2l_t clamped_window_size(libgr::direction2l_t const& size);

/// Requests a window size in screen coordinates, clamped by `clamped_window_size`. Prints an error
/// line if a side exceeds the limit window-side. The window manager changes the size after this
/// call, and may ignore the request; see `await_window_size`.
void set_window_size(GLFWwindow* window, libgr::direction2l_t const& size);
/// Requests a position of the window's upper left corner, in screen coordinates.
void set_window_position(GLFWwindow* window, libgr::position2l_t const& position);
/// Sets the title, which is in UTF-8. Control characters are escaped.
void set_title(GLFWwindow* window, std::string const& title);

/// Waits until the window has the size that was requested, at most 0.1 seconds. Call it after
/// `set_window_size` and before a picture is fitted into the window.
void await_window_size(GLFWwindow* window, libgr::direction2l_t const& size);

/// Iconifies the window. Waits until it is iconified, at most 0.1 seconds, because a window manager
/// ignores a request to restore a window that isn't iconified yet. Doesn't wait if there is no
/// window manager (`is_managed` in app/windowmanager.h).
void iconify(GLFWwindow* window);
/// Restores an iconified window.
void restore(GLFWwindow* window);

/// Returns true if a Shift key is down.
bool is_shift_down(GLFWwindow* window);

}  // namespace zanoview2::native
