// SPDX-License-Identifier: MIT
// The arithmetic of the view: what the partial resets do to a view matrix, and where the projection
// looks.
#pragma once

#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"

namespace zanolib {

/// The view matrix without its scale. The scale is the cube root of the 4x4 determinant, and the
/// division acts last, so the picture's offset from the window centre scales along. A mirrored
/// matrix gives NaN.
libgr::matrix3w_t without_scale(libgr::matrix3w_t const& view);

/// The turn that `clrRotate` adds: half of the view matrix's turn, backwards.
libgr::rotation3_t half_turn_back(libgr::matrix3w_t const& view);

/// How far the projection looks beside the origin, in pixels: -0.5 on each axis on which the sizes
/// of window and picture differ in parity, since they can't both be centred on a pixel's edge then,
/// else 0.
libgr::direction2_t parity_offset(libgr::direction2l_t const& window,
                                  libgr::direction2l_t const& image);

}  // namespace zanolib
