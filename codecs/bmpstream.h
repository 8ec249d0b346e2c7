// SPDX-License-Identifier: MIT
// The header checks that the stream readers of BMP files share.
#pragma once

#include <cstdint>
#include <istream>

#include "codecs/bmprecords.h"

namespace libgr {

/// Reads both headers from a stream at the file's start and goes to the pixels. False when the file
/// ends within its headers, doesn't begin with "BM" or has its pixel offset past its end. What was
/// read stays in the records.
bool read_bmp_headers(std::istream& stream, libutils::tagBITMAPFILEHEADER& fileheader,
                      libutils::tagBITMAPINFOHEADER& infoheader);

/// Returns true if a reader accepts the compression method of a header, which is 0. Otherwise
/// records what it is and returns false.
bool is_uncompressed(std::uint32_t method);

/// Records that no reader accepts the bits of a pixel. Always returns false.
bool reject_depth(std::uint16_t bits);

inline constexpr std::uint16_t bmp_signature = 19778;  ///< "BM" as a little-endian field

/// The reason that the readers record for other files.
inline constexpr char const* not_bmp_reason = "not a BMP file";

}  // namespace libgr
