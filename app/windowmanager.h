// SPDX-License-Identifier: MIT
// Detects the window manager that looks after a window.
#pragma once

struct GLFWwindow;

namespace zanoview2::native {

/// Returns true if a window manager manages the window, which must be mapped. It then has the
/// property WM_STATE (Inter-Client Communication Conventions Manual, section 4.1.3.1). Takes one
/// reply of the X server. Returns false on a windowing system other than X11.
bool is_managed(GLFWwindow* window);

}  // namespace zanoview2::native
