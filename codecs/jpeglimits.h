// SPDX-License-Identifier: MIT
// What keeps a decompressor from working for ever or filling the memory for a small file.
#pragma once

#include <cstdint>

#include "codecs/jpegmanagers.h"

namespace libgr {

/// Counts the blocks that a decompressor reads of a file of several scans.
struct work_limit_t {
    jpeg_progress_mgr base{};
    std::uint64_t held = 0;                  ///< bytes of the file
    jpeg_memory_source_t* source = nullptr;  ///< ends when the limit is reached; null: an error
    bool is_reached = false;
    int last_scan = 0;  ///< the scan behind which the limit is reached in any case; 0 for none
    std::uint64_t blocks = 0;  ///< read so far, in all scans
    int scan = 0;              ///< the last row that was counted
    JDIMENSION row = 0;
};

/// Has the decompressor, which must have been created, go no further when the scans of a file of
/// `held` bytes come to more than 100, or have read more blocks than scans made for viewing do:
/// such a file may be made to keep a decoder busy.
void use_work_limit(j_decompress_ptr cinfo, work_limit_t& limit, std::uint64_t held);

/// Whether a picture of the header's size can come out of a file of `held` bytes and be held in
/// memory, with `pixel_bits` for each of its pixels and `other_bits` of what is kept beside them.
bool is_possible_picture(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                         std::uint64_t other_bits, std::uint64_t held);

}  // namespace libgr
