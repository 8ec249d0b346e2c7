// SPDX-License-Identifier: MIT
// Makes BMP, TGA and PNG files from the values of their fields.
#pragma once

#include <zlib.h>

#include "tests/codecs/jpegmaker.h"

/// The defaults are the values that the BMP writer uses.
struct bmp_t {
    unsigned int width, height, depth;
    std::string pixels;
    std::string palette = {};
    unsigned int compression = 0;
    long offset = -1;  // of the pixels; -1 for the end of the palette
    std::string type = "BM";

    std::string bytes() const {
        auto const place = offset < 0 ? 54 + palette.size() : static_cast<unsigned long>(offset);
        return type + le(54 + pixels.size(), 4) + le(0, 4) + le(place, 4) + le(40, 4) +
               le(width, 4) + le(height, 4) + le(1, 2) + le(depth, 2) + le(compression, 4) +
               le(pixels.size(), 4) + le(72, 4) + le(72, 4) + le(0, 8) + palette + pixels;
    }
};

struct tga_t {
    unsigned int type, width, height, depth;
    std::string pixels;
    unsigned int descriptor = 0;
    std::string id = {};
    unsigned int map_first = 0, map_length = 0, entry_size = 0;
    std::string map = {};

    std::string bytes() const {
        return le(id.size(), 1) + le(map_length != 0, 1) + le(type, 1) + le(map_first, 2) +
               le(map_length, 2) + le(entry_size, 1) + le(0, 4) + le(width, 2) + le(height, 2) +
               le(depth, 1) + le(descriptor, 1) + id + map + pixels;
    }
};

inline std::string chunk(std::string const& name, std::string const& data) {
    std::string const bytes = name + data;
    auto const* const start = reinterpret_cast<unsigned char const*>(bytes.data());
    return be(data.size(), 4) + bytes + be(crc32(0, start, static_cast<uInt>(bytes.size())), 4);
}

struct png_t {
    unsigned int width, height, color_type, depth;
    std::string rows;  // top row first, each after its filter byte
    std::string palette = {};
    unsigned int interlace = 0;

    std::string bytes() const {
        auto const* const start = reinterpret_cast<unsigned char const*>(rows.data());
        std::string const stored = "\x78\x01\x01" + le(rows.size(), 2) + le(~rows.size(), 2) +
                                   rows + be(adler32(1, start, static_cast<uInt>(rows.size())), 4);
        return "\x89PNG\r\n\x1a\n" +
               chunk("IHDR", be(width, 4) + be(height, 4) + be(depth, 1) + be(color_type, 1) +
                                 be(interlace, 3)) +
               (palette.empty() ? "" : chunk("PLTE", palette)) + chunk("IDAT", stored) +
               chunk("IEND", "");
    }
};
