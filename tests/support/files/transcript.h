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

/// Returns a title and the lines around line `at`, which gets the mark.
inline std::string excerpt(char const* title, std::vector<std::string> const& lines, std::size_t at,
                           char mark) {
    constexpr std::size_t context = 3;
    std::ostringstream out;
    out << title << '\n';
    std::size_t const end = std::min(lines.size(), at + context + 1);
    for (std::size_t i = at > context ? at - context : 0; i < end; ++i) {
        out << (i == at ? mark : ' ') << ' ' << i + 1 << ": " << lines[i] << '\n';
    }
    if (at >= lines.size()) {
        out << mark << " (end of the text)\n";
    }
    return out.str();
}

}  // namespace transcript

/// Succeeds if the file at `path` has exactly this text. A failure shows the first line that
/// differs, the lines around it in both texts, and the command that accepts the new text. If the
/// environment variable ZV_ACCEPT is set, writes the text to the file instead of comparing it.
inline testing::AssertionResult matches_file(std::string const& text, std::string const& path) {
    if (std::getenv("ZV_ACCEPT") != nullptr) {
        write_file(path, text);
        return testing::AssertionSuccess();
    }
    std::string const wanted = read_file(path);
    if (text == wanted) {
        return testing::AssertionSuccess();
    }
    std::vector<std::string> const expected = transcript::lines_of(wanted);
    std::vector<std::string> const actual = transcript::lines_of(text);
    auto const differing =
        std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    auto const at = static_cast<std::size_t>(differing.first - expected.begin());
    auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
    return testing::AssertionFailure()
           << "line " << at + 1 << " of " << path << " differs\n"
           << transcript::excerpt("expected:", expected, at, '-')
           << transcript::excerpt("actual:", actual, at, '+') << "To accept the new text, run\n"
           << "ZV_ACCEPT=1 " << std::filesystem::read_symlink("/proc/self/exe").string()
           << " --gtest_filter=" << test->test_suite_name() << '.' << test->name();
}
