// SPDX-License-Identifier: MIT
// The limits that a JPEG's header and scans are held against.
#include "codecs/jpeglimits.h"

#include <jerror.h>

#include "codecs/claims.h"

namespace libgr {

namespace {

constexpr int k_most_scans = 100;

/// The smallest files that encoders make of one colour hold some 3000 times their size in pixels.
constexpr std::uint64_t k_densest_ratio = 4096;
constexpr std::uint64_t k_harmless_claim = std::uint64_t{64} << 20;  // bytes

void limit_scans(j_common_ptr cinfo) {
    if (reinterpret_cast<j_decompress_ptr>(cinfo)->input_scan_number > k_most_scans) {
        ERREXIT(cinfo, JERR_BAD_PROGRESSION);
    }
}

}  // namespace

void use_scan_limit(j_decompress_ptr cinfo, jpeg_progress_mgr& progress) {
    progress.progress_monitor = limit_scans;
    cinfo->progress = &progress;
}

bool is_possible_picture(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                         std::uint64_t other_bits, std::uint64_t held) {
    std::uint64_t const claimed =
        std::uint64_t{cinfo.image_width} * cinfo.image_height * pixel_bits / 8;
    return fits_in_memory(cinfo.image_width, cinfo.image_height, pixel_bits + other_bits) &&
           (claimed <= k_harmless_claim || claimed / k_densest_ratio <= held);
}

}  // namespace libgr
