// SPDX-License-Identifier: MIT
// The scenes of the sample pictures.
#pragma once

#include "samples/paint.h"

namespace samples {

/// A landscape. Its height is two thirds of `width`.
canvas_t alps(int width);

/// 900 by 1200 pixels.
canvas_t balloons_at_sunrise();

canvas_t aurora();
canvas_t rose_window();
canvas_t julia();

}  // namespace samples
