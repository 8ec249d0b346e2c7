// SPDX-License-Identifier: MIT
// The arithmetic of the view.
#include "scene/viewmatrix.h"

#include <cmath>

namespace zanolib {

libgr::matrix3w_t without_scale(libgr::matrix3w_t const& view) {
    float const scale = std::pow(libgr::Determinant(view), 0.33333334f);
    float const inverse = 1.0f / scale;
    return view * libgr::getScaleMatrix(libgr::direction3(inverse));
}

libgr::rotation3_t half_turn_back(libgr::matrix3w_t const& view) {
    // getRotation3 yields half the matrix's turn: each reset closes in on the upright position by
    // half.
    return libgr::Invert(libgr::getRotation3(without_scale(view)));
}

libgr::direction2_t parity_offset(libgr::direction2l_t const& window,
                                  libgr::direction2l_t const& image) {
    auto const axis = [](int a, int b) { return ((a ^ b) & 1) != 0 ? -0.5f : 0.0f; };
    return libgr::direction2(axis(window.x, image.x), axis(window.y, image.y));
}

}  // namespace zanolib
