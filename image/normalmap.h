// SPDX-License-Identifier: MIT
// Normal maps for bump mapping, and a cube map of unit directions.
#pragma once

#include "image/image.h"

namespace libgr {

/// Converts a height map to a normal map. `src` is GRAYSCALE of unsigned 8 bits: the heights are
/// the bytes divided by 255. `dst`, which must not be `src`, becomes RGB of signed 8 bits: x, y and
/// z of each normal times 127, rounded. The rows of `dst` are padded to 4 bytes, and those of `src`
/// are expected to be. The window and store of `src` are ignored. Pass a new record as `dst`: its
/// window is kept but not used. Its store becomes the store of `src`.
///
/// The slope dx is the height of the right neighbour minus the height of the pixel, and dy uses the
/// neighbour above. Neighbours wrap around at the edges. The normal is
///
///   (dx, dy, sqrt(1 - dy * dy) + sqrt(1 - dx * dx))
///
/// scaled to length 1. The slopes are not negated, so normals lean uphill. z is never negative: its
/// byte is from 0 to 127. data/bumpmapf.fp1, the fragment program of the photo frame, expects these
/// bytes. `scale` is ignored: it is only kept for existing callers.
///
/// The other sources (an incomplete one has bytes for only some of its pixels):
///
///   RGB with 8-bit integer components             true; `dst` shares the bytes
///   another description, compressed, incomplete   false, an error line; `dst` shares the bytes
///
/// If there is no memory, prints an error line and returns false, and the pixels of `dst` are
/// undefined.
bool heightmap2normalmap(image2d_t& dst, image2d_t const& src, float scale);

/// Fills six records with the faces of a normalization cube map for GL_ARB_texture_env_dot3. The
/// faces are 256 by 256 pixels of RGB, and their order is +x, -x, +y, -y, +z, -z. Components from
/// -1 to 1 are stored as 0 to 255, although the description says signed bytes. Pass new records:
/// windows and stores are kept but not used.
///
/// The pixel in column i of row j has the direction in this table, scaled to length 1, with
/// s(n) = n / 127 - 1:
///
///   face   x       y       z
///   +x     1       s(-j)   s(-i)
///   -x     -1      s(-j)   s(i)
///   +y     s(i)    1       s(j)
///   -y     s(i)    1       s(-j)
///   +z     s(i)    s(-j)   1
///   -z     s(-i)   s(-j)   -1
///
/// OpenGL's cube maps have -s(n) in place of s(-n), and -1 as y of the face -y. The photo frame
/// depends on the bytes of this table.
///
/// Returns false if there is no memory. Some faces may then have been changed.
bool makenormalcubemap(image2d_t* faces);

}  // namespace libgr
