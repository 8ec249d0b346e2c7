// SPDX-License-Identifier: MIT
// What tests need of the file system and the standard streams.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>

/// A new directory of its own, removed with all it holds at the end of the block.
class temp_dir_t {
  public:
    temp_dir_t() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zvtest.XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            ADD_FAILURE() << "no temporary directory: " << pattern;
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

    /// The path of a file in it: "<path>/<name>".
    std::string file(std::string const& name) const { return m_path + "/" + name; }

  private:
    std::string m_path;
};

/// The bytes of a list of numbers of 0 to 255.
inline std::string bytes_of(std::initializer_list<int> values) {
    std::string bytes;
    for (int const value : values) {
        bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

/// Writes a file anew. Returns the path.
inline std::string const& write_file(std::string const& path, std::string const& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) {
        ADD_FAILURE() << "can't write " << path;
    }
    return path;
}

/// A file's bytes; a failure and an empty text when it can't be read.
inline std::string read_file(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        ADD_FAILURE() << "can't read " << path;
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Takes what is written to standard output and the error stream, until the end of the block.
/// Format flags that were set meanwhile go back, too.
class capture_t {
  public:
    capture_t()
        : m_outflags(std::cout.flags()),
          m_errflags(std::cerr.flags()),
          m_cout(std::cout.rdbuf(m_out.rdbuf())),
          m_cerr(std::cerr.rdbuf(m_err.rdbuf())) {}
    capture_t(capture_t const&) = delete;
    capture_t& operator=(capture_t const&) = delete;
    ~capture_t() {
        std::cout.rdbuf(m_cout);
        std::cerr.rdbuf(m_cerr);
        std::cout.flags(m_outflags);
        std::cerr.flags(m_errflags);
    }

    /// What came since the start or the last call.
    std::string out() { return take(m_out); }
    std::string err() { return take(m_err); }

  private:
    static std::string take(std::ostringstream& stream) {
        std::string text = stream.str();
        stream.str({});
        return text;
    }

    std::ostringstream m_out;
    std::ostringstream m_err;
    std::ios_base::fmtflags m_outflags;
    std::ios_base::fmtflags m_errflags;
    std::streambuf* m_cout;
    std::streambuf* m_cerr;
};
