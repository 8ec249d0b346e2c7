// SPDX-License-Identifier: MIT
// The tree of drawable nodes: nodes that transform the current GL matrix, and lists of nodes.
#pragma once

#include <vector>

#include "geometry/constants.h"
#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"

namespace libgr {

/// An object that draws.
class grDrawable3D {
  public:
    /// Draws. Needs a current context.
    virtual void Draw() = 0;
    virtual ~grDrawable3D() = default;
};

/// A node of a scene tree. Drawing doesn't change it. This example compiles a node into a display
/// list and draws it 5 units in front of the eye:
///
/// ```cpp
/// #include "gl/grdsplist.h"
///
/// void draw_moved(libgr::grObject3D const& node) {
///     libgr::grDspList list;
///     list.Preload(&node);
///     libgr::grTranslater translater;
///     translater.m_position = {0, 0, -5};
///     translater.setObject(&list);
///     libgr::grContainer scene;  // restores the matrix after the child
///     scene.addObject(&translater);
///     scene.Draw();
/// }
/// ```
///
/// Nodes have pointers to their children and don't own them. A child must outlive the last `Draw`
/// of its parent, or be removed from it. A child may have several parents.
///
/// Nodes can be created, changed and destroyed without a context, because only `Draw` makes GL
/// calls. The exceptions are `Preload`, `Unload` and the destructor of grDspList.
class grObject3D : public grDrawable3D {
  public:
    /// Calls `Draw() const`.
    void Draw() override;
    ~grObject3D() override = default;
    /// Draws the node and its children. Needs a current context.
    virtual void Draw() const = 0;
};

// The transform nodes multiply the current matrix before they draw their child. They don't restore
// the matrix, so the transform also applies to everything that is drawn later. To prevent this, add
// them to a grContainer. Without a child they do nothing.

/// Rotates its child by `m_rotation` (degrees and axis).
class grRotater : public grObject3D {
  public:
    ~grRotater() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    grObject3D const* getObject() const { return m_object; }
    void setObject(grObject3D const* object) { m_object = object; }

  private:
    grObject3D const* m_object = nullptr;

  public:
    rotation3_t m_rotation = Irot;
};

/// Scales its child by powers of two: the scale of an axis is 2 to the power of its exponent.
///
/// A new node has the scale 1 but the exponents 1, so addZoom(d) on a new node sets the exponents
/// to 1 + d. This is kept because callers depend on it. Call setZoom first.
class grZoomer : public grObject3D {
  public:
    ~grZoomer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    grObject3D const* getObject() const { return m_object; }
    void setObject(grObject3D const* object) { m_object = object; }
    /// Adds `d` to the exponents of the three axes.
    void addZoom(direction3_t const& d);
    /// Sets the exponents of the three axes.
    void setZoom(direction3_t const& d);

  private:
    grObject3D const* m_object = nullptr;
    direction3_t m_zoom = direction3(1.0f);
    direction3_t m_scale = Iscale;  // set by addZoom and setZoom
};

/// Moves its child by `m_position`.
class grTranslater : public grObject3D {
  public:
    ~grTranslater() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    grObject3D const* getObject() const { return m_object; }
    void setObject(grObject3D const* object) { m_object = object; }

  private:
    grObject3D const* m_object = nullptr;

  public:
    position3_t m_position = Ipos;
};

/// Transforms its child by `m_matrix`.
class grTransformer : public grObject3D {
  public:
    ~grTransformer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    void setObject(grObject3D const* object) { m_object = object; }

  private:
    grObject3D const* m_object = nullptr;

  public:
    matrix3w_t m_matrix = Imtx;  ///< may be changed at any time between two draws
};

/// Draws its children in order. Before each child it selects GL_MODELVIEW and saves the matrix.
/// After each child it restores the matrix and the mode. Each nested container needs one level of
/// the GL matrix stack, which is limited: see grMatrixPusher (gl/matrixmgr.h).
class grContainer : public grObject3D {
  public:
    ~grContainer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    /// Appends a child. Null is accepted and draws nothing.
    void addObject(grObject3D const* object) { m_objects.push_back(object); }
    /// Returns child `n`, counted from 0. Returns null if `n` is not less than `size()`.
    grObject3D const* getObject(unsigned long n) const;
    void clear() { m_objects.clear(); }
    unsigned long size() const { return m_objects.size(); }
    /// Removes children at the end, or appends null children.
    void resize(unsigned long n) { m_objects.resize(n); }

  private:
    std::vector<grObject3D const*> m_objects;
};

}  // namespace libgr
