// SPDX-License-Identifier: MIT
// The BMP reader for files whose pixel format the caller knows.
#include "codecs/bmpload.h"

#include <cstdint>
#include <fstream>
#include <limits>
#include <utility>

#include "codecs/binaryio.h"
#include "codecs/bmpstream.h"
#include "codecs/sizelimits.h"

namespace libgr {

namespace {

/// Swaps the first and the third byte of each 3-byte pixel that begins in the first `held` bytes.
/// Unlike the size of `pixels`, the rows are padded to 4 bytes here.
void swap_red_and_blue(image_bytes_t& pixels, std::uint64_t width, std::uint64_t height,
                       std::uint64_t held) {
    std::uint64_t const row_size = (3 * width + 3) / 4 * 4;
    std::uint64_t const size = pixels.size();
    unsigned char* const data = pixels.begin();
    for (std::uint64_t y = 0; y < height && y * row_size < held; ++y) {
        std::uint64_t p = y * row_size;
        for (std::uint64_t x = 0; x < width && p < held && p + 3 <= size; ++x, p += 3) {
            std::swap(data[p], data[p + 2]);
        }
    }
}

}  // namespace

bool BmpLoad(image2d_t& image, char const* path, e_image_format_t format) {
    std::ifstream stream;
    libutils::tagBITMAPFILEHEADER fileheader{};
    libutils::tagBITMAPINFOHEADER infoheader{};
    if (!open_file(stream, path) || !read_bmp_headers(stream, fileheader, infoheader) ||
        !is_uncompressed(infoheader.biCompression)) {
        return false;
    }
    if (infoheader.biBitCount == 16) {
        return reject_depth(infoheader.biBitCount);
    }
    image.m_width = infoheader.biWidth;
    image.m_height = infoheader.biHeight;
    std::uint64_t const row_bytes = std::uint64_t{infoheader.biBitCount} / 8 * image.m_width;
    std::uint64_t const size = checked_product(row_bytes, image.m_height)
                                   .value_or(std::numeric_limits<std::uint64_t>::max());
    std::uint64_t const held = bytes_left(stream);
    if (!fits_in_memory(size, path) || !read_pixels(image, stream, size)) {
        return false;
    }
    image.desc.format = format;
    image.desc.type = IMAGE_TYPE_UINT;
    switch (infoheader.biBitCount) {
        case 1:
            image.desc.bits = IMAGE_BITS_1;
            break;
        case 4:
            image.desc.bits = IMAGE_BITS_4;
            break;
        case 24:
            swap_red_and_blue(image, image.m_width, image.m_height, held);
            [[fallthrough]];
        case 8:
            image.desc.bits = IMAGE_BITS_8;
            break;
        default:
            break;
    }
    image.compressed = false;
    return true;
}

}  // namespace libgr
