// SPDX-License-Identifier: MIT
// The arithmetic by which window and picture adapt to each other, from numbers to numbers.
#pragma once

#include <optional>

#include "geometry/vector.h"
#include "options/option.h"

namespace zanoview2 {

/// The window size, in pixels, for a picture that wants `target` while the window has `current`.
///
/// Each axis goes by itself: it changes only as `options.resize_magnify` and
/// `options.resize_shrink` allow, and `options.sizelimit` bounds it: 1 by `window` (the window's
/// present size in screen coordinates) less `maxmargin`, 2 by `maxsize`, anything else not at all.
libgr::direction2l_t limited_window_size(libgr::direction2l_t const& target,
                                         libgr::direction2l_t const& current,
                                         libgr::direction2l_t const& window,
                                         zanolib::option_t const& options);

/// The size that a picture of `image` pixels wants for its window: `ratio` times its own,
/// truncated, and the nearest int where it doesn't fit into one.
libgr::direction2l_t wanted_window_size(libgr::direction2l_t const& image, float ratio);

/// The scale that makes a picture of `image` pixels take the share `ratio` of its tighter side of
/// `window`; none when there is nothing to fit, because a size is 0.
std::optional<float> fitting_scale(libgr::direction2l_t const& image,
                                   libgr::direction2l_t const& window, float ratio);

/// The scale that brings a view stored in a window of `saved` pixels into one of `window` pixels.
float resuming_scale(libgr::direction2l_t const& saved, libgr::direction2l_t const& window);

/// The scale that a picture gets when the window's height changes; exactly 1 when it doesn't, and
/// for a height of 0, which would leave a matrix that nothing brings back.
float reshaping_scale(int height, int old_height);

}  // namespace zanoview2
