// SPDX-License-Identifier: MIT
// The textures of the tiles of a picture.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/vector.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "scene/squaretiles.h"

namespace zanolib {

/// The textures of the tiles of one picture. The order of calls is `squares_to_texobjs`,
/// `setTexParm`, `Preload`, `draw_image` and `Unload`. After `Unload`, `Preload` may be called
/// again. Copies share the OpenGL textures.
struct multi_texture_object_t {
    std::vector<libgr::grTexture2D>
        m_textures;  ///< the images and formats, in the order of the tiles
    std::vector<libgr::grTextureObject> m_texobjs;  ///< the OpenGL textures, empty until `Preload`
    libgr::texparameter2d_t const* m_texparm = nullptr;  ///< not owned
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    /// The size of the picture, where 1 is the side of one tile.
    libgr::direction2_t m_size{0.0f, 0.0f};

    /// Sets the filters and wrap modes that `draw_image` sets for each tile. `parm` must outlive
    /// this object, and may change between calls of `draw_image`. Without this call, or after null,
    /// `draw_image` doesn't set them. New textures have OpenGL's defaults.
    void setTexParm(libgr::texparameter2d_t const* parm) { m_texparm = parm; }
    /// Creates the OpenGL textures and uploads the tiles. Returns false, without textures, if there
    /// is no memory for all of them. Needs a current context.
    bool Preload();
    /// Deletes the OpenGL textures, unless a copy of this object uses them. Needs a current
    /// context.
    void Unload();
    /// Returns true if every loaded texture is resident, or if no texture is loaded. Needs a
    /// current context.
    [[nodiscard]] bool isResident() const;
    /// Draws the picture as the rectangle from `btm_lft` to `top_rit` in the plane z = 0, with its
    /// front toward +z. Light and the current colour don't change the colours of the picture. Draws
    /// nothing before `Preload`. Needs a current context, and can be compiled into a display list.
    void draw_image(libgr::position2_t const& btm_lft, libgr::position2_t const& top_rit) const;
};

/// Sets up one texture for each tile of `in`. All textures have the same power-of-two size, and
/// share the pixels of the tiles. Creates no OpenGL object, but `gl_extloader_init` must have been
/// called. Always returns true.
///
/// When GLU builds the mipmaps (see `isBuiltByGLU` in gl/texture2d.h), it stretches tiles that fill
/// only a part of their texture. To avoid this, each of these tiles is copied into a full square
/// and its edge pixels are repeated. If there is no memory for the square, the tile is stretched.
bool squares_to_texobjs(multi_texture_object_t& out, multi_square_image_t const& in);

}  // namespace zanolib
