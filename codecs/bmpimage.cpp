// SPDX-License-Identifier: MIT
// The BMP reader that reads a stream, and the BMP writer.
#include "codecs/bmpimage.h"

#include <cstdint>
#include <fstream>
#include <iostream>
#include <limits>

#include "codecs/binaryio.h"
#include "codecs/bmpstream.h"
#include "codecs/sizelimits.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

constexpr std::uint32_t headers_size = 54;

/// The pixel format of a number of bits per pixel.
struct depth_row_t {
    std::uint16_t depth;
    e_image_format_t format;
    e_image_bits_t bits;
};
constexpr depth_row_t depth_rows[] = {
    {1, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_1},
    {4, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_4},
    {8, IMAGE_FORMAT_GRAYSCALE, IMAGE_BITS_8},
    {24, IMAGE_FORMAT_BGR, IMAGE_BITS_8},
};

/// Returns the bytes of a row. The bits are rounded down to whole bytes before the padding. Rows of
/// 1 or 4 bits per pixel can become shorter than those of the file. Callers depend on it.
std::uint32_t row_bytes(libutils::tagBITMAPINFOHEADER const& header) {
    std::uint32_t const bytes = (std::uint32_t{header.biBitCount} * header.biWidth) >> 3;
    return (bytes + 3) & ~std::uint32_t{3};
}

void write(std::ostream& stream, libutils::tagBITMAPFILEHEADER const& header) {
    write_field<std::uint16_t>(stream, header.bfType);
    write_field<std::uint32_t>(stream, header.bfSize);
    write_field<std::uint16_t>(stream, header.bfReserved1);
    write_field<std::uint16_t>(stream, header.bfReserved2);
    write_field<std::uint32_t>(stream, header.bfOffBits);
}

void write(std::ostream& stream, libutils::tagBITMAPINFOHEADER const& header) {
    write_field<std::uint32_t>(stream, header.biSize);
    write_field<std::uint32_t>(stream, header.biWidth);
    write_field<std::uint32_t>(stream, header.biHeight);
    write_field<std::uint16_t>(stream, header.biPlanes);
    write_field<std::uint16_t>(stream, header.biBitCount);
    write_field<std::uint32_t>(stream, header.biCompression);
    write_field<std::uint32_t>(stream, header.biSizeImage);
    write_field<std::uint32_t>(stream, header.biXPelsPerMeter);
    write_field<std::uint32_t>(stream, header.biYPelsPerMeter);
    write_field<std::uint32_t>(stream, header.biClrUsed);
    write_field<std::uint32_t>(stream, header.biClrImportant);
}

}  // namespace

bool bmpimage_t::load(char const* path, libutils::android_app*) {
    std::ifstream stream;
    if (!open_file(stream, path) || !read_bmp_headers(stream, fileheader, infoheader)) {
        return false;
    }
    std::uint64_t const size = std::uint64_t{row_bytes(infoheader)} * infoheader.biHeight;
    return fits_in_memory(size, path) && read_pixels(pixels, stream, size);
}

bool bmpimage_t::save(char const* path, libutils::android_app*) {
    if (pixels.size() > std::numeric_limits<std::uint32_t>::max() - headers_size) {
        return false;
    }
    std::ofstream stream(path, std::ios_base::binary | std::ios_base::trunc);
    if (!stream) {
        return false;
    }
    fileheader.bfType = 19778;  // "BM"
    fileheader.bfSize = static_cast<std::uint32_t>(pixels.size()) + headers_size;
    fileheader.bfReserved1 = 0;
    fileheader.bfReserved2 = 0;
    fileheader.bfOffBits = headers_size;
    infoheader.biSize = sizeof infoheader;
    write(stream, fileheader);
    write(stream, infoheader);
    write_pixels(stream, pixels);
    stream.flush();
    return stream.good();
}

bool convert(image2d_t& image, bmpimage_t const& bmp) {
    if (!is_uncompressed(bmp.infoheader.biCompression)) {
        return false;
    }
    for (depth_row_t const& row : depth_rows) {
        if (row.depth == bmp.infoheader.biBitCount) {
            image.desc = {row.format, IMAGE_TYPE_UINT, row.bits};
            image.m_width = bmp.infoheader.biWidth;
            image.m_height = bmp.infoheader.biHeight;
            image.compressed = false;
            static_cast<image_bytes_t&>(image) = bmp.pixels;
            return true;
        }
    }
    return reject_depth(bmp.infoheader.biBitCount);
}

bool convert(bmpimage_t& bmp, image2d_t const& image) {
    if (image.compressed) {
        return false;
    }
    bool const integer = image.desc.type == IMAGE_TYPE_SINT || image.desc.type == IMAGE_TYPE_UINT;
    for (depth_row_t const& row : depth_rows) {
        if (integer && row.format == image.desc.format && row.bits == image.desc.bits) {
            libutils::tagBITMAPINFOHEADER& header = bmp.infoheader;
            header.biWidth = image.m_width;
            header.biHeight = image.m_height;
            header.biPlanes = 1;
            header.biBitCount = row.depth;
            header.biCompression = 0;
            header.biSizeImage = static_cast<std::uint32_t>(image.size());
            header.biXPelsPerMeter = 72;
            header.biYPelsPerMeter = 72;
            header.biClrUsed = 0;
            header.biClrImportant = 0;
            bmp.pixels = image;
            return true;
        }
    }
    return libutils::report_error("convert(to bmp): not supported format.");
}

bool image_bmp_t::load(image2d_t& image, char const* path) {
    return m_bmp.load(path, nullptr) && convert(image, m_bmp);
}

bool image_bmp_t::save(image2d_t const& image, char const* path) {
    bmpimage_t bmp;
    return convert(bmp, image) && bmp.save(path, nullptr);
}

}  // namespace libgr
