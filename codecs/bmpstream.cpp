// SPDX-License-Identifier: MIT
// The two BMP headers field by field.
#include "codecs/bmpstream.h"

#include <cstdint>

#include "codecs/streambytes.h"

namespace libgr {

namespace {

constexpr std::uint16_t bmp_signature = 19778;  // "BM"

void read(std::istream& stream, libutils::tagBITMAPFILEHEADER& header) {
    header.bfType = read_field<std::uint16_t>(stream);
    header.bfSize = read_field<std::uint32_t>(stream);
    header.bfReserved1 = read_field<std::uint16_t>(stream);
    header.bfReserved2 = read_field<std::uint16_t>(stream);
    header.bfOffBits = read_field<std::uint32_t>(stream);
}

void read(std::istream& stream, libutils::tagBITMAPINFOHEADER& header) {
    header.biSize = read_field<std::uint32_t>(stream);
    header.biWidth = read_field<std::uint32_t>(stream);
    header.biHeight = read_field<std::uint32_t>(stream);
    header.biPlanes = read_field<std::uint16_t>(stream);
    header.biBitCount = read_field<std::uint16_t>(stream);
    header.biCompression = read_field<std::uint32_t>(stream);
    header.biSizeImage = read_field<std::uint32_t>(stream);
    header.biXPelsPerMeter = read_field<std::uint32_t>(stream);
    header.biYPelsPerMeter = read_field<std::uint32_t>(stream);
    header.biClrUsed = read_field<std::uint32_t>(stream);
    header.biClrImportant = read_field<std::uint32_t>(stream);
}

}  // namespace

bool read_bmp_headers(std::istream& stream, libutils::tagBITMAPFILEHEADER& fileheader,
                      libutils::tagBITMAPINFOHEADER& infoheader) {
    read(stream, fileheader);
    if (stream.tellg() != std::streampos(sizeof fileheader)) {
        return false;
    }
    read(stream, infoheader);
    if (stream.tellg() != std::streampos(sizeof fileheader + sizeof infoheader) ||
        fileheader.bfType != bmp_signature) {
        return false;
    }
    stream.seekg(0, std::ios_base::end);
    if (stream.tellg() < std::streampos(fileheader.bfOffBits)) {
        return false;
    }
    stream.seekg(fileheader.bfOffBits);
    return stream.tellg() == std::streampos(fileheader.bfOffBits);
}

}  // namespace libgr
