// SPDX-License-Identifier: MIT
// Compares the text that a test produced with a file of expected text.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/files/testfiles.h"

namespace transcript {

inline std::vector<std::string> lines_of(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// Returns the line with this number, counted from 0, and up to three lines before and after it.
inline std::string context_of(std::vector<std::string> const& lines, std::size_t number) {
    std::string text;
    for (std::size_t i = number - std::min<std::size_t>(number, 3);
         i < std::min(lines.size(), number + 4); ++i) {
        text += (i == number ? "> " : "  ") + lines[i] + "\n";
    }
    return text;
}

}  // namespace transcript

/// Succeeds if the file at `path` has exactly this text. A failure shows the first line that
/// differs, with up to three lines before and after it, from both. If the environment variable
/// ZV_ACCEPT is set, writes the text to the file instead.
inline testing::AssertionResult matches_file(std::string const& text, std::string const& path) {
    if (std::getenv("ZV_ACCEPT") != nullptr) {
        write_file(path, text);
        return testing::AssertionSuccess();
    }
    std::string const wanted = read_file(path);
    if (text == wanted) {
        return testing::AssertionSuccess();
    }
    auto const wanted_lines = transcript::lines_of(wanted), lines = transcript::lines_of(text);
    auto const same = std::ranges::mismatch(wanted_lines, lines).in1;
    auto const number = static_cast<std::size_t>(same - wanted_lines.begin());
    auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
    return testing::AssertionFailure()
           << path << " differs in line " << number + 1 << "\nexpected:\n"
           << transcript::context_of(wanted_lines, number) << "actual:\n"
           << transcript::context_of(lines, number) << "To accept the new text, run\n"
           << "ZV_ACCEPT=1 " << std::filesystem::read_symlink("/proc/self/exe").string()
           << " --gtest_filter=" << test->test_suite_name() << '.' << test->name();
}
