// SPDX-License-Identifier: MIT
// The headers of a BMP file as they are on disk: little-endian, without padding.
#pragma once

#include <cstdint>

namespace libutils {

#pragma pack(push, 1)

/// The first 14 bytes of the file.
struct tagBITMAPFILEHEADER {
    std::uint16_t bfType;  ///< "BM", 19778
    std::uint32_t bfSize;  ///< written as the size of the pixels + 54, and ignored when read
    std::uint16_t bfReserved1;
    std::uint16_t bfReserved2;
    std::uint32_t bfOffBits;  ///< file offset of the pixels
};

/// The 40 bytes after the file header.
struct tagBITMAPINFOHEADER {
    std::uint32_t biSize;
    std::uint32_t biWidth;  ///< pixels
    /// Rows, bottom row first. A file with the top row first has a negative height, which is read
    /// as unsigned, so that the size of its pixels is usually rejected.
    std::uint32_t biHeight;
    std::uint16_t biPlanes;
    std::uint16_t biBitCount;     ///< bits per pixel
    std::uint32_t biCompression;  ///< 0: none, the only supported value
    std::uint32_t biSizeImage;
    std::uint32_t biXPelsPerMeter;
    std::uint32_t biYPelsPerMeter;
    std::uint32_t biClrUsed;
    std::uint32_t biClrImportant;
};

/// An entry of the palette.
struct tagRGBQUAD {
    std::uint8_t rgbBlue;
    std::uint8_t rgbGreen;
    std::uint8_t rgbRed;
    std::uint8_t rgbReserved;
};

#pragma pack(pop)

static_assert(sizeof(tagBITMAPFILEHEADER) == 14);
static_assert(sizeof(tagBITMAPINFOHEADER) == 40);
static_assert(sizeof(tagRGBQUAD) == 4);

}  // namespace libutils
