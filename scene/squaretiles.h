// SPDX-License-Identifier: MIT
// The plan by which a picture of any size is cut into square tiles, and the tile images that come
// of it.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/constants.h"
#include "geometry/vector.h"
#include "image/image.h"

namespace zanolib {

/// How one axis of a picture is cut.
struct axis_plan_t {
    std::uint32_t full = 0;     ///< tiles that the picture fills
    std::uint32_t partial = 0;  ///< 1 when a strip is left over for a last tile, else 0
    std::uint32_t side = 0;     ///< the tile side that this axis asks for, in pixels
};

/// A rectangle of the picture, in pixels from its bottom-left corner.
struct tile_window_t {
    std::uint32_t x = 0, y = 0, width = 0, height = 0;
};

/// The grid of tiles over one picture: numbers alone, no pixels and no GL.
struct tile_plan_t {
    std::uint32_t width = 0, height = 0;  ///< the picture, in pixels
    axis_plan_t columns, rows;
    std::uint32_t tile =
        0;  ///< the side of every tile, in pixels: the larger of the two axes' sides

    [[nodiscard]] std::uint32_t cols() const { return columns.full + columns.partial; }
    [[nodiscard]] std::uint32_t lines() const { return rows.full + rows.partial; }
    /// What tile (`row`, `col`) shows, row 0 lowest. A tile that counts as full may ask for more
    /// than the picture has on that axis: whoever cuts it clips it to the picture.
    [[nodiscard]] tile_window_t window(std::uint32_t row, std::uint32_t col) const;
};

/// Cuts an axis of `extent` pixels into tiles of at most `maxsize` pixels. An extent that is no
/// more than that becomes one tile, whose side is the next power of two.
axis_plan_t plan_axis(std::uint32_t extent, std::uint32_t maxsize);

/// Plans the tiles of a picture. A size or a limit of 0 gives a plan without tiles.
tile_plan_t plan_tiles(std::uint32_t width, std::uint32_t height, std::uint32_t maxsize);

/// The tiles of one picture.
struct multi_square_image_t {
    std::vector<libgr::image2d_t>
        m_squares;  ///< row by row from the bottom, left to right in a row
    libgr::e_image_format_t m_format = libgr::IMAGE_FORMAT_GRAYSCALE;
    libgr::e_image_type_t m_type = libgr::IMAGE_TYPE_UINT;
    libgr::e_image_bits_t m_bits = libgr::IMAGE_BITS_8;
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    libgr::direction2_t m_size{0.0f, 0.0f};  ///< the picture measured in tile sides

    /// Replaces the tiles by `m_cols` times `m_rows` default images. Returns false without any tile
    /// if there is no memory for them, or, with an error line, if they exceed the limit tiles
    /// (utils/limits.h).
    bool allocate();
    /// Drops the tiles and sets the columns and rows to 0. `m_size` and the pixel description stay.
    void clear();
};

/// Cuts `in` into the squares of `plan_tiles`. With `use_window` each tile is a window that shares
/// the pixels of `in`, without it a copy of its own. Returns false after an error line for a
/// compressed image, a size or a limit of 0, a failed allocation, and a picture that exceeds the
/// limit tiles or texel-ratio (utils/limits.h).
bool rectangle_to_squares(multi_square_image_t& out, libgr::image2d_t& in, unsigned long maxsize,
                          bool use_window);

}  // namespace zanolib
