// SPDX-License-Identifier: MIT
// Detects a window manager by a property that it sets on its windows.
#include "app/windowmanager.h"

#include <X11/Xlib.h>

// GLFW/glfw3native.h declares these two functions, but needs the headers of further X extensions.
// They are weak because a build of GLFW for another windowing system doesn't have them.
extern "C" {
[[gnu::weak]] Display* glfwGetX11Display();
[[gnu::weak]] Window glfwGetX11Window(GLFWwindow* window);
}

namespace zanoview2::native {

bool is_managed(GLFWwindow* window) {
    Display* const display = glfwGetX11Display != nullptr ? glfwGetX11Display() : nullptr;
    if (display == nullptr) {
        return false;
    }
    Atom const state = XInternAtom(display, "WM_STATE", True);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    if (state != None) {
        XGetWindowProperty(display, glfwGetX11Window(window), state, 0, 0, False, AnyPropertyType,
                           &type, &format, &count, &left, &value);
        XFree(value);
    }
    return type != None;
}

}  // namespace zanoview2::native
