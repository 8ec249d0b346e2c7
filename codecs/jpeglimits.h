// SPDX-License-Identifier: MIT
// Limits of the time and memory that decoding a JPEG takes (utils/limits.h).
#pragma once

#include <cstdint>

#include "codecs/jpegmanagers.h"

namespace libgr {

/// Counts the blocks that a decompressor has read. This is limited because each scan can read the
/// whole picture again.
struct work_limit_t {
    jpeg_progress_mgr base{};
    jpegdata_t const* data = nullptr;
    /// The source that is ended when the limit is reached. If it is null, libjpeg fails instead.
    jpeg_memory_source_t* source = nullptr;
    bool is_reached = false;
    bool is_reported = false;  ///< an error line has been printed
    int last_scan = 0;         ///< the scan after which decoding always ends, or 0
    std::uint64_t blocks = 0;  ///< read so far, in all scans
    int scan = 0;              ///< the scan that was counted last
    JDIMENSION row = 0;        ///< the iMCU row that was counted last
};

/// Stops the decompressor when the scans of `data` exceed the limit jpeg-scans or jpeg-blocks.
/// Prints an error line then. The decompressor must have been created.
void use_work_limit(j_decompress_ptr cinfo, work_limit_t& limit, jpegdata_t const& data);

/// Returns true if the size in the header is within the limits jpeg-ratio and picture-memory.
/// `pixel_bits` is the size of a pixel, and `other_bits` the size of its coefficients, in bits.
/// Otherwise prints an error line.
bool is_plausible_size(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                       std::uint64_t other_bits, jpegdata_t const& data);

}  // namespace libgr
