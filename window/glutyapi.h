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
/// All calls come from the main thread, with the window's OpenGL context current. Sizes and
/// positions are in GLFW's screen coordinates, relative to the upper left corner of the window. `x`
/// and `y` are the position of the cursor.
class glutyAPI {
  public:
    /// The window was resized. The size of its framebuffer may differ. The window is drawn
    /// afterwards.
    virtual void reshape(int width, int height);
    /// Draws the window. The caller swaps the buffers afterwards.
    virtual void display();
    /// A key with a character was pressed, or repeats. A letter is upper case if either Shift or
    /// Caps Lock is on (GLFW reports Caps Lock only with GLFW_LOCK_KEY_MODS). Other characters
    /// don't depend on Shift: Shift and 1 is '1'. Escape is 27, Enter 13, Tab 9, Backspace 8, and a
    /// key that GLFW doesn't know is 255.
    virtual void keyboard(unsigned char key, int x, int y);
    /// A key without a character was pressed, or repeats. `key` is GLFW's number of the key, for
    /// example GLFW_KEY_LEFT. The digits of the keypad are reported as the keys that are printed on
    /// their caps, 7 as GLFW_KEY_HOME, and 5 as 255.
    virtual void specialkey(int key, int x, int y);
    /// A button was pressed (`state` 0) or released (`state` 1). Button 0 is left, 1 middle, 2
    /// right.
    virtual void mouse(int button, int state, int x, int y);
    /// The cursor was moved, with or without a pressed button.
    virtual void motion(int x, int y);
    /// Never called: `motion` reports all movements.
    virtual void passivemotion(int x, int y);
    /// The event loop was woken up. See `glfwyMGR4::IdleOn`.
    virtual void idle();
    /// The window was created. Called once.
    virtual void init();
    virtual ~glutyAPI();

    glutyAPI() = default;
    glutyAPI(glutyAPI const&) = delete;
    glutyAPI& operator=(glutyAPI const&) = delete;
};

/// Adds key releases, wheels and dropped files. The default implementations do nothing.
class glutyAPI4 : public glutyAPI {
  public:
    /// A key was released. See `keyboard` for the arguments.
    virtual void keyboardup(unsigned char key, int x, int y);
    /// A key was released. See `specialkey` for the arguments.
    virtual void specialkeyup(int key, int x, int y);
    /// A wheel was turned by one step: `direction` is 1 away from the user, -1 towards the user,
    /// and 0 for a horizontal movement. The main wheel is 0. Mouse buttons 4 and 5 are reported as
    /// steps of wheel 0, buttons 6 and 7 as steps of wheel 1, and so on.
    virtual void mousewheel(int wheel, int direction, int x, int y);
    /// Files were dropped on the window. The array of `count` paths is valid only during the call.
    virtual void drop(int count, char const** paths);
};

}  // namespace wenk
