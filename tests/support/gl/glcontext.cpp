// SPDX-License-Identifier: MIT
// The window and context of tests that need real OpenGL.
#include "tests/support/gl/glcontext.h"

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>
#include <dlfcn.h>
#include <link.h>

#include <cstdlib>

#include "glext/glextloader.h"

namespace {

/// Keeps the loaded libraries, such as the GL driver, until the end of the process. The leak
/// checker would report the memory of the globals of an unloaded driver.
void keep_libraries() {
    dl_iterate_phdr(
        [](dl_phdr_info* library, std::size_t, void*) {
            dlopen(library->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
            return 0;
        },
        nullptr);
}

}  // namespace

GLFWwindow* gl_context_test::s_window = nullptr;

void gl_context_test::SetUpTestSuite() {
    if (std::getenv("DISPLAY") == nullptr) {
        return;
    }
    ASSERT_TRUE(glfwInit());
    glfwWindowHint(GLFW_VISIBLE, GLFW_FALSE);
    s_window = glfwCreateWindow(window_size, window_size, "", nullptr, nullptr);
    ASSERT_NE(s_window, nullptr);
    glfwMakeContextCurrent(s_window);
    keep_libraries();
    gl_extloader_init();
}

void gl_context_test::TearDownTestSuite() {
    if (s_window != nullptr) {
        glfwDestroyWindow(s_window);
        s_window = nullptr;
    }
    glfwTerminate();
}

void gl_context_test::SetUp() {
    if (std::getenv("DISPLAY") == nullptr) {
        GTEST_SKIP() << "no DISPLAY";
    }
    ASSERT_NE(s_window, nullptr);
}

void gl_context_test::TearDown() {
    if (s_window != nullptr) {
        EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR});
    }
}

void gl_context_test::swap_buffers() {
    glfwSwapBuffers(s_window);
}
