// SPDX-License-Identifier: MIT
// Computes the partial resets of the view matrix and the offset of the projection.
#pragma once

#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"

namespace zanolib {

/// Returns `view` without its scale. The scale is the cube root of the determinant. The translation
/// is divided as well, because zooming also scales the distance of the picture from the window
/// centre. The result contains NaNs if the determinant is negative, and NaNs or infinities if it
/// is 0.
libgr::matrix3w_t without_scale(libgr::matrix3w_t const& view);

/// Returns the rotation that `ViewScene::clrRotate` appends: half the rotation of `view`, in the
/// opposite direction. It is half because `libgr::getRotation3` returns half the angle. Returns
/// `Irot` if the determinant of `view` isn't positive.
libgr::rotation3_t half_turn_back(libgr::matrix3w_t const& view);

/// Returns the offset, in pixels, of the projection. It is -0.5 along an axis if one of the sizes
/// of `window` and `image` is even and the other is odd, else 0. Without the offset, the pixels of
/// the picture would be halfway between those of the window.
libgr::direction2_t parity_offset(libgr::direction2l_t const& window,
                                  libgr::direction2l_t const& image);

}  // namespace zanolib
