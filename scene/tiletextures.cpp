// SPDX-License-Identifier: MIT
// Sets up, uploads and draws the textures of the tiles of a picture.
#include "scene/tiletextures.h"

#include <algorithm>
#include <bit>
#include <iostream>
#include <new>

#include "geometry/textstream.h"
#include "gl/grerror.h"
#include "gl/matrixmgr.h"
#include "image/repeatedges.h"
#include "options/trace.h"

namespace zanolib {

namespace {

struct tile_quad_t {
    float x0, y0, x1, y1;  ///< the corners, in drawing units
    float tx, ty;          ///< the texture coordinates of the upper right corner
};

void draw_quad(tile_quad_t const& quad) {
    libgr::grBeginner const fan(GL_TRIANGLE_FAN);
    glTexCoord2f(0.0f, 0.0f);
    glVertex2f(quad.x0, quad.y0);
    glTexCoord2f(quad.tx, 0.0f);
    glVertex2f(quad.x1, quad.y0);
    glTexCoord2f(quad.tx, quad.ty);
    glVertex2f(quad.x1, quad.y1);
    glTexCoord2f(0.0f, quad.ty);
    glVertex2f(quad.x0, quad.y1);
}

bool is_square_of(libgr::image2d_t const& tile, unsigned int side) {
    return tile.m_width == side && tile.m_height == side;
}

}  // namespace

bool multi_texture_object_t::Preload() {
    libgr::grMemoryWatch const memory;
    bool loaded = false;
    try {
        m_texobjs.resize(m_textures.size());
        for (std::size_t i = 0; i < m_textures.size() && !memory.is_exhausted(); ++i) {
            m_texobjs[i].Preload(&m_textures[i]);
        }
        loaded = !memory.is_exhausted();
    } catch (std::bad_alloc const&) {
        // Software drivers keep textures in the memory of this process, which may now be used up.
    }
    if (!loaded) {
        Unload();
    }
    return loaded;
}

void multi_texture_object_t::Unload() {
    for (libgr::grTextureObject const& texobj : m_texobjs) {
        texobj.Unload();
    }
    m_texobjs.clear();
}

bool multi_texture_object_t::isResident() const {
    bool resident = true;
    for (std::size_t n = 0; n < m_texobjs.size(); ++n) {
        if (m_texobjs[n].isPreload()) {
            resident = m_texobjs[n].isResident() && resident;
        } else {
            trace(std::cerr, "multi_texture_object_t::isResident()m_texobjs[", n,
                  "] is not loaded.");
        }
    }
    return resident;
}

void multi_texture_object_t::draw_image(libgr::position2_t const& btm_lft,
                                        libgr::position2_t const& top_rit) const {
    trace(std::cerr, "multi_texture_object_t::draw_image()");
    trace(std::cerr, "btm_lft: ", btm_lft);
    trace(std::cerr, "top_rit: ", top_rit);
    libgr::direction2_t const side = (top_rit - btm_lft) * (1.0f / m_size);
    libgr::grPrintError("before-glenable-tex2d");
    glEnable(GL_TEXTURE_2D);
    libgr::grPrintError("after-glenable-tex2d");
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
    libgr::grPrintError("after-gltexenv");
    // Without columns, the textures belong to an earlier picture.
    for (std::size_t index = 0; m_cols != 0 && index < m_texobjs.size(); ++index) {
        auto const c = static_cast<float>(index % m_cols);
        std::size_t const row = index / m_cols;
        auto const r = static_cast<float>(row);
        float const tx = std::min(m_size.x - c, 1.0f);
        float const ty = std::min(m_size.y - r, 1.0f);
        libgr::grPrintError("before m_texobjs[n].Load().");
        m_texobjs[index].Load();
        libgr::grPrintError("after m_texobjs[n].Load().");
        libgr::grTexParameter(m_texparm);
        libgr::grPrintError("after grTexParameter().");
        draw_quad({.x0 = btm_lft.x + c * side.x,
                   .y0 = btm_lft.y + r * side.y,
                   .x1 = btm_lft.x + (tx + c) * side.x,
                   .y1 = btm_lft.y + (ty + r) * side.y,
                   .tx = tx,
                   .ty = ty});
    }
    libgr::grPrintError("before-gldisable-tex2d");
    glDisable(GL_TEXTURE_2D);
    libgr::grPrintError("after-gldisable-tex2d");
}

bool squares_to_texobjs(multi_texture_object_t& out, multi_square_image_t const& in) {
    out.m_textures.resize(in.m_squares.size());
    out.m_cols = in.m_cols;
    out.m_rows = in.m_rows;
    out.m_size = in.m_size;
    unsigned int dim = 0;
    for (libgr::image2d_t const& tile : in.m_squares) {
        dim = std::max({dim, tile.m_width, tile.m_height});
    }
    unsigned int const side = std::bit_ceil(dim);
    for (std::size_t i = 0; i < in.m_squares.size(); ++i) {
        libgr::grTexture2D& texture = out.m_textures[i];
        texture.setInternalCompression(false);
        texture.setBuildMipmap(true);
        texture.setBorder(false);
        texture.setImage(in.m_squares[i], dim, 0);
        libgr::image2d_t square;
        if (texture.isBuiltByGLU() && !is_square_of(in.m_squares[i], side) &&
            libgr::repeat_edges(square, in.m_squares[i], side, side)) {
            texture.setImage(square, dim, 0);
        }
    }
    return true;
}

}  // namespace zanolib
