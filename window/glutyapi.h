// SPDX-License-Identifier: MIT
// The interface that receives the events of a window: one virtual function for each event.
#pragma once

/// An application that ends with the Escape key:
///
/// ```cpp
/// #include "window/glfwymgr4.h"
///
/// struct application_t : wenk::glutyAPI4 {
///     void keyboard(unsigned char key, int, int) override {
///         if (key == 27) {
///             wenk::glfwyMGR4::getSingleton()->Exit();
///         }
///     }
/// };
/// ```

namespace wenk {

/// The basic events. The default implementations do nothing.
///
/// The functions are called on the main thread, with the window's OpenGL context current, and must
/// not throw. Sizes and positions are in GLFW's screen coordinates, positions from the upper left
/// corner of the window. `x` and `y` are the position of the cursor.
class glutyAPI {
  public:
    /// The size of the window has changed. `display` is called later. A new window gets no call if
    /// it keeps its size. glfwGetFramebufferSize returns the size in pixels, which may differ.
    virtual void reshape(int width, int height);
    /// Draws the window. The caller swaps the buffers afterwards. Called after `PostRedisplay`, and
    /// when the system has lost the content of the window. The first call may not come without a
    /// request, so call `PostRedisplay` in `init`.
    virtual void display();
    /// A key with a character was pressed, or repeats (see `glfwyMGR4::KeyRepeat`). `key` is ASCII:
    ///
    ///     A            'a'; 'A' with Shift or Caps Lock; 'a' with both
    ///     1            '1', also with Shift; all keys except letters ignore Shift
    ///     keypad       '.', '/', '*', '-', '+', '=', Enter; see `specialkey` for its digits
    ///     other keys   Escape 27, Enter 13, Tab 9, Backspace 8, unknown to GLFW 255
    ///
    /// Keys have the characters of the US layout on all keyboards, as in GLFW: to read text, set
    /// glfwSetCharCallback. GLFW reports Caps Lock only in its input mode GLFW_LOCK_KEY_MODS.
    virtual void keyboard(unsigned char key, int x, int y);
    /// A key without a character was pressed, or repeats. `key` is GLFW's number of the key, for
    /// example GLFW_KEY_LEFT. The digits of the keypad are reported as its navigation keys, 7 as
    /// GLFW_KEY_HOME, and 5 as 255.
    virtual void specialkey(int key, int x, int y);
    /// A button was pressed (`state` 0) or released (`state` 1). Button 0 is left, 1 middle, 2
    /// right.
    virtual void mouse(int button, int state, int x, int y);
    /// The cursor was moved, with or without a pressed button.
    virtual void motion(int x, int y);
    /// Never called: `motion` reports all movements.
    virtual void passivemotion(int x, int y);
    /// The event loop is about to draw or to sleep. See `glfwyMGR4::IdleOn`.
    virtual void idle();
    /// The window was created. Called once, by `glfwyMGR4::addWindow`.
    virtual void init();
    virtual ~glutyAPI();

    glutyAPI() = default;
    glutyAPI(glutyAPI const&) = delete;
    glutyAPI& operator=(glutyAPI const&) = delete;
};

/// The base class of applications. Adds the events of released keys, wheels and dropped files. The
/// default implementations do nothing.
class glutyAPI4 : public glutyAPI {
  public:
    /// A key was released. See `keyboard` for the arguments, which depend on Shift at this time.
    virtual void keyboardup(unsigned char key, int x, int y);
    /// A key was released. See `specialkey` for the arguments.
    virtual void specialkeyup(int key, int x, int y);
    /// A wheel was turned. Each scroll event of GLFW causes one call, even if its offset is not 1.
    /// `direction` is 1 away from the user, -1 towards the user, and 0 for a horizontal movement.
    ///
    /// The main wheel is 0. A press of GLFW_MOUSE_BUTTON_4 is reported as wheel 0, direction 1, and
    /// of button 5 as direction -1. Buttons 6 and 7 are wheel 1, and so on.
    virtual void mousewheel(int wheel, int direction, int x, int y);
    /// Files were dropped on the window. The `count` paths in UTF-8 are valid only during the call.
    virtual void drop(int count, char const** paths);
};

}  // namespace wenk
