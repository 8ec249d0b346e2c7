// SPDX-License-Identifier: MIT
// What keeps a decompressor from working for ever or filling the memory for a small file.
#pragma once

#include <cstdint>

#include "codecs/jpegmanagers.h"

namespace libgr {

/// Has the decompressor, which must have been created, call `progress`, which makes a file of more
/// than 100 scans an error: such a file is made to keep a decoder busy, not to be looked at.
void use_scan_limit(j_decompress_ptr cinfo, jpeg_progress_mgr& progress);

/// Whether a picture of the header's size can come out of a file of `held` bytes and be held in
/// memory, with `pixel_bits` for each of its pixels and `other_bits` of what is kept beside them.
bool is_possible_picture(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                         std::uint64_t other_bits, std::uint64_t held);

}  // namespace libgr
