// SPDX-License-Identifier: MIT
// Calculates window sizes and picture scales.
#pragma once

#include <optional>

#include "geometry/vector.h"
#include "options/option.h"

namespace zanoview2 {

/// Returns the size, in pixels, that a window changes to for a picture.
///
/// `target` is the wanted size and `current` the framebuffer's size, both in pixels. `window` is
/// the window's size in screen coordinates. Width and height are independent of each other. Each
/// one
/// - grows only if `options.resize_magnify` is set, and shrinks only if `options.resize_shrink` is;
/// - is limited, if it changes, by `options.sizelimit`: 1 to `window` less `options.maxmargin`, 2
/// to
///   `options.maxsize`, and other values not at all.
libgr::direction2l_t limited_window_size(libgr::direction2l_t const& target,
                                         libgr::direction2l_t const& current,
                                         libgr::direction2l_t const& window,
                                         zanolib::option_t const& options);

/// Returns `ratio` times the size of a picture, rounded toward 0. Results out of the range of int
/// become its nearest value.
libgr::direction2l_t wanted_window_size(libgr::direction2l_t const& image, float ratio);

/// Returns the largest scale at which a picture of `image` pixels fits into the part `ratio` of
/// each side of `window`. Returns nothing if a size is 0.
std::optional<float> fitting_scale(libgr::direction2l_t const& image,
                                   libgr::direction2l_t const& window, float ratio);

/// Returns the scale that fits a view of a window with `saved` pixels into one with `window`
/// pixels.
float resuming_scale(libgr::direction2l_t const& saved, libgr::direction2l_t const& window);

/// Returns the factor by which a picture is scaled when the window's height changes. Returns 1 if
/// it doesn't, or if a height is 0: a picture of scale 0 could never be enlarged again.
float reshaping_scale(int height, int old_height);

}  // namespace zanoview2
