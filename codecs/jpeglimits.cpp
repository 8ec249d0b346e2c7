// SPDX-License-Identifier: MIT
// Limits of the time and memory that decoding a JPEG takes.
#include "codecs/jpeglimits.h"

#include <jerror.h>

#include "codecs/sizelimits.h"
#include "utils/limits.h"

namespace libgr {

namespace {

namespace limits = libutils::limits;

/// Returns the number of blocks that the current scan reads for a row of iMCUs.
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

/// Returns the limit that the scans read so far exceed, or null.
libutils::limit_t const* exceeded_limit(jpeg_decompress_struct const& cinfo,
                                        work_limit_t const& limit) {
    if (static_cast<std::uint64_t>(limit.scan) > limits::jpeg_scans.value) {
        return &limits::jpeg_scans;
    }
    std::uint64_t const max_blocks = limits::jpeg_blocks_unchecked.value +
                                     limits::jpeg_blocks.value * limit.data->size() +
                                     2 * blocks_of_picture(cinfo);
    return limit.blocks > max_blocks ? &limits::jpeg_blocks : nullptr;
}

/// The progress hook of libjpeg. libjpeg calls it for each row of iMCUs that it reads and for each
/// row of samples that it returns.
void limit_work(j_common_ptr any) {
    auto* const cinfo = reinterpret_cast<j_decompress_ptr>(any);
    auto& limit = *reinterpret_cast<work_limit_t*>(cinfo->progress);
    if (cinfo->input_scan_number == limit.scan && cinfo->input_iMCU_row == limit.row) {
        return;
    }
    limit.scan = cinfo->input_scan_number;
    limit.row = cinfo->input_iMCU_row;
    limit.blocks += blocks_of_row(*cinfo);
    libutils::limit_t const* const exceeded = exceeded_limit(*cinfo, limit);
    if (exceeded != nullptr && !limit.is_reported) {
        libutils::report_limit(*exceeded, limit.data->name);
        limit.is_reported = true;
    }
    bool const ends_last = limit.scan == limit.last_scan && limit.row == cinfo->total_iMCU_rows;
    limit.is_reached = exceeded != nullptr || ends_last;
    if (limit.is_reached && limit.source == nullptr) {
        ERREXIT(cinfo, JERR_BAD_PROGRESSION);
    } else if (limit.is_reached) {
        cinfo->unread_marker = 0;  // drop the marker that was read ahead
        end_source(*limit.source);
    }
}

}  // namespace

void use_work_limit(j_decompress_ptr cinfo, work_limit_t& limit, jpegdata_t const& data) {
    limit.data = &data;
    limit.base.progress_monitor = limit_work;
    cinfo->progress = &limit.base;
}

bool is_plausible_size(jpeg_decompress_struct const& cinfo, std::uint64_t pixel_bits,
                       std::uint64_t other_bits, jpegdata_t const& data) {
    std::uint64_t const claimed =
        std::uint64_t{cinfo.image_width} * cinfo.image_height * pixel_bits / 8;
    libutils::limit_t const& unchecked =
        cinfo.arith_code != FALSE ? limits::jpeg_arithmetic_unchecked : limits::jpeg_unchecked;
    if (claimed > unchecked.value && claimed / limits::jpeg_ratio.value > data.size()) {
        return libutils::report_limit(limits::jpeg_ratio, data.name);
    }
    return fits_in_memory(cinfo.image_width, cinfo.image_height, pixel_bits + other_bits,
                          data.name);
}

}  // namespace libgr
