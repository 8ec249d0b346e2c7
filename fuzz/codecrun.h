// SPDX-License-Identifier: MIT
// Loads an input with a codec and reads the pixels as the viewer does.
#pragma once

#include <numeric>
#include <string>

#include "codecs/imageobject.h"
#include "fuzz/fuzzinput.h"
#include "image/pixelconvert.h"

/// Of a picture with more pixels, only the first and the last row are read, to save time.
inline constexpr std::uint64_t largest_picture = 1 << 16;  // pixels

inline bool is_large(libgr::image2d_t const& image) {
    return std::uint64_t{image.m_width} * image.m_height > largest_picture;
}

/// Reads every byte of the rows, so that the sanitizers report a byte outside the storage.
inline void read_pixels(libgr::image2d_t const& image) {
    if (!libgr::pixels_within(image) || image.rowbyte() == 0 || image.m_height == 0) {
        return;
    }
    unsigned int sum = 0;
    unsigned int const step = is_large(image) ? std::max(1U, image.m_height - 1) : 1;
    for (unsigned int y = 0; y < image.m_height; y += step) {
        unsigned char const* const row = libgr::pixel_row(image, y);
        sum = std::accumulate(row, row + image.rowbyte(), sum);
    }
    [[maybe_unused]] unsigned int const volatile kept = sum;  // the reads must not be optimised out
}

/// Loads the input as a file, resolves its palette and reads its pixels.
template <typename codec_t>
void run_codec(std::uint8_t const* data, std::size_t size) {
    std::string const path = scratch_file("picture", input_t(data, size).rest());
    libgr::image2d_t image;
    codec_t codec;
    if (codec.load(image, path.c_str())) {
        libgr::image2d_t rgb;
        if (!is_large(image) && libgr::index2rgb(rgb, image)) {
            read_pixels(rgb);
        }
        read_pixels(image);
    }
}
