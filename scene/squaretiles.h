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
    std::uint32_t full = 0;     ///< the number of tiles that have `side` pixels of the picture
    std::uint32_t partial = 0;  ///< 1 if there is one more tile with fewer pixels, else 0
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
    /// Returns the rectangle of a tile. Row 0 is the bottom row, and column 0 the left one. The
    /// rectangle can extend beyond the picture; see `plan_tiles`. `libgr::makewindow` clips it.
    [[nodiscard]] tile_window_t window(std::uint32_t row, std::uint32_t col) const;
};

/// Plans the tiles of an axis of `extent` pixels. An extent larger than `maxsize` is cut into tiles
/// of `maxsize` pixels. A smaller or equal extent gets one tile, whose side is the smallest power
/// of two that is not less than the extent. `maxsize` must be a power of two, otherwise this side
/// can exceed it.
axis_plan_t plan_axis(std::uint32_t extent, std::uint32_t maxsize);

/// Plans the tiles of a picture. Sizes are in pixels. `maxsize` is the largest side of a tile and
/// must be a power of two. Returns a plan without tiles if one of the parameters is 0.
///
/// In `plan = plan_tiles(600, 128, 256)`, the rows need smaller tiles than the columns, so the
/// rectangles extend beyond the top of the picture:
///
///   plan.columns         full 2, partial 1, side 256
///   plan.rows            full 1, partial 0, side 128
///   plan.tile            256
///   plan.window(0, 2)    x 512, y 0, width 88, height 256, of which the picture has 128 rows
tile_plan_t plan_tiles(std::uint32_t width, std::uint32_t height, std::uint32_t maxsize);

/// The tiles of one picture.
struct multi_square_image_t {
    std::vector<libgr::image2d_t> m_squares;  ///< row by row from the bottom, each from the left
    libgr::e_image_format_t m_format = libgr::IMAGE_FORMAT_GRAYSCALE;
    libgr::e_image_type_t m_type = libgr::IMAGE_TYPE_UINT;
    libgr::e_image_bits_t m_bits = libgr::IMAGE_BITS_8;
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    /// The size of the picture in tiles: (600 / 256, 128 / 256) in the example at `plan_tiles`.
    libgr::direction2_t m_size{0.0f, 0.0f};

    /// Replaces the tiles by `m_cols` times `m_rows` empty images. Returns false and leaves no
    /// tiles if there is no memory, or if the number of tiles exceeds the limit `tiles`
    /// (utils/limits.h). Prints an error line only for the limit.
    bool allocate();
    /// Removes the tiles and sets `m_cols` and `m_rows` to 0. The other members are unchanged.
    void clear();
};

/// Cuts `in` into the tiles of `plan_tiles`. Row 0 of `in` is the bottom row. `in` must not be a
/// window into a larger picture, because `makewindow` would clip its tiles too much. The tiles at
/// the right and top edges contain only the pixels of the picture.
///
/// If `use_window` is true, the tiles share the pixels of `in` and keep them alive. Use `in` and
/// the tiles from one thread, because the reference counts aren't atomic. If `use_window` is false,
/// each tile has a copy of its pixels.
///
/// Returns false in these cases, and prints "rectangle_to_squares(): " with the text of the case:
///
///   Case                               Text                                `out` afterwards
///   `in` is compressed                 compressed format not supported.    unchanged
///   a size or `maxsize` is 0,          outimg allocate failed.             no tiles, `m_cols` and
///   no memory for the list of tiles,                                       `m_rows` are 0
///   limit `tiles` or `texel_ratio`
///   a copy fails: no memory, or        copy() failed.                      only the earlier tiles
///   `in` has too few bytes                                                 have pixels
///
/// For a limit, prints the line of `libutils::report_limit` (utils/limits.h) before. The limit
/// `texel_ratio` is the number of texels in all tiles (`tile` squared for each) divided by the
/// pixels of the picture. A picture is rejected if its tiles have more than `texels_unchecked`
/// texels and the ratio exceeds `texel_ratio`. Only long narrow strips do. After a failed copy,
/// `m_cols` and `m_rows` are those of the plan. In the last two cases, the other members have the
/// values of the plan and of `in`.
bool rectangle_to_squares(multi_square_image_t& out, libgr::image2d_t& in, unsigned long maxsize,
                          bool use_window);

}  // namespace zanolib
