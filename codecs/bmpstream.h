// SPDX-License-Identifier: MIT
// The header checks that the stream readers of BMP files share.
#pragma once

#include <istream>

#include "codecs/bmprecords.h"

namespace libgr {

/// Reads both headers from a stream at the file's start and goes to the pixels. False when the file
/// ends within its headers, doesn't begin with "BM" or has its pixel offset past its end. What was
/// read stays in the records.
bool read_bmp_headers(std::istream& stream, libutils::tagBITMAPFILEHEADER& fileheader,
                      libutils::tagBITMAPINFOHEADER& infoheader);

}  // namespace libgr
