// SPDX-License-Identifier: MIT
// Limits of a decompressor's time and memory. Exceeded limits are reported by an error line that
// names them; see utils/limits.h.
#pragma once

#include <cstdint>

#include "codecs/jpegmanagers.h"

namespace libgr {

/// Counts the blocks that a decompressor reads of a file of several scans.
struct work_limit_t {
    jpeg_progress_mgr base{};
    jpegdata_t const* data = nullptr;
    jpeg_memory_source_t* source = nullptr;  ///< ends when the limit is reached; null: an error
    bool is_reached = false;
    bool is_reported = false;  ///< an error line has been printed
    int last_scan = 0;         ///< the scan after which decoding ends in any case; 0 for none
    std::uint64_t blocks = 0;  ///< read so far, in all scans
    int scan = 0;              ///< the last row that was counted
    JDIMENSION row = 0;
};

/// Stops the decompressor, which must have been created, when the scans of `data` exceed the limit
/// jpeg-scans or jpeg-blocks.
void use_work_limit(j_decompress_ptr cinfo, work_limit_t& limit, jpegdata_t const& data);

/// Returns true if the size in the header is within the limits jpeg-ratio and picture-memory, with
/// `pixel_bits` for each pixel and `other_bits` for its coefficients.
bool is_plausible_size(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                       std::uint64_t other_bits, jpegdata_t const& data);

}  // namespace libgr
