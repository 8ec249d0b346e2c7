// SPDX-License-Identifier: MIT
// Normal maps for bump mapping, and a cube map of unit directions.
#pragma once

#include "image/image.h"

namespace libgr {

/// Converts a height map to a normal map. `src` is GRAYSCALE of unsigned 8 bits: the heights are
/// the bytes divided by 255. `dst`, which must not be `src`, becomes RGB of signed 8 bits: x, y and
/// z of each normal times 127, rounded. The rows of `dst` are padded to 4 bytes, and those of `src`
/// are expected to be. Windows are ignored.
///
/// The x slope is the height of the right neighbour minus that of this pixel; the y slope uses the
/// neighbour above. Neighbours wrap around at the edges. The slopes are not negated, so normals
/// lean uphill. With the slopes dx and dy, the normal is
/// (dx, dy, sqrt(1 - dy * dy) + sqrt(1 - dx * dx)), scaled to length 1. So z is from 0 to 1, and
/// its byte from 0 to 127. The programs of the photo frame expect exactly this. `scale` is ignored
/// and exists for source compatibility.
///
/// An RGB source with 8-bit integer components isn't converted: `dst` shares its bytes. If `src`
/// has another description, is compressed or has bytes for only some of its pixels, `dst` shares
/// its bytes, too, and this function prints an error line and returns false. If there is no memory,
/// it prints an error line and returns false, and the pixels of `dst` are undefined.
bool heightmap2normalmap(image2d_t& dst, image2d_t const& src, float scale);

/// Fills six records with the faces of a normalization cube map for GL_ARB_texture_env_dot3. The
/// faces are 256 by 256 pixels of RGB, in the order +x, -x, +y, -y, +z, -z. Components from -1 to 1
/// are stored as 0 to 255, although the description says signed bytes.
///
/// The directions differ from those of OpenGL's cube maps. The coordinate of column or row n is
/// n / 127 - 1. Where OpenGL negates a coordinate, this function negates n instead: -n / 127 - 1 is
/// from -1 to -3.01. Face -y has +1 in y. The photo frame depends on these bytes.
///
/// Returns false if there is no memory. Some faces may then have been changed.
bool makenormalcubemap(image2d_t* faces);

}  // namespace libgr
