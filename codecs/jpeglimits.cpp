// SPDX-License-Identifier: MIT
// The limits that a JPEG's header and scans are held against.
#include "codecs/jpeglimits.h"

#include <jerror.h>

#include "codecs/claims.h"

namespace libgr {

namespace {

constexpr int k_most_scans = 100;

/// A picture of one colour takes a bit a block at least, hence some 1500 times its file's bytes;
/// there is no such bound in arithmetic coding.
constexpr std::uint64_t k_densest_ratio = 4096;
constexpr std::uint64_t k_harmless_claim = std::uint64_t{64} << 20;  // bytes
constexpr std::uint64_t k_harmless_arithmetic_claim = std::uint64_t{1} << 30;

/// A block of a picture of one colour takes some bits in one scan at least, but for arithmetic
/// coding, and a picture for viewing has some ten scans.
constexpr std::uint64_t k_blocks_of_a_byte = 64;
constexpr std::uint64_t k_harmless_blocks = std::uint64_t{16} << 20;

/// Blocks that the present scan reads in a row of iMCUs.
std::uint64_t blocks_of_row(jpeg_decompress_struct const& cinfo) {
    std::uint64_t blocks = 0;
    for (int i = 0; i < cinfo.comps_in_scan; ++i) {
        jpeg_component_info const& component = *cinfo.cur_comp_info[i];
        blocks += std::uint64_t{component.width_in_blocks} *
                  static_cast<std::uint64_t>(component.v_samp_factor);
    }
    return blocks;
}

std::uint64_t blocks_of_picture(jpeg_decompress_struct const& cinfo) {
    std::uint64_t blocks = 0;
    for (int i = 0; i < cinfo.num_components; ++i) {
        jpeg_component_info const& component = cinfo.comp_info[i];
        blocks += std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
    }
    return blocks;
}

/// libjpeg's progress hook: comes round at each row of iMCUs that is read, and at each row of
/// samples that is given out.
void limit_work(j_common_ptr any) {
    auto* const cinfo = reinterpret_cast<j_decompress_ptr>(any);
    auto& limit = *reinterpret_cast<work_limit_t*>(cinfo->progress);
    if (cinfo->input_scan_number == limit.scan && cinfo->input_iMCU_row == limit.row) {
        return;
    }
    limit.scan = cinfo->input_scan_number;
    limit.row = cinfo->input_iMCU_row;
    limit.blocks += blocks_of_row(*cinfo);
    std::uint64_t const most =
        k_harmless_blocks + k_blocks_of_a_byte * limit.held + 2 * blocks_of_picture(*cinfo);
    bool const is_behind_last =
        limit.scan == limit.last_scan && limit.row == cinfo->total_iMCU_rows;
    limit.is_reached = limit.scan > k_most_scans || limit.blocks > most || is_behind_last;
    if (limit.is_reached && limit.source == nullptr) {
        ERREXIT(cinfo, JERR_BAD_PROGRESSION);
    } else if (limit.is_reached) {
        cinfo->unread_marker = 0;  // what was read ahead isn't looked at any more
        end_source(*limit.source);
    }
}

}  // namespace

void use_work_limit(j_decompress_ptr cinfo, work_limit_t& limit, std::uint64_t held) {
    limit.held = held;
    limit.base.progress_monitor = limit_work;
    cinfo->progress = &limit.base;
}

bool is_possible_picture(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                         std::uint64_t other_bits, std::uint64_t held) {
    std::uint64_t const claimed =
        std::uint64_t{cinfo.image_width} * cinfo.image_height * pixel_bits / 8;
    std::uint64_t const harmless =
        cinfo.arith_code != FALSE ? k_harmless_arithmetic_claim : k_harmless_claim;
    return fits_in_memory(cinfo.image_width, cinfo.image_height, pixel_bits + other_bits) &&
           (claimed <= harmless || claimed / k_densest_ratio <= held);
}

}  // namespace libgr
