// SPDX-License-Identifier: MIT
// The textures of a picture's square tiles, drawn side by side as one rectangle.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/vector.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "scene/squaretiles.h"

namespace zanolib {

/// One 2-D texture for each tile of a picture. Described by `squares_to_texobjs`; only `Preload`
/// makes GL objects. Copies share the GL textures.
struct multi_texture_object_t {
    std::vector<libgr::grTexture2D> m_textures;     ///< the descriptions, in the order of the tiles
    std::vector<libgr::grTextureObject> m_texobjs;  ///< the GL textures; empty until `Preload`
    libgr::texparameter2d_t const* m_texparm = nullptr;  ///< filters and wrap; not owned
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    libgr::direction2_t m_size{0.0f, 0.0f};  ///< the picture measured in tile sides

    /// Sets the record that `draw_image` applies to each tile; it has to outlive this object.
    void setTexParm(libgr::texparameter2d_t const* parm) { m_texparm = parm; }
    /// Creates and fills the GL textures. If there is no memory for all of them, stops at the first
    /// that fails, deletes those before it and returns false. Needs a current context.
    bool Preload();
    /// Lets go of the GL textures; a later `Preload` makes new ones. Needs a current context.
    void Unload();
    /// Whether the GL holds all textures resident. Those that aren't loaded don't count against it.
    [[nodiscard]] bool isResident() const;
    /// Draws the tiles so that together they cover the rectangle from `btm_lft` to `top_rit`, in
    /// the plane z = 0, facing +z, texels unchanged by light or colour. Draws no tile before
    /// `Preload`. Needs a current context and may be compiled into a display list.
    void draw_image(libgr::position2_t const& btm_lft, libgr::position2_t const& top_rit) const;
};

/// Describes a texture for each tile of `in`, all of one size. A tile that GLU would stretch over
/// its texture, because it fills only a part of it, is copied into a full square with its edges
/// repeated; all other tiles share their pixels. Makes no GL object, but the extension flags must
/// be set. Returns true.
bool squares_to_texobjs(multi_texture_object_t& out, multi_square_image_t const& in);

}  // namespace zanolib
