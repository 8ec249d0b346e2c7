// SPDX-License-Identifier: MIT
// Plans and cuts the square tiles of a picture.
#include "scene/squaretiles.h"

#include <algorithm>
#include <iostream>
#include <new>

#include "image/pixelconvert.h"
#include "options/trace.h"
#include "utils/bits.h"
#include "utils/diagnostics.h"
#include "utils/limits.h"

namespace zanolib {

namespace {

namespace limits = libutils::limits;

bool report_error(char const* reason) {
    return libutils::report_error("rectangle_to_squares()", reason);
}

/// Adds the skipped rows and pixels to the offset of the bytes, and sets the skips to 0. Some
/// drivers swap bytes in a copy that contains only the window, skip in it again, and read past its
/// end.
void skip_by_offset(libgr::image2d_t& tile) {
    auto const skipped = static_cast<unsigned long>(libgr::pixel_row(tile, 0) - tile.begin());
    tile.offset += skipped;
    if (tile.count != libgr::image_bytes_t::to_end) {
        tile.count -= std::min(tile.count, skipped);
    }
    tile.window.skippixels = 0;
    tile.window.skiprows = 0;
}

bool cut_tile(libgr::image2d_t& tile, libgr::image2d_t& in, tile_window_t const& window,
              bool use_window) {
    libgr::image2d_t copied;
    libgr::image2d_t& target = use_window ? tile : copied;
    if (!libgr::makewindow(target, in, static_cast<int>(window.x), static_cast<int>(window.y),
                           window.width, window.height)) {
        return report_error(": makewindow() failed.");
    }
    if (!use_window && !libgr::copy(tile, copied)) {
        return report_error(": copy() failed.");
    }
    if (tile.store != nullptr && tile.store->swapbytes) {
        skip_by_offset(tile);
    }
    return true;
}

/// Returns true if the textures aren't much larger than the picture. A picture of one row would
/// need 256 times its size. Prints an error line otherwise.
bool is_plausible_plan(tile_plan_t const& plan, libgr::image2d_t const& in) {
    std::uint64_t const texels =
        std::uint64_t{plan.column_count()} * plan.row_count() * plan.tile * plan.tile;
    std::uint64_t const pixels = std::uint64_t{in.m_width} * in.m_height;
    return texels <= limits::texels_unchecked.value ||
           texels / limits::texel_ratio.value <= pixels ||
           libutils::report_limit(limits::texel_ratio);
}

}  // namespace

tile_window_t tile_plan_t::window(std::uint32_t row, std::uint32_t col) const {
    return {.x = col * tile,
            .y = row * tile,
            .width = col < columns.full ? tile : width % tile,
            .height = row < rows.full ? tile : height % tile};
}

axis_plan_t plan_axis(std::uint32_t extent, std::uint32_t maxsize) {
    if (extent > maxsize) {
        return {
            .full = extent / maxsize, .partial = extent % maxsize != 0 ? 1U : 0U, .side = maxsize};
    }
    if (libutils::Is_2nSize(extent)) {
        return {.full = 1, .partial = 0, .side = extent};
    }
    return {.full = 0,
            .partial = 1,
            .side = libutils::UpAlignBits(extent, libutils::Get_TopBitPos(extent))};
}

tile_plan_t plan_tiles(std::uint32_t width, std::uint32_t height, std::uint32_t maxsize) {
    if (width == 0 || height == 0 || maxsize == 0) {
        return {};
    }
    const axis_plan_t columns = plan_axis(width, maxsize);
    const axis_plan_t rows = plan_axis(height, maxsize);
    return {.width = width,
            .height = height,
            .columns = columns,
            .rows = rows,
            .tile = std::max(columns.side, rows.side)};
}

bool multi_square_image_t::allocate() {
    m_squares.clear();
    std::uint64_t const count = std::uint64_t{m_cols} * m_rows;
    if (count > limits::tiles.value) {
        return libutils::report_limit(limits::tiles);
    }
    try {
        m_squares.resize(count);
    } catch (std::bad_alloc const&) {
        return false;
    }
    return m_squares.size() == count;
}

void multi_square_image_t::clear() {
    m_squares.clear();
    m_cols = 0;
    m_rows = 0;
}

bool rectangle_to_squares(multi_square_image_t& out, libgr::image2d_t& in, unsigned long maxsize,
                          bool use_window) {
    trace(std::cerr, "rectangle_to_squares()");
    trace(std::cerr, "inimg: ", in.m_width, ", ", in.m_height);
    trace(std::cerr, "maxsize: ", maxsize);
    if (in.compressed) {
        return report_error(": compressed format not supported.");
    }
    auto const limit = static_cast<std::uint32_t>(std::min<unsigned long>(maxsize, UINT32_MAX));
    const tile_plan_t plan = plan_tiles(in.m_width, in.m_height, limit);
    out.m_format = in.desc.format;
    out.m_type = in.desc.type;
    out.m_bits = in.desc.bits;
    out.m_cols = plan.column_count();
    out.m_rows = plan.row_count();
    float const scale = plan.tile != 0 ? 1.0f / static_cast<float>(plan.tile) : 0.0f;
    out.m_size = libgr::direction2(static_cast<float>(in.m_width) * scale,
                                   static_cast<float>(in.m_height) * scale);
    if (plan.tile == 0 || !is_plausible_plan(plan, in) || !out.allocate()) {
        out.clear();
        return report_error(": outimg allocate failed.");
    }
    for (std::uint32_t row = 0; row < out.m_rows; ++row) {
        for (std::uint32_t col = 0; col < out.m_cols; ++col) {
            libgr::image2d_t& tile = out.m_squares[std::size_t{row} * out.m_cols + col];
            if (!cut_tile(tile, in, plan.window(row, col), use_window)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace zanolib
