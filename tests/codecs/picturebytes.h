// SPDX-License-Identifier: MIT
// What the tests of all picture files share: bytes of fields, a file to load, and its outcome.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <string>

#include "image/image.h"
#include "tests/support/files/testfiles.h"

/// The low `size` bytes of `value`, lowest first.
inline std::string le(unsigned long value, unsigned int size) {
    std::string bytes(size, '\0');
    for (unsigned int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

/// `size` bytes that count up from `first`.
inline std::string ramp(unsigned long size, char first = 1) {
    std::string bytes(size, '\0');
    std::iota(bytes.begin(), bytes.end(), first);
    return bytes;
}

inline libgr::image2d_t image_of(unsigned int width, unsigned int height,
                                 libgr::e_image_format_t format, libgr::e_image_bits_t bits,
                                 std::string const& pixels) {
    libgr::image2d_t image;
    image.desc = {format, libgr::IMAGE_TYPE_UINT, bits};
    image.m_width = width;
    image.m_height = height;
    image.resize(pixels.size(), 0);
    std::copy(pixels.begin(), pixels.end(), image.begin());
    return image;
}

/// A place for one file. Whatever a test loads and saves, no file stays open.
struct picture_test_t : testing::Test {
    static long open_files() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }
    void SetUp() override { m_files = open_files(); }
    void TearDown() override {
        image = {};
        EXPECT_EQ(open_files(), m_files);
    }

    /// "WIDTHxHEIGHT FORMAT BITS ENTRIES: BYTES" of the picture if it loaded, else "-".
    std::string outcome(bool loaded) const {
        std::ostringstream out;
        out << image.m_width << "x" << image.m_height << " " << image.desc.format << " "
            << image.desc.bits << " " << image.palette.size << ": " << image.size();
        std::string text = out.str();
        text.erase(text.find("IMAGE_FORMAT_"), 13).erase(text.find("IMAGE_BITS_"), 11);
        return loaded ? text : "-";
    }
    std::string pixels() const { return {image.begin(), image.end()}; }

    temp_dir_t dir;
    std::string const file = dir.file("picture");
    char const* const path = file.c_str();
    libgr::image2d_t image;
    long m_files = 0;
};
