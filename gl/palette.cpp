// SPDX-License-Identifier: MIT
// Applies the palette of an image while the image is uploaded.
#include "gl/palette.h"

#include <limits>

#include "glext/glextloader.h"

namespace libgr {
namespace {

struct plane_row_t {
    GLenum map;
    palette_t::plane_t palette_t::*plane;
};

constexpr plane_row_t plane_rows[] = {
    {GL_PIXEL_MAP_I_TO_R, &palette_t::red},
    {GL_PIXEL_MAP_I_TO_G, &palette_t::green},
    {GL_PIXEL_MAP_I_TO_B, &palette_t::blue},
};

/// Returns true if each plane has `palette.size` values. A plane has fewer if `resize` had no
/// memory.
bool has_full_planes(palette_t const& palette) {
    for (plane_row_t const& row : plane_rows) {
        if ((palette.*row.plane).count() < palette.size) {
            return false;
        }
    }
    return palette.size <= static_cast<unsigned long>(std::numeric_limits<GLsizei>::max());
}

}  // namespace

grPalette::~grPalette() {
    if (loaded) {
        glPixelTransferi(GL_MAP_COLOR, 0);
    }
}

void grPalette::Load(palette_t const& palette) {
    if (palette.size == 0 || !has_full_planes(palette)) {
        return;
    }
    glPixelTransferi(GL_MAP_COLOR, 1);
    for (plane_row_t const& row : plane_rows) {
        glPixelMapusv(row.map, static_cast<GLsizei>(palette.size), (palette.*row.plane).begin());
    }
    loaded = true;
}

}  // namespace libgr
