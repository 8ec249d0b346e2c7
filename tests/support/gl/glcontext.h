// SPDX-License-Identifier: MIT
// A real OpenGL context for tests, with all entry points loaded.
#pragma once

#include <gtest/gtest.h>

struct GLFWwindow;

/// The base of tests that need the context of a hidden window of 64 by 64 pixels. Each test suite
/// has its own window. Without DISPLAY the tests are skipped. With DISPLAY, a missing context fails
/// them.
class gl_context_test : public ::testing::Test {
  public:
    static constexpr int window_size = 64;

    static void SetUpTestSuite();
    static void TearDownTestSuite();

  protected:
    void SetUp() override;
    /// Fails if a GL error is pending.
    void TearDown() override;

    static void swap_buffers();

    static GLFWwindow* s_window;
};
