// SPDX-License-Identifier: MIT
// The input of a fuzz target: as numbers, as text, as a memory block and as a file.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <streambuf>
#include <string>

#include "utils/allocator.h"
#include "utils/ofsvector.h"

/// The entry point of libFuzzer and of fuzz/replay.cpp. Every target defines it. The result is 0,
/// or -1 for an input that must not become part of the corpus.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

/// Reads an input from its first byte to its last.
class input_t {
  public:
    input_t(std::uint8_t const* data, std::size_t size)
        : m_rest(reinterpret_cast<char const*>(data), size) {}

    /// Removes an unsigned integer of `size` bytes, 1 to 4, little-endian. Missing bytes are 0.
    unsigned int number(unsigned int size) {
        unsigned int value = 0;
        for (unsigned int i = 0; i < size && i < m_rest.size(); ++i) {
            value |= static_cast<unsigned int>(static_cast<unsigned char>(m_rest[i])) << (8 * i);
        }
        m_rest.erase(0, size);
        return value;
    }

    /// Removes the first line and returns it without its line feed. If none of the first 64 bytes
    /// is a line feed, removes nothing and returns an empty string.
    std::string line() {
        std::size_t const end = m_rest.substr(0, 64).find('\n');
        std::string text = end == m_rest.npos ? "" : m_rest.substr(0, end);
        m_rest.erase(0, end + 1);
        return text;
    }

    /// Returns the bytes that have not been removed.
    std::string const& rest() const { return m_rest; }

    /// Fills a memory mapping of the same size with the rest. An access after its last byte is
    /// reported, see fuzz/guardedmappings.cpp.
    template <typename bytes_t>
    void fill(bytes_t& bytes) const {
        if (bytes.resize(m_rest.size(), 0)) {
            std::copy(m_rest.begin(), m_rest.end(), bytes.begin());
        }
    }

  private:
    std::string m_rest;
};

/// A directory below TMPDIR that is removed when the process exits.
class scratch_dir_t {
  public:
    scratch_dir_t() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zvfuzz.XXXXXX").string();
        m_path = ::mkdtemp(pattern.data()) != nullptr ? pattern : std::string();
    }
    scratch_dir_t(scratch_dir_t const&) = delete;
    scratch_dir_t& operator=(scratch_dir_t const&) = delete;
    ~scratch_dir_t() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    std::string file(char const* name) const { return m_path + "/" + name; }

  private:
    std::string m_path;
};

/// Returns the path of a file of this name in a directory of this process.
inline std::string scratch_path(char const* name) {
    static scratch_dir_t const directory;
    return directory.file(name);
}

/// Writes a file of this name in a directory of this process. Returns its path.
inline std::string scratch_file(char const* name, std::string const& bytes) {
    std::string path = scratch_path(name);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        std::abort();
    }
    return path;
}

inline std::string content_of(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Reports a finding if `condition` is false.
inline void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

/// Formats the output of a target to std::cout and std::cerr, and discards it.
class silence_t {
  public:
    silence_t() {
        struct sink_t final : std::streambuf {
            int overflow(int c) override { return traits_type::not_eof(c); }
        };
        static sink_t* const sink = new sink_t;  // the streams are flushed after all destructors
        std::cout.rdbuf(sink);
        std::cerr.rdbuf(sink);
    }
};
static silence_t const silence;
