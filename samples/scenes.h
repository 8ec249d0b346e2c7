// SPDX-License-Identifier: MIT
// The scenes of the sample pictures.
#pragma once

#include "samples/paint.h"

namespace samples {

// Each function returns a picture of `width` pixels. Its height is proportional.

canvas_t alps(int width);                 ///< 3 by 2
canvas_t balloons_at_sunrise(int width);  ///< 3 by 4
canvas_t aurora(int width);               ///< 4 by 3
canvas_t rose_window(int width);          ///< 1 by 1
canvas_t julia(int width);                ///< 4 by 3

}  // namespace samples
