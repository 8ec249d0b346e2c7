// SPDX-License-Identifier: MIT
// The vertices, texture coordinates and indices of the photo frame.
#pragma once

#include <array>

#include "geometry/vector.h"

namespace zanolib {

/// The corners of the frame, counter-clockwise from the bottom left. Each outer corner is followed
/// by its inner one.
using frame_vertices_t = std::array<libgr::position2_t, 8>;

/// Returns the corners of a frame around a picture that is centred on the origin. `size` is the
/// size of the picture, and `width` the width of the frame, in pixels.
inline frame_vertices_t frame_vertices(libgr::direction2_t const& size, float width) {
    float const hx = size.x * 0.5f;
    float const hy = size.y * 0.5f;
    float const ox = hx + width;
    float const oy = hy + width;
    return {
        {{-ox, -oy}, {-hx, -hy}, {ox, -oy}, {hx, -hy}, {ox, oy}, {hx, hy}, {-ox, oy}, {-hx, hy}}};
}

/// The texture coordinates, in the order of the corners. The outer edge of the frame is the edge of
/// the texture, and the inner edge is at a quarter of the texture, for pictures of all proportions.
inline constexpr std::array<libgr::texcoord2_t, 8> texcoords_frame{{{0.0f, 0.0f},
                                                                    {0.25f, 0.25f},
                                                                    {1.0f, 0.0f},
                                                                    {0.75f, 0.25f},
                                                                    {1.0f, 1.0f},
                                                                    {0.75f, 0.75f},
                                                                    {0.0f, 1.0f},
                                                                    {0.25f, 0.75f}}};

/// The indices of a quad strip. The inner corner comes first in each pair, which makes the quads
/// counter-clockwise. So they aren't culled as back faces.
inline constexpr std::array<unsigned char, 10> elements{1, 0, 3, 2, 5, 4, 7, 6, 1, 0};

}  // namespace zanolib
