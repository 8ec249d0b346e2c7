// SPDX-License-Identifier: MIT
// The base of tests that compare their GL calls and reports with a file of the test's name.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/support/files/testfiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"

/// A test with calls of `note` ends with a comparison of the calls, reports and notes with the file
/// calls/NAME.txt, where NAME is the name of the test.
struct recorded_test : testing::Test {
    gl_recorder_t gl;
    capture_t console;
    std::string text;

    /// Adds the calls and reports since the last note, and a line of values.
    void note(auto const&... values) {
        std::ostringstream line;
        ((line << ' ' << values), ...);
        text += gl.take() + console.out() + console.err() + "#" + line.str() + "\n";
    }
    void TearDown() override {
        if (!text.empty()) {
            note("end");
            auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
            EXPECT_TRUE(matches_file(text, std::string(CALLS) + test->name() + ".txt"));
        }
    }
};
