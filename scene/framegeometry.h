// SPDX-License-Identifier: MIT
// The band of the photo frame as numbers: corners, texture coordinates and the order of drawing.
#pragma once

#include <array>

#include "geometry/vector.h"

namespace zanolib {

/// The band's corners, outer and inner in turn, counter-clockwise from the bottom left.
using frame_vertices_t = std::array<libgr::position2_t, 8>;

/// The band of `width` pixels around a picture of `size` pixels that is centred on the origin.
inline frame_vertices_t frame_vertices(libgr::direction2_t const& size, float width) {
    float const hx = size.x * 0.5f;
    float const hy = size.y * 0.5f;
    float const ox = hx + width;
    float const oy = hy + width;
    return {
        {{-ox, -oy}, {-hx, -hy}, {ox, -oy}, {hx, -hy}, {ox, oy}, {hx, hy}, {-ox, oy}, {-hx, hy}}};
}

/// One texture over the band, whatever the picture's proportions: the outer edge lies on the
/// texture's edge, the inner one a quarter of the way in. In the order of the corners.
inline constexpr std::array<libgr::texcoord2_t, 8> texcoords_frame{{{0.0f, 0.0f},
                                                                    {0.25f, 0.25f},
                                                                    {1.0f, 0.0f},
                                                                    {0.75f, 0.25f},
                                                                    {1.0f, 1.0f},
                                                                    {0.75f, 0.75f},
                                                                    {0.0f, 1.0f},
                                                                    {0.25f, 0.75f}}};

/// The corners as a quad strip. The inner corner leads each pair, which makes the quads
/// counter-clockwise, so that they survive the culling of back faces.
inline constexpr std::array<unsigned char, 10> elements{1, 0, 3, 2, 5, 4, 7, 6, 1, 0};

}  // namespace zanolib
