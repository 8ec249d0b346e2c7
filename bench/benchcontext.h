// SPDX-License-Identifier: MIT
// A hidden window's OpenGL context for benchmarks.
#pragma once

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <cstdio>
#include <cstdlib>

#include "glext/glextloader.h"

/// Creates a context, makes it current and resolves all entry points. The context lives as long as
/// the object. Ends the process if there is no display.
class bench_context_t {
  public:
    bench_context_t() {
        if (glfwInit() == GLFW_TRUE) {
            glfwWindowHint(GLFW_VISIBLE, GLFW_FALSE);
            m_window = glfwCreateWindow(64, 64, "bench", nullptr, nullptr);
        }
        if (m_window == nullptr) {
            std::fputs("no OpenGL context: is there a display?\n", stderr);
            std::exit(1);
        }
        glfwMakeContextCurrent(m_window);
        gl_extloader_init();
    }
    bench_context_t(bench_context_t const&) = delete;
    bench_context_t& operator=(bench_context_t const&) = delete;
    ~bench_context_t() { glfwTerminate(); }

  private:
    GLFWwindow* m_window = nullptr;
};
