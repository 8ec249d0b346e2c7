// SPDX-License-Identifier: MIT
// What a window reports to the application: one virtual operation an event.
#pragma once

namespace wenk {

// Sizes and positions are in the window's screen coordinates, the origin in the upper left corner.
// The window's OpenGL context is current in all of these.

/// The base interface. All bodies are empty.
class glutyAPI {
  public:
    /// The window has a new size (not that of its framebuffer). A redisplay follows.
    virtual void reshape(int width, int height);
    /// Draw. The buffers are swapped by the caller.
    virtual void display();
    /// A character key was pressed, or repeats. Letters are lower case unless Shift or Caps Lock
    /// alone is in force; other keys don't change with Shift. Escape is 27, Enter 13, Tab 9,
    /// Backspace 8, an unknown key 255.
    virtual void keyboard(unsigned char key, int x, int y);
    /// A key without a character was pressed, or repeats: GLFW's key number, 128 and above. The
    /// keypad's digits come as the keys that share their caps, its 5 as 255.
    virtual void specialkey(int key, int x, int y);
    /// Button 0 is left, 1 middle, 2 right; state 0 is down, 1 up.
    virtual void mouse(int button, int state, int x, int y);
    /// The cursor moved, with a button down or not.
    virtual void motion(int x, int y);
    /// Never called.
    virtual void passivemotion(int x, int y);
    /// Once a wake-up of the event loop, while it is switched on.
    virtual void idle();
    /// Once, when the window is up.
    virtual void init();
    virtual ~glutyAPI();

    glutyAPI() = default;
    glutyAPI(glutyAPI const&) = delete;
    glutyAPI& operator=(glutyAPI const&) = delete;
};

/// The interface with key releases, wheels and dropped files. All bodies are empty.
class glutyAPI4 : public glutyAPI {
  public:
    virtual void keyboardup(unsigned char key, int x, int y);
    virtual void specialkeyup(int key, int x, int y);
    /// `direction` is +1 forward, -1 back, or 0. Wheels count from 0.
    virtual void mousewheel(int wheel, int direction, int x, int y);
    /// `count` paths were dropped on the window; they are the caller's and end with the call.
    virtual void drop(int count, char const** paths);
};

}  // namespace wenk
