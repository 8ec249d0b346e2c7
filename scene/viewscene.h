// SPDX-License-Identifier: MIT
// The scene: the list of loaded pictures, their views, and the drawing of the current one.
#pragma once

/// Draws a picture at twice its size:
///
/// ```cpp
/// #include "scene/viewscene.h"
///
/// zanolib::ViewScene scene;
/// scene.Init("/usr/share/zanolib/");
/// if (scene.addImage("photo.jpg", "") && scene.make_graph("/usr/share/zanolib/")) {
///     scene.Reshape(640, 480);
///     scene.Zoom(1, 0);
///     scene.Display();  // then swap the buffers
/// }
/// ```
///
/// The order of calls is:
///
///   1. Create a context, make it current, and call `gl_extloader_init` (glext/glextloader.h).
///   2. `Init`, once.
///   3. `addImage`, then `make_graph`. To replace the current picture, call `delImage` first.
///   4. `Reshape`, also after the size of the framebuffer or the current picture changed.
///   5. `Display` for each frame, then swap the buffers.
///   6. `free_graph` while the context is current, then `Destroy`, once.
///
/// scene/viewobj.h lists the formats of files, scene/viewframe.h the looks of the frame, and
/// docs/limits.md the limits. scene/squaretiles.h and scene/tiletextures.h cut and draw a picture
/// without a scene.
///
/// `addImage` reads the options `frametype` and `framewidth` for the new picture only. `Display`
/// reads `framecolor`. All calls read `verbose` and `debug` (options/option.h).

#include <list>

#include "geometry/matrix.h"
#include "geometry/vector.h"
#include "gl/grdsplist.h"
#include "gl/grobject.h"
#include "scene/viewframe.h"
#include "scene/viewobj.h"

namespace zanolib {

/// A list of pictures. The scene owns the pictures and draws the current one.
///
/// Contexts: Make all calls from the thread of the context. Each function that makes GL calls says
/// that it needs a current context. Use one context for all scenes of a process, because the frames
/// share their OpenGL objects and `gl_extloader_init` loads the functions of one context.
///
/// OpenGL state: `Init` disables lighting, blending and the depth, alpha and stencil tests, enables
/// the culling of back faces, and sets the clear colour to a gray of 0.18. To change the
/// background, call glClearColor after `Init`. `Display` expects this state, the projection of
/// `Reshape`, and the state that `multi_texture_object_t::draw_image` expects. It leaves the state
/// that `draw_image` leaves, the matrix mode GL_MODELVIEW, a changed modelview matrix, GL_LIGHT0
/// enabled, and the current colour and the material of the photo frame.
///
/// View: Each picture has a view matrix M, with row vectors as in geometry/matrix.h. The axes are
/// those of the screen: x points right, y points up, and the origin is the centre of the
/// framebuffer. With the identity, one pixel of the picture is one pixel of the framebuffer, and
/// the picture is centred. Each view operation multiplies M from the right, so the newest operation
/// is applied last. Rotations and zooms are about the origin, so they change the position of a
/// picture that was moved before. Without a current picture, the view operations have no effect.
class ViewScene {
  public:
    /// One picture, its frame, and the nodes that draw both with the view matrix.
    struct obj_t {
        ViewObject viewobj;
        libgr::grDspList objdspl;
        ViewFrame viewframe;
        libgr::grContainer objcontainer;      ///< the frame, then the display list
        libgr::grTransformer objtransformer;  ///< contains the view matrix
        bool graph_made = false;              ///< true if the OpenGL objects exist

        obj_t() = default;
        /// Copy only new objects: after `load`, the nodes of a copy point to those of the original.
        obj_t(obj_t const&) = default;
        obj_t& operator=(obj_t const&) = delete;
        /// Deletes the OpenGL objects. If another context is current, deletes the objects with the
        /// same names there. If none is current, has no effect in GLVND and Mesa, so a scene can be
        /// destroyed after its context.
        ~obj_t() { free_graph(); }

        /// Loads the picture and sets up the frame. Returns false if the picture can't be loaded or
        /// there is no memory. Needs a current context.
        bool load(char const* path, char const* datapath);
        /// Creates the textures, the display list and the objects of the frame unless they exist.
        /// Returns false, without any of them, if OpenGL has no memory. Needs a current context.
        bool make_graph(char const* datapath);
        /// Deletes the OpenGL objects. The view matrix is unchanged. Needs a current context.
        void free_graph();
    };

    ViewScene() = default;
    ViewScene(ViewScene const&) = delete;
    ViewScene& operator=(ViewScene const&) = delete;

    /// Sets the OpenGL state that `Display` expects and calls `ViewFrame::init`. `datapath` is the
    /// directory of the frame's files and must end in "/". Needs a current context.
    void Init(char const* datapath);
    /// Calls `ViewFrame::destroy`. The pictures and the OpenGL objects remain. Call it for the last
    /// scene only, because all scenes share the textures of the frames.
    void Destroy();

    /// Loads the picture at `path` and appends it to the list. If no picture is current, the first
    /// of the list becomes current. `datapath` is ignored. Needs a current context.
    ///
    /// Then rotates the current picture to the orientation in its file, even if it isn't the new
    /// one. Callers depend on this. `Origin` corrects the view:
    ///
    ///     scene.addImage("a.jpg", "");  // a is current and upright
    ///     scene.addImage("b.jpg", "");  // a is current and rotated again, b isn't rotated
    ///     scene.Origin();               // a is upright
    ///     scene.setCurrent(1);
    ///     scene.Origin();               // b is current and upright
    ///
    /// Returns false, without a change of the list, in these cases. `libutils::failure_reason`
    /// (utils/diagnostics.h) returns the reason if `clear_failure_reason` was called before.
    ///
    ///   Case                                             Error line
    ///   the file doesn't exist                           PATH: image file not found.
    ///   the codec rejects the file                       the lines of the codec, if any
    ///   no regular file, other extension, no memory      none
    ///
    /// Returns true even if the picture can't be cut into tiles (see `rectangle_to_squares`). Then
    /// only the frame is drawn. To detect this, call `clear_failure_reason` before `addImage`.
    /// Afterwards `failure_reason` is empty only if there are tiles.
    bool addImage(char const* path, char const* datapath);
    /// Removes the current picture and deletes its OpenGL objects. The next picture becomes
    /// current, or the last if there is no next one. Returns false if no picture is current. If
    /// several pictures have bump-mapped frames, call `free_graph` and `make_graph` afterwards; see
    /// ViewFrame. Needs a current context if the OpenGL objects exist.
    bool delImage();
    /// Makes the picture with the index `n` current. Indices count from 0 in the order of
    /// `addImage`. If a picture is removed, the later indices decrease by 1. If `n` is out of
    /// range, no picture is current afterwards, and `getCurrentImageSize` returns (0, 0). No
    /// function returns the number of pictures.
    void setCurrent(unsigned long n);
    /// Creates the OpenGL objects of all pictures that have none. `datapath` is as in `Init`. If
    /// OpenGL has no memory for a picture, prints "PATH: not enough texture memory." and removes
    /// the picture, as `delImage` does. Returns false if any was removed. Needs a current context.
    bool make_graph(char const* datapath);
    /// Deletes the OpenGL objects of all pictures. Needs a current context.
    void free_graph();
    /// Returns true if the textures of all pictures are resident. Needs a current context.
    [[nodiscard]] bool is_resident() const;

    // The view operations. The unnamed float is ignored: pass 0.

    /// Rotates counter-clockwise by `degrees`.
    void Rotate(float degrees, float);
    /// Magnifies by 2 to the power of `zoom`.
    void Zoom(float zoom, float);
    /// Magnifies by `factor`.
    void Scale(float factor, float);
    /// Moves by `d`, in pixels of the framebuffer. If the mouse moved 10 pixels right and 10 down,
    /// pass `libgr::direction3(10, -10, 0)`. Pass 0 for z: the projection has no perspective, and
    /// clips the picture if its z isn't from -9000 to 1000.
    void Move(libgr::direction3_t const& d, float);
    /// Multiplies the view matrix by `m`. To set the view matrix to `m`, pass
    /// `libgr::Invert(getMatrix()) * m`.
    void Matrix(libgr::matrix3w_t const& m);
    /// Halves the rotation of the picture: 80 degrees become 40, and another call makes them 20.
    /// Users depend on this result. The cause is `libgr::getRotation3`, which returns half the
    /// angle. Has no effect if the determinant of the view matrix isn't positive.
    void clrRotate();
    /// Scales the picture to its own size. This also scales its distance from the centre of the
    /// window. If the determinant of the view matrix isn't positive, for example after `Scale` by a
    /// negative factor, the matrix contains NaNs or infinities afterwards. `Origin` repairs it.
    void clrZoom();
    /// Moves the picture to the centre of the window.
    void clrMove();
    /// Resets the view matrix to the rotation that makes the picture upright.
    void Origin();
    /// Returns the view matrix of the current picture, or the identity if there is none. The
    /// reference is valid until the picture is removed.
    [[nodiscard]] libgr::matrix3w_t const& getMatrix() const;

    /// Switches the magnification of the current picture between smooth, as after `addImage`, and
    /// blocky. Returns true if it is smooth now, and false if no picture is current. Needs a
    /// current context.
    bool toggleSmooth();
    /// Returns `ViewObject::getImageSize` of the current picture, or (0, 0) if there is none.
    [[nodiscard]] libgr::direction2l_t getCurrentImageSize() const;
    /// Returns `ViewObject::rightrotatecount` of the current picture, or 0 if there is none.
    [[nodiscard]] unsigned long rightrotatecount() const;
    /// Calls `ViewObject::saveImage`, which saves the contents of the window as a JPEG file. If no
    /// picture is current, returns false and sets errno to ENODATA. Needs a current context.
    bool saveImage(char const* path);

    /// Draws the background, the frame and the current picture. Doesn't swap the buffers. Needs a
    /// current context.
    void Display() const;
    /// Sets the viewport and the projection for a framebuffer of `width` by `height` pixels. Each
    /// is limited to GL_MAX_VIEWPORT_DIMS. If `width` is odd and the width of the current picture
    /// is even, or the reverse, moves the projection by half a pixel to keep the picture sharp. The
    /// same applies to the heights. Leaves the matrix mode at GL_PROJECTION. Needs a current
    /// context.
    void Reshape(unsigned long width, unsigned long height);

  private:
    [[nodiscard]] bool has_current() const { return m_current != m_objlist.end(); }
    /// Removes a picture, as `delImage` does with the current one. Returns the next position.
    std::list<obj_t>::iterator remove(std::list<obj_t>::iterator place);
    /// Multiplies the view matrix of the current picture, if there is one, by `transform`.
    void append(libgr::matrix3w_t const& transform);
    /// Rotates the current picture to the orientation in its file.
    void turn_upright();

    std::list<obj_t> m_objlist;      // a list, because the nodes point to the elements
    libgr::grContainer m_container;  // never drawn: it also points to removed pictures
    std::list<obj_t>::iterator m_current = m_objlist.end();
};

}  // namespace zanolib
