// SPDX-License-Identifier: MIT
// Computes the partial resets of the view matrix and the offset of the projection.
#include "scene/viewmatrix.h"

#include <cmath>

namespace zanolib {

libgr::matrix3w_t without_scale(libgr::matrix3w_t const& view) {
    float const scale = std::pow(libgr::Determinant(view), 0.33333334f);
    float const inverse = 1.0f / scale;
    return view * libgr::getScaleMatrix(libgr::direction3(inverse));
}

libgr::rotation3_t half_turn_back(libgr::matrix3w_t const& view) {
    return libgr::Invert(libgr::getRotation3(without_scale(view)));
}

libgr::direction2_t parity_offset(libgr::direction2l_t const& window,
                                  libgr::direction2l_t const& image) {
    auto const axis = [](int a, int b) { return ((a ^ b) & 1) != 0 ? -0.5f : 0.0f; };
    return libgr::direction2(axis(window.x, image.x), axis(window.y, image.y));
}

}  // namespace zanolib
