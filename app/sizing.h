// SPDX-License-Identifier: MIT
// Calculates window sizes and picture scales.
#pragma once

#include <optional>

#include "geometry/vector.h"
#include "options/option.h"

namespace zanoview2 {

/// Returns the new size of the window for a picture, in pixels. `target` is the size that the
/// picture needs, and `current` the framebuffer's size, both in pixels. `window` is the window's
/// size in screen coordinates. Width and height are calculated separately:
///
///   1. A side changes only if `target` is larger and `options.resize_magnify` is set, or if
///      `target` is smaller and `options.resize_shrink` is set. Otherwise the result is `current`.
///   2. A side that changes becomes `target`, up to a limit by `options.sizelimit`: 1 is `window`
///      less `options.maxmargin`, 2 is `options.maxsize`, and other values are no limit.
///
/// With limit 1, a window that has at least as many pixels as screen coordinates can't grow,
/// because its limit is smaller than its size. Users' settings depend on this rule.
libgr::direction2l_t limited_window_size(libgr::direction2l_t const& target,
                                         libgr::direction2l_t const& current,
                                         libgr::direction2l_t const& window,
                                         zanolib::option_t const& options);

/// Returns `ratio` times the size of a picture, rounded toward 0. Results outside of the range of
/// int become its nearest value.
libgr::direction2l_t wanted_window_size(libgr::direction2l_t const& image, float ratio);

/// Returns the largest scale at which no side of a picture of `image` pixels exceeds `ratio` times
/// the same side of `window`. Returns nothing if the picture is 0, 0 or a side of `window` is 0.
std::optional<float> fitting_scale(libgr::direction2l_t const& image,
                                   libgr::direction2l_t const& window, float ratio);

/// Returns the factor for a view that was stored with a framebuffer of `saved` pixels and is shown
/// in one of `window` pixels: the smaller of the ratios of their widths and of their heights.
float resuming_scale(libgr::direction2l_t const& saved, libgr::direction2l_t const& window);

/// Returns the factor by which a picture is scaled when the window's height changes. Returns 1 if a
/// height is 0, because a picture of scale 0 could never be enlarged again.
float reshaping_scale(int height, int old_height);

}  // namespace zanoview2
