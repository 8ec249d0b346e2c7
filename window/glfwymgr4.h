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
/// `MainLoop`, glfwTerminate. All calls must come from the main thread.

#include <map>

#include "window/glutyapi.h"
#include "window/singleton.h"

struct GLFWwindow;

namespace wenk {

/// Owns the windows and runs the event loop. The loop sleeps until an event arrives, and draws only
/// on request. The library has one instance, from before `main` to the end of the process.
class glfwyMGR4 : public singleton<glfwyMGR4> {
  public:
    /// Creates a window of 640 by 480 screen coordinates and its OpenGL context, with the current
    /// window hints. Sends its events to `api`, makes the context current and calls `api->init()`,
    /// in which `win` can be used.
    ///
    /// Returns null if `api` is null or if GLFW can't create the window. `api` isn't owned and must
    /// stay valid until the window is destroyed.
    GLFWwindow* addWindow(glutyAPI4* api, char const* title);

    /// Handles events until `Exit` is called or the user has closed all windows.
    ///
    /// A window is destroyed when the user closes it. After `Exit` the open windows aren't
    /// destroyed; glfwTerminate destroys them.
    void MainLoop();

    /// Returns the window of `api`. The window must exist.
    GLFWwindow* win(glutyAPI4* api) const;
    /// Returns the application object of `window`. The window must exist.
    glutyAPI4* api(GLFWwindow* window) const;

    /// Makes `MainLoop` return. It returns after the current event, or after the next one if no
    /// event is being handled.
    void Exit() { exit_requested = true; }

    /// Requests that the loop draws all windows after the current events. Several requests result
    /// in one drawing. The loop forgets all requests after it has drawn, also one from `display`.
    void PostRedisplay();

    /// Swaps the buffers of the window of `api`. Only code that calls `display` itself needs it.
    void SwapBuffers(glutyAPI4* api) const;

    /// Enables or disables key repeat: repeated calls of `keyboard` or `specialkey` for a key that
    /// is held down. Initially disabled.
    void KeyRepeat(bool on) { key_repeat = on; }
    bool isKeyRepeat() const { return key_repeat; }

    /// Enable and disable the call of `idle` of each window after each wake-up of the loop.
    /// Initially enabled.
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
