// SPDX-License-Identifier: MIT
// The windows and the event loop, over GLFW 3.
#pragma once

#include <map>

#include "window/glutyapi.h"
#include "window/singleton.h"

struct GLFWwindow;

namespace wenk {

/// Holds the windows and runs the one event loop, which sleeps until an event arrives and draws
/// only on request. One instance stands from before `main` to the process's end, and everything
/// runs on the main thread, between the application's start and end of GLFW.
class glfwyMGR4 : public singleton<glfwyMGR4> {
  public:
    /// Makes a window of 640x480 with the context that GLFW gives by default, binds its events to
    /// `api`, which is not owned and must outlive the window, and calls `api->init()` with the
    /// context current. Null when `api` is null or the window can't be made.
    GLFWwindow* addWindow(glutyAPI4* api, char const* title);

    /// Runs until `Exit` was called (the windows then stay) or all windows were closed by their
    /// user (each is destroyed).
    void MainLoop();

    /// The window of `api`, and the other way round. The pair must exist.
    GLFWwindow* win(glutyAPI4* api) const;
    glutyAPI4* api(GLFWwindow* window) const;

    /// Ends the loop behind the next event, or behind the present one when a handler calls it.
    void Exit() { exit_requested = true; }

    /// All windows are drawn in the loop's next pass, once however many requests came. A request
    /// made while the loop itself draws is lost.
    void PostRedisplay();

    void SwapBuffers(glutyAPI4* api) const;

    /// Whether a held key reaches `keyboard` and `specialkey` again and again; off at start.
    void KeyRepeat(bool on) { key_repeat = on; }
    bool isKeyRepeat() const { return key_repeat; }

    /// Whether `idle` is called at each wake-up; on at start.
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
