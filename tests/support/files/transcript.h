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

}  // namespace transcript

/// Succeeds if the file at `path` has exactly this text. A failure shows the text around the
/// difference. If the environment variable ZV_ACCEPT is set, writes the text to the file instead.
inline testing::AssertionResult matches_file(std::string const& text, std::string const& path) {
    if (std::getenv("ZV_ACCEPT") != nullptr) {
        write_file(path, text);
        return testing::AssertionSuccess();
    }
    std::string const wanted = read_file(path);
    if (text == wanted) {
        return testing::AssertionSuccess();
    }
    auto const same = std::ranges::mismatch(wanted, text).in1;
    auto const at = static_cast<std::size_t>(same - wanted.begin());
    std::size_t const begin = at - std::min<std::size_t>(at, 200);
    auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
    return testing::AssertionFailure()
           << "line " << std::count(wanted.begin(), same, '\n') + 1 << " of " << path
           << " differs\nexpected:\n..." << wanted.substr(begin, 400) << "...\nactual:\n..."
           << text.substr(begin, 400) << "...\nTo accept the new text, run\n"
           << "ZV_ACCEPT=1 " << std::filesystem::read_symlink("/proc/self/exe").string()
           << " --gtest_filter=" << test->test_suite_name() << '.' << test->name();
}
