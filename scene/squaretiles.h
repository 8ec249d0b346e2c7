// SPDX-License-Identifier: MIT
// Cuts a picture of any size into square tiles for textures of limited size.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/constants.h"
#include "geometry/vector.h"
#include "image/image.h"

namespace zanolib {

/// The tiles along one axis of a picture.
struct axis_plan_t {
    std::uint32_t full = 0;     ///< the number of tiles that the picture fills along this axis
    std::uint32_t partial = 0;  ///< 1 if the picture fills a part of one more tile, else 0
    std::uint32_t side = 0;     ///< the side, in pixels, of the tiles that this axis needs
};

/// A rectangle of a picture, in pixels from its bottom-left corner.
struct tile_window_t {
    std::uint32_t x = 0, y = 0, width = 0, height = 0;
};

/// The grid of tiles of one picture. It begins at the bottom-left corner of the picture.
struct tile_plan_t {
    std::uint32_t width = 0, height = 0;  ///< the size of the picture, in pixels
    axis_plan_t columns, rows;
    /// The side, in pixels, of each tile: the larger of `columns.side` and `rows.side`.
    std::uint32_t tile = 0;

    [[nodiscard]] std::uint32_t column_count() const { return columns.full + columns.partial; }
    [[nodiscard]] std::uint32_t row_count() const { return rows.full + rows.partial; }
    /// Returns the part of the picture that a tile shows. Row 0 is the bottom row. If one axis
    /// needs smaller tiles than the other, the rectangle can extend beyond the picture along that
    /// axis. `libgr::makewindow` clips it to the picture.
    [[nodiscard]] tile_window_t window(std::uint32_t row, std::uint32_t col) const;
};

/// Plans the tiles of an axis of `extent` pixels. An extent larger than `maxsize` is cut into tiles
/// of `maxsize` pixels. A smaller or equal extent gets one tile, whose side is the smallest power
/// of two that is not less than the extent. `maxsize` must be a power of two, otherwise this side
/// can exceed it.
axis_plan_t plan_axis(std::uint32_t extent, std::uint32_t maxsize);

/// Plans the tiles of a picture. Sizes are in pixels. `maxsize` is the largest side of a tile and
/// must be a power of two. Returns a plan without tiles if one of the parameters is 0.
tile_plan_t plan_tiles(std::uint32_t width, std::uint32_t height, std::uint32_t maxsize);

/// The tiles of one picture.
struct multi_square_image_t {
    std::vector<libgr::image2d_t> m_squares;  ///< row by row from the bottom, each from the left
    libgr::e_image_format_t m_format = libgr::IMAGE_FORMAT_GRAYSCALE;
    libgr::e_image_type_t m_type = libgr::IMAGE_TYPE_UINT;
    libgr::e_image_bits_t m_bits = libgr::IMAGE_BITS_8;
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    /// The size of the picture, where 1 is the side of one tile.
    libgr::direction2_t m_size{0.0f, 0.0f};

    /// Replaces the tiles by `m_cols` times `m_rows` empty images. Returns false and leaves no
    /// tiles if memory runs out or if the number of tiles exceeds the limit `tiles`
    /// (utils/limits.h). Prints an error line in the second case.
    bool allocate();
    /// Removes the tiles and sets the columns and rows to 0. `m_size` and the description of the
    /// pixels are unchanged.
    void clear();
};

/// Cuts `in` into the tiles of `plan_tiles`. The tiles at the right and top edges are smaller than
/// the others if the picture doesn't fill them. Without `use_window`, each tile is a copy of its
/// pixels. With `use_window`, each tile is a window that shares the pixels of `in` and keeps them
/// alive. Use `in` and its windows from one thread, because the reference counts aren't atomic.
///
/// Prints an error line and returns false if `in` is compressed, a size or `maxsize` is 0, there is
/// no memory, or the picture exceeds the limit `tiles` or `texel_ratio` (utils/limits.h). Copying
/// also fails if `in` has too few bytes. After a failure, `out` has no tiles, with two exceptions:
/// if `in` is compressed, `out` is unchanged, and if a copy fails, the earlier tiles are complete.
bool rectangle_to_squares(multi_square_image_t& out, libgr::image2d_t& in, unsigned long maxsize,
                          bool use_window);

}  // namespace zanolib
