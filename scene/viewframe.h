// SPDX-License-Identifier: MIT
// The photo frame: a band around the picture, drawn anew each time under the picture's view matrix.
#pragma once

#include "geometry/color.h"
#include "geometry/vector.h"
#include "gl/grobject.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "glext/glextloader.h"

namespace zanolib {

/// The looks of the photo frame, the values of the option `frametype`.
enum e_frametype_t : unsigned int {
    FRAMETYPE_NONE = 0,        ///< nothing is drawn
    FRAMETYPE_FLAT = 1,        ///< a flat band in the option `framecolor`
    FRAMETYPE_BUMP_BROWN = 2,  ///< a bump-mapped band in brown
    FRAMETYPE_BUMP_COLOR = 3,  ///< a bump-mapped band in three quarters of the option `framecolor`
    FRAMETYPE_FLOWER = 4,      ///< a blended band with the flower texture
};

/// The frame of one picture. All frames share their textures, which live as long as the program,
/// and the programs of the GL, which live from `make_graph` to `free_graph`: draw only in between.
///
/// The bump-mapped looks are drawn by the first path that the context has: vertex and fragment
/// programs (ARB_vertex_program, ARB_fragment_program), texture combiners with a normalising cube
/// map (ARB_texture_env_dot3), or a plain lit texture.
class ViewFrame : public libgr::grObject3D {
  public:
    ViewFrame() = default;
    ViewFrame(ViewFrame const&) = default;
    ViewFrame& operator=(ViewFrame const&) = delete;
    /// Frees nothing: what the frames share outlives them all.
    ~ViewFrame() override = default;

    /// Loads what all frames share, once, from the working directory, from `datapath` (which ends
    /// in its separator) or from the site directory; a missing file doesn't stop it. Makes no GL
    /// object.
    static void init(char const* datapath);
    /// Drops the shared images.
    static void destroy();

    void setFrameType(e_frametype_t type);
    /// Sets the picture's size and the band's width, both in picture pixels.
    void setSize(libgr::direction2_t size, unsigned int width);

    /// Creates the GL objects of this frame's look. A program that is missing or rejected gets a
    /// line on std::cerr, and the next path is taken. Needs a current context.
    void make_graph(char const* datapath);
    /// Lets go of them. Needs a current context.
    void free_graph();

    using grObject3D::Draw;
    /// Draws the band in one call, and leaves lighting, blending and texturing off and no emission.
    /// Needs a current context.
    void Draw() const override;

  private:
    enum class path_t { programs, combiners, plain };

    static bool programs_available();
    static bool combiners_available();
    static path_t bump_path();

    bool is_bump_mapped() const {
        return m_frametype == FRAMETYPE_BUMP_BROWN || m_frametype == FRAMETYPE_BUMP_COLOR;
    }
    void begin_look() const;
    void end_look() const;
    static void begin_flower();
    static void end_flower();
    static void begin_programs();
    static void end_programs();
    static void begin_combiners(libgr::color3a_t const& color);
    static void end_combiners();
    static void begin_plain(libgr::color3a_t const& color);
    static void end_plain();
    libgr::color3a_t bump_color() const;

    e_frametype_t m_frametype = FRAMETYPE_NONE;
    libgr::direction2_t m_size{0.0f, 0.0f};
    float m_reserved = 0.046875f;
    float m_width = 0.0f;

    static bool s_inited;
    static libgr::grTexture2D s_monotex;         ///< "hairline.bmp" as colour
    static libgr::grTexture2D s_hairlinetex;     ///< "hairline.bmp" as a normal map
    static libgr::grTexture2D s_flowertex;       ///< "flower.bmp"
    static libgr::grTextureCubeMap s_normaltex;  ///< the normalising cube map
    static libgr::grTextureObject s_monotexobj;
    static libgr::grTextureObject s_hairlinetexobj;
    static libgr::grTextureObject s_flowertexobj;
    static libgr::grTextureObject s_normaltexobj;
    static GLuint s_vertex_program;
    static GLuint s_fragment_program;
    static bool s_vertex_program_loaded;
    static bool s_fragment_program_loaded;
};

}  // namespace zanolib
