// SPDX-License-Identifier: MIT
// The drawable world of the viewer: the loaded pictures, each under one view matrix, and how they
// are drawn.
#pragma once

#include <list>

#include "geometry/matrix.h"
#include "geometry/vector.h"
#include "gl/grdsplist.h"
#include "gl/grobject.h"
#include "scene/viewframe.h"
#include "scene/viewobj.h"

namespace zanolib {

/// The scene owns the pictures, the fixed GL state, the viewport and the projection, and draws the
/// current picture. World units are picture pixels; with an identity view matrix one picture pixel
/// is one window pixel. Every view operation appends its transform to the current picture's matrix
/// M, which becomes M * X: the newest acts last, in screen axes, about the window centre. Without a
/// current picture the view operations do nothing.
class ViewScene {
  public:
    /// One picture with its frame and the small node tree that draws both under one view matrix.
    struct obj_t {
        ViewObject viewobj;
        libgr::grDspList objdspl;
        ViewFrame viewframe;
        libgr::grContainer objcontainer;      ///< the frame, then the display list over it
        libgr::grTransformer objtransformer;  ///< its matrix is the picture's view matrix
        bool graph_made = false;              ///< whether the GL resources exist

        obj_t() = default;
        /// Member by member, node pointers included: for elements that aren't loaded yet.
        obj_t(obj_t const&) = default;
        obj_t& operator=(obj_t const&) = delete;
        /// Frees the GL resources, with or without a context: the window may be gone by then. The
        /// entry points stay mapped, as the loader never closes the library, and libGL (GLVND's
        /// and Mesa's own) hands calls without a current context to functions that do nothing; the
        /// names went with their context.
        ~obj_t() { free_graph(); }

        /// Loads the picture, sets the frame up by the options and joins the nodes. False when the
        /// picture doesn't load. Needs a current context.
        bool load(char const* path, char const* datapath);
        /// Creates textures, display list and the frame's resources unless they are there. Returns
        /// false, without any of them, if OpenGL runs out of memory. Needs a current context.
        bool make_graph(char const* datapath);
        /// Releases what `make_graph` made, in reverse order. The view matrix stays.
        void free_graph();
    };

    ViewScene() = default;
    ViewScene(ViewScene const&) = delete;
    ViewScene& operator=(ViewScene const&) = delete;

    /// Sets the GL state that never changes and loads what the frames share. Call once, with the
    /// entry points resolved and a context current.
    void Init(char const* datapath);
    /// Drops what the frames share.
    void Destroy();

    /// Appends the picture at `path`, which becomes current when there was none, and turns the
    /// current picture upright by its right-rotate count. False when the file isn't there, which is
    /// told on the error stream, is no plain file, or doesn't load, or when there is no memory for
    /// what belongs to it; the list is as before then.
    /// Needs a current context.
    bool addImage(char const* path, char const* datapath);
    /// Removes the current picture; the one behind it, or else the last, becomes current. False
    /// without one.
    bool delImage();
    /// Makes the n-th picture current, counted from 0; none when there are no more than n.
    void setCurrent(unsigned long n);
    /// Creates the GL resources of all pictures. Pictures for which OpenGL has no memory are
    /// removed, each with a line on the error stream; false is returned if there were any. Needs a
    /// current context.
    bool make_graph(char const* datapath);
    /// Releases the GL resources of all pictures. Needs a current context.
    void free_graph();
    /// Whether the GL holds the textures of all pictures resident.
    [[nodiscard]] bool is_resident() const;

    /// Turns counter-clockwise by `degrees`. The second float of this and its siblings is ignored.
    void Rotate(float degrees, float);
    /// Magnifies by 2 to the power of `zoom`.
    void Zoom(float zoom, float);
    /// Magnifies by `factor`.
    void Scale(float factor, float);
    /// Moves by `d`, in window pixels.
    void Move(libgr::direction3_t const& d, float);
    /// Appends `m`; it composes and doesn't replace.
    void Matrix(libgr::matrix3w_t const& m);
    /// Takes half of the present turn back; the offset from the window centre turns along.
    void clrRotate();
    /// Takes the zoom away; the offset from the window centre scales along.
    void clrZoom();
    /// Brings the picture back to the window centre.
    void clrMove();
    /// Resets the view to the upright picture: identity, then the turn that the file asks for.
    void Origin();
    /// The current picture's view matrix, or the identity without one.
    [[nodiscard]] libgr::matrix3w_t const& getMatrix() const;

    /// Flips smooth magnification and compiles the display list anew. The new state; false without
    /// a picture. Needs a current context.
    bool toggleSmooth();
    /// Pixels of the current picture as stored, before any turn; (0, 0) without one.
    [[nodiscard]] libgr::direction2l_t getCurrentImageSize() const;
    /// Quarter turns to the right that the current picture's file asks for; 0 without one.
    [[nodiscard]] unsigned long rightrotatecount() const;
    /// Writes what the window shows beside the picture file at `path`; see `ViewObject::saveImage`.
    /// Returns false and sets errno on failure and without a picture.
    bool saveImage(char const* path);

    /// Draws one frame, without swapping buffers. Needs a current context.
    void Display() const;
    /// Sets viewport and projection for a framebuffer of `width` by `height` pixels, cut to what
    /// the GL allows. The matrix mode stays that of the projection. Needs a current context.
    void Reshape(unsigned long width, unsigned long height);

  private:
    [[nodiscard]] bool has_current() const { return m_current != m_objlist.end(); }
    /// Removes a picture and returns the place after it. If it is the current one, the picture
    /// after it, or else the last, becomes current.
    std::list<obj_t>::iterator remove(std::list<obj_t>::iterator place);
    /// M := M * `transform` for the current picture, if any.
    void append(libgr::matrix3w_t const& transform);
    /// Turns the current picture by the quarter turns that its file asks for.
    void turn_upright();

    std::list<obj_t> m_objlist;  // the nodes point into the elements, so their addresses must hold
    libgr::grContainer
        m_container;  // every picture that ever loaded; never drawn and never emptied
    std::list<obj_t>::iterator m_current = m_objlist.end();
};

}  // namespace zanolib
