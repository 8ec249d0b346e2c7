// SPDX-License-Identifier: MIT
// Loads one picture from a file and draws it.
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

/// Returns the path of the snapshot of a picture: "dir/name.zvw.jpg" for "dir/name.png". See
/// `libutils::path_beside` (utils/path.h) for the maximum length.
std::string make_snapshotpath(char const* picture);

/// One picture. It is drawn in the plane z = 0, centred on the origin. One unit of the modelview
/// matrix is one pixel of the picture in its file, before the rotation by its orientation. The
/// order of calls is `setImage`, `load_texture`, `Draw` and `free_texture`.
///
/// Make all calls from the thread of the context. All objects share one set of codecs without
/// locks. The last copy deletes the textures in its destructor, which needs a current context if
/// they exist.
class ViewObject : public libgr::grObject3D {
  public:
    ViewObject();
    /// Copy only new objects: after `setImage`, a copy points to the filters of the original.
    ViewObject(ViewObject const&) = default;
    ViewObject& operator=(ViewObject const&) = delete;
    ~ViewObject() override = default;

    /// Returns true if `path` ends in the extension of a picture that can be loaded, in upper or
    /// lower case: ".jpg", ".jpeg", ".bmp", ".png" or ".tga".
    static bool has_picture_extension(std::string const& path);

    /// Loads the file at `path` with the codec that its extension names and cuts the picture into
    /// tiles of at most 256 pixels a side. Samples that OpenGL would misread are converted first:
    /// indices to RGB, gray of less than 8 bits to gray of 8 bits, and wider samples to the byte
    /// order of the machine. `datapath` is ignored.
    ///
    /// Returns false if no codec has the extension, the codec fails, the picture has no pixels or a
    /// side of 2^31 pixels or more, or there is no memory for a conversion. Only the codec prints
    /// an error line. If the picture can't be cut (see `rectangle_to_squares`), prints an error
    /// line and returns true. Then `Draw` draws nothing and `libutils::failure_reason` isn't empty.
    ///
    /// Use a new object for each file, or call `free_texture` before the second call. Otherwise
    /// `load_texture` keeps the old textures, and `Draw` uses them with the new size and tiles.
    /// After false, `path` returns the new path. The tiles and textures
    /// of an earlier call remain; without an earlier call, `Draw` draws nothing. `getImageSize` may
    /// return another size, to which `Draw` stretches them.
    ///
    /// Needs a current context, but creates no OpenGL object.
    bool setImage(char const* path, char const* datapath);

    /// Saves the contents of the window, including the frame, as a JPEG file, and replaces an old
    /// one. `path` is the path of the picture; the path of the file is `make_snapshotpath(path)`.
    ///
    /// The pixels are read from the front buffer, which has the last frame that was swapped. Some
    /// drivers can't read it and return black pixels. So if all pixels are black, the back buffer
    /// is read instead. Its contents are undefined after a swap: before this call, call
    /// `ViewScene::Display`, and don't swap the buffers.
    ///
    /// On failure, returns false, sets errno, and leaves an old file unchanged. errno is ENODATA if
    /// the viewport is empty, ENOMEM if there is no memory, EINVAL if the JPEG encoder fails, or an
    /// error of the file system. Only the encoder prints an error line. Needs a current context.
    bool saveImage(char const* path);

    /// Creates the textures of the tiles unless they exist. Returns false, without textures, if
    /// there is no memory for all of them. Needs a current context.
    bool load_texture();
    /// Deletes the textures. Needs a current context if they exist.
    void free_texture();
    /// Returns true if all textures are resident. Needs a current context.
    [[nodiscard]] bool is_resident() const { return m_texobject.isResident(); }

    /// Sets the filter for magnification: linear (true, as in a new object) or nearest. Display
    /// lists that were compiled before keep the old filter.
    void setMagSmooth(bool on);
    [[nodiscard]] bool getMagSmooth() const { return m_magsmooth; }

    /// Returns the size, in pixels, of the picture in the file, without the rotation by its
    /// orientation.
    [[nodiscard]] libgr::direction2l_t getImageSize() const;
    /// Returns the path that was last given to `setImage`.
    [[nodiscard]] std::string const& path() const { return m_path; }
    /// Returns the number of quarter turns clockwise that bring the picture upright, according to
    /// the orientation in the file (codecs/orientation.h). Returns 0 before a file is loaded.
    [[nodiscard]] unsigned long rightrotatecount() const { return m_rightrotatecount; }

    using grObject3D::Draw;
    /// Draws the picture with `multi_texture_object_t::draw_image`, which describes the OpenGL
    /// state. Draws nothing before `load_texture`. Needs a current context.
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
