// SPDX-License-Identifier: MIT
// Normal maps for bump mapping: from a height image, and as a cube map that normalises directions.
#pragma once

#include "image/image.h"

namespace libgr {

/// Turns a height image (gray, 8 bits, 255 the highest) into one of normals: `dst` becomes RGB of
/// signed bytes, x, y and z times 127, rows padded to 4 bytes. A slope is the height to the right,
/// or above, less the height here, the edges wrapping as in a tiling texture. The slope is part of
/// the normal as it is, without a sign of its own. `scale` isn't used.
///
/// An RGB image of 8 bits is taken for a normal map already and shared. Any other, and a compressed
/// one, is shared, too, with a line on std::cerr and false.
bool heightmap2normalmap(image2d_t& dst, image2d_t const& src, float scale);

/// Fills six records, in the order of OpenGL's cube map faces, with 256 by 256 directions of unit
/// length. The records say signed bytes, while the components -1 to 1 are written as 0 to 255.
/// False without a word when a face can't be allocated.
bool makenormalcubemap(image2d_t* faces);

}  // namespace libgr
