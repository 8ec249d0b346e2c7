// SPDX-License-Identifier: MIT
// Temporary files and captured output for tests.
#pragma once

#include <gtest/gtest.h>
#include <stdio.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

/// A new directory. It and its files are removed at the end of the block.
class temp_dir_t {
  public:
    temp_dir_t() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zvtest.XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            ADD_FAILURE() << "can't create a directory: " << pattern;
        }
        m_path = pattern;
    }
    temp_dir_t(temp_dir_t const&) = delete;
    temp_dir_t& operator=(temp_dir_t const&) = delete;
    ~temp_dir_t() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string const& path() const { return m_path; }

    std::string file(std::string const& name) const { return m_path + "/" + name; }

  private:
    std::string m_path;
};

/// Creates or replaces a file. Returns the path.
inline std::string write_file(std::string const& path, std::string const& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) {
        ADD_FAILURE() << "can't write " << path;
    }
    return path;
}

/// Returns `text` with all occurrences of `from` replaced.
inline std::string replace_all(std::string text, std::string const& from, std::string const& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
    return text;
}

/// Returns the bytes of a file. If it can't be read, the test fails and the text is empty.
inline std::string read_file(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        ADD_FAILURE() << "can't read " << path;
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Captures std::cout, and std::cerr together with stderr, until the end of the block, and then
/// restores the format flags of the C++ streams.
class capture_t {
  public:
    capture_t() { std::setvbuf(stderr, nullptr, _IONBF, 0); }
    capture_t(capture_t const&) = delete;
    capture_t& operator=(capture_t const&) = delete;
    ~capture_t() { std::fclose(std::exchange(stderr, m_kept)); }

    /// Return the text since the start or since the last call.
    std::string out() { return m_out.take(); }
    std::string err() { return m_err.take(); }

  private:
    struct captured_t {
        explicit captured_t(std::ostream& out)
            : stream(out), flags(out.flags()), kept(out.rdbuf(text.rdbuf())) {}
        captured_t(captured_t const&) = delete;
        captured_t& operator=(captured_t const&) = delete;
        ~captured_t() {
            stream.rdbuf(kept);
            stream.flags(flags);
        }
        std::string take() {
            std::string all = text.str();
            text.str({});
            return all;
        }

        std::ostringstream text;
        std::ostream& stream;
        std::ios_base::fmtflags flags;
        std::streambuf* kept;
    };

    static ssize_t append(void* captured, char const* bytes, std::size_t count) {
        static_cast<captured_t*>(captured)->text.write(bytes, static_cast<std::streamsize>(count));
        return static_cast<ssize_t>(count);
    }

    captured_t m_out{std::cout};
    captured_t m_err{std::cerr};
    FILE* const m_kept{
        std::exchange(stderr, ::fopencookie(&m_err, "w", {nullptr, append, nullptr, nullptr}))};
};
