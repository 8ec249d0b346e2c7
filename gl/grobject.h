// SPDX-License-Identifier: MIT
// The tree of drawable nodes: transforms of the current GL matrix over one child, lists of
// children.
#pragma once

#include <vector>

#include "geometry/constants.h"
#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"

namespace libgr {

/// Anything that draws itself.
class grDrawable3D {
  public:
    /// Draws into the current context.
    virtual void Draw() = 0;
    virtual ~grDrawable3D() = default;
};

/// Anything that draws itself without changing: the node of the scene's trees.
///
/// Parents hold their children by pointer and own nothing below them. Only `Draw` makes GL calls,
/// so nodes may be made and destroyed without a context unless their class says otherwise.
class grObject3D : public grDrawable3D {
  public:
    void Draw() override;
    ~grObject3D() override = default;
    /// Draws into the current context; walking a tree uses this form alone.
    virtual void Draw() const = 0;
};

// The transform nodes below do nothing at all without a child. They don't save the matrix: their
// effect stays for whatever is drawn after them, unless a container above bounds it.

/// Turns its child.
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

/// Scales its child by powers of two.
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
    direction3_t m_scale = Iscale;  // what OpenGL gets; follows m_zoom from the first setting on
};

/// Moves its child.
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

/// Multiplies the current matrix by its own before its child is drawn.
class grTransformer : public grObject3D {
  public:
    ~grTransformer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    void setObject(grObject3D const* object) { m_object = object; }

  private:
    grObject3D const* m_object = nullptr;

  public:
    matrix3w_t m_matrix = Imtx;  ///< the scene reads and writes it in place
};

/// Draws its children in the order of adding, each under a saved modelview matrix.
class grContainer : public grObject3D {
  public:
    ~grContainer() override = default;
    using grObject3D::Draw;
    void Draw() const override;

    /// Appends a child; null is allowed and draws nothing.
    void addObject(grObject3D const* object) { m_objects.push_back(object); }
    /// The n-th child, counted from 0; null when there are no more than `n`.
    grObject3D const* getObject(unsigned long n) const;
    void clear() { m_objects.clear(); }
    unsigned long size() const { return m_objects.size(); }
    /// Cuts the list or fills it up with null.
    void resize(unsigned long n) { m_objects.resize(n); }

  private:
    std::vector<grObject3D const*> m_objects;
};

}  // namespace libgr
