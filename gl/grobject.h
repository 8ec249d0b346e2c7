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

/// A node of a scene tree. Drawing doesn't change it.
///
/// Nodes have pointers to their children and don't own them: a child must outlive its parent or be
/// removed from it. Only `Draw` makes GL calls. Nodes can be created and destroyed without a
/// context, except grDspList (gl/grdsplist.h).
class grObject3D : public grDrawable3D {
  public:
    /// Calls `Draw() const`.
    void Draw() override;
    ~grObject3D() override = default;
    /// Draws the node and its children. Needs a current context.
    virtual void Draw() const = 0;
};

// The transform nodes multiply the current matrix of the current matrix mode before they draw their
// child. They don't restore it, so the transform also applies to everything that is drawn later:
// put them into a grContainer, which selects GL_MODELVIEW and restores the matrix after each child.
// Without a child they do nothing.

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

/// Scales its child by powers of two. The exponents of a new node are 1, but it scales by 1 until
/// the first call of addZoom or setZoom.
class grZoomer : public grObject3D {
  public:
    ~grZoomer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    grObject3D const* getObject() const { return m_object; }
    void setObject(grObject3D const* object) { m_object = object; }
    /// Adds to the exponents of 2, one for each axis.
    void addZoom(direction3_t const& d);
    /// Sets the exponents of 2, one for each axis.
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

/// Draws its children in order. Selects GL_MODELVIEW and saves the matrix before each child, and
/// restores the matrix and the mode after it. Each nested container needs one level of the GL
/// matrix stack; grMatrixPusher (gl/matrixmgr.h) describes the limit.
class grContainer : public grObject3D {
  public:
    ~grContainer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    /// Appends a child, which may be null.
    void addObject(grObject3D const* object) { m_objects.push_back(object); }
    /// Returns child `n`, counted from 0, or null if there are at most `n` children.
    grObject3D const* getObject(unsigned long n) const;
    void clear() { m_objects.clear(); }
    unsigned long size() const { return m_objects.size(); }
    /// Removes children at the end, or appends null children.
    void resize(unsigned long n) { m_objects.resize(n); }

  private:
    std::vector<grObject3D const*> m_objects;
};

}  // namespace libgr
