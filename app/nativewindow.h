// SPDX-License-Identifier: MIT
// The calls that the application makes on the windowing library itself: sizes, places, titles.
//
// Every function that takes a window needs it to be up; all run on the main thread.
#pragma once

#include <string>

#include "geometry/vector.h"

struct GLFWwindow;

namespace zanoview2::native {

/// Starts the windowing library; false when there is no display to start on.
bool start();
/// Ends the windowing library; every window that still stands goes with it.
void stop();

/// The window's size in screen coordinates.
libgr::direction2l_t window_size(GLFWwindow* window);
/// The size of what OpenGL draws into, in pixels.
libgr::direction2l_t framebuffer_size(GLFWwindow* window);
/// The place of the window's upper left corner on the virtual screen.
libgr::position2l_t window_position(GLFWwindow* window);
/// The size of the primary monitor's area that no panel covers; 0, 0 without a monitor.
libgr::direction2l_t work_area();

/// Returns the nearest size that a window can have: each side from 1, because a side of 0 ends an X
/// program, to the limit window-side (utils/limits.h).
libgr::direction2l_t possible_window_size(libgr::direction2l_t const& size);

/// Requests a window size in screen coordinates, or the nearest that a window can have. Prints an
/// error line if a side exceeds the limit window-side. A window manager may grant the size later or
/// not at all.
void set_window_size(GLFWwindow* window, libgr::direction2l_t const& size);
void set_window_position(GLFWwindow* window, libgr::position2l_t const& position);
/// Sets the title, which is UTF-8. Control characters are shown escaped.
void set_title(GLFWwindow* window, std::string const& title);

/// Waits until the window has the size that was just asked for, at most a tenth of a second: a
/// window manager answers late, and what is fitted into the window needs the size it will have.
void await_window_size(GLFWwindow* window, libgr::direction2l_t const& size);

/// Iconifies the window. Under a window manager, waits until the window is iconified, at most a
/// tenth of a second: a request to restore it that arrives earlier is lost, and the window stays
/// iconified. Without a window manager, takes one reply of the X server at most.
void iconify(GLFWwindow* window);
/// Brings the window up again.
void restore(GLFWwindow* window);

/// True while a Shift key is held down.
bool is_shift_down(GLFWwindow* window);

}  // namespace zanoview2::native
