// SPDX-License-Identifier: MIT
// The photo frame around a picture.
#pragma once

#include <string>

#include "geometry/color.h"
#include "geometry/vector.h"
#include "gl/grobject.h"
#include "gl/texture.h"
#include "gl/texture2d.h"
#include "gl/texturecubemap.h"
#include "glext/glextloader.h"

namespace zanolib {

/// The looks of the photo frame. The option `frametype` has the same values.
enum e_frametype_t : unsigned int {
    FRAMETYPE_NONE = 0,        ///< no frame
    FRAMETYPE_FLAT = 1,        ///< the colour of the option `framecolor`
    FRAMETYPE_BUMP_BROWN = 2,  ///< brown, bump-mapped
    FRAMETYPE_BUMP_COLOR = 3,  ///< `framecolor` with its components multiplied by 0.75, bump-mapped
    FRAMETYPE_FLOWER = 4,      ///< the texture flower.bmp, blended over the background
};

/// The frame of one picture. It is drawn with the modelview matrix of the picture. The order of
/// calls is:
///
///   1. `init`, once for all frames.
///   2. `setFrameType`, `setSize` and `make_graph`.
///   3. `Draw`, as often as needed.
///   4. `free_graph`. Continue with step 2 to change the look.
///   5. `destroy`, once for all frames.
///
/// Make all calls from the thread of the context, and use one context for all frames: they share
/// their OpenGL textures and programs in static variables.
///
/// `make_graph` of a bump-mapped look creates new programs for all frames. The old ones can't be
/// deleted afterwards. `free_graph` deletes the current programs, even if other frames need them.
/// Then OpenGL reports GL_INVALID_OPERATION for these frames and draws only their pictures.
/// `make_graph` of one frame repairs all. In a ViewScene, call `ViewScene::free_graph` before
/// `ViewScene::make_graph`, which skips pictures that have their OpenGL objects. Frames without
/// programs aren't affected. The textures are never deleted.
///
/// The bump-mapped looks use the first of these paths that the context supports:
///
///   Path       Extensions
///   programs   GL_ARB_vertex_program, GL_ARB_fragment_program
///   combiners  GL_ARB_texture_env_combine, GL_ARB_texture_env_dot3, GL_ARB_texture_cube_map,
///              GL_ARB_multitexture
///   plain      none: a lit texture without bumps
///
/// Each of these files is searched for in the working directory, then in `datapath`, then in
/// `zanolib::site_directory` (options/option.h):
///
///   File                        Used by look  If it is missing or damaged
///   hairline.bmp                bump-mapped   the frame has no texture
///   flower.bmp                  flower        the frame has no texture
///   bumpmapv.vp1, bumpmapf.fp1  bump-mapped   prints an error line, uses the next path
///
/// The first `make_graph` that needs a BMP file reads it. All frames share its pixels afterwards.
/// The programs are read by each `make_graph`.
/// If OpenGL is older than 2.0, the sides of the two BMP pictures must be powers of two.
class ViewFrame : public libgr::grObject3D {
  public:
    ViewFrame() = default;
    ViewFrame(ViewFrame const&) = default;
    ViewFrame& operator=(ViewFrame const&) = delete;
    ~ViewFrame() override = default;

    /// Sets the directory of the BMP files. `datapath` is put in front of the file names, so it
    /// must end in "/" and must not be null. Has no effect until `destroy` if called again.
    static void init(char const* datapath);
    /// Releases the pixels of the BMP files. Makes no GL call: OpenGL textures remain.
    static void destroy();

    void setFrameType(e_frametype_t type);
    /// Sets the size of the picture and the width of the frame, in pixels of the picture.
    void setSize(libgr::direction2_t size, unsigned int width);

    /// Loads the files of the look and creates its OpenGL objects. `datapath` is the directory of
    /// the programs and must end in "/". If a program is missing or has an error, prints an error
    /// line and uses the next path. Prints an error line if hairline.bmp doesn't have 8 bits per
    /// pixel or a BMP file exceeds the limit `picture_memory` (utils/limits.h). Needs a current
    /// context.
    void make_graph(char const* datapath);
    /// Deletes the programs of the look and unbinds its textures. Needs a current context.
    void free_graph();

    using grObject3D::Draw;
    /// Draws the frame with GL_LIGHT0 and the option `framecolor`. Expects lighting, blending and
    /// texturing to be disabled, and disables them afterwards. Changes the current colour, the
    /// material and the texture environment. Needs a current context.
    void Draw() const override;

  private:
    enum class path_t { programs, combiners, plain };
    enum class image_t { color, flower, bumps, cube };

    /// Loads the pixels of an image that all frames share, unless it was loaded before.
    static void load_once(image_t image);

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
    static std::string s_datapath;
    static unsigned int s_loaded_images;         ///< bit n is set if image_t n was loaded
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
