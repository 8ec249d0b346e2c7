// SPDX-License-Identifier: MIT
// A real OpenGL context for tests, with all entry points loaded.
#pragma once

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>

#include <cstdlib>

#include "glext/glextloader.h"

/// The base of tests that need the context of a hidden window of 64 by 64 pixels. Each test suite
/// has its own window. Without DISPLAY the tests are skipped. With DISPLAY, a missing context fails
/// them.
class gl_context_test : public ::testing::Test {
  public:
    static void SetUpTestSuite() {
        if (std::getenv("DISPLAY") == nullptr) {
            return;
        }
        ASSERT_TRUE(glfwInit());
        glfwWindowHint(GLFW_VISIBLE, GLFW_FALSE);
        s_window = glfwCreateWindow(64, 64, "", nullptr, nullptr);
        ASSERT_NE(s_window, nullptr);
        glfwMakeContextCurrent(s_window);
        // Keeps the loaded libraries, for example the GL driver, until the end of the process. The
        // leak checker would report the memory of the globals of an unloaded driver.
        auto const keep = [](dl_phdr_info* library, std::size_t, void*) {
            dlopen(library->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
            return 0;
        };
        dl_iterate_phdr(keep, nullptr);
        gl_extloader_init();
    }
    /// Destroys the window.
    static void TearDownTestSuite() {
        glfwTerminate();
        s_window = nullptr;
    }

  protected:
    void SetUp() override {
        if (std::getenv("DISPLAY") == nullptr) {
            GTEST_SKIP() << "no DISPLAY";
        }
        ASSERT_NE(s_window, nullptr);
    }
    /// Fails if a GL error is pending.
    void TearDown() override {
        if (s_window != nullptr) {
            EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
        }
    }

    static inline GLFWwindow* s_window = nullptr;
};
