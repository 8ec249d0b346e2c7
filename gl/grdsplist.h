// SPDX-License-Identifier: MIT
// A node that draws a compiled GL display list.
#pragma once

#include "gl/grobject.h"
#include "utils/refobject.h"

namespace libgr {

/// Owns one GL display list name.
class grDspListMgr {
  public:
    grDspListMgr() = default;
    grDspListMgr(grDspListMgr const&) = delete;
    grDspListMgr& operator=(grDspListMgr const&) = delete;
    /// Deletes the list. Needs a current context if `is_generated()` is true.
    ~grDspListMgr() { Release(); }

    /// Creates a list name unless there is one. Needs a current context.
    void Generate();
    /// Deletes the list. Needs a current context if `is_generated()` is true. A later `Generate`
    /// creates a new name.
    void Release();
    bool is_generated() const { return m_generated; }
    /// Returns the name, or 1281 (GL_INVALID_VALUE) if there is none.
    unsigned int listname() const;

  private:
    unsigned int m_listname = 0;
    bool m_generated = false;
};

/// Replays the GL calls that another node made when the list was compiled. Copies share one GL
/// list. The destructor of the last copy deletes the list and needs a current context if there is
/// one. Construction and copying make no GL call.
class grDspList : public grObject3D {
  public:
    ~grDspList() override = default;
    using grObject3D::Draw;
    /// Calls the list. Does nothing before `Preload` and after `Unload`. Needs a current context if
    /// there is a list.
    void Draw() const override;

    /// Compiles the GL calls that `object` makes in `Draw`. `object` may be null, which gives an
    /// empty list, and isn't kept. The calls are not executed, so their errors only occur when the
    /// list is drawn. A second call replaces the list. Always returns true. Needs a current
    /// context.
    bool Preload(grObject3D const* object);
    /// Deletes the GL list of this object and all its copies. Needs a current context if there is a
    /// list.
    void Unload();

  private:
    libutils::refobject<grDspListMgr> m_list;
};

}  // namespace libgr
