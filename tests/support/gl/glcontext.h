// SPDX-License-Identifier: MIT
// A real OpenGL context for tests: a hidden window with all entry points resolved.
#pragma once

#include <gtest/gtest.h>

struct GLFWwindow;

/// Tests that derive from it run with the context of a hidden window of 64 by 64 pixels, a fresh
/// one for each test suite. Without DISPLAY they are skipped; with one, a missing context is a
/// failure.
class gl_context_test : public ::testing::Test {
  public:
    static constexpr int window_size = 64;

    static void SetUpTestSuite();
    static void TearDownTestSuite();

  protected:
    void SetUp() override;
    /// No GL error may be left over.
    void TearDown() override;

    static void swap_buffers();

    static GLFWwindow* s_window;
};
