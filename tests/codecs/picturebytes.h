// SPDX-License-Identifier: MIT
// Picture files made field by field, and how a loaded picture is looked at.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>

#include "image/image.h"

/// The low `size` bytes of `value`, lowest first.
inline std::string le(std::uint64_t value, unsigned int size) {
    std::string bytes;
    for (unsigned int i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
    }
    return bytes;
}

/// The same, highest first.
inline std::string be(std::uint64_t value, unsigned int size) {
    std::string const bytes = le(value, size);
    return {bytes.rbegin(), bytes.rend()};
}

/// `size` bytes that count up from `first`.
inline std::string ramp(unsigned int size, unsigned int first = 1) {
    std::string bytes;
    for (unsigned int i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>(first + i));
    }
    return bytes;
}

/// The fields of a BMP file, written by this program's own rules unless a row says otherwise.
struct bmp_fields_t {
    unsigned int width;
    unsigned int height;
    unsigned int depth;
    std::string pixels;
    std::string palette = {};
    unsigned int compression = 0;
    long offset = -1;  ///< of the pixels; -1 for behind the palette
    std::string type = "BM";

    std::string bytes() const {
        auto const place = static_cast<std::uint64_t>(
            offset >= 0 ? offset : 54 + static_cast<long>(palette.size()));
        return type + le(54 + pixels.size(), 4) + le(0, 4) + le(place, 4) + le(40, 4) +
               le(width, 4) + le(height, 4) + le(1, 2) + le(depth, 2) + le(compression, 4) +
               le(pixels.size(), 4) + le(72, 4) + le(72, 4) + le(0, 8) + palette + pixels;
    }
};

/// The bytes that an image holds.
inline std::string pixels_of(libgr::image_bytes_t const& image) {
    return {image.begin(), image.end()};
}

/// An image without a window or bytes.
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

/// "WIDTHxHEIGHT FORMAT BITS ENTRIES" for a picture that was loaded, else "refused".
inline std::string outcome(bool loaded, libgr::image2d_t const& image) {
    if (!loaded) {
        return "refused";
    }
    std::ostringstream out;
    out << image.m_width << "x" << image.m_height << " " << image.desc.format << " "
        << image.desc.bits << " " << image.palette.size;
    std::string text = out.str();
    for (char const* const prefix : {"IMAGE_FORMAT_", "IMAGE_BITS_"}) {
        text.erase(text.find(prefix), std::string(prefix).size());
    }
    return text;
}

/// How many files the process holds open.
inline long open_files() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}
