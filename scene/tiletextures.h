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
/// `setTexParm`, `Preload`, `draw_image` and `Unload`. After `Unload`, `Preload` or
/// `squares_to_texobjs` may be called again. The tiles share their pixels with `m_textures`, and
/// may be destroyed after `squares_to_texobjs`.
///
/// Copies share the OpenGL textures. The last copy deletes them in its destructor, which needs a
/// current context if there are textures.
struct multi_texture_object_t {
    std::vector<libgr::grTexture2D>
        m_textures;  ///< the images and formats, in the order of the tiles
    std::vector<libgr::grTextureObject> m_texobjs;  ///< the OpenGL textures, empty until `Preload`
    libgr::texparameter2d_t const* m_texparm = nullptr;  ///< not owned
    std::uint32_t m_cols = 0;
    std::uint32_t m_rows = 0;
    /// The size of the picture in tiles.
    libgr::direction2_t m_size{0.0f, 0.0f};

    /// Sets the filters and wrap modes that `draw_image` sets for each tile. The caller owns
    /// `parm`, which must outlive this object and may change between calls of `draw_image`. If
    /// `parm` is null, or without this call, the textures have OpenGL's initial values.
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
    /// front toward +z. Draws nothing before `Preload`. Can be compiled into a display list. Needs
    /// a current context.
    ///
    /// Uses the active texture unit with GL_REPLACE, so light and the current colour don't change
    /// the picture. Expects all other texture targets and units, blending, the depth, alpha and
    /// stencil tests, and GL programs to be disabled. Leaves GL_TEXTURE_2D disabled, the last
    /// tile's texture bound, and the texture environment mode at GL_REPLACE.
    void draw_image(libgr::position2_t const& btm_lft, libgr::position2_t const& top_rit) const;
};

/// Sets up one texture for each tile of `in`. All textures have the same power-of-two size. If
/// `out` has OpenGL textures, call `Unload` before: otherwise `draw_image` draws the old textures
/// with the new rows and columns. Creates no OpenGL object, but
/// `gl_extloader_init` must have been called. Always returns true.
///
/// If GLU builds the mipmaps (see `isBuiltByGLU` in gl/texture2d.h), it stretches tiles that are
/// smaller than their texture. So these tiles are copied into a square of this size, and their edge
/// pixels are repeated. If there is no memory for the square, only a part of the tile is drawn.
bool squares_to_texobjs(multi_texture_object_t& out, multi_square_image_t const& in);

}  // namespace zanolib
