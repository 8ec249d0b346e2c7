// SPDX-License-Identifier: MIT
// The windows and the event loop, on top of GLFW 3.
#pragma once

/// Shows a window until the user closes it or the application calls `Exit`:
///
/// ```cpp
/// #include <GLFW/glfw3.h>
///
/// #include "window/glfwymgr4.h"
///
/// void run(wenk::glutyAPI4& application) {
///     glfwInit();
///     wenk::glfwyMGR4* const manager = wenk::glfwyMGR4::getSingleton();
///     manager->addWindow(&application, "title");
///     manager->MainLoop();
///     glfwTerminate();
/// }
/// ```
///
/// The order of calls is: glfwInit, glfwWindowHint if needed, `addWindow` for each window,
/// `MainLoop`, glfwTerminate. All calls must come from the main thread. None prints a message:
/// GLFW reports errors to glfwSetErrorCallback.

#include <map>

#include "window/glutyapi.h"
#include "window/singleton.h"

struct GLFWwindow;

namespace wenk {

/// Owns the windows and runs the event loop. The loop sleeps until an event arrives, and draws only
/// on request. The library creates the only instance, which exists during all of `main`.
class glfwyMGR4 : public singleton<glfwyMGR4> {
  public:
    /// Creates a window of 640 by 480 screen coordinates and its OpenGL context, with the current
    /// window hints. Makes the context current, and calls `api->init()`, which may call `win`.
    ///
    /// Returns null if `api` is null or if GLFW can't create the window. `init` isn't called then,
    /// and the current context doesn't change.
    ///
    /// `api` receives the events of this one window. It isn't owned and must stay valid until the
    /// window is destroyed. It isn't notified then: set glfwSetWindowCloseCallback if you need it.
    /// Don't set the callbacks of the events in glutyAPI and glutyAPI4.
    GLFWwindow* addWindow(glutyAPI4* api, char const* title);

    /// Handles events until `Exit` is called or the user has closed all windows.
    ///
    /// A window is destroyed when the user closes it. After `Exit`, the other windows exist until
    /// glfwTerminate. Without windows, and in each call after `Exit`, the function returns at once.
    void MainLoop();

    /// Returns the window of `api`. The window must exist.
    GLFWwindow* win(glutyAPI4* api) const;
    /// Returns the application object of `window`. The window must exist.
    glutyAPI4* api(GLFWwindow* window) const;

    /// Makes this and each further call of `MainLoop` return after the current events. From `idle`
    /// or `display`, call `PostRedisplay`, too: otherwise the loop waits for another event.
    void Exit() { exit_requested = true; }

    /// Requests that the loop draws all windows after the current events. Several requests result
    /// in one drawing. To draw continuously, call it in `idle`: the loop clears a request from
    /// `display` after it has drawn.
    void PostRedisplay();

    /// Swaps the buffers of the window of `api`. Call it only after your own call of `display`.
    void SwapBuffers(glutyAPI4* api) const;

    /// Enables or disables key repeat: repeated calls of `keyboard` or `specialkey` for a key that
    /// is held down. Initially disabled.
    void KeyRepeat(bool on) { key_repeat = on; }
    bool isKeyRepeat() const { return key_repeat; }

    /// Enable and disable the calls of `idle`. The loop calls it once for each window before it
    /// draws and sleeps. Initially enabled.
    void IdleOn() { idle_enabled = true; }
    void IdleOff() { idle_enabled = false; }

  private:
    void serve(GLFWwindow* window) const;

    std::map<GLFWwindow*, glutyAPI4*> apis;
    std::map<glutyAPI4*, GLFWwindow*> windows;
    bool exit_requested = false;
    bool idle_enabled = true;
    bool key_repeat = false;
    bool redisplay_requested = false;
};

}  // namespace wenk
