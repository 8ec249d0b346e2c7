// SPDX-License-Identifier: MIT
// One picture on its way from a file to the screen: decoded, cut into tiles, drawn as one
// rectangle.
#pragma once

#include <string>
#include <vector>

#include "codecs/imageobject.h"
#include "geometry/vector.h"
#include "gl/grobject.h"
#include "gl/texture.h"
#include "image/image.h"
#include "scene/squaretiles.h"
#include "scene/tiletextures.h"
#include "utils/ptr.h"

namespace zanolib {

/// Returns the path of a picture's snapshot, which ends in ".zvw.jpg"; see libutils::path_beside.
std::string make_snapshotpath(char const* picture);

/// One picture. It lies in the plane z = 0, centred on the origin, one unit to a pixel, and is
/// never scaled or turned in memory: that is the business of the view matrix above it.
class ViewObject : public libgr::grObject3D {
  public:
    ViewObject();
    /// Field by field. The filter record of a copy's textures stays that of the original until the
    /// next `setImage`, so only empty objects are worth copying.
    ViewObject(ViewObject const&) = default;
    ViewObject& operator=(ViewObject const&) = delete;
    ~ViewObject() override = default;

    /// Returns true if `path` ends in the extension of a picture that can be loaded, in upper or
    /// lower case: ".jpg", ".jpeg", ".bmp", ".png" or ".tga".
    static bool has_picture_extension(std::string const& path);

    /// Loads the file at `path` with the codec that its extension names and cuts the picture into
    /// tiles. Samples that OpenGL would misread get another form first: indices become RGB, gray of
    /// less than 8 bits becomes gray of 8 bits, and wider samples get a store with the byte order
    /// of the file. `datapath` is not used.
    ///
    /// Returns false, and prints nothing of its own, if no codec has the extension, the codec
    /// fails, the picture has no pixels or a side of 2^31 pixels or more, or a conversion fails.
    /// Asks OpenGL for its largest texture, so it needs a current context, but makes no OpenGL
    /// object.
    bool setImage(char const* path, char const* datapath);

    /// Writes what the window shows now, frame and view included, as a JPEG to the snapshot path of
    /// the picture at `path`, replacing an old snapshot. Returns false and sets errno on failure,
    /// and then an old snapshot is unchanged. Needs a current context.
    bool saveImage(char const* path);

    /// Creates the tile textures unless they are there. Returns false, without textures, if there
    /// is no memory for all of them. Needs a current context.
    bool load_texture();
    /// Lets go of the tile textures. Needs a current context when they were loaded.
    void free_texture();
    /// Whether the GL holds all tile textures resident.
    [[nodiscard]] bool is_resident() const { return m_texobject.isResident(); }

    /// Chooses smooth or blocky magnification. A display list made before keeps what it recorded.
    void setMagSmooth(bool on);
    [[nodiscard]] bool getMagSmooth() const { return m_magsmooth; }

    /// Width and height of the stored picture in pixels, before any turn.
    [[nodiscard]] libgr::direction2l_t getImageSize() const;
    /// Returns the path that was last given to `setImage`.
    [[nodiscard]] std::string const& path() const { return m_path; }
    /// Quarter turns to the right that the file asks for; 0 until a load succeeds.
    [[nodiscard]] unsigned long rightrotatecount() const { return m_rightrotatecount; }

    using grObject3D::Draw;
    /// Draws the tiles; nothing before `load_texture`. Needs a current context.
    void Draw() const override;

  private:
    struct codec_row_t;

    /// Returns the row for the extension of `path`, or null.
    static codec_row_t const* find_row(std::string const& path);
    static void release_codecs();

    std::string m_path;
    std::vector<unsigned char> m_bytes;
    unsigned long m_rightrotatecount = 0;
    libgr::image2d_t m_image;
    multi_square_image_t m_squareimage;
    multi_texture_object_t m_texobject;
    libgr::texparameter2d_t m_texparameter;
    bool m_texture_loaded = false;
    bool m_magsmooth = true;

    static libutils::ptr_t<libgr::image_object_t> m_jpeg1imgobj;
    static libutils::ptr_t<libgr::image_object_t> m_bmpimgobj;
    static libutils::ptr_t<libgr::image_object_t> m_pngimgobj;
    static libutils::ptr_t<libgr::image_object_t> m_tgaimgobj;
};

}  // namespace zanolib
