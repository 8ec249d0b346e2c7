// SPDX-License-Identifier: MIT
// What the tests of all picture files share: bytes of fields, and a loaded picture as text.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>

#include "image/image.h"

/// The low `size` bytes of `value`, lowest first.
inline std::string le(std::uint64_t value, unsigned int size) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(value & 0xFF);
        value >>= 8;
    }
    return bytes;
}

/// `size` bytes that count up from `first`.
inline std::string ramp(unsigned long size, int first = 1) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(first++);
    }
    return bytes;
}

/// An image of integers without a window.
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

/// All bytes of an image.
inline std::string pixels_of(libgr::image_bytes_t const& image) {
    return {image.begin(), image.end()};
}

/// "WIDTHxHEIGHT FORMAT BITS ENTRIES: BYTES" of a picture that loaded, else "-".
inline std::string outcome(bool loaded, libgr::image2d_t const& image) {
    std::ostringstream out;
    out << image.m_width << "x" << image.m_height << " " << image.desc.format << " "
        << image.desc.bits << " " << image.palette.size << ": " << image.size();
    std::string text = out.str();
    text.erase(text.find("IMAGE_FORMAT_"), 13).erase(text.find("IMAGE_BITS_"), 11);
    return loaded ? text : "-";
}

template <typename codec_t>
std::string load_outcome(libgr::image2d_t& image, std::string const& path) {
    return outcome(codec_t().load(image, path.c_str()), image);
}

/// How many files the process holds open.
inline long open_files() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}
