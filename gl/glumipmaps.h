// SPDX-License-Identifier: MIT
// Mipmaps by GLU, kept within the bytes that it is given.
#pragma once

#include "gl/glformat.h"
#include "image/image.h"

namespace libgr {

/// Have GLU build all levels of the texture bound to `target` from a record that is unpacked and
/// read within its bytes. The pixels of a volume are copied without padding, others only where GLU
/// could look past the end of the bytes. False, with nothing done, for an image that GLU can't take
/// without breaking memory. GLU's own result isn't looked at. Need a current context.
bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image1d_t const& image);
bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image2d_t const& image);
bool build_mipmaps(unsigned int target, gl_loading_format_t const& terms, image3d_t const& image);

}  // namespace libgr
