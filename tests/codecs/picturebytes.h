// SPDX-License-Identifier: MIT
// Bytes of fields and segments, and the fixture of the codec tests.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>

#include "codecs/imageobject.h"
#include "codecs/jpegdata.h"
#include "tests/support/files/testfiles.h"
#include "utils/diagnostics.h"

/// Returns the low `size` bytes of `value`, lowest byte first.
inline std::string le(unsigned long value, unsigned int size) {
    std::string bytes(size, '\0');
    for (unsigned int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

/// Returns the low `size` bytes of `value`, highest byte first.
inline std::string be(unsigned long value, unsigned int size) {
    std::string const bytes = le(value, size);
    return {bytes.rbegin(), bytes.rend()};
}

inline libgr::jpegdata_t jpegdata_of(std::string const& bytes) {
    libgr::jpeg_bytes_t block;
    EXPECT_TRUE(block.resize(bytes.size(), 0));
    std::copy(bytes.begin(), bytes.end(), block.begin());
    libgr::jpegdata_t data;
    data.setvector(block, "memory");
    return data;
}

inline std::string bytes_of(libgr::jpegdata_t const& data) {
    return {data.begin(), data.end()};
}

inline std::string segment(unsigned int code, std::string const& payload) {
    return be(0xFF00 + code, 2) + be(payload.size() + 2, 2) + payload;
}

/// Returns an Exif block with an orientation, and with the size of the picture in its Exif IFD.
inline std::string exif(bool intel, unsigned int orientation, unsigned int width = 64,
                        unsigned int height = 48) {
    auto const word = intel ? le : be;
    auto const entry = [&](unsigned int tag, unsigned int value) {
        return word(tag, 2) + word(4, 2) + word(1, 4) + word(value, 4);
    };
    return std::string("Exif\0\0", 6) + (intel ? "II" : "MM") + word(42, 2) + word(8, 4) +
           word(2, 2) + entry(0x8769, 38) + word(0x0112, 2) + word(3, 2) + word(1, 4) +
           word(orientation, 2) + word(0, 6) + word(2, 2) + entry(0xA002, width) +
           entry(0xA003, height) + word(0, 4);
}

/// Returns `size` bytes that count up from `first`.
inline std::string ramp(unsigned long size, char first = 1) {
    std::string bytes(size, '\0');
    std::iota(bytes.begin(), bytes.end(), first);
    return bytes;
}

/// Returns the memory in use, in bytes.
inline long resident_bytes() {
    long total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

/// Returns the names of the limits that `lines` report for `file`, each with a blank after it.
inline std::string limits_in(std::string const& lines, std::string const& file) {
    std::string const words = file + ": exceeds limit ";
    std::string names;
    for (std::size_t at = 0; (at = lines.find(words, at)) != lines.npos;) {
        at += words.size();
        names += lines.substr(at, lines.find(' ', at) + 1 - at);
    }
    return names;
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

/// A folder for one file, and the picture that is loaded from it. Expects that no file stays open.
struct picture_test_t : testing::Test {
    static long open_files() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }
    void SetUp() override { m_files = open_files(); }
    void TearDown() override {
        image = {};
        EXPECT_EQ(open_files(), m_files);
    }

    /// Loads a file with a new codec. A load that does not end is ended by SIGALRM. Returns
    /// "WIDTHxHEIGHT FORMAT BITS ENTRIES: BYTES" of the picture, or the reason of the failure.
    template <typename codec_t>
    std::string load_file(std::string const& place) {
        codec_t codec;
        image = {};
        image.compressed = true;
        image.desc.bits = libgr::IMAGE_BITS_64;
        libutils::clear_failure_reason();
        testing::internal::CaptureStderr();
        alarm(20);
        is_loaded = codec.load(image, place.c_str());
        alarm(0);
        lines = testing::internal::GetCapturedStderr();
        turns = codec.rightrotatecount();
        if (!is_loaded) {
            return std::string(libutils::failure_reason());
        }
        EXPECT_FALSE(image.compressed);
        std::ostringstream out;
        out << image.m_width << "x" << image.m_height << " " << image.desc.format << " "
            << image.desc.bits << " " << image.palette.size << ": " << image.size();
        std::string text = out.str();
        return text.erase(text.find("IMAGE_FORMAT_"), 13).erase(text.find("IMAGE_BITS_"), 11);
    }
    template <typename codec_t>
    std::string load(std::string const& bytes) {
        return load_file<codec_t>(write_file(file, bytes));
    }
    std::string pixels() const { return {image.begin(), image.end()}; }

    temp_dir_t dir;
    std::string const file = dir.file("picture");
    libgr::image2d_t image;
    bool is_loaded = false;
    unsigned long turns = 0;
    std::string lines;  ///< what the last load printed on the error stream

  private:
    long m_files = 0;
};
