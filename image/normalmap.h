// SPDX-License-Identifier: MIT
// Normal maps for bump mapping, and a cube map of unit directions.
#pragma once

#include "image/image.h"

namespace libgr {

/// Converts a height map to a normal map. `src` is GRAYSCALE of unsigned 8 bits, 255 is the
/// highest. `dst`, which must not be `src`, becomes RGB of signed 8 bits: x, y and z of each normal
/// times 127. The rows of `dst` are padded to 4 bytes, and those of `src` are expected to be.
/// Windows are ignored.
///
/// The slope in x is the height of the pixel to the right minus the height of this pixel, and in y
/// the height of the pixel above minus this one. Both wrap around at the edges, as the map is
/// tiled. The slopes become x and y with their own signs, so the normals lean uphill. The z is the
/// sum of the roots for x and y, and not their product. The programs of the photo frame
/// expect exactly this. `scale` is ignored and exists for source compatibility.
///
/// An RGB source of 8-bit integers is returned as it is, because it is a normal map already: `dst`
/// shares its bytes. If `src` has another description, is compressed or has bytes for only a part
/// of its pixels, `dst` shares its bytes, too, and this function prints an error line and returns
/// false. If there is no memory, it prints an error line and returns false.
bool heightmap2normalmap(image2d_t& dst, image2d_t const& src, float scale);

/// Fills six records with the faces of a normalization cube map for GL_ARB_texture_env_dot3. The
/// faces are 256 by 256 pixels of RGB, in the order +x, -x, +y, -y, +z, -z. Components from -1 to 1
/// are stored as 0 to 255, although the description says signed bytes, and the directions are not
/// exactly those of OpenGL's cube maps: see image/normalmap.cpp. The photo frame depends on both.
/// Returns false if there is no memory.
bool makenormalcubemap(image2d_t* faces);

}  // namespace libgr
