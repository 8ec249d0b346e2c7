// SPDX-License-Identifier: MIT
// Calculates window sizes and picture scales.
#include "app/sizing.h"

#include <cmath>

#include "utils/bits.h"

namespace zanoview2 {

namespace {

int limited_axis(int target, int current, int margin_limit, int size_limit,
                 zanolib::option_t const& options) {
    bool const changes =
        (target > current && options.resize_magnify) || (target < current && options.resize_shrink);
    if (!changes) {
        return current;
    }
    switch (options.sizelimit) {
        case 1:
            return libutils::min2(margin_limit, target);
        case 2:
            return libutils::min2(size_limit, target);
        default:
            return target;
    }
}

}  // namespace

libgr::direction2l_t limited_window_size(libgr::direction2l_t const& target,
                                         libgr::direction2l_t const& current,
                                         libgr::direction2l_t const& window,
                                         zanolib::option_t const& options) {
    return libgr::direction2l(limited_axis(target.x, current.x, window.x - options.maxmargin.x,
                                           options.maxsize.x, options),
                              limited_axis(target.y, current.y, window.y - options.maxmargin.y,
                                           options.maxsize.y, options));
}

libgr::direction2l_t wanted_window_size(libgr::direction2l_t const& image, float ratio) {
    return libgr::direction2l(libgr::direction2(image) * ratio);
}

std::optional<float> fitting_scale(libgr::direction2l_t const& image,
                                   libgr::direction2l_t const& window, float ratio) {
    float const tighter = libgr::max1(libgr::direction2(image) / libgr::direction2(window));
    if (tighter == 0.0f || !std::isfinite(tighter)) {
        return std::nullopt;
    }
    return ratio / tighter;
}

float resuming_scale(libgr::direction2l_t const& saved, libgr::direction2l_t const& window) {
    return libgr::min1(libgr::direction2(window) / libgr::direction2(saved));
}

float reshaping_scale(int height, int old_height) {
    if (height == old_height || height <= 0 || old_height <= 0) {
        return 1.0f;
    }
    return static_cast<float>(height) / static_cast<float>(old_height);
}

}  // namespace zanoview2
