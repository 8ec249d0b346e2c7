// SPDX-License-Identifier: MIT
// Detects a window manager.
#pragma once

struct GLFWwindow;

namespace zanoview2::native {

/// Returns true if a window manager manages the window, which must be mapped. Window managers set
/// the property WM_STATE (Inter-Client Communication Conventions Manual, section 4.1.3.1). Waits
/// for one reply of the X server. Returns false on a windowing system other than X11.
bool is_managed(GLFWwindow* window);

}  // namespace zanoview2::native
