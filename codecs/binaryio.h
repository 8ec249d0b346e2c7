// SPDX-License-Identifier: MIT
// Functions that read and write little-endian fields and pixels through a stream.
#pragma once

#include <concepts>
#include <cstdint>
#include <fstream>
#include <istream>
#include <ostream>

#include "image/image.h"

namespace libgr {

/// Reads a little-endian field. Bytes after the end of the file are 0.
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

/// Writes a little-endian field.
template <std::unsigned_integral T>
void write_field(std::ostream& stream, T field) {
    for (unsigned int i = 0; i < sizeof(T); ++i) {
        stream.put(static_cast<char>((field >> (8 * i)) & 0xFF));
    }
}

/// Records that a file of `size` bytes ends within its header. Always returns false.
bool reject_header(std::uint64_t size);

/// Opens a file for reading. Returns false and sets errno on failure. Pipes and devices fail with
/// EINVAL, because reading them may never end.
bool open_file(std::ifstream& stream, char const* path);

/// Returns the number of bytes from the read position to the end of the file, or 0 if the stream
/// has failed or cannot seek. The read position does not change.
std::uint64_t bytes_left(std::istream& stream);

/// Allocates a new block of `size` bytes for `pixels` and reads it. Bytes after the end of the file
/// are 0. If `size` is 0, `pixels` becomes empty. Returns false, with `pixels` unchanged, if there
/// is not enough memory.
bool read_pixels(image_bytes_t& pixels, std::istream& stream, std::uint64_t size);

/// Writes all bytes of `pixels`.
void write_pixels(std::ostream& stream, image_bytes_t const& pixels);

}  // namespace libgr
