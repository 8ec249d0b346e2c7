// SPDX-License-Identifier: MIT
// Header checks that the BMP readers share.
#pragma once

#include <cstdint>
#include <istream>

#include "codecs/bmprecords.h"

namespace libgr {

/// Reads both headers from a stream at the start of a file and seeks to the pixels. Returns false
/// if the file ends within its headers or before its pixels, or does not begin with "BM". On
/// failure, the headers contain the bytes read so far.
bool read_bmp_headers(std::istream& stream, libutils::tagBITMAPFILEHEADER& fileheader,
                      libutils::tagBITMAPINFOHEADER& infoheader);

/// Returns true if the compression method of a header is 0. Otherwise records the reason.
bool is_uncompressed(std::uint32_t method);

/// Records that a number of bits per pixel is not supported. Always returns false.
bool reject_depth(std::uint16_t bits);

inline constexpr std::uint16_t bmp_signature = 19778;  ///< "BM" as a little-endian field

/// The reason for files without this signature.
inline constexpr char const* not_bmp_reason = "not a BMP file";

}  // namespace libgr
