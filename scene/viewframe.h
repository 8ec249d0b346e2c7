// SPDX-License-Identifier: MIT
// The photo frame around a picture.
#pragma once

#include "geometry/color.h"
#include "geometry/vector.h"
#include "gl/grobject.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "glext/glextloader.h"

namespace zanolib {

/// The looks of the photo frame. The values are those of the option `frametype`.
enum e_frametype_t : unsigned int {
    FRAMETYPE_NONE = 0,        ///< no frame
    FRAMETYPE_FLAT = 1,        ///< the colour of the option `framecolor`
    FRAMETYPE_BUMP_BROWN = 2,  ///< brown, bump-mapped
    FRAMETYPE_BUMP_COLOR = 3,  ///< `framecolor` with its components multiplied by 0.75, bump-mapped
    FRAMETYPE_FLOWER = 4,      ///< the texture flower.bmp, blended over the background
};

/// The frame of one picture. It is drawn with the current modelview matrix, so it rotates and zooms
/// with the picture. The order of calls is `init` (once), `setFrameType`, `setSize`, `make_graph`,
/// `Draw` as often as needed, `free_graph`, and `destroy` (once).
///
/// All frames share one set of OpenGL textures and programs. `make_graph` creates the objects that
/// the look needs. `free_graph` deletes the programs for all frames. The textures remain for the
/// next `make_graph`, which uploads them again.
///
/// Call `free_graph` of one frame before `make_graph` of another. `make_graph` always creates new
/// programs and overwrites the names of the old ones, which can't be deleted afterwards. ViewScene
/// doesn't follow this rule if it has several pictures. After `free_graph`, frames that use the
/// programs aren't drawn, and OpenGL reports GL_INVALID_OPERATION, until the next `make_graph` of
/// any of them. Frames of other looks and paths are still drawn.
///
/// The bump-mapped looks use the first of these paths that the context supports:
///
///   Path       Extensions
///   programs   GL_ARB_vertex_program, GL_ARB_fragment_program
///   combiners  GL_ARB_texture_env_combine, GL_ARB_texture_env_dot3, GL_ARB_texture_cube_map,
///              GL_ARB_multitexture
///   plain      none: a lit texture without bumps
///
/// The files are hairline.bmp, flower.bmp, bumpmapv.vp1 and bumpmapf.fp1. Each file is searched
/// for in the working directory, then in `datapath`, then in `zanolib::site_directory`
/// (options/option.h). hairline.bmp must have 8 bits per pixel, otherwise `init` prints an error
/// line. If OpenGL is older than 2.0, the sides of the pictures must be powers of two. The sides
/// aren't checked.
class ViewFrame : public libgr::grObject3D {
  public:
    ViewFrame() = default;
    ViewFrame(ViewFrame const&) = default;
    ViewFrame& operator=(ViewFrame const&) = delete;
    ~ViewFrame() override = default;

    /// Loads the pictures that all frames share, unless they are loaded. `datapath` is put in front
    /// of the names of the files, so it must end in "/". If a file is missing or damaged, its
    /// texture stays empty and the frame is drawn without it. No error line is printed, unless the
    /// picture exceeds the limit `picture_memory` (utils/limits.h). Creates no OpenGL object, but
    /// `gl_extloader_init` must have been called.
    static void init(char const* datapath);
    /// Releases the pictures that `init` loaded.
    static void destroy();

    void setFrameType(e_frametype_t type);
    /// Sets the size of the picture and the width of the frame, in pixels of the picture.
    void setSize(libgr::direction2_t size, unsigned int width);

    /// Creates the OpenGL objects of the look. If a program is missing or has an error, prints an
    /// error line and uses the next path. Needs a current context.
    void make_graph(char const* datapath);
    /// Deletes the programs of the look and unbinds its textures. Needs a current context.
    void free_graph();

    using grObject3D::Draw;
    /// Draws the frame. Expects lighting, blending and texturing to be disabled, and disables them
    /// afterwards. The emission of the material is black afterwards. Needs a current context.
    void Draw() const override;

  private:
    enum class path_t { programs, combiners, plain };

    static bool has_programs();
    static bool has_combiners();
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
    static libgr::grTextureCubeMap s_normaltex;  ///< the normalization cube map
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
