// SPDX-License-Identifier: MIT
// One run of a fuzzer: the bytes as a file, through a codec and what the viewer does next.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>

#include "codecs/imageobject.h"
#include "image/pixelconvert.h"

/// Loads the bytes by the codec, from a file in memory, and reads every pixel of what was loaded.
template <typename codec_t>
void run_codec(std::uint8_t const* data, std::size_t size) {
    int const file = memfd_create("picture", MFD_CLOEXEC);
    if (file < 0 || write(file, data, size) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    libgr::image2d_t image;
    codec_t codec;
    if (codec.load(image, ("/proc/self/fd/" + std::to_string(file)).c_str())) {
        libgr::image2d_t rgb;
        libgr::index2rgb(rgb, image);
        bool const readable = libgr::pixels_within(rgb) && rgb.rowbyte() != 0;
        unsigned int sum = 0;
        for (unsigned int y = 0; readable && y < rgb.m_height; ++y) {
            unsigned char const* const row = libgr::pixel_row(rgb, y);
            sum = std::accumulate(row, row + rgb.rowbyte(), sum);
        }
        [[maybe_unused]] unsigned int volatile const kept = sum;  // so that the reads take place
    }
    close(file);
}
