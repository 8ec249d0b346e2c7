// SPDX-License-Identifier: MIT
// Tests whose calls and reports stand in files of their names.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

/// At its end, calls, reports and notes are compared with the file of the test's name.
struct recorded_test : testing::Test {
    gl_recorder_t gl;
    capture_t console;
    std::string text;

    /// Puts values behind the calls and the reports until now.
    void note(auto const&... values) {
        std::ostringstream line;
        ((line << ' ' << values), ...);
        text += gl.take() + console.out() + console.err() + "#" + line.str() + "\n";
    }
    void TearDown() override {
        note("end");
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        EXPECT_TRUE(matches_file(text, std::string(CALLS) + test->name() + ".txt"));
    }
};
