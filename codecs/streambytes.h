// SPDX-License-Identifier: MIT
// Reading and writing a file's fields and pixel bytes through a stream.
#pragma once

#include <concepts>
#include <cstdint>
#include <fstream>
#include <istream>
#include <ostream>

#include "image/image.h"

namespace libgr {

/// One little-endian field of a file; the bytes that a file no longer has are 0.
template <std::unsigned_integral T>
T read_field(std::istream& stream) {
    unsigned char bytes[sizeof(T)] = {};
    stream.read(reinterpret_cast<char*>(bytes), sizeof(T));
    std::uint64_t value = 0;
    for (unsigned int i = 0; i < sizeof(T); ++i) {
        value |= std::uint64_t{bytes[i]} << (8 * i);
    }
    return static_cast<T>(value);
}

template <std::unsigned_integral T>
void write_field(std::ostream& stream, T field) {
    for (unsigned int i = 0; i < sizeof(T); ++i) {
        stream.put(static_cast<char>((field >> (8 * i)) & 0xFF));
    }
}

/// Records that a file of `size` bytes, or with `size` bytes left, ends within its header. Always
/// returns false.
bool reject_header(std::uint64_t size);

/// Opens a file to be read. Whether it could; a pipe or a device can't, with EINVAL, since it might
/// never end or keep the program waiting.
bool open_file(std::ifstream& stream, char const* path);

/// Bytes from the read position to the end of the file; 0 where the stream has failed or can't
/// seek. The position stays.
std::uint64_t bytes_left(std::istream& stream);

/// Makes `pixels` a block of its own of `size` bytes, all 0, and reads as many as the file still
/// has. With `size` 0 it becomes empty. False, with `pixels` as it was, when there is no memory.
bool read_pixels(image_bytes_t& pixels, std::istream& stream, std::uint64_t size);

/// Writes all bytes of `pixels`.
void write_pixels(std::ostream& stream, image_bytes_t const& pixels);

}  // namespace libgr
