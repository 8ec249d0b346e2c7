// SPDX-License-Identifier: MIT
// Header checks that the BMP readers share.
#include "codecs/bmpstream.h"

#include <cstdint>

#include "codecs/binaryio.h"
#include "utils/diagnostics.h"

namespace libgr {

namespace {

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
    std::uint64_t const size = bytes_left(stream);
    read(stream, fileheader);
    if (stream.tellg() != std::streampos(sizeof fileheader)) {
        return reject_header(size);
    }
    read(stream, infoheader);
    if (stream.tellg() != std::streampos(sizeof fileheader + sizeof infoheader)) {
        return reject_header(size);
    }
    if (fileheader.bfType != bmp_signature) {
        return libutils::reject(not_bmp_reason);
    }
    stream.seekg(0, std::ios_base::end);
    if (stream.tellg() < std::streampos(fileheader.bfOffBits)) {
        return libutils::reject("ends before its pixels");
    }
    stream.seekg(fileheader.bfOffBits);
    return stream.tellg() == std::streampos(fileheader.bfOffBits) || libutils::reject("read error");
}

bool is_uncompressed(std::uint32_t method) {
    switch (method) {
        case 0:
            return true;
        case 1:
        case 2:
            return libutils::reject("run-length encoded BMP");
        case 3:
        case 6:
            return libutils::reject("BMP with bit fields");
        default:
            return libutils::reject("BMP with the unsupported compression ", method);
    }
}

bool reject_depth(std::uint16_t bits) {
    return libutils::reject("BMP with the unsupported depth of ", bits, " bits");
}

}  // namespace libgr
