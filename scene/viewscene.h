// SPDX-License-Identifier: MIT
// The scene: the list of loaded pictures, their views, and the drawing of the current one.
#pragma once

/// Cuts a picture into tiles and draws it, zoomed to twice its size:
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
///   3. `addImage` and `make_graph`. To show one picture at a time, call `delImage` before you add
///      the next one.
///   4. `Reshape` after the size of the framebuffer or the picture changed.
///   5. `Display` for each frame, and then swap the buffers.
///   6. `Destroy`, once.
///
/// All calls must come from the thread that has the context. scene/viewobj.h lists the formats of
/// files, scene/viewframe.h the looks of the frame, and utils/limits.h the limits.
/// scene/squaretiles.h and scene/tiletextures.h cut and draw a picture without a scene. The scene
/// reads the options `frametype`, `framewidth`, `framecolor`, `verbose` and `debug`
/// (options/option.h).

#include <list>

#include "geometry/matrix.h"
#include "geometry/vector.h"
#include "gl/grdsplist.h"
#include "gl/grobject.h"
#include "scene/viewframe.h"
#include "scene/viewobj.h"

namespace zanolib {

/// A list of pictures, of which the current one is drawn. The scene owns the pictures, and sets the
/// OpenGL state, the viewport and the projection.
///
/// Each picture has a view matrix M, with row vectors as in geometry/matrix.h. One unit is one
/// pixel of the picture. With the identity, one pixel of the picture is one pixel of the window,
/// and the picture is centred. Each view operation multiplies M from the right, so the newest
/// operation is applied last. It works in screen axes: x points right, y points up, and the origin
/// is the centre of the window. So rotations and zooms change the position of a picture that was
/// moved before. Without a current picture, the view operations have no effect. None of them needs
/// a context.
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
        /// Copies only empty objects correctly: the nodes of a copy point to those of the original.
        obj_t(obj_t const&) = default;
        obj_t& operator=(obj_t const&) = delete;
        /// Deletes the OpenGL objects. A scene can be destroyed after its context, because OpenGL
        /// calls without a current context have no effect in GLVND and Mesa, and libGL stays
        /// loaded.
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

    /// Sets the OpenGL state that never changes and loads the pictures of the frames. `datapath` is
    /// the directory of the program's data and must end in "/". Needs a current context.
    void Init(char const* datapath);
    /// Releases the pictures of the frames.
    void Destroy();

    /// Loads the picture at `path` and appends it to the list. If there is no current picture, the
    /// first of the list becomes current. Then the current picture, which isn't always the new one,
    /// is rotated to the orientation stored in its file. If the list wasn't empty, the current
    /// picture is rotated again: call `Origin` to reset its view. To show the new picture, call
    /// `setCurrent` with its index, and then `Origin`, which rotates it to its orientation.
    /// `datapath` is ignored. Needs a current context.
    ///
    /// Returns false, without a change of the list, if the file doesn't exist, isn't a regular file
    /// or can't be loaded, or if there is no memory. Prints an error line if the file doesn't
    /// exist. The codecs print their own lines. If the picture can't be cut into tiles, prints an
    /// error line and returns true, and only its frame is drawn.
    bool addImage(char const* path, char const* datapath);
    /// Removes the current picture. The next one becomes current, or the last if there is no next
    /// one. Returns false if there is no current picture. Needs a current context if the OpenGL
    /// objects exist.
    bool delImage();
    /// Makes the picture with the index `n`, counted from 0, the current one. If `n` is out of
    /// range, no picture is current afterwards.
    void setCurrent(unsigned long n);
    /// Creates the OpenGL objects of all pictures. `datapath` is as in `Init`. A picture for which
    /// OpenGL has no memory is removed, and an error line is printed. Returns false if any was
    /// removed. Needs a current context.
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
    /// Moves by `d`, in pixels of the window.
    void Move(libgr::direction3_t const& d, float);
    /// Multiplies the view matrix by `m`. It doesn't replace the view.
    void Matrix(libgr::matrix3w_t const& m);
    /// Takes back half of the rotation, about the centre of the window: 80 degrees become 40, and
    /// 20 after another call. This is a known quirk: `libgr::getRotation3` returns half the angle,
    /// and users rely on the result. `Origin` takes back the whole rotation. Has no effect if the
    /// determinant of the view matrix isn't positive.
    void clrRotate();
    /// Takes back the zoom, about the centre of the window. If the determinant of the view matrix
    /// isn't positive, for example after `Scale` by a negative factor, the view matrix contains
    /// NaNs or infinities afterwards. `Origin` repairs it.
    void clrZoom();
    /// Moves the picture back to the centre of the window.
    void clrMove();
    /// Resets the view to the rotation that the orientation in the file needs.
    void Origin();
    /// Returns the view matrix of the current picture, or the identity if there is none.
    [[nodiscard]] libgr::matrix3w_t const& getMatrix() const;

    /// Switches between smooth and blocky magnification and compiles the display list again.
    /// Returns true if it is smooth now, and false if there is no current picture. Needs a current
    /// context.
    bool toggleSmooth();
    /// Returns the size, in pixels, of the current picture in its file, without the rotation by its
    /// orientation, or (0, 0) if there is none.
    [[nodiscard]] libgr::direction2l_t getCurrentImageSize() const;
    /// Returns the number of quarter turns clockwise that bring the current picture upright, or 0
    /// if there is none.
    [[nodiscard]] unsigned long rightrotatecount() const;
    /// Saves the contents of the window as a JPEG file. See `ViewObject::saveImage` for the buffer
    /// that is read. On failure, returns false and sets errno, to ENODATA if there is no current
    /// picture. Needs a current context.
    bool saveImage(char const* path);

    /// Draws the background and the current picture. Doesn't swap the buffers. Needs a current
    /// context.
    void Display() const;
    /// Sets the viewport and the projection for a framebuffer of `width` by `height` pixels. Each
    /// is limited to GL_MAX_VIEWPORT_DIMS. Leaves the matrix mode at GL_PROJECTION. Needs a current
    /// context.
    void Reshape(unsigned long width, unsigned long height);

  private:
    [[nodiscard]] bool has_current() const { return m_current != m_objlist.end(); }
    /// Removes a picture, as `delImage` does with the current one. Returns the next position.
    std::list<obj_t>::iterator remove(std::list<obj_t>::iterator place);
    /// Multiplies the view matrix of the current picture, if there is one, by `transform`.
    void append(libgr::matrix3w_t const& transform);
    /// Rotates the current picture as the orientation in its file says.
    void turn_upright();

    std::list<obj_t> m_objlist;      // a list, because the nodes point to the elements
    libgr::grContainer m_container;  // all pictures that were ever loaded; never drawn
    std::list<obj_t>::iterator m_current = m_objlist.end();
};

}  // namespace zanolib
