// SPDX-License-Identifier: MIT
// The scenes of the sample pictures.
#pragma once

#include "samples/paint.h"

namespace samples {

/// A landscape of `width` by two thirds of it.
canvas_t alps(int width);

/// Taller than wide: 900 by 1200.
canvas_t balloons_at_sunrise();

canvas_t aurora();
canvas_t rose_window();
canvas_t julia();

}  // namespace samples
