// SPDX-License-Identifier: MIT
// What tests need of the file system and the standard streams.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
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

/// Writes a file anew. Returns the path.
inline std::string write_file(std::string const& path, std::string const& bytes) {
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
    /// What came since the start or the last call.
    std::string out() { return m_out.take(); }
    std::string err() { return m_err.take(); }

  private:
    struct taken_t {
        explicit taken_t(std::ostream& out)
            : stream(out), flags(out.flags()), kept(out.rdbuf(text.rdbuf())) {}
        taken_t(taken_t const&) = delete;
        taken_t& operator=(taken_t const&) = delete;
        ~taken_t() {
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

    taken_t m_out{std::cout};
    taken_t m_err{std::cerr};
};
